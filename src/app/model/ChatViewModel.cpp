#include "ChatViewModel.h"

#include "Attachments.h"

#include "session/ChangedValue.h"
#include "session/ContentTexts.h"

#include <QFileInfo>
#include <QLocale>
#include <QUrl>

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Full case folding, with the dotted and dotless i of Turkic languages kept apart
// when the user's language is one of them.
QString folded(const QString &text)
{
    const QString composed = text.normalized(QString::NormalizationForm_C);
    if (composed.isEmpty())
        return composed;
    const QLocale::Language language = QLocale().language();
    const uint32_t options = language == QLocale::Turkish || language == QLocale::Azerbaijani
                                 ? U_FOLD_CASE_EXCLUDE_SPECIAL_I
                                 : U_FOLD_CASE_DEFAULT;
    // Folding grows a text at most threefold (e.g. "ΐ" becomes three characters).
    QString result(composed.size() * 3, Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = u_strFoldCase(reinterpret_cast<UChar *>(result.data()), int32_t(result.size()),
                                         reinterpret_cast<const UChar *>(composed.constData()),
                                         int32_t(composed.size()), options, &status);
    if (U_FAILURE(status))
        return composed.toCaseFolded();
    result.truncate(length);
    return result;
}

QVariantMap stickerItem(const StickerChoice &sticker)
{
    return {{u"id"_s, QString::number(sticker.id)},
            {u"fileID"_s, QString::number(sticker.fileID)},
            {u"path"_s, sticker.path},
            {u"emoji"_s, sticker.emoji},
            {u"width"_s, sticker.width},
            {u"height"_s, sticker.height},
            {u"format"_s, int(sticker.format)}};
}

// A refused file as refusedFiles lists it.
QVariantMap refusedFile(const QString &path, Attachments::Refusal reason)
{
    return {{u"name"_s, QFileInfo(path).fileName()}, {u"reason"_s, QVariant::fromValue(reason)}};
}

} // namespace

bool localizedCaseInsensitiveContains(const QString &text, const QString &search)
{
    if (search.isEmpty())
        return true;
    return folded(text).contains(folded(search));
}

QVariantMap messageItem(const Message &message)
{
    return {{u"id"_s, message.id},
            {u"senderName"_s, message.sender.name},
            {u"text"_s, message.text},
            {u"timestamp"_s, message.timestamp},
            {u"isOutgoing"_s, message.isOutgoing},
            {u"mediaKind"_s, message.mediaKind ? QVariant(int(*message.mediaKind)) : QVariant()},
            {u"mediaPath"_s, message.mediaPath.value_or(QString())},
            {u"documentName"_s, message.documentName.value_or(QString())},
            {u"stickerEmoji"_s, message.stickerEmoji}};
}

ChatViewModel::ChatViewModel(std::unique_ptr<TelegramService> service, QObject *parent)
    : QObject(parent)
    , m_service(service ? std::move(service) : std::make_unique<EmptyTelegramService>())
{
    // The id of the first chat: none, as the list starts empty.
    m_selectedChatID = m_chats.isEmpty() ? std::nullopt : std::optional(m_chats.first().id);
}

ChatViewModel::~ChatViewModel() = default;

void ChatViewModel::setSelectedChatID(const std::optional<QString> &chatID)
{
    if (!assignChanged(m_selectedChatID, chatID))
        return;
    Q_EMIT selectedChatIDChanged();
    Q_EMIT selectedChatChanged();
    Q_EMIT historyStateChanged();
    clearRefusedFiles();
}

void ChatViewModel::clearRefusedFiles()
{
    if (m_refusedFiles.isEmpty())
        return;
    m_refusedFiles.clear();
    Q_EMIT refusedFilesChanged();
}

void ChatViewModel::setSearchText(const QString &text)
{
    if (assignChanged(m_searchText, text))
        Q_EMIT searchTextChanged();
}

void ChatViewModel::setComposerText(const QString &text)
{
    if (assignChanged(m_composerText, text))
        Q_EMIT composerTextChanged();
}

void ChatViewModel::setPendingAttachments(const QList<PendingAttachment> &attachments)
{
    if (assignChanged(m_pendingAttachments, attachments))
        Q_EMIT pendingAttachmentsChanged();
}

