// The messages of each chat: a short window of the newest ones, the first load of
// a chat with its bounded retries, older pages, read markers and delivery ticks.

#include "session/AuthorizationStore.h"
#include "session/ContentTexts.h"
#include "session/DateTexts.h"
#include "session/RepliedMessageStore.h"
#include "session/TelegramSession.h"
#include "session/UserStore.h"

#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int historyWindow = 15;
constexpr int maximumInitialAttempts = 14;
constexpr int maximumViewedMessages = 100;
constexpr int emptyAnswerRetryMs = 200;

QString chatKey(const TdObject &message)
{
    return QString::number(int64From(message.value("chat_id"_L1)).value_or(0));
}

} // namespace

void TelegramSession::publishMessages(const QString &chatID)
{
    QList<StoredMessage> *stored = m_messages.stored(chatID);
    if (!stored)
        return;
    QList<StoredMessage> &storedMessages = *stored;
    std::stable_sort(storedMessages.begin(), storedMessages.end(), StoredMessage::sortsBefore);
    if (!m_history.isExpanded(chatID) && storedMessages.size() > historyWindow)
        storedMessages.remove(0, storedMessages.size() - historyWindow);
    if (m_history.isFirstLoading(chatID))
        return;
    QList<TdObject> messages;
    messages.reserve(storedMessages.size());
    for (const StoredMessage &message : std::as_const(storedMessages))
        messages.append(message.object());
    m_users->requestMissingUsers(messages);
    QList<Message> published;
    QList<MessageDetails> details;
    published.reserve(messages.size());
    details.reserve(messages.size());
    QHash<qint64, const TdObject *> byID;
    byID.reserve(messages.size());
    for (qsizetype i = 0; i < messages.size(); ++i)
        byID.insert(storedMessages.at(i).id().value_or(0), &messages.at(i));
    const auto chatTitle = [this](qint64 chat) {
        const ChatListStore::Record *record = m_chatList->find(chat);
        return record && record->chat ? record->chat->title : QString();
    };
    const auto userName = [this](qint64 userID) {
        const User *user = m_users->user(userID);
        return user ? user->name : QString();
    };
    const auto lookUp = [this, &byID, &chatID](qint64 messageID) -> const TdObject * {
        if (const TdObject *held = byID.value(messageID))
            return held;
        return m_replied->message(chatID, messageID);
    };
    const MessageDetailsContext context{userName, chatTitle, lookUp, [this, &chatID](qint64 messageID) {
                                            return m_replied->isMissing(chatID, messageID);
                                        }};
    for (const TdObject &raw : std::as_const(messages)) {
        if (std::optional<Message> message = makeMessage(raw)) {
            published.append(std::move(*message));
            details.append(messageDetails(raw, context));
        }
    }
    if (const std::optional<qint64> chat = parseInt64(chatID))
        m_replied->requestMissing(*chat, messages, byID);
    m_messages.publish(chatID, std::move(published), std::move(details));
    Q_EMIT messagesChanged(chatID);
}

std::optional<Message> TelegramSession::makeMessage(const TdObject &raw)
{
    const std::optional<qint64> id = int64From(raw.value("id"_L1));
    if (!id)
        return std::nullopt;
    const QString chatID = chatKey(raw);
    Message message;
    message.id = QString::number(*id);
    message.isOutgoing = raw.value("is_outgoing"_L1).toBool();

    const std::optional<qint64> senderUserID = int64From(raw.value("sender_id"_L1).toObject().value("user_id"_L1));
    if (message.isOutgoing) {
        const User *found =
            m_authorization->currentUserID() ? m_users->user(*m_authorization->currentUserID()) : nullptr;
        if (!found && senderUserID)
            found = m_users->user(*senderUserID);
        //: The sender's name on one's own messages.
        message.sender = User{newViewID(), tr("You"), found ? found->initials : u"YO"_s, AvatarColor::Blue,
                              found ? found->avatarPath : std::nullopt};
    } else if (const User *sender = senderUserID ? m_users->user(*senderUserID) : nullptr) {
        message.sender = *sender;
    } else {
        message.sender = User{newViewID(), u"Telegram"_s, u"TG"_s, AvatarColor::Teal, std::nullopt};
    }

    if (message.isOutgoing) {
        if (raw.value("sending_state"_L1).isObject())
            message.deliveryState = MessageDeliveryState::Sending;
        else
            message.deliveryState =
                m_messages.lastReadOutbox(chatID) < *id ? MessageDeliveryState::Sent : MessageDeliveryState::Read;
        message.isUnread = false;
    } else {
        message.deliveryState = MessageDeliveryState::None;
        message.isUnread = lastReadInbox(chatID) < *id;
    }

    const TdObject content = raw.value("content"_L1).toObject();
    std::tie(message.documentPath, message.documentName) = prepareMessageDocument(content, chatID);
    std::tie(message.mediaPath, message.mediaKind) = prepareMessageMedia(content, chatID);
    if (message.mediaPath)
        message.mediaPaths = {*message.mediaPath};
    message.text = messageText(content);
    message.timestamp = messageTime(integerFrom(raw.value("date"_L1)));
    const TdObject sticker = content.value("sticker"_L1).toObject();
    message.stickerEmoji = sticker.value("emoji"_L1).toString();
    message.stickerFormat = stickerFormat(sticker.value("format"_L1));
    message.mediaAlbumID = int64From(raw.value("media_album_id"_L1));
    message.reactions = messageReactions(raw);
    return message;
}

