#pragma once

#include "ChatListModel.h"
#include "ChatViewModel.h"
#include "ChoiceListModels.h"
#include "MessageListModel.h"
#include "SessionAccess.h"
#include "TypedTexts.h"

#include "session/CredentialStore.h"
#include "session/TelegramSession.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

// The glue the popover hosts: it owns the one session and the one view model of
// the process, plugs the session's operations into the view model's handler
// slots, copies the session's published state into the view model, keeps the
// badge in step with the unread total, marks messages read while the popover is
// visible, and answers "openTelegramChat" and "vostPopoverVisibilityDidChange".
//
// Session changes are applied once per turn of the event loop, and at most once
// every 40 ms while they keep coming. During a sync the session announces every
// one of thousands of chat updates, and each application copies the whole chat
// list (replaceChats, the unread total, the list models' diffs); doing that once
// per burst instead of once per update keeps a sync linear.
// The effects keep the order of the rules: chats first (replace, unread total,
// every chat's messages), then messages (and marking the selected chat read).
// applyPendingChanges() applies what is waiting at once, for code that must see
// the view model current now (the replay driver before it reads state).
class AppRootView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application creates the one root view.")
    Q_PROPERTY(ChatViewModel *viewModel READ viewModel CONSTANT)
    // The views' one way to the session.
    Q_PROPERTY(SessionAccess *access READ access CONSTANT)
    Q_PROPERTY(ChatListModel *chatList READ chatList CONSTANT)
    // Every chat, whatever the sidebar's search: for choosers such as "Forward to".
    Q_PROPERTY(ChatListModel *allChats READ allChats CONSTANT)
    Q_PROPERTY(MessageListModel *messageList READ messageList CONSTANT)
    Q_PROPERTY(StickerListModel *recentStickerList READ recentStickerList CONSTANT)
    Q_PROPERTY(ContactListModel *contactList READ contactList CONSTANT)
    // The people the last contact search found on Telegram.
    Q_PROPERTY(ContactListModel *contactResultList READ contactResultList CONSTANT)
    Q_PROPERTY(bool isPopoverVisible READ isPopoverVisible NOTIFY isPopoverVisibleChanged)
    // The signed-in account's initials, for its avatar.
    Q_PROPERTY(QString accountInitials READ accountInitials NOTIFY accountInitialsChanged)
    Q_PROPERTY(bool hasCredentials READ hasCredentials CONSTANT)

public:
    // Owns a session of its own, with no request sender.
    explicit AppRootView(CredentialStore &credentialStore, QObject *parent = nullptr);
    // Uses a session that lives elsewhere (and outlives this view).
    AppRootView(CredentialStore &credentialStore, TelegramSession &session, QObject *parent = nullptr);
    ~AppRootView() override;

    CredentialStore &credentialStore() const { return m_credentialStore; }
    TelegramSession *session() const { return &m_session; }
    SessionAccess *access() const { return m_access; }
    ChatViewModel *viewModel() const { return m_viewModel; }
    ChatListModel *chatList() const { return m_chatList; }
    ChatListModel *allChats() const { return m_allChats; }
    MessageListModel *messageList() const { return m_messageList; }
    StickerListModel *recentStickerList() const { return m_stickerList; }
    ContactListModel *contactList() const { return m_contactList; }
    ContactListModel *contactResultList() const { return m_contactResultList; }
    bool isPopoverVisible() const { return m_isPopoverVisible; }
    bool hasCredentials() const { return m_credentialStore.hasCredentials(); }

    // What the view does when it first appears: fills the handler slots, then
    // starts the session when there are credentials. Appearing again fills the
    // slots again.
    Q_INVOKABLE void start();
    void startIfPossible();
    // Posts "vostUnreadCountDidChange" with the unread total of chats.
    void publishUnreadCount(const QList<Chat> &chats);
    // The sum of the chats' unread counts, negative ones read as 0, muted and
    // archived chats included; a total beyond the integer range stays at its maximum.
    static qint64 unreadTotal(const QList<Chat> &chats);

    void applyPendingChanges();
    QString accountInitials() const;
    bool hasPendingChanges() const { return m_chatsPending || m_contactsPending || !m_messagesPending.isEmpty(); }

Q_SIGNALS:
    void isPopoverVisibleChanged();
    void accountInitialsChanged();

private:
    void connectSession();
    // Copies a chat's messages, and what their widgets show, into the view model.
    void setMessages(const QString &chatID);
    void schedule();
    void fillHandlers();
    void selectedChatChanged();
    void keepTypedText();
    void popoverVisibilityChanged(bool visible);
    void openChatRequested(const QString &chatID);
    void replyRequested(const QString &chatID, const QString &messageID);
    void applyPendingReply(const QString &chatID);
    void sendReply(const QString &chatID, const QString &messageID, const QString &text);
    void markChatRead(const QString &chatID);
    void markReadIfVisible(const QString &chatID);

    // The session is either owned (ownedSession) or given (session).
    AppRootView(CredentialStore &credentialStore, std::unique_ptr<TelegramSession> ownedSession,
                TelegramSession *session, QObject *parent);

    CredentialStore &m_credentialStore;
    std::unique_ptr<TelegramSession> m_ownedSession;
    TelegramSession &m_session;
    SessionAccess *m_access;
    ChatViewModel *m_viewModel;
    ChatListModel *m_chatList;
    ChatListModel *m_allChats;
    MessageListModel *m_messageList;
    StickerListModel *m_stickerList;
    ContactListModel *m_contactList;
    ContactListModel *m_contactResultList;
    bool m_isPopoverVisible = false;
    // A reply asked for from a notification whose message has not reached the view yet.
    struct PendingReply {
        QString chatID;
        QString messageID;
    };
    std::optional<PendingReply> m_pendingReply;

    // What the user left typed in each chat, kept on this computer only (never
    // sent as a draft), and the chat the composer's text belongs to now.
    TypedTexts *m_typedTexts;
    QString m_composerChatID;

    bool m_chatsPending = false;
    bool m_contactsPending = false;
    QSet<QString> m_messagesPending;
    bool m_scheduled = false;
    QElapsedTimer m_sinceApplied;
    QTimer *m_applyTimer;
};
