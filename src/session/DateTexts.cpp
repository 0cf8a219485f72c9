#include "session/DateTexts.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>
#include <QTimeZone>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {
// The default locale: the system's, or the language chosen in the preferences.
QLocale userLocale()
{
    return QLocale();
}
// The local time of a moment. Converting through the system's time zone is slow
// (the C library looks at the zone file each time) and runs for every chat of a
// sync, but the offset from UTC only changes at the zone's transitions: remember
// the spans between them. A span is trusted only when the system gives the same
// offset at both of its ends; otherwise it is cut down to the quarter hour,
// since transitions fall on quarter hours.
struct OffsetSpan {
    qint64 from = 0; // seconds since the epoch, inclusive
    qint64 to = 0;   // exclusive
    int offset = 0;
};

int systemOffset(qint64 secondsSinceEpoch)
{
    return QDateTime::fromSecsSinceEpoch(secondsSinceEpoch).offsetFromUtc();
}

OffsetSpan spanAround(qint64 secondsSinceEpoch)
{
    constexpr qint64 quarterHour = 15 * 60;
    const int offset = systemOffset(secondsSinceEpoch);
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, QTimeZone::utc());
    const QTimeZone::OffsetData before = zone.previousTransition(moment);
    const QTimeZone::OffsetData after = zone.nextTransition(moment);
    OffsetSpan span{before.atUtc.isValid() ? before.atUtc.toSecsSinceEpoch() : secondsSinceEpoch,
                    after.atUtc.isValid() ? after.atUtc.toSecsSinceEpoch() : secondsSinceEpoch + 366 * 86400, offset};
    if (span.from > secondsSinceEpoch || span.to <= secondsSinceEpoch || systemOffset(span.from) != offset ||
        systemOffset(span.to - 1) != offset) {
        const qint64 quarter = secondsSinceEpoch >= 0 ? secondsSinceEpoch / quarterHour
                                                      : (secondsSinceEpoch - quarterHour + 1) / quarterHour;
        span = {quarter * quarterHour, (quarter + 1) * quarterHour, offset};
    }
    return span;
}

QDateTime localTime(qint64 secondsSinceEpoch)
{
    thread_local std::vector<OffsetSpan> spans;
    auto known = std::find_if(spans.cbegin(), spans.cend(), [secondsSinceEpoch](const OffsetSpan &span) {
        return span.from <= secondsSinceEpoch && secondsSinceEpoch < span.to;
    });
    if (known == spans.cend()) {
        if (spans.size() >= 256)
            spans.clear();
        spans.push_back(spanAround(secondsSinceEpoch));
        known = spans.cend() - 1;
    }
    return QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::OffsetFromUTC, known->offset);
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
        return QCoreApplication::translate("DateTexts", "Yesterday");
    // A sync dates thousands of chats on far fewer days; a new language starts afresh.
    thread_local QHash<qint64, QString> dayTexts;
    thread_local QLocale dayTextsLocale;
    if (dayTextsLocale != userLocale()) {
        dayTexts.clear();
        dayTextsLocale = userLocale();
    }
    const auto known = dayTexts.constFind(day.toJulianDay());
    if (known != dayTexts.cend())
        return *known;
    if (dayTexts.size() >= 1024)
        dayTexts.clear();
    return *dayTexts.insert(day.toJulianDay(), userLocale().toString(time, u"d MMM"_s));
}

QString messageTime(std::optional<qint64> date)
{
    if (!date)
        return {};
    return userLocale().toString(localTime(*date), u"H:mm"_s);
}
