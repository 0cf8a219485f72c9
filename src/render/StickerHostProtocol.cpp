#include "StickerHostProtocol.h"

#include <QDataStream>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>

namespace StickerHostProtocol {

namespace {

bool isKnown(quint8 kind)
{
    return (kind >= quint8(Kind::Show) && kind <= quint8(Kind::Acknowledge)) ||
           (kind >= quint8(Kind::Loaded) && kind <= quint8(Kind::Result));
}

// A script's result travels as JSON: only plain values, whatever the page returns.
QByteArray resultBytes(const QVariant &result)
{
    return QJsonDocument(QJsonArray{QJsonValue::fromVariant(result)}).toJson(QJsonDocument::Compact);
}

QVariant resultFromBytes(const QByteArray &bytes)
{
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    return document.isArray() ? document.array().at(0).toVariant() : QVariant();
}

void writeFrame(QDataStream &stream, const QImage &frame)
{
    const QImage pixels = frame.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    stream << qint32(pixels.width()) << qint32(pixels.height()) << pixels.devicePixelRatio();
    // 32-bit rows have no padding, so the pixels are one block.
    stream.writeBytes(reinterpret_cast<const char *>(pixels.constBits()), uint(pixels.sizeInBytes()));
}

bool readFrame(QDataStream &stream, QImage &frame)
{
    qint32 width = 0;
    qint32 height = 0;
    double ratio = 1;
    QByteArray pixels;
    stream >> width >> height >> ratio >> pixels;
    if (stream.status() != QDataStream::Ok || width <= 0 || height <= 0 || width > maximumFrameSide ||
        height > maximumFrameSide || pixels.size() != qsizetype(width) * height * 4 || !(ratio > 0 && ratio <= 16))
        return false;
    frame = QImage(width, height, QImage::Format_ARGB32_Premultiplied);
    std::memcpy(frame.bits(), pixels.constData(), size_t(pixels.size()));
    frame.setDevicePixelRatio(ratio);
    return true;
}

} // namespace

QByteArray encode(const Message &message)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << quint8(message.kind) << message.view;
    switch (message.kind) {
    case Kind::Show:
    case Kind::Resize:
        stream << message.size << message.devicePixelRatio;
        if (message.kind == Kind::Show)
            stream << message.text;
        break;
    case Kind::Run:
        stream << message.request << message.text;
        break;
    case Kind::Loaded:
        stream << message.succeeded;
        break;
    case Kind::PlayState:
        stream << message.text;
        break;
    case Kind::Frame:
        writeFrame(stream, message.frame);
        break;
    case Kind::Result:
        stream << message.request << resultBytes(message.result);
        break;
    case Kind::Close:
    case Kind::Acknowledge:
        break;
    }
    return MessageFraming::frame(body);
}

std::optional<Message> decode(const QByteArray &body)
{
    QDataStream stream(body);
    stream.setVersion(QDataStream::Qt_6_4);
    quint8 kind = 0;
    Message message;
    stream >> kind >> message.view;
    bool valid = isKnown(kind);
    message.kind = Kind(kind);
    if (valid) {
        switch (message.kind) {
        case Kind::Show:
        case Kind::Resize:
            stream >> message.size >> message.devicePixelRatio;
            if (message.kind == Kind::Show)
                stream >> message.text;
            valid = message.size.width() >= 0 && message.size.height() >= 0 &&
                    message.size.width() <= maximumFrameSide && message.size.height() <= maximumFrameSide &&
                    message.devicePixelRatio > 0 && message.devicePixelRatio <= 16;
            break;
        case Kind::Run:
            stream >> message.request >> message.text;
            break;
        case Kind::Loaded:
            stream >> message.succeeded;
            break;
        case Kind::PlayState:
            stream >> message.text;
            break;
        case Kind::Frame:
            valid = readFrame(stream, message.frame);
            break;
        case Kind::Result: {
            QByteArray result;
            stream >> message.request >> result;
            message.result = resultFromBytes(result);
            break;
        }
        case Kind::Close:
        case Kind::Acknowledge:
            break;
        }
    }
    // Every byte of the body belongs to the message: none may be missing or left over.
    if (!valid || stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    return message;
}

} // namespace StickerHostProtocol
