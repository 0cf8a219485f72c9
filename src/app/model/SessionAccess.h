#pragma once

#include "session/ChatSearchStore.h"
#include "session/TelegramSession.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

// The views' one way to the session (the root view's `access`): what they show of
// the account and what they ask of it beyond the conversation, whose state and
// actions go through the chat view model. Every property and operation is the
// session's own, under its own name; QML never holds the session itself.
class SessionAccess : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The root view gives the views their access to the session.")
    Q_PROPERTY(bool isReady READ isReady NOTIFY stepChanged)
    // The last request's error, as TDLib worded it; "" when there is none.
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
    Q_PROPERTY(QString currentAccountName READ currentAccountName NOTIFY currentAccountNameChanged)
    Q_PROPERTY(QString currentAccountPhoneNumber READ currentAccountPhoneNumber NOTIFY currentAccountPhoneNumberChanged)
    Q_PROPERTY(Model::ConnectionState connectionState READ connectionState NOTIFY connectionStateChanged)
    // The chats whose deletion was asked for and has not been answered yet.
    Q_PROPERTY(QStringList deletingChatIDs READ deletingChatIDs NOTIFY deletingChatsChanged)
    // A new contact or a username is being turned into a chat.
    Q_PROPERTY(bool creatingConversation READ creatingConversation NOTIFY creatingConversationChanged)
    Q_PROPERTY(QString conversationError READ conversationError NOTIFY conversationErrorChanged)
    // "Search in chat" for the selected chat.
    Q_PROPERTY(ChatSearchStore *chatSearch READ chatSearch CONSTANT)

public:
    explicit SessionAccess(TelegramSession &session, QObject *parent = nullptr);

    // For the C++ presenters behind a view, which follow the session's own signals.
    TelegramSession &session() const { return m_session; }

    bool isReady() const { return m_session.isReady(); }
    QString errorMessage() const { return m_session.errorMessageText(); }
    QString currentAccountName() const { return m_session.currentAccountName(); }
    QString currentAccountPhoneNumber() const { return m_session.currentAccountPhoneNumber(); }
    Model::ConnectionState connectionState() const { return m_session.connectionState(); }
    QStringList deletingChatIDs() const { return m_session.deletingChatIDs(); }
    bool creatingConversation() const { return m_session.creatingConversation(); }
    QString conversationError() const { return m_session.conversationErrorText(); }
    ChatSearchStore *chatSearch() const { return m_session.chatSearch(); }

    Q_INVOKABLE bool isPrivateChat(const QString &chatID) const { return m_session.isPrivateChat(chatID); }
    Q_INVOKABLE void deleteChat(const QString &chatID, bool includingContact)
    {
        m_session.deleteChat(chatID, includingContact);
    }
    Q_INVOKABLE void deleteContact(qint64 userID) { m_session.deleteContact(userID); }
    Q_INVOKABLE void refreshContacts() { m_session.refreshContacts(); }
    Q_INVOKABLE void createContact(const QString &firstName, const QString &lastName, const QString &phone,
                                   const QString &note)
    {
        m_session.createContact(firstName, lastName, phone, note);
    }
    Q_INVOKABLE void openUsername(const QString &username) { m_session.openUsername(username); }
    Q_INVOKABLE void cancelConversation() { m_session.cancelConversation(); }
    // The sticker picker's page: recent, installed or trending stickers, or a search.
    Q_INVOKABLE void loadStickers(const QString &query, const QString &source)
    {
        m_session.loadStickers(query, source);
    }
    Q_INVOKABLE void returnToNewest(const QString &chatID) { m_session.returnToNewest(chatID); }
    Q_INVOKABLE void logOutAndChangeAccount() { m_session.logOutAndChangeAccount(); }

Q_SIGNALS:
    void stepChanged();
    void errorMessageChanged();
    void currentAccountNameChanged();
    void currentAccountPhoneNumberChanged();
    void connectionStateChanged();
    void deletingChatsChanged();
    void creatingConversationChanged();
    void conversationErrorChanged();
    // A chat asked for from the new-chat view (a contact, a new contact or a
    // username) was opened.
    void newlyOpenedChatIDChanged();

private:
    TelegramSession &m_session;
};
