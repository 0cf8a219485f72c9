#include "Formats.h"

#include <QLocale>

#include <cmath>

using namespace Qt::StringLiterals;

Formats::Formats(QObject *parent)
    : QObject(parent)
{}

QString Formats::dataSize(qint64 bytes)
{
    return QLocale().formattedDataSize(std::max<qint64>(bytes, 0), 1, QLocale::DataSizeSIFormat);
}

QString Formats::duration(int seconds)
{
    seconds = std::max(seconds, 0);
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    // The locale's own digits ("۰:۰۷" in Persian), padded with its own zero.
    const auto twoDigits = [&locale](int value) {
        return value < 10 ? locale.zeroDigit() + locale.toString(value) : locale.toString(value);
    };
    const int hours = seconds / 3600;
    const int minutes = seconds / 60 % 60;
    const QString rest = (hours > 0 ? twoDigits(minutes) : locale.toString(minutes)) + u':' + twoDigits(seconds % 60);
    return hours > 0 ? locale.toString(hours) + u':' + rest : rest;
}

QString Formats::coordinates(double latitude, double longitude)
{
    // Degrees with the hemisphere's letter and a point for decimals, whatever the
    // language: the form maps and GPS devices read everywhere.
    const auto part = [](double degrees, char16_t positive, char16_t negative) {
        const QString number = QString::number(std::abs(degrees), 'f', 5);
        return number + u"° "_s + QChar(degrees < 0 ? negative : positive);
    };
    if (!std::isfinite(latitude) || !std::isfinite(longitude))
        return {};
    return part(latitude, u'N', u'S') + u", "_s + part(longitude, u'E', u'W');
}

QString Formats::dayLabel(const QDateTime &date, const QString &language)
{
    Q_UNUSED(language)
    return date.isValid() ? dayLabel(date.toLocalTime().date(), QDate::currentDate()) : QString();
}

QString Formats::dayLabel(const QDate &day, const QDate &today)
{
    const qint64 daysAgo = day.daysTo(today);
    if (daysAgo == 0)
        return tr("Today");
    if (daysAgo == 1)
        return tr("Yesterday");
    const QLocale locale;
    if (daysAgo > 1 && daysAgo < 7)
        return locale.standaloneDayName(day.dayOfWeek(), QLocale::LongFormat);
    // This year's dates need no year; older ones need no weekday.
    if (day.year() == today.year())
        return locale.toString(day, u"d MMMM"_s);
    return locale.toString(day, locale.dateFormat(QLocale::LongFormat).remove(u"dddd, "_s));
}
