#include "JsonForms.h"

#include "session/ModelNames.h"

using namespace Qt::StringLiterals;

QJsonValue toJson(const Step &step)
{
    QJsonObject object{{"case"_L1, caseName(step.kind())}};
    if (step.kind() == Step::Case::Password)
        object.insert("hint"_L1, step.hint());
    if (step.kind() == Step::Case::Unavailable)
        object.insert("text"_L1, step.text());
    return object;
}

QJsonValue toJson(const User &user)
{
    return QJsonObject{{"id"_L1, user.id.toString(QUuid::WithoutBraces)},
                       {"name"_L1, user.name},
                       {"initials"_L1, user.initials},
                       {"color"_L1, caseName(user.color)},
                       {"avatarPath"_L1, optionalToJson(user.avatarPath)}};
}

QJsonValue toJson(const MessageReaction &reaction)
{
    return QJsonObject{{"emoji"_L1, reaction.emoji}, {"count"_L1, reaction.count}, {"isChosen"_L1, reaction.isChosen}};
}

QJsonValue toJson(const Message &message)
{
    return QJsonObject{
        {"id"_L1, message.id},
        {"sender"_L1, toJson(message.sender)},
        {"text"_L1, message.text},
        {"timestamp"_L1, message.timestamp},
        {"isOutgoing"_L1, message.isOutgoing},
        {"deliveryState"_L1, caseName(message.deliveryState)},
        {"mediaPath"_L1, optionalToJson(message.mediaPath)},
        {"mediaPaths"_L1, QJsonArray::fromStringList(message.mediaPaths)},
        {"mediaKind"_L1, message.mediaKind ? QJsonValue(caseName(*message.mediaKind)) : QJsonValue()},
        {"stickerEmoji"_L1, message.stickerEmoji},
        {"stickerFormat"_L1, caseName(message.stickerFormat)},
        {"mediaAlbumID"_L1, optionalToJson(message.mediaAlbumID)},
        {"documentPath"_L1, optionalToJson(message.documentPath)},
        {"documentName"_L1, optionalToJson(message.documentName)},
        {"reactions"_L1, toJsonArray(message.reactions)},
        {"isUnread"_L1, message.isUnread},
    };
}

QJsonValue toJson(const Chat &chat)
{
    return QJsonObject{
        {"id"_L1, chat.id},
        {"title"_L1, chat.title},
        {"subtitle"_L1, chat.subtitle},
        {"preview"_L1, chat.preview},
        {"timestamp"_L1, chat.timestamp},
        {"unreadCount"_L1, chat.unreadCount},
        {"isMuted"_L1, chat.isMuted},
        {"isArchived"_L1, chat.isArchived},
        {"isPinned"_L1, chat.isPinned},
        {"isMarkedUnread"_L1, chat.isMarkedUnread},
        {"draftText"_L1, chat.draftText},
        {"avatarText"_L1, chat.avatarText},
        {"avatarSymbol"_L1, optionalToJson(chat.avatarSymbol)},
        {"avatarPath"_L1, optionalToJson(chat.avatarPath)},
        {"messages"_L1, toJsonArray(chat.messages)},
    };
}

Message messageFromJson(const QJsonObject &object)
{
    Message message;
    message.id = object.value("id"_L1).toVariant().toString();
    message.text = object.value("text"_L1).toString();
    message.isOutgoing = object.value("isOutgoing"_L1).toBool();
    message.isUnread = object.value("isUnread"_L1).toBool();
    for (const QJsonValue &reaction : object.value("reactions"_L1).toArray()) {
        const QJsonObject r = reaction.toObject();
        message.reactions.append(
            {r.value("emoji"_L1).toString(), r.value("count"_L1).toInt(), r.value("isChosen"_L1).toBool()});
    }
    return message;
}

QList<Message> messagesFromJson(const QJsonArray &array)
{
    QList<Message> messages;
    for (const QJsonValue &value : array)
        messages.append(messageFromJson(value.toObject()));
    return messages;
}

QJsonValue toJson(const StickerChoice &sticker)
{
    return QJsonObject{{"id"_L1, sticker.id},
                       {"fileID"_L1, sticker.fileID},
                       {"path"_L1, sticker.path},
                       {"emoji"_L1, sticker.emoji},
                       {"width"_L1, sticker.width},
                       {"height"_L1, sticker.height},
                       {"format"_L1, caseName(sticker.format)}};
}

QJsonValue toJson(const ContactChoice &contact)
{
    return QJsonObject{{"id"_L1, contact.id},
                       {"name"_L1, contact.name},
                       {"username"_L1, contact.username},
                       {"initials"_L1, contact.initials},
                       {"avatarPath"_L1, optionalToJson(contact.avatarPath)},
                       {"isOnline"_L1, contact.isOnline}};
}

StickerChoice stickerFromJson(const QJsonObject &object)
{
    return {object.value("id"_L1).toVariant().toLongLong(),
            object.value("fileID"_L1).toVariant().toLongLong(),
            object.value("path"_L1).toString(),
            object.value("emoji"_L1).toString(),
            object.value("width"_L1).toInt(),
            object.value("height"_L1).toInt(),
            caseFromName<StickerFormat>(object.value("format"_L1).toString()).value_or(StickerFormat::Webp)};
}

QList<PendingAttachment> attachmentsFromJson(const QJsonArray &array)
{
    QList<PendingAttachment> attachments;
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        attachments.append({QUuid::createUuid(), object.value("path"_L1).toString(),
                            caseFromName<PendingAttachmentKind>(object.value("kind"_L1).toString())
                                .value_or(PendingAttachmentKind::Photo)});
    }
    return attachments;
}
