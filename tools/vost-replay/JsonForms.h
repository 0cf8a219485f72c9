#pragma once

// The JSON forms in which the replay driver prints the session's values: objects
// with the records' field names, enumerations as their case names, absent
// optionals as null.

#include "session/ModelTypes.h"
#include "session/Step.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

template<typename T> QJsonValue optionalToJson(const std::optional<T> &value)
{
    return value ? QJsonValue(*value) : QJsonValue(QJsonValue::Null);
}

QJsonValue toJson(const Step &step);
QJsonValue toJson(const User &user);
QJsonValue toJson(const Message &message);
QJsonValue toJson(const Chat &chat);
QJsonValue toJson(const MessageReaction &reaction);

QJsonValue toJson(const StickerChoice &sticker);
QJsonValue toJson(const ContactChoice &contact);

// Values given in their JSON form; fields that are missing keep their defaults.
StickerChoice stickerFromJson(const QJsonObject &object);
QList<PendingAttachment> attachmentsFromJson(const QJsonArray &array);
Message messageFromJson(const QJsonObject &object);
QList<Message> messagesFromJson(const QJsonArray &array);

template<typename T> QJsonArray toJsonArray(const QList<T> &values)
{
    QJsonArray array;
    for (const T &value : values)
        array.append(toJson(value));
    return array;
}
