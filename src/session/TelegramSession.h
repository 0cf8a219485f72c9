#pragma once

#include "bundle/AppBundle.h"
#include "session/ChatListStore.h"
#include "session/ChatMessages.h"
#include "session/CodeInfo.h"
#include "session/HistoryProgress.h"
#include "session/LocalToday.h"
#include "session/MessageDetails.h"
#include "session/ModelTypes.h"
#include "session/SendRequest.h"
#include "session/Step.h"
#include "session/StoredMessage.h"
#include "tdlib/TdJson.h"

#include <QDateTime>
#include <QObject>

#include <QHash>
#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

class QTimer;
class SoundManager;
class Announcer;
class AuthorizationStore;
class ChatSearchStore;
class ContactStore;
class RepliedMessageStore;
class StickerStore;
class DownloadStore;
class TDLibChannel;
class UserStore;

// The application's one model object: it owns the TDLib client, follows TDLib's
// authorization, folds every TDLib answer and update into the published state the
// views observe, and turns each user action into one TDLib request. It lives on
// the main thread; TDLib's events reach it through handleResponse, one at a time.
class TelegramSession : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Step step READ step NOTIFY stepChanged)
    Q_PROPERTY(bool isReady READ isReady NOTIFY stepChanged)
    Q_PROPERTY(QString errorMessage READ errorMessageText NOTIFY errorMessageChanged)
    Q_PROPERTY(QString startupStatus READ startupStatus NOTIFY startupStatusChanged)
    Q_PROPERTY(QString currentAccountName READ currentAccountName NOTIFY currentAccountNameChanged)
    Q_PROPERTY(QStringList deletingChatIDs READ deletingChatIDs NOTIFY deletingChatsChanged)
    Q_PROPERTY(bool creatingConversation READ creatingConversation NOTIFY creatingConversationChanged)
    Q_PROPERTY(QString conversationError READ conversationErrorText NOTIFY conversationErrorChanged)
    Q_PROPERTY(QString currentAccountPhoneNumber READ currentAccountPhoneNumber NOTIFY currentAccountPhoneNumberChanged)
    Q_PROPERTY(Model::ConnectionState connectionState READ connectionState NOTIFY connectionStateChanged)
    // The search in the open chat; the transcript follows its shown result.
    Q_PROPERTY(ChatSearchStore *chatSearch READ chatSearch CONSTANT)

