#include "AppRootView.h"

#include "AppEvents.h"
#include "session/Initials.h"
#include "session/NotificationCenter.h"

#include <QCoreApplication>
#include <QtNumeric>

#include <limits>

using namespace Qt::StringLiterals;

AppRootView::AppRootView(CredentialStore &credentialStore, QObject *parent)
    : AppRootView(credentialStore, std::make_unique<TelegramSession>(), nullptr, parent)
{}

AppRootView::AppRootView(CredentialStore &credentialStore, TelegramSession &session, QObject *parent)
    : AppRootView(credentialStore, nullptr, &session, parent)
{}

AppRootView::AppRootView(CredentialStore &credentialStore, std::unique_ptr<TelegramSession> ownedSession,
                         TelegramSession *session, QObject *parent)
    : QObject(parent)
    , m_credentialStore(credentialStore)
    , m_ownedSession(std::move(ownedSession))
    , m_session(session ? *session : *m_ownedSession)
    , m_access(new SessionAccess(m_session, this))
    , m_viewModel(new ChatViewModel(std::make_unique<EmptyTelegramService>(), this))
    , m_chatList(new ChatListModel(m_viewModel, this))
    , m_allChats(new ChatListModel(m_viewModel, ChatListModel::Rows::All, this))
    , m_messageList(new MessageListModel(m_viewModel, this))
    , m_stickerList(new StickerListModel(m_viewModel, this))
    , m_contactList(new ContactListModel(m_viewModel, this))
    , m_contactResultList(new ContactListModel(m_viewModel, ContactListModel::Source::SearchResults, this))
    , m_typedTexts(new TypedTexts(TypedTexts::defaultPath(), this))
    , m_applyTimer(new QTimer(this))
{
    m_applyTimer->setSingleShot(true);
    connect(m_applyTimer, &QTimer::timeout, this, &AppRootView::applyPendingChanges);
    connectSession();
}

AppRootView::~AppRootView()
{
    // The models and the view model go before the session they were fed from.
    delete m_contactResultList;
    delete m_contactList;
    delete m_stickerList;
    delete m_messageList;
    delete m_allChats;
    delete m_chatList;
    delete m_viewModel;
    delete m_access;
}

void AppRootView::connectSession()
{
    TelegramSession *session = &m_session;
    connect(session, &TelegramSession::chatsChanged, this, [this] {
        m_chatsPending = true;
        schedule();
    });
    connect(session, &TelegramSession::messagesChanged, this, [this](const QString &chatID) {
        m_messagesPending.insert(chatID);
        schedule();
    });
    connect(session, &TelegramSession::historyStateChanged, this, [this](const QString &chatID) {
        m_viewModel->setHistoryState(chatID, m_session.isLoadingOlderMessages(chatID),
                                     m_session.isHistoryExhausted(chatID));
    });
    connect(session, &TelegramSession::recentStickersChanged, this,
            [this] { m_viewModel->setRecentStickers(m_session.recentStickers()); });
    connect(session, &TelegramSession::downloadProgressChanged, m_viewModel, &ChatViewModel::setDownloadProgress);
    connect(session, &TelegramSession::stickerErrorChanged, this,
            [this] { m_viewModel->setStickerError(m_session.stickerError().value_or(QString())); });
    connect(session, &TelegramSession::recentStickersLoadedChanged, this,
            [this] { m_viewModel->setRecentStickersLoaded(m_session.recentStickersLoaded()); });
    connect(session, &TelegramSession::currentAccountNameChanged, this, &AppRootView::accountInitialsChanged);
    connect(session, &TelegramSession::contactResultsChanged, this,
            [this] { m_viewModel->setContactResults(m_session.contactResults()); });
    connect(session, &TelegramSession::contactsChanged, this, [this] {
        m_contactsPending = true;
        schedule();
    });
    connect(session, &TelegramSession::newlyOpenedChatIDChanged, this, [this] {
        if (const auto chatID = m_session.newlyOpenedChatID()) {
            applyPendingChanges();
            m_viewModel->setSelectedChatID(*chatID);
        }
    });
    connect(m_viewModel, &ChatViewModel::selectedChatIDChanged, this, &AppRootView::selectedChatChanged);
    connect(m_viewModel, &ChatViewModel::composerTextChanged, this, [this] {
        // An edit in progress is not typed text: it goes with its message.
        if (!m_viewModel->editingMessage() && m_composerChatID == m_viewModel->selectedChatID().value_or(QString()))
            m_typedTexts->setText(m_composerChatID, m_viewModel->composerText());
    });
    // Back at the phone number, the account is gone: so is what was typed in its chats.
    connect(session, &TelegramSession::stepChanged, this, [this] {
        if (m_session.step().kind() == Step::Case::PhoneNumber)
            m_typedTexts->clear();
    });
    if (QCoreApplication *application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, m_typedTexts, &TypedTexts::flush);

    connect(&AppEvents::shared(), &AppEvents::popoverVisibilityDidChange, this, &AppRootView::popoverVisibilityChanged);
    const NotificationCenter &center = NotificationCenter::defaultCenter();
    connect(&center, &NotificationCenter::openTelegramChat, this, &AppRootView::openChatRequested);
    connect(&center, &NotificationCenter::replyInTelegramChat, this, &AppRootView::replyRequested);
    connect(&center, &NotificationCenter::markTelegramChatRead, this, &AppRootView::markChatRead);
    connect(&center, &NotificationCenter::sendTelegramReply, this, &AppRootView::sendReply);
}

