#include "session/DateTexts.h"

#include <QHash>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {
// Read once: the system locale does not change under a running client.
const QLocale &userLocale()
{
    static const QLocale locale = QLocale::system();
    return locale;
}
// The local time of a moment. Converting through the system's time zone is slow
// and runs for every chat of a sync, but the offset from UTC only changes at
// transitions, which fall on quarter hours: remember it per quarter hour.
QDateTime localTime(qint64 secondsSinceEpoch)
{
    constexpr qint64 quarterHour = 15 * 60;
    thread_local QHash<qint64, int> offsets;
    const qint64 quarter =
        secondsSinceEpoch >= 0 ? secondsSinceEpoch / quarterHour : (secondsSinceEpoch - quarterHour + 1) / quarterHour;
    auto offset = offsets.constFind(quarter);
    if (offset == offsets.cend()) {
        if (offsets.size() > 100000)
            offsets.clear();
        offset = offsets.insert(quarter, QDateTime::fromSecsSinceEpoch(quarter * quarterHour).offsetFromUtc());
    }
    return QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::OffsetFromUTC, *offset);
}

} // namespace

QString timestampText(std::optional<qint64> date, QDate today)
{
    if (!date)
        return {};
    const QDateTime time = localTime(*date);
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
    return userLocale().toString(localTime(*date), u"H:mm"_s);
}
