// The contacts and conversations the session publishes, and what a conversation
// changes in the chat list.

#include "session/ContactStore.h"
#include "session/TelegramSession.h"

void TelegramSession::refreshContacts()
{
    m_contacts->refresh();
}

void TelegramSession::searchContacts(const QString &query)
{
    m_contacts->search(query);
}

void TelegramSession::createContact(const QString &firstName, const QString &lastName, const QString &phone,
                                    const QString &note)
{
    m_contacts->createContact(firstName, lastName, phone, note);
}

void TelegramSession::openUsername(const QString &username)
{
    m_contacts->openUsername(username);
}

QString TelegramSession::beginConversation()
{
    return m_contacts->beginConversation();
}

void TelegramSession::requestPrivateChat(qint64 userID, const QString &requestID, bool contactSaved)
{
    m_contacts->requestPrivateChat(userID, requestID, contactSaved);
}

void TelegramSession::deleteChat(const QString &chatID, bool includingContact)
{
    m_contacts->deleteChat(chatID,
                           includingContact ? std::optional(privateChatUser(chatID).value_or(0)) : std::nullopt);
}

void TelegramSession::deleteContact(qint64 userID)
{
    m_contacts->deleteContact(userID);
}

void TelegramSession::cancelConversation()
{
    m_contacts->cancelConversation();
}

const QList<ContactChoice> &TelegramSession::contacts() const
{
    return m_contacts->contacts();
}

const QList<ContactChoice> &TelegramSession::contactResults() const
{
    return m_contacts->contactResults();
}

std::optional<QString> TelegramSession::conversationError() const
{
    return m_contacts->conversationError();
}

bool TelegramSession::creatingConversation() const
{
    return m_contacts->creatingConversation();
}

const QSet<QString> &TelegramSession::deletingChats() const
{
    return m_contacts->deletingChats();
}

std::optional<QString> TelegramSession::newlyOpenedChatID() const
{
    return m_contacts->newlyOpenedChatID();
}

void TelegramSession::openConversationChat(const TdObject &chat)
{
    const QString chatID = QString::number(int64From(chat.value(QLatin1StringView("id"))).value_or(0));
    // Opened directly, so shown even before TDLib gives it a list position.
    m_chatList->openExplicitly(chatID);
    addOrUpdateChat(chat);
}

void TelegramSession::forgetChat(const QString &chatID)
{
    m_chatList->forget(chatID);
    m_history.forget(chatID);
    if (m_messages.forget(chatID))
        Q_EMIT messagesChanged(chatID);
    m_chatList->sort();
}
