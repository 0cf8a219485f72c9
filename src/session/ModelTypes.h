#pragma once

// The plain value records the session publishes and the views display.

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QUuid>

#include <optional>

// The model's enumerations, with their meta-objects: the views compare these
// values, never texts, and the replay driver names them by their keys.
namespace Model {
Q_NAMESPACE

enum class AvatarColor { Teal, Blue };
Q_ENUM_NS(AvatarColor)

enum class MessageDeliveryState { None, Sending, Sent, Read };
Q_ENUM_NS(MessageDeliveryState)

enum class MessageMediaKind { Photo, Sticker, Video, Animation, Voice, Audio };
Q_ENUM_NS(MessageMediaKind)

enum class StickerFormat { Webp, Animated, Video };
Q_ENUM_NS(StickerFormat)

enum class PendingAttachmentKind { Photo, Document };
Q_ENUM_NS(PendingAttachmentKind)

// How far TDLib's link to Telegram stands: Ready once it is up to date.
enum class ConnectionState { WaitingForNetwork, ConnectingToProxy, Connecting, Updating, Ready };
Q_ENUM_NS(ConnectionState)

// Where a search in one chat stands: nothing asked, an answer on its way, found
// messages, none found, or Telegram refused the search.
enum class ChatSearchState { Idle, Searching, Found, NoResults, Failed };
Q_ENUM_NS(ChatSearchState)
} // namespace Model

using Model::AvatarColor;
using Model::ChatSearchState;
using Model::ConnectionState;
using Model::MessageDeliveryState;
using Model::MessageMediaKind;
using Model::PendingAttachmentKind;
using Model::StickerFormat;

// A fresh identifier for a record the views tell apart. Cheaper than
// QUuid::createUuid(), which asks the system for random bytes every time: a sync
// stores thousands of users.
QUuid newViewID();

struct User {
    QUuid id = newViewID(); // tells views apart; not the TDLib id
    QString name;
    QString initials;
    AvatarColor color = AvatarColor::Teal;
    std::optional<QString> avatarPath;

    friend bool operator==(const User &, const User &) = default;
};

struct MessageReaction {
    QString emoji;
    int count = 0;
    bool isChosen = false;

    friend bool operator==(const MessageReaction &, const MessageReaction &) = default;
};

struct Message {
    QString id;
    User sender;
    QString text;
    QString timestamp;
    bool isOutgoing = false;
    MessageDeliveryState deliveryState = MessageDeliveryState::None;
    std::optional<QString> mediaPath;
    QStringList mediaPaths;
    std::optional<MessageMediaKind> mediaKind;
    QString stickerEmoji;
    StickerFormat stickerFormat = StickerFormat::Webp;
    std::optional<qint64> mediaAlbumID;
    std::optional<QString> documentPath;
    std::optional<QString> documentName;
    QList<MessageReaction> reactions;
    bool isUnread = false;

    friend bool operator==(const Message &, const Message &) = default;
};

struct Chat {
    QString id;
    QString title;
    QString subtitle;
    QString preview;
    QString timestamp;
    qint64 unreadCount = 0;
    bool isMuted = false;
    bool isArchived = false;
    bool isPinned = false;
    bool isMarkedUnread = false;
    bool isSecret = false; // an end-to-end encrypted chat ("chatTypeSecret")
    bool isTyping = false; // someone is typing; the subtitle says who
    QString draftText;
    QString avatarText;
    std::optional<QString> avatarSymbol;
    std::optional<QString> avatarPath;
    QList<Message> messages;

    friend bool operator==(const Chat &, const Chat &) = default;
};

struct PendingAttachment {
    QUuid id = QUuid::createUuid();
    QString path;
    PendingAttachmentKind kind = PendingAttachmentKind::Photo;

    friend bool operator==(const PendingAttachment &, const PendingAttachment &) = default;
};

struct StickerChoice {
    qint64 id = 0;
    qint64 fileID = 0;
    QString path;
    QString emoji;
    int width = 0;
    int height = 0;
    StickerFormat format = StickerFormat::Webp;

    friend bool operator==(const StickerChoice &, const StickerChoice &) = default;
};

struct ContactChoice {
    qint64 id = 0;
    QString name;
    QString username;
    QString initials;
    std::optional<QString> avatarPath;
    bool isOnline = false;

    friend bool operator==(const ContactChoice &, const ContactChoice &) = default;
};

// Puts a choice in place of the listed one with its id, or at the end of the list.
template<typename Choice> void replaceOrAppend(QList<Choice> &choices, const Choice &choice)
{
    for (Choice &listed : choices) {
        if (listed.id == choice.id) {
            listed = choice;
            return;
        }
    }
    choices.append(choice);
}
