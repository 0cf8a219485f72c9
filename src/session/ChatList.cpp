// The chat list: loading TDLib's two lists, building chats from TDLib's chat
// objects and keeping them in TDLib's order.

#include "session/ContentTexts.h"
#include "session/DateTexts.h"
#include "session/Initials.h"
#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

namespace {

const QString mainList = u"chatListMain"_s;
const QString archiveList = u"chatListArchive"_s;

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
    m_chatTimestamps.insert(id, date.value_or(0));
    chat.unreadCount = integerFrom(object.value("unread_count"_L1)).value_or(0);
    chat.isMuted = isMuted(object.value("notification_settings"_L1));
    if (const auto lastRead = int64From(object.value("last_read_inbox_message_id"_L1)))
        m_lastReadInbox.insert(id, *lastRead);
    else if (!m_lastReadInbox.contains(id))
        m_lastReadInbox.insert(id, 0);

    // Provisional: the positions below decide these again.
    const QJsonArray positions = object.value("positions"_L1).toArray();
    for (const QJsonValue &position : positions) {
        const TdObject p = position.toObject();
        if (typeOf(p.value("list"_L1)) == archiveList && p.value("order"_L1).isDouble() &&
            integerFrom(p.value("order"_L1)).value_or(0) > 0)
            chat.isArchived = true;
    }
    const QString pinnedList = chat.isArchived ? archiveList : mainList;
    for (const QJsonValue &position : positions) {
        if (typeOf(position.toObject().value("list"_L1)) == pinnedList) {
            chat.isPinned = position.toObject().value("is_pinned"_L1).toBool();
            break;
        }
    }

    chat.isMarkedUnread = object.value("is_marked_as_unread"_L1).toBool();
    chat.draftText = draftText(object.value("draft_message"_L1));
    chat.avatarPath = prepareChatAvatar(object.value("photo"_L1), id);
    if (!chat.avatarPath) {
        if (const auto known = m_knownChats.constFind(id); known != m_knownChats.cend())
            chat.avatarPath = known->avatarPath;
    }
    const TdObject type = object.value("type"_L1).toObject();
    if (typeOf(type) == "chatTypePrivate"_L1) {
        if (const auto userID = int64From(type.value("user_id"_L1))) {
            if (const auto previous = m_privateChatUsers.constFind(id); previous != m_privateChatUsers.cend())
                m_privateChatsByUser.remove(*previous, id);
            m_privateChatUsers.insert(id, *userID);
            m_privateChatsByUser.insert(*userID, id);
        }
    }
    const QString baseSubtitle = chatSubtitle(type);
    m_baseChatSubtitles.insert(id, baseSubtitle);
    chat.subtitle = presenceSubtitle(id, baseSubtitle);
    chat.avatarText = initials(chat.title);

    if (chat.isMuted)
        m_mutedChatIDs.insert(id);
    else
        m_mutedChatIDs.remove(id);
    m_knownChats.insert(id, std::move(chat));
    // Placing the chat queues it for sorting.
    updatePositions(id, object.contains("positions"_L1) ? QJsonValue(positions) : QJsonValue(QJsonArray()), true);
    sortChats();
}

void TelegramSession::updateChatLastMessage(const QString &chatID, const QJsonValue &message,
                                            const QJsonValue &positions)
{
    const std::optional<qint64> date =
        message.isObject() ? integerFrom(message.toObject().value("date"_L1)) : std::nullopt;
    m_chatTimestamps.insert(chatID, date.value_or(0));
    const QString preview = previewText(message.isObject() ? std::optional(message.toObject()) : std::nullopt);
    const QString timestamp = timestampText(date, localToday());
    updateChat(chatID, [&](Chat &chat) {
        chat.preview = preview;
        chat.timestamp = timestamp;
    });
    updatePositions(chatID, positions, true);
    if (!m_knownChats.contains(chatID) && hasListPosition(chatID))
        requestChat(chatID.toLongLong());
    sortChats();
}

void TelegramSession::updatePositions(const QString &chatID, const QJsonValue &positions, bool replacing)
{
    if (!positions.isArray())
        return;
    ChatPositions stored = replacing ? ChatPositions() : m_chatPositions.value(chatID);
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
    m_chatPositions.insert(chatID, stored);
    m_chatsToSort.append(chatID);
    updateChat(chatID, [&](Chat &chat) {
        chat.isArchived = archived;
        chat.isPinned = pinned;
    });
}

bool TelegramSession::hasListPosition(const QString &chatID) const
{
    const auto positions = m_chatPositions.constFind(chatID);
    return positions != m_chatPositions.cend() && !positions->isEmpty();
}

void TelegramSession::sortChats()
{
    // Only the chats touched since the last sort can have moved.
    for (const QString &chatID : std::as_const(m_chatsToSort)) {
        const auto positions = m_chatPositions.constFind(chatID);
        const bool placed = positions != m_chatPositions.cend() && !positions->isEmpty();
        const bool visible = m_knownChats.contains(chatID) && !m_removedChatIDs.contains(chatID) &&
                             (placed || m_explicitlyOpenedChats.contains(chatID));
        const std::optional<ChatPosition> sortEntry = placed ? positions->sortEntry() : std::nullopt;
        const ChatSortKey key{sortEntry ? sortEntry->order : 0, parseInt64(chatID).value_or(0)};
        const auto indexed = m_chatIndexKeys.find(chatID);
        if (indexed != m_chatIndexKeys.end()) {
            if (visible && !(*indexed < key) && !(key < *indexed))
                continue; // already in place
            m_chatIndex.erase(*indexed);
            m_chatIndexKeys.erase(indexed);
        }
        if (!visible)
            continue;
        m_chatIndex.emplace(key, chatID);
        m_chatIndexKeys.insert(chatID, key);
    }
    m_chatsToSort.clear();
    m_publishedChatsValid = false;
    Q_EMIT chatsChanged();
}

const QList<Chat> &TelegramSession::chats() const
{
    if (!m_publishedChatsValid) {
        m_publishedChats.clear();
        m_publishedChats.reserve(qsizetype(m_chatIndex.size()));
        for (const auto &[key, chatID] : m_chatIndex)
            m_publishedChats.append(m_knownChats.value(chatID));
        m_publishedChatsValid = true;
    }
    return m_publishedChats;
}

void TelegramSession::applyNotificationSettings(const TdObject &settings, const QString &chatID)
{
    const bool muted = isMuted(settings);
    if (muted)
        m_mutedChatIDs.insert(chatID);
    else
        m_mutedChatIDs.remove(chatID);
    updateChat(chatID, [muted](Chat &chat) { chat.isMuted = muted; });
}