void ChatViewModel::setPendingDocumentPath(const std::optional<QString> &path)
{
    if (assignChanged(m_pendingDocumentPath, path))
        Q_EMIT pendingDocumentPathChanged();
}

void ChatViewModel::setPendingRichMediaPath(const std::optional<QString> &path)
{
    if (assignChanged(m_pendingRichMediaPath, path))
        Q_EMIT pendingRichMediaPathChanged();
}

void ChatViewModel::setPendingRichMediaKind(const std::optional<MessageMediaKind> &kind)
{
    if (assignChanged(m_pendingRichMediaKind, kind))
        Q_EMIT pendingRichMediaKindChanged();
}

void ChatViewModel::setRecentStickers(const QList<StickerChoice> &stickers)
{
    if (assignChanged(m_recentStickers, stickers))
        Q_EMIT recentStickersChanged();
}

void ChatViewModel::setRecentStickersLoaded(bool loaded)
{
    if (assignChanged(m_recentStickersLoaded, loaded))
        Q_EMIT recentStickersLoadedChanged();
}

void ChatViewModel::setContactResults(const QList<ContactChoice> &results)
{
    if (assignChanged(m_contactResults, results))
        Q_EMIT contactResultsChanged();
}

void ChatViewModel::setContacts(const QList<ContactChoice> &contacts)
{
    if (assignChanged(m_contacts, contacts))
        Q_EMIT contactsChanged();
}

void ChatViewModel::setPendingSticker(const std::optional<StickerChoice> &sticker)
{
    if (assignChanged(m_pendingSticker, sticker))
        Q_EMIT pendingStickerChanged();
}

void ChatViewModel::setReplyToMessage(const std::optional<Message> &message)
{
    if (assignChanged(m_replyToMessage, message))
        Q_EMIT replyToMessageChanged();
}

void ChatViewModel::setEditingMessage(const std::optional<Message> &message)
{
    if (assignChanged(m_editingMessage, message))
        Q_EMIT editingMessageChanged();
}

void ChatViewModel::setCanSendMessages(bool canSend)
{
    if (assignChanged(m_canSendMessages, canSend))
        Q_EMIT canSendMessagesChanged();
}

void ChatViewModel::setUnreadDividers(const QHash<QString, QString> &dividers)
{
    if (assignChanged(m_unreadDividers, dividers))
        Q_EMIT unreadDividersChanged();
}

QList<Chat> ChatViewModel::filteredChats() const
{
    // No trimming: a single space is a search of its own.
    if (m_searchText.isEmpty())
        return m_chats;
    const QString search = folded(m_searchText);
    QList<Chat> result;
    for (const Chat &chat : m_chats) {
        if (folded(chat.title).contains(search) || folded(chat.preview).contains(search))
            result.append(chat);
    }
    return result;
}

const Chat *ChatViewModel::chat(const QString &chatID) const
{
    const auto row = m_chatRows.constFind(chatID);
    return row == m_chatRows.cend() ? nullptr : &m_chats.at(*row);
}

std::optional<Chat> ChatViewModel::selectedChat() const
{
    if (!m_selectedChatID)
        return std::nullopt;
    const Chat *found = chat(*m_selectedChatID);
    return found ? std::optional(*found) : std::nullopt;
}

std::optional<Message> ChatViewModel::selectedChatMessage(const QString &messageID) const
{
    const Chat *found = m_selectedChatID ? chat(*m_selectedChatID) : nullptr;
    if (!found)
        return std::nullopt;
    for (const Message &message : found->messages) {
        if (message.id == messageID)
            return message;
    }
    return std::nullopt;
}

void ChatViewModel::rebuildIndex()
{
    m_chatRows.clear();
    m_chatRows.reserve(m_chats.size());
    for (qsizetype row = 0; row < m_chats.size(); ++row)
        m_chatRows.insert(m_chats.at(row).id, row); // insert keeps the first row of a repeated id
}

