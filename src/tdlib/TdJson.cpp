#include "tdlib/TdJson.h"

#include <limits>

std::optional<qint64> parseInt64(QStringView text)
{
    qsizetype position = 0;
    bool negative = false;
    if (!text.isEmpty() && (text.front() == u'+' || text.front() == u'-')) {
        negative = text.front() == u'-';
        position = 1;
    }
    if (position == text.size())
        return std::nullopt;
    // Accumulate negatively so that the smallest value parses too.
    qint64 value = 0;
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    for (; position < text.size(); ++position) {
        const char16_t c = text[position].unicode();
        if (c < u'0' || c > u'9')
            return std::nullopt;
        const int digit = c - u'0';
        if (value < (lowest + digit) / 10)
            return std::nullopt;
        value = value * 10 - digit;
    }
    if (negative)
        return value;
    if (value == lowest)
        return std::nullopt;
    return -value;
}

std::optional<qint64> integerFrom(const QJsonValue &value)
{
    if (!value.isDouble())
        return std::nullopt;
    // toInteger falls back to its argument for fractions and out-of-range values;
    // two different fallbacks tell a real value from a fallback.
    const qint64 first = value.toInteger(0);
    if (first == 0 && value.toInteger(1) == 1)
        return std::nullopt;
    return first;
}

std::optional<qint64> int64From(const QJsonValue &value)
{
    if (value.isString())
        return parseInt64(value.toString());
    return integerFrom(value);
}
