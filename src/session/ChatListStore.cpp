#include "session/ChatListStore.h"

#include "tdlib/TdJson.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
// Past this many changes since the list was last read, sorting the whole index
// again is cheaper than moving entries one by one.
constexpr qsizetype maximumIndexChanges = 64;
} // namespace

const QString ChatListStore::mainList = u"chatListMain"_s;
const QString ChatListStore::archiveList = u"chatListArchive"_s;

ChatListStore::ChatListStore(QObject *parent)
    : QObject(parent)
{}

ChatListStore::Record *ChatListStore::find(const QString &chatID)
{
    const std::optional<qint64> id = parseInt64(chatID);
    const auto record = id ? m_records.find(*id) : m_records.end();
    return record != m_records.end() ? &record->second : nullptr;
}

const ChatListStore::Record *ChatListStore::find(const QString &chatID) const
{
    const std::optional<qint64> id = parseInt64(chatID);
    return id ? find(*id) : nullptr;
}

const ChatListStore::Record *ChatListStore::find(qint64 chatID) const
{
    const auto record = m_records.find(chatID);
    return record != m_records.end() ? &record->second : nullptr;
}

ChatListStore::Record *ChatListStore::record(const QString &chatID)
{
    const std::optional<qint64> id = parseInt64(chatID);
    return id ? &m_records[*id] : nullptr;
}

ChatListStore::Record &ChatListStore::record(qint64 chatID)
{
    return m_records[chatID];
}

void ChatListStore::setPrivateChatUser(Record &record, const QString &chatID, qint64 userID)
{
    if (record.privateChatUser)
        m_privateChatsByUser.remove(*record.privateChatUser, chatID);
    record.privateChatUser = userID;
    m_privateChatsByUser.insert(userID, chatID);
}

QStringList ChatListStore::privateChatsWith(qint64 userID) const
{
    return m_privateChatsByUser.values(userID);
}

bool ChatListStore::beginLoading(const QString &listType)
{
    if (m_loadingLists.contains(listType))
        return false;
    m_loadingLists.insert(listType);
    return true;
}

void ChatListStore::endLoading(const QString &listType)
{
    m_loadingLists.remove(listType);
}

void ChatListStore::setRemoved(const QString &chatID, bool removed)
{
    if (removed)
        m_removed.insert(chatID);
    else
        m_removed.remove(chatID);
}

void ChatListStore::openExplicitly(const QString &chatID)
{
    m_removed.remove(chatID);
    m_explicitlyOpened.insert(chatID);
}

void ChatListStore::forget(const QString &chatID)
{
    m_removed.insert(chatID);
    if (Record *found = find(chatID)) {
        found->chat.reset();
        found->positions = {};
    }
    m_explicitlyOpened.remove(chatID);
    m_toSort.append(chatID);
}

void ChatListStore::place(const QString &chatID, const QJsonValue &positions, bool replacing)
{
    if (!positions.isArray())
        return;
    Record *placed = record(chatID);
    if (!placed)
        return;
    Positions stored = replacing ? Positions() : placed->positions;
    for (const QJsonValue &value : positions.toArray()) {
        const TdObject position = value.toObject();
        const QString listType = typeOf(position.value("list"_L1));
        std::optional<Position> *slot = listType == mainList      ? &stored.main
                                        : listType == archiveList ? &stored.archive
                                                                  : nullptr;
        if (!slot)
            continue; // folders and other lists do not place a chat
        const std::optional<qint64> order = int64From(position.value("order"_L1));
        if (!order || *order < 1) {
            slot->reset();
            m_explicitlyOpened.remove(chatID);
        } else {
            *slot = Position{*order, position.value("is_pinned"_L1).toBool()};
        }
    }
    if (!stored.isEmpty())
        m_explicitlyOpened.remove(chatID);
    const std::optional<Position> &sortEntry = stored.sortEntry();
    const bool pinned = sortEntry && sortEntry->isPinned;
    const bool archived = stored.archive.has_value();
    placed->positions = stored;
    m_toSort.append(chatID);
    if (placed->chat) {
        placed->chat->isArchived = archived;
        placed->chat->isPinned = pinned;
        if (placed->listKey)
            m_publishedValid = false; // sort(), which always follows, announces the change
    }
}

