#pragma once

#include <QByteArray>

#include <optional>

// How Vost and its helper processes cut a byte stream into messages: each is its
// length (four bytes, big-endian) and a body of that many bytes.
namespace MessageFraming {

QByteArray frame(const QByteArray &body);

// Collects bytes as they arrive and hands out whole bodies. A length of zero or
// above the maximum stops the reader for good, as does fail(): once one message
// is malformed, what follows it cannot be trusted either.
class Reader
{
public:
    explicit Reader(qsizetype maximumBodySize)
        : m_maximumBodySize(maximumBodySize)
    {}

    void append(const QByteArray &bytes);
    // The next whole body, or nothing until more bytes come (or after a failure).
    std::optional<QByteArray> next();
    void fail() { m_failed = true; }
    bool failed() const { return m_failed; }

private:
    qsizetype m_maximumBodySize;
    QByteArray m_buffer;
    qsizetype m_offset = 0;
    bool m_failed = false;
};

// Hands out whole messages of one protocol: each body goes through Decode, and a
// body it rejects, or one longer than MaximumBodySize, stops the reader for good:
// what follows it cannot be trusted either.
template<typename Message, std::optional<Message> (*Decode)(const QByteArray &body), qsizetype MaximumBodySize>
class MessageReader
{
public:
    void append(const QByteArray &bytes) { m_frames.append(bytes); }
    // The next whole message, or nothing until more bytes come (or after a failure).
    std::optional<Message> next()
    {
        const std::optional<QByteArray> body = m_frames.next();
        if (!body)
            return std::nullopt;
        std::optional<Message> message = Decode(*body);
        if (!message)
            m_frames.fail();
        return message;
    }
    bool failed() const { return m_frames.failed(); }

private:
    Reader m_frames{MaximumBodySize};
};

} // namespace MessageFraming
