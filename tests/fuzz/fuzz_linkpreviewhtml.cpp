// The page text of a link preview, any bytes decoded as the loader decodes them,
// through the metadata parser.

#include "render/LinkPreviewMetadata.h"

#include <QGuiApplication>
#include <QStringDecoder>
#include <QUrl>

#include <cstddef>
#include <cstdint>

using namespace Qt::StringLiterals;

// Entities are decoded by Qt's rich-text reader, which needs the application's
// fonts, as in the client.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    const HtmlPreviewFields fields = parseHtmlPreviewFields(text, QUrl(u"https://example.com/a/b.html"_s));
    if (fields.imageUrl)
        (void)fields.imageUrl->isValid();
    (void)LinkPreviewMetadata::attribute(u"content"_s, text);
    (void)decodeAppStoreLookup(bytes);
    return 0;
}
