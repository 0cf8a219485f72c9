#include "Formats.h"

#include <QList>
#include <QLocale>

#include <algorithm>
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

namespace {
// The usual grouping of a country's national numbers of one length.
struct Grouping {
    const char *countryCode;
    int length;
    QList<int> groups;
};

const QList<Grouping> &groupings()
{
    static const QList<Grouping> table = {
        {"1", 10, {3, 3, 4}},       {"1", 7, {3, 4}},      {"7", 10, {3, 3, 2, 2}}, {"20", 10, {2, 4, 4}},
        {"27", 9, {2, 3, 4}},       {"30", 10, {3, 3, 4}}, {"31", 9, {1, 8}},       {"32", 9, {3, 2, 2, 2}},
        {"33", 9, {1, 2, 2, 2, 2}}, {"34", 9, {3, 3, 3}},  {"36", 9, {2, 3, 4}},    {"39", 10, {3, 3, 4}},
        {"41", 9, {2, 3, 2, 2}},    {"43", 10, {3, 7}},    {"44", 10, {4, 6}},      {"45", 8, {2, 2, 2, 2}},
        {"46", 9, {2, 3, 2, 2}},    {"47", 8, {3, 2, 3}},  {"48", 9, {3, 3, 3}},    {"49", 11, {4, 7}},
        {"49", 10, {3, 7}},         {"52", 10, {2, 4, 4}}, {"55", 11, {2, 5, 4}},   {"61", 9, {3, 3, 3}},
        {"62", 11, {3, 4, 4}},      {"81", 10, {2, 4, 4}}, {"82", 10, {2, 4, 4}},   {"86", 11, {3, 4, 4}},
        {"90", 10, {3, 3, 4}},      {"91", 10, {5, 5}},    {"351", 9, {3, 3, 3}},   {"380", 9, {2, 3, 2, 2}},
    };
    return table;
}

// Country codes are prefix-free: 1 and 7 alone, these of two digits, all others of three.
int countryCodeLength(const QString &digits)
{
    if (digits.startsWith(u'1') || digits.startsWith(u'7'))
        return 1;
    static const QStringList twoDigits = {
        u"20"_s, u"27"_s, u"30"_s, u"31"_s, u"32"_s, u"33"_s, u"34"_s, u"36"_s, u"39"_s, u"40"_s, u"41"_s,
        u"43"_s, u"44"_s, u"45"_s, u"46"_s, u"47"_s, u"48"_s, u"49"_s, u"51"_s, u"52"_s, u"53"_s, u"54"_s,
        u"55"_s, u"56"_s, u"57"_s, u"58"_s, u"60"_s, u"61"_s, u"62"_s, u"63"_s, u"64"_s, u"65"_s, u"66"_s,
        u"81"_s, u"82"_s, u"84"_s, u"86"_s, u"90"_s, u"91"_s, u"92"_s, u"93"_s, u"94"_s, u"95"_s, u"98"_s,
    };
    return twoDigits.contains(digits.left(2)) ? 2 : 3;
}

QStringList split(const QString &digits, const QList<int> &groups)
{
    QStringList parts;
    qsizetype at = 0;
    for (int size : groups) {
        parts << digits.mid(at, size);
        at += size;
    }
    return parts;
}

// Groups of three, the last of up to four: "555 0100", "123 456 7890".
QStringList splitEvenly(const QString &digits)
{
    QStringList parts;
    qsizetype at = 0;
    while (digits.size() - at > 4) {
        parts << digits.mid(at, 3);
        at += 3;
    }
    if (at < digits.size())
        parts << digits.mid(at);
    return parts;
}
} // namespace

QString Formats::phoneNumber(const QString &number)
{
    QString digits;
    for (QChar c : number) {
        if (c.isDigit() && c.unicode() < 128)
            digits += c;
    }
    if (digits.isEmpty())
        return {};
    const int codeLength = int(std::min<qsizetype>(countryCodeLength(digits), digits.size()));
    const QString code = digits.left(codeLength);
    const QString national = digits.mid(codeLength);
    QStringList parts{u'+' + code};
    const auto &table = groupings();
    const auto grouping = std::find_if(table.begin(), table.end(), [&](const Grouping &g) {
        return code == QLatin1StringView(g.countryCode) && national.size() == g.length;
    });
    parts << (grouping != table.end() ? split(national, grouping->groups) : splitEvenly(national));
    parts.removeAll(QString());
    return parts.join(u' ');
}