void ChatViewModel::replaceChats(const QList<Chat> &chats)
{
    // The incoming list carries no messages: loaded histories survive a refresh.
    QHash<QString, QList<Message>> loaded;
    for (const Chat &chat : std::as_const(m_chats)) {
        if (!chat.messages.isEmpty())
            loaded.insert(chat.id, chat.messages);
    }
    QList<Chat> updated = chats;
    if (!loaded.isEmpty()) {
        for (Chat &chat : updated) {
            if (const auto messages = loaded.constFind(chat.id); messages != loaded.cend())
                chat.messages = *messages;
        }
    }
    const bool changed = updated != m_chats;
    m_chats = std::move(updated);
    rebuildIndex();
    if (changed) {
        Q_EMIT chatsChanged();
        Q_EMIT selectedChatChanged();
    }

    if (!m_selectedChatID || !m_chatRows.contains(*m_selectedChatID))
        setSelectedChatID(m_chats.isEmpty() ? std::nullopt : std::optional(m_chats.first().id));
}

void ChatViewModel::replaceMessages(qsizetype row, const QList<Message> &messages)
{
    Chat &chat = m_chats[row];
    if (chat.messages == messages)
        return;
    chat.messages = messages;
    Q_EMIT messagesChanged(chat.id);
    if (chat.id == selectedChatIDText())
        Q_EMIT historyStateChanged();
}

void ChatViewModel::setMessageDetails(const QList<MessageDetails> &details, const QString &chatID)
{
    m_messageDetails.insert(chatID, details);
}

const QList<MessageDetails> &ChatViewModel::messageDetails(const QString &chatID) const
{
    static const QList<MessageDetails> none;
    const auto found = m_messageDetails.constFind(chatID);
    return found == m_messageDetails.cend() ? none : *found;
}

void ChatViewModel::setDownloadProgress(qint64 fileID, double progress)
{
    if (m_downloadProgress.value(fileID, -1.0) == progress)
        return;
    m_downloadProgress.insert(fileID, progress);
    Q_EMIT downloadProgressChanged(fileID);
}

void ChatViewModel::setHistoryState(const QString &chatID, bool loadingOlder, bool exhausted)
{
    HistoryState &state = m_historyStates[chatID];
    if (state.loadingOlder == loadingOlder && state.exhausted == exhausted)
        return;
    state = {loadingOlder, exhausted};
    if (chatID == selectedChatIDText())
        Q_EMIT historyStateChanged();
}

bool ChatViewModel::loadingOlderMessages() const
{
    return m_historyStates.value(selectedChatIDText()).loadingOlder;
}

bool ChatViewModel::historyStartReached() const
{
    const QString chatID = selectedChatIDText();
    const HistoryState state = m_historyStates.value(chatID);
    if (state.exhausted)
        return true;
    const Chat *found = chat(chatID);
    return !state.loadingOlder && found && !found->messages.isEmpty() &&
           m_olderRequestedFrom.value(chatID) == found->messages.first().id;
}

void ChatViewModel::setMessages(const QList<Message> &messages, const QString &chatID)
{
    const auto row = m_chatRows.constFind(chatID);
    if (row == m_chatRows.cend())
        return;
    // The divider stays where the unread run began, however many messages arrive later.
    if (!m_unreadDividers.contains(chatID)) {
        const auto unread =
            std::find_if(messages.cbegin(), messages.cend(), [](const Message &message) { return message.isUnread; });
        if (unread != messages.cend()) {
            m_unreadDividers.insert(chatID, unread->id);
            Q_EMIT unreadDividersChanged();
        }
    }
    replaceMessages(*row, messages);
    if (!m_chatsWithMessages.contains(chatID)) {
        m_chatsWithMessages.insert(chatID);
        if (chatID == selectedChatIDText())
            Q_EMIT historyStateChanged();
    }
}

bool ChatViewModel::messagesArrived() const
{
    return m_chatsWithMessages.contains(selectedChatIDText());
}

