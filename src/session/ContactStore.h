#pragma once

#include "session/ModelTypes.h"
#include "session/SendRequest.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <optional>

class QTimer;
class UserStore;

// Contacts and conversations: the roster and contact search, adding a contact by
// phone number, opening a public username or a private chat (one outstanding
// request with a time-out), and deleting chats and contacts.
class ContactStore : public QObject
{
    Q_OBJECT

public:
    // Entries show the users' photos and presence as the user store has them.
    ContactStore(SendRequest send, const UserStore &users, QObject *parent = nullptr);

    void refresh();
    void search(const QString &query);
    void createContact(const QString &firstName, const QString &lastName, const QString &phone, const QString &note);
    void openUsername(const QString &username);
    // Starts the one outstanding conversation request and returns its identifier.
    QString beginConversation();
    void requestPrivateChat(qint64 userID, const QString &requestID, bool contactSaved);
    // contactID: the person to remove from the contacts once the chat is gone.
    void deleteChat(const QString &chatID, std::optional<qint64> contactID);
    void deleteContact(qint64 userID);
    // Stops waiting for the conversation in progress; a late answer is ignored.
    void cancelConversation();

    // Takes an answer to one of its own requests; false for anything else.
    bool handleAnswer(const QString &purpose, const QString &type, const TdObject &object);
    // A user object from anywhere: a contact's entry follows its name and membership.
    void noteUser(const TdObject &user);
    // A user's photo or presence changed.
    void refreshEntries(qint64 userID);
    void reset();

    const QList<ContactChoice> &contacts() const { return m_contacts; }
    const QList<ContactChoice> &contactResults() const { return m_contactResults; }
    std::optional<QString> conversationError() const { return m_conversationError; }
    bool creatingConversation() const { return m_creatingConversation; }
    const QSet<QString> &deletingChats() const { return m_deletingChats; }
    std::optional<QString> newlyOpenedChatID() const { return m_newlyOpenedChatID; }

Q_SIGNALS:
    void contactsChanged();
    void contactResultsChanged();
    void conversationErrorChanged();
    void creatingConversationChanged();
    void deletingChatsChanged();
    void newlyOpenedChatIDChanged();
    // A user object that came with a contact answer, for the user store.
    void userReceived(const TdObject &user);
    // The conversation's chat, to be shown before TDLib lists it.
    void conversationChatReceived(const TdObject &chat);
    // TDLib deleted the chat's history and took it off the list.
    void chatDeleted(const QString &chatID);

private:
    // A contact's name and username, read once from its user object.
    struct ContactName {
        QString name;
        QString username;
    };
    static ContactName contactName(const TdObject &user);
    ContactChoice makeContactChoice(qint64 userID, const ContactName &name) const;
    void failConversation(const QString &text);
    void setConversationError(const std::optional<QString> &error);
    void setCreatingConversation(bool creating);
    void openConversationChat(const TdObject &chat);
    void forgetChat(const QString &chatID);
    void publishRosterContact(const TdObject &user);
    void rankRoster();
    void publishContactResult(const TdObject &user, const QString &query);

    SendRequest m_send;
    const UserStore &m_users;
    QList<ContactChoice> m_contacts;
    QSet<qint64> m_contactUserIDs;
    QList<qint64> m_rosterOrder;
    QHash<qint64, qsizetype> m_rosterRank; // each contact's place in m_rosterOrder
    // The names behind contact entries; kept as texts, as a parsed user object
    // holds far more than the entry shows.
    QHash<qint64, ContactName> m_contactNames;
    QList<ContactChoice> m_contactResults;
    QString m_contactQuery;
    std::optional<QString> m_conversationError;
    bool m_creatingConversation = false;
    QSet<QString> m_deletingChats;
    std::optional<QString> m_newlyOpenedChatID;
    std::optional<QString> m_conversationRequestID;
    QTimer *m_conversationTimeout;
};
