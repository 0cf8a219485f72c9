#pragma once

#include "session/MessageDetails.h"
#include "session/ModelNames.h"
#include "session/ModelTypes.h"
#include "session/TelegramService.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>

// The state behind the conversation view: the chat list as shown, the selected
// chat, the search text, the composer (text, reply target, message being edited,
// queued attachments or sticker) and each chat's unread divider. It never talks to
// TDLib: every outgoing action goes through one of the handler slots, which the
// root view fills with session operations. A slot left empty skips its action.
//
// C++ reads every property in its own type (optional values as std::optional);
// QML reads the same names through properties of QML-friendly types: absent text
// is "", records are maps and lists of maps, an absent record is null.
class ChatViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The root view owns the one view model.")
    Q_PROPERTY(QString selectedChatID READ selectedChatIDText WRITE selectChat NOTIFY selectedChatIDChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QString composerText READ composerText WRITE setComposerText NOTIFY composerTextChanged)
    // Each queued file: id, path, url, name, size (bytes), kind
    // (Model.PendingAttachmentKind) and isImage (a photo, or a picture sent as a file).
    Q_PROPERTY(QVariantList pendingAttachments READ pendingAttachmentItems NOTIFY pendingAttachmentsChanged)
    // The files last refused: name and reason (Attachments.Refusal).
    Q_PROPERTY(QVariantList refusedFiles READ refusedFiles NOTIFY refusedFilesChanged)
    // Pictures go as files rather than as photos.
    Q_PROPERTY(
        bool picturesSentAsFiles READ picturesSentAsFiles WRITE setPicturesSentAsFiles NOTIFY pendingAttachmentsChanged)
    Q_PROPERTY(QString stickerError READ stickerError NOTIFY stickerErrorChanged)
    // The seven emoji offered for reacting, in their order.
    Q_PROPERTY(QStringList reactionPalette READ reactionPalette CONSTANT)
    Q_PROPERTY(QString pendingDocumentPath READ pendingDocumentPathText NOTIFY pendingDocumentPathChanged)
    Q_PROPERTY(QString pendingRichMediaPath READ pendingRichMediaPathText NOTIFY pendingRichMediaPathChanged)
    Q_PROPERTY(bool recentStickersLoaded READ recentStickersLoaded NOTIFY recentStickersLoadedChanged)
    // A map of the sticker's fields; its format a Model.StickerFormat.
    Q_PROPERTY(QVariant pendingSticker READ pendingStickerItem NOTIFY pendingStickerChanged)
    // Maps of the message's fields; mediaKind a Model.MessageMediaKind, undefined when none.
    Q_PROPERTY(QVariant replyToMessage READ replyToMessageItem NOTIFY replyToMessageChanged)
    Q_PROPERTY(QVariant editingMessage READ editingMessageItem NOTIFY editingMessageChanged)
    Q_PROPERTY(bool canSendMessages READ canSendMessages NOTIFY canSendMessagesChanged)
    Q_PROPERTY(QVariant selectedChat READ selectedChatItem NOTIFY selectedChatChanged)
    // The selected chat's history: an older page on its way, or its start reached.
    Q_PROPERTY(bool loadingOlderMessages READ loadingOlderMessages NOTIFY historyStateChanged)
    Q_PROPERTY(bool historyStartReached READ historyStartReached NOTIFY historyStateChanged)
    // Whether the selected chat's first page has answered: until then an empty
    // transcript is waiting, not empty.
    Q_PROPERTY(bool messagesArrived READ messagesArrived NOTIFY historyStateChanged)

