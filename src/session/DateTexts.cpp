#include "session/DateTexts.h"

#include <QLocale>

using namespace Qt::StringLiterals;

QString timestampText(std::optional<qint64> date, const QDateTime &now)
{
    if (!date)
        return {};
    const QDateTime time = QDateTime::fromSecsSinceEpoch(*date);
    const QDate today = now.toLocalTime().date();
    const QDate day = time.date();
    if (day == today)
        return QLocale::system().toString(time, u"H:mm"_s);
    if (day == today.addDays(-1))
        return u"Yesterday"_s;
    return QLocale::system().toString(time, u"d MMM"_s);
}

QString messageTime(std::optional<qint64> date)
{
    if (!date)
        return {};
    return QLocale::system().toString(QDateTime::fromSecsSinceEpoch(*date), u"H:mm"_s);
}
