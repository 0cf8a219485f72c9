#include "tdlib/TdJson.h"

#include <cstdint>
#include <cstring>
#include <limits>

bool isValidUtf8(QByteArrayView bytes)
{
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    const auto *end = p + bytes.size();
    while (p < end) {
        // TDLib's JSON is mostly ASCII: eight bytes at a time while it is.
        if (end - p >= 8) {
            std::uint64_t word = 0;
            std::memcpy(&word, p, sizeof word);
            if ((word & 0x8080808080808080ULL) == 0) {
                p += 8;
                continue;
            }
        }
        const unsigned char lead = *p;
        if (lead < 0x80) {
            ++p;
            continue;
        }
        int length = 0;
        unsigned char low = 0x80;
        unsigned char high = 0xBF;
        if (lead >= 0xC2 && lead <= 0xDF) {
            length = 2;
        } else if (lead >= 0xE0 && lead <= 0xEF) {
            length = 3;
            low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong forms
            high = lead == 0xED ? 0x9F : 0xBF; // no surrogates
        } else if (lead >= 0xF0 && lead <= 0xF4) {
            length = 4;
            low = lead == 0xF0 ? 0x90 : 0x80;
            high = lead == 0xF4 ? 0x8F : 0xBF;
        } else {
            return false;
        }
        if (end - p < length || p[1] < low || p[1] > high)
            return false;
        for (int i = 2; i < length; ++i) {
            if (p[i] < 0x80 || p[i] > 0xBF)
                return false;
        }
        p += length;
    }
    return true;
}

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
