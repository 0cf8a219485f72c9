#include "session/DateTexts.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {
// Read once: the system locale does not change under a running client.
const QLocale &userLocale()
{
    static const QLocale locale = QLocale::system();
    return locale;
}
} // namespace

QString timestampText(std::optional<qint64> date, QDate today)
{
    if (!date)
        return {};
    const QDateTime time = QDateTime::fromSecsSinceEpoch(*date);
    const QDate day = time.date();
    if (day == today)
        return userLocale().toString(time, u"H:mm"_s);
    if (day == today.addDays(-1))
        return u"Yesterday"_s;
    return userLocale().toString(time, u"d MMM"_s);
}

QString messageTime(std::optional<qint64> date)
{
    if (!date)
        return {};
    return userLocale().toString(QDateTime::fromSecsSinceEpoch(*date), u"H:mm"_s);
}