void TelegramSession::storeMessages(const QJsonArray &messages, const TdObject &extra)
{
    const QJsonValue purposeValue = extra.value("purpose"_L1);
    const QString purpose = purposeValue.isString() ? purposeValue.toString() : QString();
    if (purpose == "initial_local_history"_L1)
        return;
    if (purpose == "older_history"_L1) {
        if (const auto chat = int64From(extra.value("chat_id"_L1))) {
            const QString chatID = QString::number(*chat);
            m_history.endOlderPage(chatID, messages.isEmpty());
            Q_EMIT historyStateChanged(chatID);
        }
    }

    // Group by chat, keeping the order in which chats first appear.
    QStringList chatOrder;
    QHash<QString, QList<TdObject>> byChat;
    for (const QJsonValue &value : messages) {
        const TdObject message = value.toObject();
        const QString chatID = chatKey(message);
        if (!byChat.contains(chatID))
            chatOrder.append(chatID);
        byChat[chatID].append(message);
    }
    for (const QString &chatID : std::as_const(chatOrder)) {
        if (chatID == "0"_L1 || m_chatList->isRemoved(chatID))
            continue;
        QList<StoredMessage> merged;
        QHash<qint64, qsizetype> index;
        const auto place = [&](const StoredMessage &message) {
            const std::optional<qint64> id = message.id();
            if (!id)
                return;
            if (const auto at = index.constFind(*id); at != index.cend()) {
                merged[*at] = message;
            } else {
                index.insert(*id, merged.size());
                merged.append(message);
            }
        };
        for (const StoredMessage &stored : std::as_const(m_messages.storedOrAdded(chatID)))
            place(stored);
        for (const TdObject &received : std::as_const(byChat[chatID]))
            place(StoredMessage(received));
        m_messages.storedOrAdded(chatID) = merged;
        publishMessages(chatID);
    }

    if (purpose != "initial_history"_L1)
        return;
    const std::optional<qint64> chat = int64From(extra.value("chat_id"_L1));
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    QSet<qint64> &loaded = m_history.firstLoadMessages(chatID);
    const qsizetype previous = loaded.size();
    for (const QJsonValue &value : messages) {
        if (const auto id = int64From(value.toObject().value("id"_L1)))
            loaded.insert(*id);
    }
    const int attempt = int(integerFrom(extra.value("attempt"_L1)).value_or(1));
    const qsizetype count = loaded.size();
    const bool goesOn = count < historyWindow && attempt <= maximumInitialAttempts &&
                        (count > previous || (count == 0 && attempt <= 2));
    if (goesOn && count > 0) {
        requestInitialHistory(*chat, *std::min_element(loaded.cbegin(), loaded.cend()), attempt + 1);
    } else if (goesOn) {
        // TDLib answers empty while it fills its cache: ask again shortly.
        QTimer::singleShot(emptyAnswerRetryMs, this, [this, chatID, chat = *chat, attempt] {
            if (m_history.isFirstLoading(chatID))
                requestInitialHistory(chat, 0, attempt + 1);
        });
    } else {
        m_history.endFirstLoad(chatID);
        // A chat with no history still gets its (empty) list, so the view stops waiting.
        m_messages.storedOrAdded(chatID);
        publishMessages(chatID);
    }
}

void TelegramSession::loadMessages(const QString &chatID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    if (!chat || !m_history.beginFirstLoad(chatID))
        return;
    send(u"openChat"_s, {{"chat_id"_L1, *chat}});
    requestInitialHistory(*chat, 0, 1);
}

void TelegramSession::requestInitialHistory(qint64 chatID, qint64 fromMessageID, int attempt)
{
    const qsizetype held = m_history.firstLoadCount(QString::number(chatID));
    // TDLib answers a page from a message with that message itself again.
    const qsizetype limit =
        std::clamp<qsizetype>(historyWindow - held + (fromMessageID != 0 ? 1 : 0), 1, historyWindow);
    send(u"getChatHistory"_s,
         {{"chat_id"_L1, chatID},
          {"from_message_id"_L1, fromMessageID},
          {"offset"_L1, 0},
          {"limit"_L1, limit},
          {"only_local"_L1, false},
          {"@extra"_L1,
           TdObject{{"purpose"_L1, u"initial_history"_s}, {"chat_id"_L1, chatID}, {"attempt"_L1, attempt}}}});
}