QString AppRootView::accountInitials() const
{
    return initials(m_session.currentAccountName());
}

void AppRootView::schedule()
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    constexpr qint64 burstIntervalMs = 40;
    const qint64 since = m_sinceApplied.isValid() ? m_sinceApplied.elapsed() : burstIntervalMs;
    if (since >= burstIntervalMs)
        QMetaObject::invokeMethod(this, &AppRootView::applyPendingChanges, Qt::QueuedConnection);
    else
        m_applyTimer->start(int(burstIntervalMs - since));
}

void AppRootView::applyPendingChanges()
{
    m_scheduled = false;
    m_applyTimer->stop();
    m_sinceApplied.start();
    if (std::exchange(m_contactsPending, false))
        m_viewModel->setContacts(m_session.contacts());
    const bool chatsChanged = std::exchange(m_chatsPending, false);
    const QSet<QString> messagesChanged = std::exchange(m_messagesPending, {});
    const auto &messagesByChat = m_session.messagesByChat();
    if (chatsChanged) {
        const QList<Chat> chats = m_session.chats();
        m_viewModel->replaceChats(chats);
        publishUnreadCount(chats);
        for (auto it = messagesByChat.begin(); it != messagesByChat.end(); ++it)
            setMessages(it.key());
    }
    if (!messagesChanged.isEmpty()) {
        // Setting an unchanged chat's messages again changes nothing, so only the
        // chats that changed are set; after a chat list change all of them were.
        if (!chatsChanged) {
            for (const QString &chatID : messagesChanged)
                setMessages(chatID);
        }
        if (const auto selected = m_viewModel->selectedChatID())
            markReadIfVisible(*selected);
    }
}

void AppRootView::setMessages(const QString &chatID)
{
    const auto messages = m_session.messagesByChat().constFind(chatID);
    if (messages == m_session.messagesByChat().cend())
        return;
    m_viewModel->setMessageDetails(m_session.messageDetailsByChat().value(chatID), chatID);
    m_viewModel->setMessages(*messages, chatID);
    applyPendingReply(chatID);
}

void AppRootView::start()
{
    // 1. Desktop notifications need no permission on Linux: the notification
    //    service is ready as it is.
    // 2. The handler slots.
    fillHandlers();
    // 3. Starting the session.
    startIfPossible();
}

void AppRootView::fillHandlers()
{
    ChatViewModel &model = *m_viewModel;
    TelegramSession &session = m_session;
    model.liveSendHandler = [&session](const QString &text, const QString &chatID,
                                       const std::optional<QString> &replyTo) {
        session.sendText(text, chatID, replyTo.value_or(QString()));
    };
    model.setCanSendMessages(true);
    model.livePhotoHandler = [&session](const QString &path, const QString &caption, const QString &chatID) {
        session.sendPhoto(path, caption, chatID);
    };
    model.liveAttachmentsHandler = [&session](const QList<PendingAttachment> &attachments, const QString &caption,
                                              const QString &chatID) {
        session.sendAttachments(attachments, caption, chatID);
    };
    model.liveStickerHandler = [&session](const StickerChoice &sticker, const QString &chatID) {
        session.sendSticker(sticker, chatID);
    };
    model.liveEditHandler = [&session](const QString &messageID, const QString &text, const QString &chatID) {
        session.editText(messageID, text, chatID);
    };
    model.liveDeleteHandler = [&session](const QString &messageID, const QString &chatID) {
        session.deleteMessage(messageID, chatID);
    };
    model.liveReactionHandler = [&session](const QString &emoji, bool chosen, const QString &messageID,
                                           const QString &chatID) {
        session.setReaction(emoji, chosen, messageID, chatID);
    };
    model.liveForwardHandler = [&session](const QString &messageID, const QString &fromChatID,
                                          const QString &toChatID) {
        session.forwardMessage(messageID, fromChatID, toChatID);
    };
    model.loadOlderHandler = [&session](const QString &chatID, const QString &oldestMessageID) {
        session.loadOlderMessages(chatID, oldestMessageID);
    };
    model.contactSearchHandler = [&session](const QString &query) { session.searchContacts(query); };
    // One conversation at a time: a second request while one is being created is ignored.
    model.openContactHandler = [&session](qint64 userID) {
        if (session.creatingConversation())
            return;
        const QString requestID = session.beginConversation();
        session.requestPrivateChat(userID, requestID, false);
    };
    // A mention opens the chat through the same search as the new-chat form.
    model.openUsernameHandler = [&session](const QString &username) { session.openUsername(username); };
    // liveDocumentHandler, liveRichMediaHandler, typingHandler, muteChatHandler,
    // archiveChatHandler, pinChatHandler, markUnreadHandler and draftHandler stay
    // unset: the conversation view does without them.
}

