#include "MessageFraming.h"

#include <QtEndian>

namespace MessageFraming {

QByteArray frame(const QByteArray &body)
{
    QByteArray message(4, Qt::Uninitialized);
    qToBigEndian(quint32(body.size()), message.data());
    return message + body;
}

void Reader::append(const QByteArray &bytes)
{
    if (m_failed)
        return;
    if (m_offset > 0 && m_offset == m_buffer.size()) {
        m_buffer.clear();
        m_offset = 0;
    }
    m_buffer += bytes;
}

std::optional<QByteArray> Reader::next()
{
    if (m_failed || m_buffer.size() - m_offset < 4)
        return std::nullopt;
    const quint32 length = qFromBigEndian<quint32>(m_buffer.constData() + m_offset);
    if (length == 0 || length > quint64(m_maximumBodySize)) {
        m_failed = true;
        return std::nullopt;
    }
    if (m_buffer.size() - m_offset - 4 < qsizetype(length))
        return std::nullopt;
    QByteArray body = m_buffer.mid(m_offset + 4, length);
    m_offset += 4 + qsizetype(length);
    if (m_offset > 1024 * 1024) { // keep the buffer from growing with what was read
        m_buffer.remove(0, m_offset);
        m_offset = 0;
    }
    return body;
}

} // namespace MessageFraming
