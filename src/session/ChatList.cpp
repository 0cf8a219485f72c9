// The chat list: loading TDLib's two lists, building chats from TDLib's chat
// objects and keeping them in TDLib's order.

#include "session/ContentTexts.h"
#include "session/DateTexts.h"
#include "session/Initials.h"
#include "session/TelegramSession.h"
#include "session/UserStore.h"

using namespace Qt::StringLiterals;

namespace {

const QString mainList = u"chatListMain"_s;
const QString archiveList = u"chatListArchive"_s;

// Past this many changes since the list was last read, sorting the whole index
// again is cheaper than moving entries one by one.
constexpr qsizetype maximumChatIndexChanges = 64;

bool isMuted(const QJsonValue &notificationSettings)
{
    return integerFrom(notificationSettings.toObject().value("mute_for"_L1)).value_or(0) >= 1;
}

} // namespace

void TelegramSession::requestChats()
{
    for (const QString &listType : {mainList, archiveList}) {
        if (m_loadingChatLists.contains(listType))
            continue;
        m_loadingChatLists.insert(listType);
        send(u"getChats"_s, {{"chat_list"_L1, TdObject{{"@type"_L1, listType}}}, {"limit"_L1, 1000}});
        loadChatList(listType);
    }
}

void TelegramSession::loadChatList(const QString &listType)
{
    send(u"loadChats"_s, {{"chat_list"_L1, TdObject{{"@type"_L1, listType}}},
                          {"limit"_L1, 50},
                          {"@extra"_L1, TdObject{{"purpose"_L1, u"load_chat_list"_s}, {"list"_L1, listType}}}});
}

void TelegramSession::requestChat(qint64 chatID)
{
    send(u"getChat"_s, {{"chat_id"_L1, chatID}});
}

void TelegramSession::addOrUpdateChat(const TdObject &object)
{
    const std::optional<qint64> numericID = int64From(object.value("id"_L1));
    const QJsonValue title = object.value("title"_L1);
    if (!numericID || !title.isString())
        return;
    const QString id = QString::number(*numericID);
    if (m_removedChatIDs.contains(id))
        return;

    Chat chat;
    chat.id = id;
    chat.title = title.toString();
    const QJsonValue lastMessage = object.value("last_message"_L1);
    const std::optional<qint64> date =
        lastMessage.isObject() ? integerFrom(lastMessage.toObject().value("date"_L1)) : std::nullopt;
    chat.preview = previewText(lastMessage.isObject() ? std::optional(lastMessage.toObject()) : std::nullopt);
    chat.timestamp = timestampText(date, localToday());
    chat.unreadCount = integerFrom(object.value("unread_count"_L1)).value_or(0);
    chat.isMuted = isMuted(object.value("notification_settings"_L1));

    chat.isMarkedUnread = object.value("is_marked_as_unread"_L1).toBool();
    chat.draftText = draftText(object.value("draft_message"_L1));
    chat.avatarPath = prepareChatAvatar(object.value("photo"_L1), id);

    ChatRecord &record = m_chatRecords[*numericID];
    if (!chat.avatarPath && record.chat)
        chat.avatarPath = record.chat->avatarPath;
    if (const auto lastRead = int64From(object.value("last_read_inbox_message_id"_L1)))
        record.lastReadInbox = *lastRead;
    const TdObject type = object.value("type"_L1).toObject();
    chat.isSecret = typeOf(type) == "chatTypeSecret"_L1;
    if (typeOf(type) == "chatTypePrivate"_L1) {
        if (const auto userID = int64From(type.value("user_id"_L1))) {
            if (record.privateChatUser)
                m_privateChatsByUser.remove(*record.privateChatUser, id);
            record.privateChatUser = *userID;
            m_privateChatsByUser.insert(*userID, id);
        }
    }
    record.chatType = typeOf(type);
    record.lastMessage = lastMessage.isObject() ? std::optional(StoredMessage(lastMessage.toObject())) : std::nullopt;
    QString baseSubtitle = chatSubtitle(type);
    chat.subtitle = m_users->presenceSubtitle(record.privateChatUser, baseSubtitle);
    record.baseSubtitle = std::move(baseSubtitle);
    chat.avatarText = initials(chat.title);
    record.isMuted = chat.isMuted;
    record.chat = std::move(chat);
    // Placing the chat decides whether it is archived and pinned, and queues it for
    // sorting; a chat without positions is in no list.
    updatePositions(id, object.value("positions"_L1).toArray(), true);
    sortChats();
}

