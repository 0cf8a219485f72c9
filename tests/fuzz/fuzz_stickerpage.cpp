// A sticker file from a peer, any bytes in any of the three formats, into the page
// that plays it (gzip Lottie is inflated and checked there, within its limits).

#include "render/StickerPage.h"

#include <QTemporaryFile>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    static QTemporaryFile player;
    if (!player.isOpen()) {
        player.open();
        player.write("/* player */");
        player.flush();
    }
    const StickerFormat format = StickerFormat(data[0] % 3);
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    (void)StickerPage::html(bytes, format, player.fileName());
    return 0;
}
