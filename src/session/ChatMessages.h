#pragma once

#include "session/MessageDetails.h"
#include "session/ModelTypes.h"
#include "session/StoredMessage.h"

#include <QHash>
#include <QStringList>

// Each chat's messages: as TDLib sent them (kept to be shown again when a user, a
// file or a read mark changes) and as published with their details, and the marks
// of how far the other side read and how far the user has seen.
class ChatMessages
{
public:
    // What TDLib sent of a chat; null for a chat nothing was loaded of.
    QList<StoredMessage> *stored(const QString &chatID);
    const QList<StoredMessage> *stored(const QString &chatID) const;
    // The same, started empty for a chat nothing was loaded of.
    QList<StoredMessage> &storedOrAdded(const QString &chatID) { return m_stored[chatID]; }
    QStringList chatsWithStored() const { return m_stored.keys(); }

    void publish(const QString &chatID, QList<Message> messages, QList<MessageDetails> details);
    const QHash<QString, QList<Message>> &published() const { return m_published; }
    const QHash<QString, QList<MessageDetails>> &publishedDetails() const { return m_details; }

    qint64 lastReadOutbox(const QString &chatID) const { return m_lastReadOutbox.value(chatID, 0); }
    void setLastReadOutbox(const QString &chatID, qint64 messageID) { m_lastReadOutbox.insert(chatID, messageID); }
    // Marks the chat seen up to `newest`; false when it already was.
    bool markViewed(const QString &chatID, qint64 newest);

    // Whether the chat had published messages.
    bool forget(const QString &chatID);
    // Forgets the account's messages; the chats that had published ones. The marks
    // describe Telegram and stay.
    QStringList reset();

private:
    QHash<QString, QList<StoredMessage>> m_stored;
    QHash<QString, QList<Message>> m_published;
    QHash<QString, QList<MessageDetails>> m_details;
    QHash<QString, qint64> m_lastReadOutbox;
    QHash<QString, qint64> m_lastViewed;
};