void ChatListStore::sort()
{
    // Only the chats touched since the last sort can have moved.
    for (const QString &chatID : std::as_const(m_toSort)) {
        Record *touched = find(chatID);
        if (!touched)
            continue; // never described nor placed, so never listed
        const bool placed = !touched->positions.isEmpty();
        const bool visible =
            touched->chat && !m_removed.contains(chatID) && (placed || m_explicitlyOpened.contains(chatID));
        const std::optional<Position> sortEntry = placed ? touched->positions.sortEntry() : std::nullopt;
        const SortKey key{sortEntry ? sortEntry->order : 0, chatID.toLongLong()};
        const std::optional<SortKey> from = touched->listKey;
        const std::optional<SortKey> to = visible ? std::optional(key) : std::nullopt;
        if (from.has_value() == to.has_value() && (!from || (!(*from < *to) && !(*to < *from))))
            continue; // already in place
        touched->listKey = to;
        if (m_indexNeedsRebuild)
            continue;
        if (m_indexChanges.size() < maximumIndexChanges)
            m_indexChanges.append({from, to});
        else
            m_indexNeedsRebuild = true;
    }
    m_toSort.clear();
    m_publishedValid = false;
    Q_EMIT changed();
}

void ChatListStore::changedChat(const Record &record)
{
    if (record.listKey) {
        m_publishedValid = false;
        Q_EMIT changed();
    }
}

void ChatListStore::republish()
{
    m_publishedValid = false;
    Q_EMIT changed();
}

const QList<Chat> &ChatListStore::chats() const
{
    if (!m_publishedValid) {
        bringIndexUpToDate();
        m_published.clear();
        m_published.reserve(qsizetype(m_index.size()));
        for (const SortKey &key : m_index) {
            // A chat being forgotten may still be indexed until the next sort.
            if (const Record *listed = find(key.id); listed && listed->chat)
                m_published.append(*listed->chat);
        }
        m_publishedValid = true;
    }
    return m_published;
}

void ChatListStore::bringIndexUpToDate() const
{
    if (std::exchange(m_indexNeedsRebuild, false)) {
        m_indexChanges.clear();
        m_index.clear();
        for (const auto &[id, listed] : m_records) {
            if (listed.listKey)
                m_index.push_back(*listed.listKey);
        }
        std::sort(m_index.begin(), m_index.end());
        return;
    }
    // In the order they happened, so each change starts where the one before ended.
    for (const IndexChange &change : std::as_const(m_indexChanges)) {
        if (change.from) {
            const auto at = std::lower_bound(m_index.begin(), m_index.end(), *change.from);
            if (at != m_index.end() && !(*change.from < *at))
                m_index.erase(at);
        }
        if (change.to)
            m_index.insert(std::lower_bound(m_index.begin(), m_index.end(), *change.to), *change.to);
    }
    m_indexChanges.clear();
}

void ChatListStore::reset()
{
    // The read markers, base subtitles and muted chats are kept on purpose: they
    // describe Telegram, not the account that left.
    for (auto &[id, kept] : m_records) {
        kept.chat.reset();
        kept.listKey.reset();
        kept.positions = {};
        kept.privateChatUser.reset();
    }
    m_index.clear();
    m_indexChanges.clear();
    m_indexNeedsRebuild = false;
    m_toSort.clear();
    m_removed.clear();
    m_privateChatsByUser.clear();
    m_explicitlyOpened.clear();
    m_loadingLists.clear();
    m_publishedValid = false;
    Q_EMIT changed();
}
