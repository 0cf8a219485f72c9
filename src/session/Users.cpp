// Users as shown, presence and typing in chat subtitles, and profile photos.

#include "session/ContentTexts.h"
#include "session/Initials.h"
#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

void TelegramSession::storeUser(const TdObject &object)
{
    const std::optional<qint64> id = int64From(object.value("id"_L1));
    if (!id)
        return;
    const QJsonValue isContact = object.value("is_contact"_L1);
    if (isContact.isBool()) {
        if (isContact.toBool()) {
            m_contactUserIDs.insert(*id);
        } else {
            m_contactUserIDs.remove(*id);
            if (m_contacts.removeIf([id](const ContactChoice &c) { return c.id == *id; }) > 0)
                Q_EMIT contactsChanged();
        }
    }
    const QString joined = fullName(object);
    const QString name = joined.isEmpty() ? u"Telegram user"_s : joined;
    std::optional<QString> avatarPath = prepareUserAvatar(object.value("profile_photo"_L1), *id);
    if (!avatarPath) {
        if (const auto stored = m_telegramUsers.constFind(*id); stored != m_telegramUsers.cend())
            avatarPath = stored->avatarPath;
    }
    m_telegramUsers.insert(*id, User{newViewID(), name, initials(name), AvatarColor::Teal, avatarPath});
    if (const auto contact = m_contactNames.find(*id); contact != m_contactNames.end())
        *contact = contactName(object);
    setUserOnline(*id, typeOf(object.value("status"_L1)) == "userStatusOnline"_L1);
    republishChatsWithMessages();
}

void TelegramSession::setUserOnline(qint64 userID, bool online)
{
    if (online)
        m_onlineUsers.insert(userID);
    else
        m_onlineUsers.remove(userID);
    refreshPresence(userID);
}

void TelegramSession::republishChatsWithMessages()
{
    for (auto it = m_rawMessagesByChat.keyBegin(); it != m_rawMessagesByChat.keyEnd(); ++it)
        publishMessages(*it);
}

void TelegramSession::requestMissingUsers(const QList<TdObject> &messages)
{
    for (const TdObject &message : messages) {
        const TdObject sender = message.value("sender_id"_L1).toObject();
        if (typeOf(sender) != "messageSenderUser"_L1)
            continue;
        const std::optional<qint64> userID = int64From(sender.value("user_id"_L1));
        if (!userID || m_telegramUsers.contains(*userID) || m_requestedUserIDs.contains(*userID))
            continue;
        m_requestedUserIDs.insert(*userID);
        send(u"getUser"_s, {{"user_id"_L1, *userID}});
    }
}

QString TelegramSession::presenceSubtitle(std::optional<qint64> privateChatUser, const QString &fallback) const
{
    if (privateChatUser && m_onlineUsers.contains(*privateChatUser))
        return u"Online"_s;
    return fallback;
}

void TelegramSession::refreshPresence(qint64 userID)
{
    const bool online = m_onlineUsers.contains(userID);
    for (auto it = m_privateChatsByUser.constFind(userID); it != m_privateChatsByUser.cend() && it.key() == userID;
         ++it) {
        const QString &chatID = it.value();
        const QString subtitle = online ? u"Online"_s : baseSubtitle(chatID).value_or(u"Private conversation"_s);
        updateChat(chatID, [&subtitle](Chat &chat) {
            chat.subtitle = subtitle;
            chat.isTyping = false;
        });
    }
    refreshContactEntries(userID);
}

void TelegramSession::updateTypingStatus(const TdObject &update)
{
    const std::optional<qint64> chat = int64From(update.value("chat_id"_L1));
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    const QString action = typeOf(update.value("action"_L1));
    QString subtitle;
    if (action == "chatActionTyping"_L1) {
        if (privateChatUser(chatID)) {
            subtitle = u"Typing…"_s;
        } else {
            const auto typist = int64From(update.value("sender_id"_L1).toObject().value("user_id"_L1));
            const auto user = typist ? m_telegramUsers.constFind(*typist) : m_telegramUsers.cend();
            subtitle = (user != m_telegramUsers.cend() ? user->name : u"Someone"_s) + u" is typing…"_s;
        }
    } else if (action == "chatActionCancel"_L1) {
        subtitle = presenceSubtitle(privateChatUser(chatID), baseSubtitle(chatID).value_or(u"Telegram"_s));
    } else {
        return;
    }
    const bool typing = action == "chatActionTyping"_L1;
    updateChat(chatID, [&subtitle, typing](Chat &c) {
        c.subtitle = subtitle;
        c.isTyping = typing;
    });
}

std::optional<QString> TelegramSession::prepareAvatar(const QJsonValue &photo,
                                                      const std::function<void(qint64)> &recordOwner)
{
    const TdObject file = photo.toObject().value("small"_L1).toObject();
    if (const auto path = completedPath(file))
        return path;
    if (const auto fileID = int64From(file.value("id"_L1))) {
        recordOwner(*fileID);
        downloadFile(*fileID);
    }
    return std::nullopt;
}

std::optional<QString> TelegramSession::prepareChatAvatar(const QJsonValue &photo, const QString &chatID)
{
    return prepareAvatar(photo, [this, &chatID](qint64 fileID) { m_chatAvatarOwners.insert(fileID, chatID); });
}

std::optional<QString> TelegramSession::prepareUserAvatar(const QJsonValue &photo, qint64 userID)
{
    return prepareAvatar(photo, [this, userID](qint64 fileID) { m_userAvatarOwners.insert(fileID, userID); });
}
