// Whatever comes over the sticker host's connection, in pieces of any size, read as
// its messages: a malformed one stops the reader, and nothing crashes or allocates
// without bound.

#include "PiecewiseReading.h"
#include "render/StickerHostProtocol.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // What was read can be sent on.
    readInPieces<StickerHostProtocol::Reader>(
        data, size, [](const StickerHostProtocol::Message &message) { (void)StickerHostProtocol::encode(message); });
    return 0;
}
