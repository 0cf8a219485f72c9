// Whatever comes over the page fetcher's pipe (either way), in pieces of any size, read as
// its messages: a malformed one stops the reader, and nothing crashes or allocates
// without bound.

#include "PiecewiseReading.h"
#include "render/PageFetchProtocol.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // What was read can be sent on.
    readInPieces<PageFetchProtocol::Reader>(data, size, [](const PageFetchProtocol::Message &message) {
        std::visit([](const auto &read) { (void)PageFetchProtocol::encode(read); }, message);
    });
    return 0;
}