public:
    // When set, every request goes to the sender instead of TDLib: the type and
    // the fields without "@type".
    using RequestSender = std::function<void(const QString &type, const TdObject &fields)>;
    // Sees every request the session sends, before it goes to TDLib or to the
    // request sender: the type and the fields without "@type".
    using RequestObserver = std::function<void(const QString &type, const TdObject &fields)>;
    // Sees every raw answer or update, as handleResponse received it, before it is handled.
    using ResponseObserver = std::function<void(const QByteArray &json)>;
    using Clock = LocalToday::Clock;

    explicit TelegramSession(RequestSender requestSender = {}, QObject *parent = nullptr);
    ~TelegramSession() override;

    // Where TDLib is loaded from; the main bundle unless set. No bundle: start
    // reports that TDLib is not bundled.
    void setBundle(std::optional<AppBundle> bundle);
    void setSoundManager(const SoundManager *soundManager);
    void setRequestObserver(RequestObserver observer);
    void setResponseObserver(ResponseObserver observer);
    // The clock behind date texts; the system clock unless set.
    void setClock(Clock clock) { m_today.setClock(std::move(clock)); }

    Step step() const;
    bool isReady() const;
    std::optional<QString> errorMessage() const;
    QString errorMessageText() const { return errorMessage().value_or(QString()); }
    // Where the login code went; set on each "authorizationStateWaitCode".
    CodeInfo codeInfo() const;
    QString startupStatus() const;
    QString currentAccountName() const;
    QString currentAccountPhoneNumber() const;
    // Makes again, in the language now in effect, the texts already made for chats
    // and messages (previews, times, subtitles, "You"), and republishes them.
    void retranslate();
    // TDLib's link to Telegram, as its last "updateConnectionState" told.
    ConnectionState connectionState() const { return m_connectionState; }
    // The displayed chat list, in display order.
    const QList<Chat> &chats() const;
    // What each chat shows, oldest first.
    const QHash<QString, QList<Message>> &messagesByChat() const { return m_messages.published(); }
    // What the message widgets show beyond each message, in the same order.
    const QHash<QString, QList<MessageDetails>> &messageDetailsByChat() const { return m_messages.publishedDetails(); }
    // The per-chat record of history requests and image messages, for diagnosing
    // pictures that do not show.
    QStringList imageDiagnostics(const QString &chatID) const { return m_imageDiagnosticEvents.value(chatID); }

    // Authorization
    Q_INVOKABLE void start(qint64 apiID, const QString &apiHash);
    Q_INVOKABLE void submitPhoneNumber(const QString &phoneNumber);
    Q_INVOKABLE void submitVerificationCode(const QString &code);
    Q_INVOKABLE void submitPassword(const QString &password);
    Q_INVOKABLE void logOutAndChangeAccount();

    // Chat list
    Q_INVOKABLE void requestChats();
    void loadChatList(const QString &listType);

    // Messages and history
    Q_INVOKABLE void loadMessages(const QString &chatID);
    Q_INVOKABLE void loadOlderMessages(const QString &chatID, const QString &messageID);
    void markMessagesRead(const QList<Message> &messages, const QString &chatID);
    // Where a chat's history stands for the transcript: an older page on its way,
    // or the start of the chat reached.
    bool isLoadingOlderMessages(const QString &chatID) const { return m_history.isLoadingOlder(chatID); }
    bool isHistoryExhausted(const QString &chatID) const { return m_history.isExhausted(chatID); }
    ChatSearchStore *chatSearch() const { return m_chatSearch; }
    // Brings the history around a message into the chat's transcript, in place of
    // what it showed, unless the message is loaded already.
    Q_INVOKABLE void loadHistoryAround(const QString &chatID, const QString &messageID);
    // After history around a message: the chat's newest messages again, loaded afresh.
    Q_INVOKABLE void returnToNewest(const QString &chatID);
    // Whether the chat shows history around a message rather than its newest.
    bool showsHistoryAround(const QString &chatID) const { return m_history.showsAround(chatID); }

    // Sending, editing, forwarding and deleting. Identifiers are decimal text;
    // a bad one sends nothing.
    Q_INVOKABLE void sendText(const QString &text, const QString &chatID, const QString &replyTo = {});
    Q_INVOKABLE void editText(const QString &messageID, const QString &text, const QString &chatID);
    Q_INVOKABLE void deleteMessage(const QString &messageID, const QString &chatID);
    Q_INVOKABLE void forwardMessage(const QString &messageID, const QString &fromChatID, const QString &toChatID);
    void sendAttachments(const QList<PendingAttachment> &attachments, const QString &caption, const QString &chatID);
    Q_INVOKABLE void sendPhoto(const QString &path, const QString &caption, const QString &chatID);
    Q_INVOKABLE void sendDocument(const QString &path, const QString &caption, const QString &chatID);
    // Adds the reaction, or removes it when the user has it chosen now.
    Q_INVOKABLE void setReaction(const QString &emoji, bool chosen, const QString &messageID, const QString &chatID);

    // Stickers. source: "all", "recent", "installed" or "trending".
    Q_INVOKABLE void loadStickers(const QString &query, const QString &source);
    void sendSticker(const StickerChoice &sticker, const QString &chatID);
    const QList<StickerChoice> &recentStickers() const;
    bool recentStickersLoaded() const;
    std::optional<QString> stickerError() const;

    // Contacts and conversations
    Q_INVOKABLE void refreshContacts();
    Q_INVOKABLE void searchContacts(const QString &query);
    Q_INVOKABLE void createContact(const QString &firstName, const QString &lastName, const QString &phone,
                                   const QString &note);
    Q_INVOKABLE void openUsername(const QString &username);
    // Starts the one outstanding conversation request and returns its identifier.
    Q_INVOKABLE QString beginConversation();
    Q_INVOKABLE void requestPrivateChat(qint64 userID, const QString &requestID, bool contactSaved);
    Q_INVOKABLE void deleteChat(const QString &chatID, bool includingContact);
    Q_INVOKABLE void deleteContact(qint64 userID);
    // Stops waiting for the conversation in progress; a late answer is ignored.
    Q_INVOKABLE void cancelConversation();
    const QList<ContactChoice> &contacts() const;
    const QList<ContactChoice> &contactResults() const;
    std::optional<QString> conversationError() const;
    QString conversationErrorText() const { return conversationError().value_or(QString()); }
    bool creatingConversation() const;
    const QSet<QString> &deletingChats() const;
    // For the views: the chats being deleted, and whether a chat is with one person.
    QStringList deletingChatIDs() const { return deletingChats().values(); }
    Q_INVOKABLE bool isPrivateChat(const QString &chatID) const { return privateChatUser(chatID).has_value(); }
    std::optional<QString> newlyOpenedChatID() const;

    // One raw answer or update as TDLib delivered it.
    void handleResponse(const QByteArray &json);
    void handleResponse(const QString &json);

    // Closes the TDLib client so its database is flushed, waiting for it at most a
    // few seconds, and ends the receive loop. Called when the application quits.
    void shutDown();

Q_SIGNALS:
    void chatsChanged();
    void messagesChanged(const QString &chatID);
    void historyStateChanged(const QString &chatID);
    // A file shown in a message is arriving: progress from 0 to 1.
    void downloadProgressChanged(qint64 fileID, double progress);
    void stepChanged();
    void connectionStateChanged();
    // Each time TDLib waits for a code, even for the same number again.
    void codeInfoChanged();
    void errorMessageChanged();
    void startupStatusChanged();
    void currentAccountNameChanged();
    void currentAccountPhoneNumberChanged();
    void recentStickersChanged();
    void recentStickersLoadedChanged();
    void stickerErrorChanged();
    void contactsChanged();
    void contactResultsChanged();
    void conversationErrorChanged();
    void creatingConversationChanged();
    void deletingChatsChanged();
    void newlyOpenedChatIDChanged();