void TelegramSession::loadOlderMessages(const QString &chatID, const QString &messageID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    const std::optional<qint64> message = parseInt64(messageID);
    if (!chat || !message || !m_history.beginOlderPage(chatID))
        return;
    Q_EMIT historyStateChanged(chatID);
    send(u"getChatHistory"_s, {{"chat_id"_L1, *chat},
                               {"from_message_id"_L1, *message},
                               {"offset"_L1, 0},
                               {"limit"_L1, historyWindow},
                               {"only_local"_L1, false},
                               {"@extra"_L1, TdObject{{"purpose"_L1, u"older_history"_s}, {"chat_id"_L1, *chat}}}});
}

void TelegramSession::markMessagesRead(const QList<Message> &messages, const QString &chatID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    if (!chat)
        return;
    QJsonArray identifiers;
    std::optional<qint64> newest;
    for (qsizetype i = std::max<qsizetype>(0, messages.size() - maximumViewedMessages); i < messages.size(); ++i) {
        if (const auto id = parseInt64(messages.at(i).id)) {
            identifiers.append(*id);
            newest = *id;
        }
    }
    if (!newest)
        return;
    if (!m_messages.markViewed(chatID, *newest))
        return;
    ChatListStore::Record &record = m_chatList->record(*chat);
    record.lastReadInbox = std::max(*newest, record.lastReadInbox);
    updateChat(chatID, [](Chat &c) { c.unreadCount = 0; });
    publishMessages(chatID);
    send(u"viewMessages"_s, {{"chat_id"_L1, *chat},
                             {"message_ids"_L1, identifiers},
                             {"source"_L1, QJsonValue::Null},
                             {"force_read"_L1, true}});
}

void TelegramSession::storeNewMessage(const TdObject &message)
{
    const std::optional<qint64> chat = int64From(message.value("chat_id"_L1));
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    if (m_chatList->isRemoved(chatID))
        return;
    QList<StoredMessage> &stored = m_messages.storedOrAdded(chatID);
    StoredMessage storing(message);
    const std::optional<qint64> id = storing.id();
    const auto same =
        !id ? stored.end()
            : std::find_if(stored.begin(), stored.end(), [&](const StoredMessage &m) { return m.id() == id; });
    if (same != stored.end())
        *same = std::move(storing);
    else
        stored.append(std::move(storing));
    publishMessages(chatID);
}

void TelegramSession::removeMessage(qint64 messageID, std::optional<qint64> chat)
{
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    if (QList<StoredMessage> *stored = m_messages.stored(chatID))
        stored->removeIf([messageID](const StoredMessage &m) { return m.id() == messageID; });
    publishMessages(chatID);
}

void TelegramSession::updateMessageField(const TdObject &update, const QString &field, const QJsonValue &value)
{
    const std::optional<qint64> chat = int64From(update.value("chat_id"_L1));
    const std::optional<qint64> messageID = int64From(update.value("message_id"_L1));
    if (!chat || !messageID)
        return;
    const QString chatID = QString::number(*chat);
    QList<StoredMessage> *stored = m_messages.stored(chatID);
    if (!stored)
        return;
    for (StoredMessage &message : *stored) {
        if (message.id() == messageID) {
            message.setField(field, value);
            publishMessages(chatID);
            return;
        }
    }
}

void TelegramSession::handleNewMessage(const TdObject &message)
{
    if (const auto chat = int64From(message.value("chat_id"_L1))) {
        const QString chatID = QString::number(*chat);
        // A new message brings a deleted chat back.
        m_chatList->setRemoved(chatID, false);
        m_chatList->markToSort(chatID);
        if (!isListed(chatID))
            requestChat(*chat);
    }
    storeNewMessage(message);
    notifyIfNeeded(message);
}

void TelegramSession::handleReadInbox(const TdObject &update)
{
    const std::optional<qint64> chat = int64From(update.value("chat_id"_L1));
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    if (const auto lastRead = int64From(update.value("last_read_inbox_message_id"_L1)))
        m_chatList->record(*chat).lastReadInbox = *lastRead;
    const qint64 unread = integerFrom(update.value("unread_count"_L1)).value_or(0);
    updateChat(chatID, [unread](Chat &c) { c.unreadCount = unread; });
    publishMessages(chatID);
}

void TelegramSession::handleReadOutbox(const TdObject &update)
{
    const std::optional<qint64> chat = int64From(update.value("chat_id"_L1));
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    if (const auto lastRead = int64From(update.value("last_read_outbox_message_id"_L1)))
        m_messages.setLastReadOutbox(chatID, *lastRead);
    publishMessages(chatID);
}
