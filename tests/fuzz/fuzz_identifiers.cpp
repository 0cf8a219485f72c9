// What a user types as a phone number or a username, and TDLib's 64-bit values
// (JSON numbers or decimal strings), through their readers.

#include "session/ContactInput.h"
#include "tdlib/TdJson.h"

#include <QJsonDocument>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString text = QString::fromUtf8(bytes);
    if (const std::optional<QString> phone = normalizedContactPhone(text); phone && phone->isEmpty())
        std::abort();
    (void)cleanedUsername(text);
    // A value that parses prints back to the same digits, sign aside.
    if (const std::optional<qint64> value = parseInt64(text)) {
        const QString printed = QString::number(*value);
        QString expected = text;
        if (expected.startsWith(u'+'))
            expected.remove(0, 1);
        while (expected.size() > 1 && expected.startsWith(u'0'))
            expected.remove(0, 1);
        if (expected.startsWith(u"-"))
            while (expected.size() > 2 && expected.at(1) == u'0')
                expected.remove(1, 1);
        if (printed != expected && !(printed == u"0" && (expected == u"-0")))
            std::abort();
    }
    const QJsonDocument document = QJsonDocument::fromJson("[" + bytes + "]");
    if (document.isArray())
        for (const QJsonValue &value : document.array()) {
            (void)int64From(value);
            (void)integerFrom(value);
        }
    return 0;
}