protected:
    // Channel: one TDLib request of that type, the fields as they are.
    void send(const QString &type, const TdObject &fields = {});

private:
    // How the stores send: through send, so observers see their requests too.
    SendRequest storeSender();
    void handle(const TdObject &object, const QString &type);

    // Dispatcher
    bool routeByPurpose(const QString &purpose, const QString &type, const TdObject &object);
    bool routeByType(const QString &type, const TdObject &object);
    bool routeByTypeWithoutChat(const QString &type, const TdObject &object);
    void handleGenericError(const TdObject &error);

    // Authorization
    void completeSignIn();
    void submitTDLibParameters();
    void beginClient();
    void resetAccountState();

    // Chat list
    void addOrUpdateChat(const TdObject &chat);
    // Applies change to a known chat; the list is republished when the chat is in it.
    template<typename Change> void updateChat(const QString &chatID, Change &&change)
    {
        ChatListStore::Record *record = m_chatList->find(chatID);
        if (!record || !record->chat)
            return;
        change(*record->chat);
        m_chatList->changedChat(*record);
    }
    void updateChatLastMessage(const QString &chatID, const QJsonValue &message, const QJsonValue &positions);
    bool hasListPosition(const QString &chatID) const;
    const Chat *knownChat(const QString &chatID) const;
    bool isListed(const QString &chatID) const;
    std::optional<qint64> privateChatUser(const QString &chatID) const;
    qint64 lastReadInbox(const QString &chatID) const;
    std::optional<QString> baseSubtitle(const QString &chatID) const;
    void applyNotificationSettings(const TdObject &settings, const QString &chatID);
    void requestChat(qint64 chatID);

    // Messages
    void requestInitialHistory(qint64 chatID, qint64 fromMessageID, int attempt);
    void storeMessages(const QJsonArray &messages, const TdObject &extra);
    void storeHistoryAround(const QString &type, const TdObject &answer);
    void storeNewMessage(const TdObject &message);
    void removeMessage(qint64 messageID, std::optional<qint64> chatID);
    void updateMessageField(const TdObject &update, const QString &field, const QJsonValue &value);
    void publishMessages(const QString &chatID);
    // Answered messages of the chat that its history does not hold, asked for once each.
    std::optional<Message> makeMessage(const TdObject &message);
    void handleNewMessage(const TdObject &message);
    void handleReadInbox(const TdObject &update);
    void handleReadOutbox(const TdObject &update);

    // Content and downloads
    std::pair<std::optional<QString>, std::optional<MessageMediaKind>> prepareMessageMedia(const TdObject &content,
                                                                                           const QString &chatID);
    std::pair<std::optional<QString>, std::optional<QString>> prepareMessageDocument(const TdObject &content,
                                                                                     const QString &chatID);
    void applyDownloadedFile(const TdObject &file);

    // Users, presence and typing
    void storeUser(const TdObject &user);
    void refreshPresence(qint64 userID);
    void updateTypingStatus(const TdObject &update);
    std::optional<QString> prepareChatAvatar(const QJsonValue &photo, const QString &chatID);
    void republishChatsWithMessages();

    // Outgoing
    void sendAttachmentGroups(const QList<PendingAttachment> &attachments, const QString &caption,
                              const QString &chatID);
    void sendAttachmentGroup(const QList<PendingAttachment> &attachments, const QString &caption,
                             const QString &chatID);
    void sendFile(const QString &path, const QString &caption, const QString &chatID, PendingAttachmentKind kind);

    // Contacts and conversations
    void openConversationChat(const TdObject &chat);
    void forgetChat(const QString &chatID);

    // Notifications
    void notifyIfNeeded(const TdObject &message);

    // Image diagnostics
    void recordImageDiagnosticEvent(const QString &type, const TdObject &object);
    void appendImageDiagnostic(const QString &chatID, const QString &line);

    // The user's calendar day, read from the clock at most once a second.
    QDate localToday();
    void setConnectionState(ConnectionState state);

    TDLibChannel *m_channel;
    std::unique_ptr<Announcer> m_announcer;
    LocalToday m_today;

    AuthorizationStore *m_authorization;
    ConnectionState m_connectionState = ConnectionState::Ready;

    ChatListStore *m_chatList;

    ChatMessages m_messages;
    HistoryProgress m_history;

    UserStore *m_users;

    QHash<QString, QStringList> m_imageDiagnosticEvents;

    StickerStore *m_stickers;
    DownloadStore *m_downloads;
    ContactStore *m_contacts;
    ChatSearchStore *m_chatSearch;
    RepliedMessageStore *m_replied;
};
