// Users as shown, presence and typing in chat subtitles, and profile photos.

#include "session/ContactStore.h"
#include "session/ContentTexts.h"
#include "session/DownloadStore.h"
#include "session/Initials.h"
#include "session/TelegramSession.h"
#include "session/UserStore.h"

using namespace Qt::StringLiterals;

void TelegramSession::storeUser(const TdObject &object)
{
    m_contacts->noteUser(object);
    m_users->store(object);
}

void TelegramSession::republishChatsWithMessages()
{
    for (const QString &chatID : m_messages.chatsWithStored())
        publishMessages(chatID);
}

void TelegramSession::refreshPresence(qint64 userID)
{
    const bool online = m_users->isOnline(userID);
    for (const QString &chatID : m_chatList->privateChatsWith(userID)) {
        const QString subtitle = online ? tr("Online") : baseSubtitle(chatID).value_or(tr("Private conversation"));
        updateChat(chatID, [&subtitle](Chat &chat) {
            chat.subtitle = subtitle;
            chat.isTyping = false;
        });
    }
    m_contacts->refreshEntries(userID);
}

void TelegramSession::updateTypingStatus(const TdObject &update)
{
    const std::optional<qint64> chat = int64From(update.value("chat_id"_L1));
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    const std::optional<qint64> person = privateChatUser(chatID);
    const std::optional<QString> subtitle = m_users->typingSubtitle(
        update, person.has_value(), m_users->presenceSubtitle(person, baseSubtitle(chatID).value_or(u"Telegram"_s)));
    if (!subtitle)
        return;
    const bool typing = typeOf(update.value("action"_L1)) == "chatActionTyping"_L1;
    updateChat(chatID, [&subtitle, typing](Chat &c) {
        c.subtitle = *subtitle;
        c.isTyping = typing;
    });
}

std::optional<QString> TelegramSession::prepareChatAvatar(const QJsonValue &photo, const QString &chatID)
{
    return prepareAvatar(storeSender(), photo,
                         [this, &chatID](qint64 fileID) { m_downloads->addChatPhoto(fileID, chatID); });
}
