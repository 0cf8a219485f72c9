#include "session/ChatMessages.h"

QList<StoredMessage> *ChatMessages::stored(const QString &chatID)
{
    const auto found = m_stored.find(chatID);
    return found == m_stored.end() ? nullptr : &*found;
}

const QList<StoredMessage> *ChatMessages::stored(const QString &chatID) const
{
    const auto found = m_stored.constFind(chatID);
    return found == m_stored.cend() ? nullptr : &*found;
}

void ChatMessages::publish(const QString &chatID, QList<Message> messages, QList<MessageDetails> details)
{
    m_published.insert(chatID, std::move(messages));
    m_details.insert(chatID, std::move(details));
}

bool ChatMessages::markViewed(const QString &chatID, qint64 newest)
{
    const auto viewed = m_lastViewed.constFind(chatID);
    if (viewed != m_lastViewed.cend() ? *viewed >= newest : newest <= 0)
        return false;
    m_lastViewed.insert(chatID, newest);
    return true;
}

bool ChatMessages::forget(const QString &chatID)
{
    m_stored.remove(chatID);
    m_details.remove(chatID);
    return m_published.remove(chatID) > 0;
}

QStringList ChatMessages::reset()
{
    const QStringList chats = m_published.keys();
    m_published.clear();
    m_details.clear();
    m_stored.clear();
    return chats;
}
