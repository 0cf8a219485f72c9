#pragma once

#include <QByteArray>

#include <algorithm>
#include <cstddef>
#include <cstdint>

// Feeds the input to a fresh Reader in pieces whose size its first byte picks,
// handing every message read to `each`, until the reader fails or the bytes end.
template<typename Reader, typename Each> void readInPieces(const uint8_t *data, size_t size, Each each)
{
    if (size == 0)
        return;
    const size_t piece = size_t(data[0]) + 1;
    Reader reader;
    for (size_t at = 1; at < size && !reader.failed(); at += piece) {
        reader.append(QByteArray(reinterpret_cast<const char *>(data + at), qsizetype(std::min(piece, size - at))));
        while (const auto message = reader.next())
            each(*message);
    }
}
