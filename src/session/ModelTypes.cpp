#include "session/ModelTypes.h"

#include <QRandomGenerator>

#include <atomic>

QUuid newViewID()
{
    // Random once per process, then counted: unique within the process, and
    // still unlike the identifiers of another run.
    static const quint64 high = QRandomGenerator::system()->generate64();
    static std::atomic<quint64> next{QRandomGenerator::system()->generate64()};
    const quint64 low = next.fetch_add(1, std::memory_order_relaxed);
    return QUuid(quint32(high >> 32), quint16(high >> 16), quint16(high), uchar(low >> 56), uchar(low >> 48),
                 uchar(low >> 40), uchar(low >> 32), uchar(low >> 24), uchar(low >> 16), uchar(low >> 8), uchar(low));
}
