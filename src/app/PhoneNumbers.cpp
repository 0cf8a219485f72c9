#include "PhoneNumbers.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

PhoneNumbers::PhoneNumbers(QObject *parent)
    : QObject(parent)
{}

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

QString PhoneNumbers::international(const QString &number)
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