public:
    explicit ChatViewModel(std::unique_ptr<TelegramService> service, QObject *parent = nullptr);
    ~ChatViewModel() override;

    // Handler slots, all unset at first.
    std::function<void(const QString &text, const QString &chatID, const std::optional<QString> &replyTo)>
        liveSendHandler;
    std::function<void(const QString &path, const QString &caption, const QString &chatID)> livePhotoHandler;
    std::function<void(const QList<PendingAttachment> &attachments, const QString &caption, const QString &chatID)>
        liveAttachmentsHandler;
    std::function<void(const QString &path, const QString &caption, const QString &chatID)> liveDocumentHandler;
    std::function<void(const QString &path, MessageMediaKind kind, const QString &caption, const QString &chatID)>
        liveRichMediaHandler;
    std::function<void(const StickerChoice &sticker, const QString &chatID)> liveStickerHandler;
    std::function<void(const QString &messageID, const QString &text, const QString &chatID)> liveEditHandler;
    std::function<void(const QString &messageID, const QString &chatID)> liveDeleteHandler;
    std::function<void(const QString &emoji, bool chosen, const QString &messageID, const QString &chatID)>
        liveReactionHandler;
    std::function<void(const QString &messageID, const QString &fromChatID, const QString &toChatID)>
        liveForwardHandler;
    std::function<void(const QString &chatID, const QString &oldestMessageID)> loadOlderHandler;
    std::function<void(bool typing, const QString &chatID)> typingHandler;
    std::function<void(const QString &query)> contactSearchHandler;
    std::function<void(qint64 userID)> openContactHandler;
    std::function<void(const QString &username)> openUsernameHandler;
    std::function<void(bool muted, const QString &chatID)> muteChatHandler;
    std::function<void(bool archived, const QString &chatID)> archiveChatHandler;
    std::function<void(bool pinned, const QString &chatID, bool inArchive)> pinChatHandler;
    std::function<void(bool markedUnread, const QString &chatID)> markUnreadHandler;
    std::function<void(const QString &text, const QString &chatID)> draftHandler;

    // Properties
    const QList<Chat> &chats() const { return m_chats; }
    std::optional<QString> selectedChatID() const { return m_selectedChatID; }
    void setSelectedChatID(const std::optional<QString> &chatID);
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text);
    QString composerText() const { return m_composerText; }
    void setComposerText(const QString &text);
    const QList<PendingAttachment> &pendingAttachments() const { return m_pendingAttachments; }
    void setPendingAttachments(const QList<PendingAttachment> &attachments);
    std::optional<QString> pendingDocumentPath() const { return m_pendingDocumentPath; }
    void setPendingDocumentPath(const std::optional<QString> &path);
    std::optional<QString> pendingRichMediaPath() const { return m_pendingRichMediaPath; }
    void setPendingRichMediaPath(const std::optional<QString> &path);
    std::optional<MessageMediaKind> pendingRichMediaKind() const { return m_pendingRichMediaKind; }
    void setPendingRichMediaKind(const std::optional<MessageMediaKind> &kind);
    const QList<StickerChoice> &recentStickers() const { return m_recentStickers; }
    void setRecentStickers(const QList<StickerChoice> &stickers);
    bool recentStickersLoaded() const { return m_recentStickersLoaded; }
    void setRecentStickersLoaded(bool loaded);
    const QList<ContactChoice> &contactResults() const { return m_contactResults; }
    void setContactResults(const QList<ContactChoice> &results);
    const QList<ContactChoice> &contacts() const { return m_contacts; }
    void setContacts(const QList<ContactChoice> &contacts);
    std::optional<StickerChoice> pendingSticker() const { return m_pendingSticker; }
    void setPendingSticker(const std::optional<StickerChoice> &sticker);
    std::optional<Message> replyToMessage() const { return m_replyToMessage; }
    void setReplyToMessage(const std::optional<Message> &message);
    std::optional<Message> editingMessage() const { return m_editingMessage; }
    void setEditingMessage(const std::optional<Message> &message);
    bool canSendMessages() const { return m_canSendMessages; }
    void setCanSendMessages(bool canSend);
    const QHash<QString, QString> &unreadDividers() const { return m_unreadDividers; }
    void setUnreadDividers(const QHash<QString, QString> &dividers);
    const TelegramService &service() const { return *m_service; }

    // The chats the sidebar shows: all of them while the search text is empty,
    // otherwise those whose title or preview contains it, ignoring case.
    QList<Chat> filteredChats() const;
    // The first chat whose id is the selected one; absent when none is.
    std::optional<Chat> selectedChat() const;
    // The chat with that id, without copying; null when there is none.
    const Chat *chat(const QString &chatID) const;

    void replaceChats(const QList<Chat> &chats);
    void setMessages(const QList<Message> &messages, const QString &chatID);
    // What the message widgets show beyond each message of a chat, in the order of
    // its messages; set before the messages themselves.
    void setMessageDetails(const QList<MessageDetails> &details, const QString &chatID);
    const QList<MessageDetails> &messageDetails(const QString &chatID) const;
    // How far the files shown in messages have arrived: 0 to 1, -1 when unknown.
    void setDownloadProgress(qint64 fileID, double progress);
    Q_INVOKABLE double downloadProgress(qint64 fileID) const { return m_downloadProgress.value(fileID, -1.0); }
    // The session's history state of a chat.
    void setHistoryState(const QString &chatID, bool loadingOlder, bool exhausted);
    bool loadingOlderMessages() const;
    // The session found the start, or the last page asked for brought nothing
    // older (TDLib may answer the first message again instead of nothing).
    bool historyStartReached() const;
    bool messagesArrived() const;
    Q_INVOKABLE void sendMessage();
    void toggleReaction(const QString &emoji, const Message &message);
    void queueSticker(const StickerChoice &sticker);
    void queueAttachments(const QList<PendingAttachment> &attachments);
    void removePendingAttachment(const QUuid &id);

    // For QML: identifiers as text, records looked up in the selected chat.
    Q_INVOKABLE void selectChat(const QString &chatID);
    Q_INVOKABLE void toggleReactionOnMessage(const QString &emoji, const QString &messageID);
    Q_INVOKABLE void replyTo(const QString &messageID);
    // Only one's own text messages are edited, and never forwarded ones.
    Q_INVOKABLE bool canEdit(const QString &messageID) const;
    Q_INVOKABLE void edit(const QString &messageID);
    Q_INVOKABLE void cancelReplyAndEdit();
    // Queues files (paths or file URLs): pictures as photos, the rest as
    // documents; files that cannot be sent are refused and listed in refusedFiles.
    Q_INVOKABLE void queueFiles(const QStringList &pathsOrUrls);
    QVariantList refusedFiles() const { return m_refusedFiles; }
    bool picturesSentAsFiles() const;
    void setPicturesSentAsFiles(bool asFiles);
    QString stickerError() const { return m_stickerError; }
    static QStringList reactionPalette();
    void setStickerError(const QString &error);
    Q_INVOKABLE void queueStickerAt(int row);
    // Sends a recent sticker at once. Files waiting to be sent stay queued, with
    // the text that will caption them; with none waiting, the text goes first.
    Q_INVOKABLE void sendStickerAt(int row);
    Q_INVOKABLE void removePendingAttachmentWithID(const QString &id);
    // Asks for the page before the oldest loaded message, once per oldest message.
    Q_INVOKABLE void loadOlderMessages();
    // Edits the newest of the user's own text messages in the selected chat;
    // false when there is none.
    Q_INVOKABLE bool editLastOwnMessage();
    Q_INVOKABLE void deleteMessage(const QString &messageID);
    Q_INVOKABLE void forwardMessage(const QString &messageID, const QString &toChatID);
    Q_INVOKABLE void searchContacts(const QString &query);
    Q_INVOKABLE void openContact(const QString &userID);
    // Opens the public chat a mention in a message names ("name", without "@").
    Q_INVOKABLE void openMention(const QString &username);
    // The selected chat's message with that id; absent when there is none.
    std::optional<Message> selectedChatMessage(const QString &messageID) const;

    // The forms QML reads.
    QString selectedChatIDText() const { return m_selectedChatID.value_or(QString()); }
    QVariantList pendingAttachmentItems() const;
    QString pendingDocumentPathText() const { return m_pendingDocumentPath.value_or(QString()); }
    QString pendingRichMediaPathText() const { return m_pendingRichMediaPath.value_or(QString()); }
    QVariant pendingStickerItem() const;
    QVariant replyToMessageItem() const;
    QVariant editingMessageItem() const;
    QVariant selectedChatItem() const;