void TelegramSession::updateChatLastMessage(const QString &chatID, const QJsonValue &message,
                                            const QJsonValue &positions)
{
    const std::optional<qint64> date =
        message.isObject() ? integerFrom(message.toObject().value("date"_L1)) : std::nullopt;
    if (ChatRecord *record = findChatRecord(chatID); record && record->chat)
        record->lastMessage = message.isObject() ? std::optional(StoredMessage(message.toObject())) : std::nullopt;
    // The texts are made only for a chat that is known and can show them.
    updateChat(chatID, [&](Chat &chat) {
        chat.preview = previewText(message.isObject() ? std::optional(message.toObject()) : std::nullopt);
        chat.timestamp = timestampText(date, localToday());
    });
    updatePositions(chatID, positions, true);
    if (!knownChat(chatID) && hasListPosition(chatID))
        requestChat(chatID.toLongLong());
    sortChats();
}

void TelegramSession::retranslate()
{
    const QDate today = localToday();
    bool changed = false;
    for (auto &[numericID, record] : m_chatRecords) {
        if (!record.chat)
            continue;
        Chat &chat = *record.chat;
        const std::optional<TdObject> last =
            record.lastMessage ? std::optional(record.lastMessage->object()) : std::nullopt;
        chat.preview = previewText(last);
        chat.timestamp = timestampText(last ? integerFrom(last->value("date"_L1)) : std::optional<qint64>(), today);
        const QString baseSubtitle = chatSubtitle(TdObject{{"@type"_L1, record.chatType}});
        // A subtitle that tells who is typing stays until the next chat action.
        if (!chat.isTyping)
            chat.subtitle = m_users->presenceSubtitle(record.privateChatUser, baseSubtitle);
        record.baseSubtitle = baseSubtitle;
        changed = changed || record.listKey;
    }
    if (changed) {
        m_publishedChatsValid = false;
        Q_EMIT chatsChanged();
    }
    for (const QString &chatID : m_rawMessagesByChat.keys())
        publishMessages(chatID);
}

void TelegramSession::updatePositions(const QString &chatID, const QJsonValue &positions, bool replacing)
{
    if (!positions.isArray())
        return;
    ChatRecord *record = chatRecord(chatID);
    if (!record)
        return;
    ChatPositions stored = replacing ? ChatPositions() : record->positions;
    for (const QJsonValue &value : positions.toArray()) {
        const TdObject position = value.toObject();
        const QString listType = typeOf(position.value("list"_L1));
        std::optional<ChatPosition> *slot = listType == mainList      ? &stored.main
                                            : listType == archiveList ? &stored.archive
                                                                      : nullptr;
        if (!slot)
            continue; // folders and other lists do not place a chat
        const std::optional<qint64> order = int64From(position.value("order"_L1));
        if (!order || *order < 1) {
            slot->reset();
            m_explicitlyOpenedChats.remove(chatID);
        } else {
            *slot = ChatPosition{*order, position.value("is_pinned"_L1).toBool()};
        }
    }
    if (!stored.isEmpty())
        m_explicitlyOpenedChats.remove(chatID);
    const std::optional<ChatPosition> &sortEntry = stored.sortEntry();
    const bool pinned = sortEntry && sortEntry->isPinned;
    const bool archived = stored.archive.has_value();
    record->positions = stored;
    m_chatsToSort.append(chatID);
    if (record->chat) {
        record->chat->isArchived = archived;
        record->chat->isPinned = pinned;
        if (record->listKey)
            m_publishedChatsValid = false; // sortChats, which always follows, announces the change
    }
}

TelegramSession::ChatRecord *TelegramSession::findChatRecord(const QString &chatID)
{
    const std::optional<qint64> id = parseInt64(chatID);
    const auto record = id ? m_chatRecords.find(*id) : m_chatRecords.end();
    return record != m_chatRecords.end() ? &record->second : nullptr;
}

const TelegramSession::ChatRecord *TelegramSession::findChatRecord(const QString &chatID) const
{
    const std::optional<qint64> id = parseInt64(chatID);
    return id ? findChatRecord(*id) : nullptr;
}

const TelegramSession::ChatRecord *TelegramSession::findChatRecord(qint64 chatID) const
{
    const auto record = m_chatRecords.find(chatID);
    return record != m_chatRecords.end() ? &record->second : nullptr;
}

TelegramSession::ChatRecord *TelegramSession::chatRecord(const QString &chatID)
{
    const std::optional<qint64> id = parseInt64(chatID);
    return id ? &m_chatRecords[*id] : nullptr;
}

