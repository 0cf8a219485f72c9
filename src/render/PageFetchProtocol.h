#pragma once

#include "render/MessageFraming.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <variant>

// The messages between Vost and its page fetcher: the helper process that fetches
// the pages and pictures of link previews, so that TLS (OpenSSL and the system's
// certificates) is never loaded into Vost, which lives in the tray all day. A
// message is its length (four bytes, big-endian) and a CBOR map.
namespace PageFetchProtocol {

// One fetch, asked of the fetcher.
struct Request {
    quint32 id = 0;
    QUrl url;
    int timeoutMs = 0;            // the transfer time-out and the deadline of the whole answer
    bool browserIdentity = false; // a desktop browser's User-Agent, so that sites serve metadata
};

// What came of it. Not reached: no answer from the server (a transport error, or
// an answer cut off at its deadline or size limit).
struct Answer {
    quint32 id = 0;
    bool reached = false;
    std::optional<int> status; // the HTTP status, when the server sent one
    QString mimeType;          // lower case, without parameters
    QByteArray body;
};

inline Answer notReached(quint32 id)
{
    Answer answer;
    answer.id = id;
    return answer;
}

using Message = std::variant<Request, Answer>;

// The largest body the fetcher hands on, after decompression, and the largest
// message either side takes: a longer one is malformed.
constexpr qint64 maximumBodyBytes = 8 * 1024 * 1024;
constexpr qsizetype maximumMessageSize = maximumBodyBytes + 64 * 1024;

// Whether the fetcher takes the request: a valid, non-empty address and a time-out of
// zero or more. It reads anything else as a malformed message, and ends.
bool isWellFormed(const Request &request);

QByteArray encode(const Request &request);
QByteArray encode(const Answer &answer);

// The message in a body; none when it is not a CBOR map of a request or an answer
// with fields of the right types.
std::optional<Message> decode(const QByteArray &body);

// Collects bytes as they arrive and hands out whole messages.
using Reader = MessageFraming::MessageReader<Message, &decode, maximumMessageSize>;

} // namespace PageFetchProtocol