void ChatViewModel::sendMessage()
{
    if (!m_canSendMessages)
        return;
    clearRefusedFiles();
    const QString text = m_composerText.trimmed();
    if (!m_selectedChatID)
        return;
    const QString chatID = *m_selectedChatID;

    if (!m_pendingAttachments.isEmpty() && liveAttachmentsHandler) {
        liveAttachmentsHandler(m_pendingAttachments, text, chatID);
        setPendingAttachments({});
        setComposerText({});
        return;
    }
    if (m_pendingDocumentPath && liveDocumentHandler) {
        liveDocumentHandler(*m_pendingDocumentPath, text, chatID);
        setPendingDocumentPath(std::nullopt);
        setComposerText({});
        return;
    }
    if (m_pendingRichMediaPath && m_pendingRichMediaKind && liveRichMediaHandler) {
        liveRichMediaHandler(*m_pendingRichMediaPath, *m_pendingRichMediaKind, text, chatID);
        setPendingRichMediaPath(std::nullopt);
        setPendingRichMediaKind(std::nullopt);
        setComposerText({});
        return;
    }
    if (m_pendingSticker && liveStickerHandler) {
        // The text goes first so that it shows above the sticker.
        if (!text.isEmpty() && liveSendHandler)
            liveSendHandler(text, chatID, std::nullopt);
        liveStickerHandler(*m_pendingSticker, chatID);
        setPendingSticker(std::nullopt);
        setComposerText({});
        return;
    }
    if (text.isEmpty())
        return;
    if (m_editingMessage && liveEditHandler) {
        liveEditHandler(m_editingMessage->id, text, chatID);
        setEditingMessage(std::nullopt);
        setComposerText({});
        return;
    }
    if (liveSendHandler) {
        liveSendHandler(text, chatID, m_replyToMessage ? std::optional(m_replyToMessage->id) : std::nullopt);
        setReplyToMessage(std::nullopt);
        setComposerText({});
        return;
    }
    // No live service: the stand-in echoes the text into the chat.
    const auto row = m_chatRows.constFind(chatID);
    if (row == m_chatRows.cend())
        return;
    QList<Message> messages = m_chats.at(*row).messages;
    messages.append(m_service->makeOutgoingMessage(text));
    replaceMessages(*row, messages);
    setComposerText({});
}

void ChatViewModel::toggleReaction(const QString &emoji, const Message &message)
{
    if (!m_selectedChatID)
        return;
    const auto reaction = std::find_if(message.reactions.cbegin(), message.reactions.cend(),
                                       [&emoji](const MessageReaction &r) { return r.emoji == emoji; });
    const bool chosen = reaction != message.reactions.cend() && reaction->isChosen;
    // The handler gets the state before the toggle and decides whether to add or remove.
    if (liveReactionHandler)
        liveReactionHandler(emoji, chosen, message.id, *m_selectedChatID);
}

void ChatViewModel::queueSticker(const StickerChoice &sticker)
{
    setPendingAttachments({});
    setPendingDocumentPath(std::nullopt);
    setPendingRichMediaPath(std::nullopt);
    setPendingSticker(sticker);
}

void ChatViewModel::queueAttachments(const QList<PendingAttachment> &attachments)
{
    setPendingDocumentPath(std::nullopt);
    setPendingRichMediaPath(std::nullopt);
    setPendingSticker(std::nullopt);
    setPendingAttachments(m_pendingAttachments + attachments);
}

void ChatViewModel::removePendingAttachment(const QUuid &id)
{
    QList<PendingAttachment> remaining = m_pendingAttachments;
    remaining.removeIf([&id](const PendingAttachment &attachment) { return attachment.id == id; });
    setPendingAttachments(remaining);
}

void ChatViewModel::selectChat(const QString &chatID)
{
    setSelectedChatID(chatID.isEmpty() ? std::nullopt : std::optional(chatID));
}

void ChatViewModel::toggleReactionOnMessage(const QString &emoji, const QString &messageID)
{
    if (const auto message = selectedChatMessage(messageID))
        toggleReaction(emoji, *message);
}

void ChatViewModel::replyTo(const QString &messageID)
{
    setEditingMessage(std::nullopt);
    setReplyToMessage(selectedChatMessage(messageID));
}

void ChatViewModel::edit(const QString &messageID)
{
    const std::optional<Message> message = selectedChatMessage(messageID);
    setReplyToMessage(std::nullopt);
    setEditingMessage(message);
    if (message)
        setComposerText(message->text);
}

