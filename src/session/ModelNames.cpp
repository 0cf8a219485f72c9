#include "session/ModelNames.h"

using namespace Qt::StringLiterals;

QString caseName(MessageDeliveryState state)
{
    switch (state) {
    case MessageDeliveryState::None:
        return u"none"_s;
    case MessageDeliveryState::Sending:
        return u"sending"_s;
    case MessageDeliveryState::Sent:
        return u"sent"_s;
    case MessageDeliveryState::Read:
        return u"read"_s;
    }
    return {};
}

QString caseName(MessageMediaKind kind)
{
    switch (kind) {
    case MessageMediaKind::Photo:
        return u"photo"_s;
    case MessageMediaKind::Sticker:
        return u"sticker"_s;
    case MessageMediaKind::Video:
        return u"video"_s;
    case MessageMediaKind::Animation:
        return u"animation"_s;
    case MessageMediaKind::Voice:
        return u"voice"_s;
    case MessageMediaKind::Audio:
        return u"audio"_s;
    }
    return {};
}

QString caseName(std::optional<MessageMediaKind> kind)
{
    return kind ? caseName(*kind) : QString();
}

QString caseName(StickerFormat format)
{
    switch (format) {
    case StickerFormat::Webp:
        return u"webp"_s;
    case StickerFormat::Animated:
        return u"animated"_s;
    case StickerFormat::Video:
        return u"video"_s;
    }
    return {};
}

QString caseName(AvatarColor color)
{
    return color == AvatarColor::Teal ? u"teal"_s : u"blue"_s;
}

QString caseName(PendingAttachmentKind kind)
{
    return kind == PendingAttachmentKind::Photo ? u"photo"_s : u"document"_s;
}
