// Whatever comes over the page fetcher's pipe (either way), in pieces of any size, read as
// its messages: a malformed one stops the reader, and nothing crashes or allocates
// without bound.

#include "render/PageFetchProtocol.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    // The first byte picks the size of the pieces the bytes arrive in.
    const size_t piece = size_t(data[0]) + 1;
    PageFetchProtocol::Reader reader;
    for (size_t at = 1; at < size && !reader.failed(); at += piece) {
        reader.append(QByteArray(reinterpret_cast<const char *>(data + at), qsizetype(std::min(piece, size - at))));
        while (const std::optional<PageFetchProtocol::Message> message = reader.next())
            std::visit([](const auto &read) { (void)PageFetchProtocol::encode(read); },
                       *message); // what was read can be sent on
    }
    return 0;
}
