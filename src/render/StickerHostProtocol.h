#pragma once

#include "render/MessageFraming.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QVariant>

#include <optional>

// The messages between Vost and its sticker host: the helper process that plays
// video stickers in a web page and hands back their frames, so that the web engine
// never runs inside Vost and goes away with the helper. A message is its length
// (four bytes, big-endian) and a body that starts with its kind.
namespace StickerHostProtocol {

enum class Kind : quint8 {
    // To the host.
    Show = 1,    // view, size, devicePixelRatio, text = the page to load
    Resize,      // view, size, devicePixelRatio
    Close,       // view
    Run,         // view, request, text = a script to run in the page
    Acknowledge, // view: the last frame has been taken; the next may come
    // From the host.
    Loaded = 64, // view, succeeded
    PlayState,   // view, text = what the page's probe answered
    Frame,       // view, frame
    Result,      // view, request, result
};

struct Message {
    explicit Message(Kind kind_ = Kind::Close, quint32 view_ = 0)
        : kind(kind_)
        , view(view_)
    {}

    Kind kind;
    quint32 view;
    QSize size;                  // in device pixels
    double devicePixelRatio = 1; // of the screen the view is on
    QString text;
    quint32 request = 0;
    bool succeeded = false;
    QImage frame; // premultiplied ARGB, as the view's window would show it
    QVariant result;
};

// Bounds on what is taken from the other side: a message larger than this, or a
// frame wider or taller, is malformed.
constexpr qsizetype maximumMessageSize = 64 * 1024 * 1024;
constexpr int maximumFrameSide = 4096;

QByteArray encode(const Message &message);
// The message in a body; none when it is of no known kind, cut short, has bytes
// left over, or carries a frame whose size does not match its pixels.
std::optional<Message> decode(const QByteArray &body);

// Collects bytes as they arrive and hands out whole messages.
using Reader = MessageFraming::MessageReader<Message, &decode, maximumMessageSize>;

} // namespace StickerHostProtocol