void AppRootView::startIfPossible()
{
    const auto apiID = m_credentialStore.apiID();
    const auto apiHash = m_credentialStore.apiHash();
    if (apiID && apiHash)
        m_session.start(*apiID, *apiHash);
    // Otherwise the conversation view shows the configuration error.
}

qint64 AppRootView::unreadTotal(const QList<Chat> &chats)
{
    qint64 total = 0;
    for (const Chat &chat : chats) {
        if (chat.unreadCount > 0 && qAddOverflow(total, chat.unreadCount, &total))
            return std::numeric_limits<qint64>::max();
    }
    return total;
}

void AppRootView::publishUnreadCount(const QList<Chat> &chats)
{
    Q_EMIT AppEvents::shared().unreadCountDidChange(unreadTotal(chats));
}

void AppRootView::markReadIfVisible(const QString &chatID)
{
    if (m_isPopoverVisible)
        markChatRead(chatID);
}

void AppRootView::markChatRead(const QString &chatID)
{
    const auto &messagesByChat = m_session.messagesByChat();
    if (const auto messages = messagesByChat.constFind(chatID); messages != messagesByChat.cend())
        m_session.markMessagesRead(*messages, chatID);
}

void AppRootView::keepTypedText()
{
    const QString selected = m_viewModel->selectedChatID().value_or(QString());
    if (selected == m_composerChatID)
        return;
    // An edit in progress is not typed text: it goes with its message.
    if (!m_viewModel->editingMessage())
        m_typedTexts->setText(m_composerChatID, m_viewModel->composerText());
    m_composerChatID = selected;
    m_viewModel->setComposerText(m_typedTexts->text(selected));
}

void AppRootView::selectedChatChanged()
{
    keepTypedText();
    const std::optional<QString> selected = m_viewModel->selectedChatID();
    if (!selected)
        return; // a change to no selection does nothing
    const QString chatID = *selected;
    const auto &messagesByChat = m_session.messagesByChat();
    if (const auto messages = messagesByChat.constFind(chatID); messages != messagesByChat.cend()) {
        const QList<Message> held = *messages;
        setMessages(chatID);
        if (m_isPopoverVisible)
            m_session.markMessagesRead(held, chatID);
    }
    m_viewModel->setHistoryState(chatID, m_session.isLoadingOlderMessages(chatID),
                                 m_session.isHistoryExhausted(chatID));
    m_session.loadMessages(chatID);
}

void AppRootView::popoverVisibilityChanged(bool visible)
{
    applyPendingChanges();
    if (visible != m_isPopoverVisible) {
        m_isPopoverVisible = visible;
        Q_EMIT isPopoverVisibleChanged();
    }
    if (!visible)
        return;
    // Before sign-in there are no chats to refresh: asking would only fail
    // ("Unauthorized"), or, before TDLib runs, mark the lists as loading for good.
    if (m_session.isReady())
        m_session.requestChats();
    if (const auto selected = m_viewModel->selectedChatID())
        markReadIfVisible(*selected);
}

void AppRootView::openChatRequested(const QString &chatID)
{
    applyPendingChanges();
    m_viewModel->setSelectedChatID(chatID);
    m_session.loadMessages(chatID);
}

void AppRootView::replyRequested(const QString &chatID, const QString &messageID)
{
    openChatRequested(chatID);
    if (messageID.isEmpty())
        return;
    m_pendingReply = PendingReply{chatID, messageID};
    applyPendingReply(chatID);
}

void AppRootView::applyPendingReply(const QString &chatID)
{
    if (!m_pendingReply || m_pendingReply->chatID != chatID)
        return;
    if (m_viewModel->selectedChatID() != chatID) {
        // The user went to another chat before the message arrived.
        m_pendingReply.reset();
        return;
    }
    m_viewModel->replyTo(m_pendingReply->messageID);
    if (m_viewModel->replyToMessage())
        m_pendingReply.reset();
}

void AppRootView::sendReply(const QString &chatID, const QString &messageID, const QString &text)
{
    m_session.sendText(text, chatID, messageID);
    // Whoever answers a message has read it.
    markChatRead(chatID);
}
