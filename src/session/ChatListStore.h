#pragma once

#include "session/ModelTypes.h"
#include "session/StoredMessage.h"

#include <QJsonValue>
#include <QMultiHash>
#include <QObject>
#include <QSet>

#include <optional>
#include <unordered_map>
#include <vector>

// The chat list: everything kept about each chat, its places in TDLib's main list
// and archive, and the listed chats in order. Each listed chat has a sort key; the
// ordered index of those keys is brought up to date, and the list materialised,
// only when the list is read, so that a sync of thousands of chats neither
// re-sorts nor copies it per update.
class ChatListStore : public QObject
{
    Q_OBJECT

public:
    struct SortKey {
        qint64 order;
        qint64 id;
        bool operator<(const SortKey &other) const
        {
            return order != other.order ? order > other.order : id > other.id;
        }
    };
    struct Position {
        qint64 order = 0;
        bool isPinned = false;
    };
    // A chat's places in the main list and in the archive.
    struct Positions {
        std::optional<Position> main;
        std::optional<Position> archive;
        bool isEmpty() const { return !main && !archive; }
        // The archive decides the order and the pin of a chat that is in both lists.
        const std::optional<Position> &sortEntry() const { return archive ? archive : main; }
    };
    // Everything kept about one chat, in one entry: a sync of thousands of chats
    // then finds or adds one entry per update rather than one per table.
    struct Record {
        std::optional<Chat> chat; // once TDLib has described the chat
        Positions positions;
        std::optional<SortKey> listKey;           // while the chat is listed
        std::optional<qint64> privateChatUser;    // the other person in a private chat
        std::optional<QString> baseSubtitle;      // the subtitle when nobody is online or typing
        QString chatType;                         // TDLib's "@type" of the chat's type
        std::optional<StoredMessage> lastMessage; // what the preview and the time were made from
        qint64 lastReadInbox = 0;
        bool isMuted = false;
    };

    static const QString mainList;
    static const QString archiveList;

    explicit ChatListStore(QObject *parent = nullptr);

    Record *find(const QString &chatID);
    const Record *find(const QString &chatID) const;
    const Record *find(qint64 chatID) const;
    // Found or added; null for a text that is no chat ID.
    Record *record(const QString &chatID);
    Record &record(qint64 chatID);
    template<typename Visit> void forEachRecord(Visit &&visit)
    {
        for (auto &[id, record] : m_records)
            visit(record);
    }

    // The private chat with a user: its record and the chats each user has.
    void setPrivateChatUser(Record &record, const QString &chatID, qint64 userID);
    QStringList privateChatsWith(qint64 userID) const;

    // Whether a list's load may start: false while it is on its way.
    bool beginLoading(const QString &listType);
    void endLoading(const QString &listType);

    // A chat the user deleted stays out of the list until it is opened again.
    bool isRemoved(const QString &chatID) const { return m_removed.contains(chatID); }
    void setRemoved(const QString &chatID, bool removed);
    // A chat opened directly is listed before TDLib gives it a position.
    void openExplicitly(const QString &chatID);
    // Forgets the chat's place and description and leaves it out of the list;
    // what describes Telegram (read markers, the other person, muting) stays.
    void forget(const QString &chatID);

    // TDLib's positions of a chat (an update's array); `replacing` forgets the ones
    // not given. The chat waits for the next sort().
    void place(const QString &chatID, const QJsonValue &positions, bool replacing);
    void markToSort(const QString &chatID) { m_toSort.append(chatID); }
    // Moves the chats touched since the last sort to their places, and announces it.
    void sort();
    // A listed chat changed: the list is announced again.
    void changedChat(const Record &record);
    // Every chat's texts changed.
    void republish();
    const QList<Chat> &chats() const;

    // Forgets the account's list; what describes Telegram stays.
    void reset();

Q_SIGNALS:
    void changed();

private:
    struct IndexChange {
        std::optional<SortKey> from;
        std::optional<SortKey> to;
    };
    void bringIndexUpToDate() const;

    // Keyed by the number: hashing and comparing chat ID texts cost more than the
    // rest of a record's lookup. A record stays where it is while others are added,
    // so a sync never moves the records it has, and a reference to one stays valid.
    std::unordered_map<qint64, Record> m_records;
    QMultiHash<qint64, QString> m_privateChatsByUser;
    QSet<QString> m_explicitlyOpened;
    QSet<QString> m_removed;
    QSet<QString> m_loadingLists;
    mutable std::vector<SortKey> m_index; // sorted once the changes below are applied
    mutable QList<IndexChange> m_indexChanges;
    mutable bool m_indexNeedsRebuild = false; // after more changes than are worth applying one by one
    QList<QString> m_toSort;                  // may repeat; sorting is idempotent
    mutable QList<Chat> m_published;
    mutable bool m_publishedValid = true;
};