bool TelegramSession::hasListPosition(const QString &chatID) const
{
    const ChatRecord *record = findChatRecord(chatID);
    return record && !record->positions.isEmpty();
}

const Chat *TelegramSession::knownChat(const QString &chatID) const
{
    const ChatRecord *record = findChatRecord(chatID);
    return record && record->chat ? &*record->chat : nullptr;
}

bool TelegramSession::isListed(const QString &chatID) const
{
    const ChatRecord *record = findChatRecord(chatID);
    return record && record->listKey;
}

std::optional<qint64> TelegramSession::privateChatUser(const QString &chatID) const
{
    const ChatRecord *record = findChatRecord(chatID);
    return record ? record->privateChatUser : std::nullopt;
}

qint64 TelegramSession::lastReadInbox(const QString &chatID) const
{
    const ChatRecord *record = findChatRecord(chatID);
    return record ? record->lastReadInbox : 0;
}

std::optional<QString> TelegramSession::baseSubtitle(const QString &chatID) const
{
    const ChatRecord *record = findChatRecord(chatID);
    return record ? record->baseSubtitle : std::nullopt;
}

void TelegramSession::sortChats()
{
    // Only the chats touched since the last sort can have moved.
    for (const QString &chatID : std::as_const(m_chatsToSort)) {
        ChatRecord *record = findChatRecord(chatID);
        if (!record)
            continue; // never described nor placed, so never listed
        const bool placed = !record->positions.isEmpty();
        const bool visible =
            record->chat && !m_removedChatIDs.contains(chatID) && (placed || m_explicitlyOpenedChats.contains(chatID));
        const std::optional<ChatPosition> sortEntry = placed ? record->positions.sortEntry() : std::nullopt;
        const ChatSortKey key{sortEntry ? sortEntry->order : 0, chatID.toLongLong()};
        const std::optional<ChatSortKey> from = record->listKey;
        const std::optional<ChatSortKey> to = visible ? std::optional(key) : std::nullopt;
        if (from.has_value() == to.has_value() && (!from || (!(*from < *to) && !(*to < *from))))
            continue; // already in place
        record->listKey = to;
        if (m_chatIndexNeedsRebuild)
            continue;
        if (m_chatIndexChanges.size() < maximumChatIndexChanges)
            m_chatIndexChanges.append({from, to});
        else
            m_chatIndexNeedsRebuild = true;
    }
    m_chatsToSort.clear();
    m_publishedChatsValid = false;
    Q_EMIT chatsChanged();
}

const QList<Chat> &TelegramSession::chats() const
{
    if (!m_publishedChatsValid) {
        bringChatIndexUpToDate();
        m_publishedChats.clear();
        m_publishedChats.reserve(qsizetype(m_chatIndex.size()));
        for (const ChatSortKey &key : m_chatIndex) {
            // A chat being forgotten may still be indexed until the next sort.
            if (const ChatRecord *record = findChatRecord(key.id); record && record->chat)
                m_publishedChats.append(*record->chat);
        }
        m_publishedChatsValid = true;
    }
    return m_publishedChats;
}

void TelegramSession::bringChatIndexUpToDate() const
{
    if (std::exchange(m_chatIndexNeedsRebuild, false)) {
        m_chatIndexChanges.clear();
        m_chatIndex.clear();
        for (const auto &[id, record] : m_chatRecords) {
            if (record.listKey)
                m_chatIndex.push_back(*record.listKey);
        }
        std::sort(m_chatIndex.begin(), m_chatIndex.end());
        return;
    }
    // In the order they happened, so each change starts where the one before ended.
    for (const ChatIndexChange &change : std::as_const(m_chatIndexChanges)) {
        if (change.from) {
            const auto at = std::lower_bound(m_chatIndex.begin(), m_chatIndex.end(), *change.from);
            if (at != m_chatIndex.end() && !(*change.from < *at))
                m_chatIndex.erase(at);
        }
        if (change.to)
            m_chatIndex.insert(std::lower_bound(m_chatIndex.begin(), m_chatIndex.end(), *change.to), *change.to);
    }
    m_chatIndexChanges.clear();
}

void TelegramSession::applyNotificationSettings(const TdObject &settings, const QString &chatID)
{
    const bool muted = isMuted(settings);
    if (ChatRecord *record = chatRecord(chatID))
        record->isMuted = muted;
    updateChat(chatID, [muted](Chat &chat) { chat.isMuted = muted; });
}