Q_SIGNALS:
    // The chat list was replaced as a whole (replaceChats).
    void chatsChanged();
    // One chat's messages in chats were replaced or extended; the list itself is as it was.
    void messagesChanged(const QString &chatID);
    void selectedChatIDChanged();
    // The selected chat's own fields, or which chat that is, may have changed.
    void selectedChatChanged();
    void searchTextChanged();
    void composerTextChanged();
    void pendingAttachmentsChanged();
    void pendingDocumentPathChanged();
    void pendingRichMediaPathChanged();
    void pendingRichMediaKindChanged();
    void recentStickersChanged();
    void recentStickersLoadedChanged();
    void contactResultsChanged();
    void contactsChanged();
    void pendingStickerChanged();
    void replyToMessageChanged();
    void editingMessageChanged();
    void canSendMessagesChanged();
    void unreadDividersChanged();
    void historyStateChanged();
    void refusedFilesChanged();
    void downloadProgressChanged(qint64 fileID);
    void stickerErrorChanged();

private:
    void rebuildIndex();
    // The notice of refused files goes with the next send or another chat.
    void clearRefusedFiles();
    void replaceMessages(qsizetype row, const QList<Message> &messages);

    QList<Chat> m_chats;
    QHash<QString, qsizetype> m_chatRows; // chat id -> row of its first chat in m_chats
    std::optional<QString> m_selectedChatID;
    QString m_searchText;
    QString m_composerText;
    QList<PendingAttachment> m_pendingAttachments;
    std::optional<QString> m_pendingDocumentPath;
    std::optional<QString> m_pendingRichMediaPath;
    std::optional<MessageMediaKind> m_pendingRichMediaKind;
    QList<StickerChoice> m_recentStickers;
    bool m_recentStickersLoaded = false;
    QList<ContactChoice> m_contactResults;
    QList<ContactChoice> m_contacts;
    std::optional<StickerChoice> m_pendingSticker;
    std::optional<Message> m_replyToMessage;
    std::optional<Message> m_editingMessage;
    bool m_canSendMessages = false;
    QHash<QString, QString> m_unreadDividers;
    QHash<QString, QList<MessageDetails>> m_messageDetails;
    struct HistoryState {
        bool loadingOlder = false;
        bool exhausted = false;
    };
    QHash<QString, HistoryState> m_historyStates;
    QSet<QString> m_chatsWithMessages;            // the chats whose messages were set at least once
    QHash<QString, QString> m_olderRequestedFrom; // chat id -> the oldest message id last asked from
    QVariantList m_refusedFiles;
    QHash<qint64, double> m_downloadProgress;
    QString m_stickerError;
    // Drafts are not saved from this model, so there is no draft-saving task to keep.
    std::unique_ptr<TelegramService> m_service;
};

// The search rule of the chat list: a containment test that ignores case the way
// the user's language does, treating canonically equivalent texts as equal.
bool localizedCaseInsensitiveContains(const QString &text, const QString &search);
// The forms of values QML reads.
QVariantMap messageItem(const Message &message);