void ChatViewModel::cancelReplyAndEdit()
{
    const bool wasEditing = m_editingMessage.has_value();
    setReplyToMessage(std::nullopt);
    setEditingMessage(std::nullopt);
    if (wasEditing)
        setComposerText({});
}

void ChatViewModel::queueFiles(const QStringList &pathsOrUrls)
{
    QList<PendingAttachment> attachments;
    QVariantList refused;
    for (const QString &pathOrUrl : pathsOrUrls) {
        const QString path = Attachments::localPath(pathOrUrl);
        if (const auto refusal = path.isEmpty() ? Attachments::Refusal::Unreadable : Attachments::refusal(path)) {
            refused.append(refusedFile(path.isEmpty() ? pathOrUrl : path, *refusal));
            continue;
        }
        const PendingAttachmentKind kind = Attachments::kindFor(path);
        attachments.append(
            {QUuid::createUuid(), path,
             kind == PendingAttachmentKind::Photo && picturesSentAsFiles() ? PendingAttachmentKind::Document : kind});
    }
    if (refused != m_refusedFiles) {
        m_refusedFiles = refused;
        Q_EMIT refusedFilesChanged();
    }
    if (!attachments.isEmpty())
        queueAttachments(attachments);
}

bool ChatViewModel::picturesSentAsFiles() const
{
    return std::any_of(m_pendingAttachments.cbegin(), m_pendingAttachments.cend(), [](const PendingAttachment &a) {
        return a.kind == PendingAttachmentKind::Document &&
               Attachments::kindFor(a.path) == PendingAttachmentKind::Photo;
    });
}

void ChatViewModel::setPicturesSentAsFiles(bool asFiles)
{
    QList<PendingAttachment> attachments = m_pendingAttachments;
    for (PendingAttachment &attachment : attachments) {
        if (Attachments::kindFor(attachment.path) == PendingAttachmentKind::Photo)
            attachment.kind = asFiles ? PendingAttachmentKind::Document : PendingAttachmentKind::Photo;
    }
    setPendingAttachments(attachments);
}

QStringList ChatViewModel::reactionPalette()
{
    // The heart carries its emoji presentation selector (U+2764 U+FE0F).
    return {u"😁"_s, u"👍"_s, u"❤️"_s, u"👎"_s, u"🔥"_s, u"🥰"_s, u"👏"_s};
}

void ChatViewModel::setStickerError(const QString &error)
{
    if (assignChanged(m_stickerError, error))
        Q_EMIT stickerErrorChanged();
}

void ChatViewModel::queueStickerAt(int row)
{
    if (row >= 0 && row < m_recentStickers.size())
        queueSticker(m_recentStickers.at(row));
}

void ChatViewModel::sendStickerAt(int row)
{
    if (row < 0 || row >= m_recentStickers.size())
        return;
    const StickerChoice sticker = m_recentStickers.at(row);
    if (m_pendingAttachments.isEmpty() && !m_pendingDocumentPath && !m_pendingRichMediaPath) {
        queueSticker(sticker);
        sendMessage();
        return;
    }
    if (m_canSendMessages && m_selectedChatID && liveStickerHandler)
        liveStickerHandler(sticker, *m_selectedChatID);
}

void ChatViewModel::removePendingAttachmentWithID(const QString &id)
{
    removePendingAttachment(QUuid::fromString(id));
}

void ChatViewModel::loadOlderMessages()
{
    const Chat *found = m_selectedChatID ? chat(*m_selectedChatID) : nullptr;
    if (!found || found->messages.isEmpty() || !loadOlderHandler)
        return;
    const QString oldest = found->messages.first().id;
    // A page that brought nothing older is not asked for again.
    const HistoryState state = m_historyStates.value(found->id);
    if (state.loadingOlder || state.exhausted || m_olderRequestedFrom.value(found->id) == oldest)
        return;
    m_olderRequestedFrom.insert(found->id, oldest);
    loadOlderHandler(found->id, oldest);
    Q_EMIT historyStateChanged();
}

