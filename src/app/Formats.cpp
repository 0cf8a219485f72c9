#include "Formats.h"

#include <QLocale>

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
    const int hours = seconds / 3600;
    const int minutes = seconds / 60 % 60;
    const QString rest = u"%1:%2"_s.arg(hours > 0 ? QString::number(minutes).rightJustified(2, u'0')
                                                  : QString::number(minutes))
                             .arg(seconds % 60, 2, 10, QChar(u'0'));
    return hours > 0 ? QString::number(hours) + u':' + rest : rest;
}

QString Formats::dayLabel(const QDateTime &date)
{
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