bool ChatViewModel::canEdit(const QString &messageID) const
{
    const std::optional<Message> message = selectedChatMessage(messageID);
    // Only text can be edited: a message with media or a file is passed over.
    if (!message || !message->isOutgoing || message->mediaKind || message->documentName || message->text.isEmpty())
        return false;
    const QList<MessageDetails> &details = messageDetails(*m_selectedChatID);
    return std::none_of(details.cbegin(), details.cend(), [&messageID](const MessageDetails &held) {
        return held.messageID == messageID && held.isForwarded;
    });
}

bool ChatViewModel::editLastOwnMessage()
{
    const Chat *found = m_selectedChatID ? chat(*m_selectedChatID) : nullptr;
    if (!found)
        return false;
    for (auto message = found->messages.crbegin(); message != found->messages.crend(); ++message) {
        if (message->isOutgoing && canEdit(message->id)) {
            edit(message->id);
            return true;
        }
    }
    return false;
}

void ChatViewModel::deleteMessage(const QString &messageID)
{
    if (m_selectedChatID && liveDeleteHandler)
        liveDeleteHandler(messageID, *m_selectedChatID);
}

void ChatViewModel::forwardMessage(const QString &messageID, const QString &toChatID)
{
    if (m_selectedChatID && liveForwardHandler)
        liveForwardHandler(messageID, *m_selectedChatID, toChatID);
}

void ChatViewModel::searchContacts(const QString &query)
{
    if (contactSearchHandler)
        contactSearchHandler(query);
}

void ChatViewModel::openContact(const QString &userID)
{
    bool ok = false;
    const qint64 id = userID.toLongLong(&ok);
    if (ok && openContactHandler)
        openContactHandler(id);
}

void ChatViewModel::openMention(const QString &username)
{
    if (!username.isEmpty() && openUsernameHandler)
        openUsernameHandler(username);
}

QVariantList ChatViewModel::pendingAttachmentItems() const
{
    QVariantList items;
    for (const PendingAttachment &attachment : m_pendingAttachments) {
        const QFileInfo info(attachment.path);
        items.append(
            QVariantMap{{u"id"_s, attachment.id.toString(QUuid::WithoutBraces)},
                        {u"path"_s, attachment.path},
                        {u"url"_s, QUrl::fromLocalFile(attachment.path)},
                        {u"name"_s, info.fileName()},
                        {u"size"_s, info.size()},
                        {u"kind"_s, int(attachment.kind)},
                        {u"isImage"_s, Attachments::kindFor(attachment.path) == PendingAttachmentKind::Photo}});
    }
    return items;
}

QVariant ChatViewModel::pendingStickerItem() const
{
    return m_pendingSticker ? QVariant(stickerItem(*m_pendingSticker)) : QVariant::fromValue(nullptr);
}

QVariant ChatViewModel::replyToMessageItem() const
{
    if (!m_replyToMessage)
        return QVariant::fromValue(nullptr);
    QVariantMap item = messageItem(*m_replyToMessage);
    // The banner quotes the message as a reply's quote does: its spoilers veiled.
    for (const MessageDetails &details : messageDetails(selectedChatIDText())) {
        if (details.messageID == m_replyToMessage->id && details.text == m_replyToMessage->text)
            item.insert(u"text"_s, veiledText(details.text, details.entities));
    }
    return item;
}

QVariant ChatViewModel::editingMessageItem() const
{
    return m_editingMessage ? QVariant(messageItem(*m_editingMessage)) : QVariant::fromValue(nullptr);
}

QVariant ChatViewModel::selectedChatItem() const
{
    const Chat *found = m_selectedChatID ? chat(*m_selectedChatID) : nullptr;
    if (!found)
        return QVariant::fromValue(nullptr);
    return QVariantMap{{u"id"_s, found->id},
                       {u"title"_s, found->title},
                       {u"subtitle"_s, found->subtitle},
                       {u"avatarText"_s, found->avatarText},
                       {u"avatarPath"_s, found->avatarPath.value_or(QString())},
                       {u"isMuted"_s, found->isMuted},
                       {u"isArchived"_s, found->isArchived},
                       {u"isPinned"_s, found->isPinned},
                       {u"unreadCount"_s, found->unreadCount},
                       {u"draftText"_s, found->draftText}};
}
