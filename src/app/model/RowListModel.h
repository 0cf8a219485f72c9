#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QSet>

// A list model that follows a list of records kept elsewhere by changing only the
// rows that changed: removals, insertions, moves and data changes, so that views
// keep their scroll position and selection. Records are matched by a key (their
// id); a change too large to describe row by row becomes a reset. `count` is the
// number of rows, for views that show something else when the list is empty.
class RowListModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit RowListModel(QObject *parent = nullptr)
        : QAbstractListModel(parent)
    {
        for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
            connect(this, signal, this, &RowListModel::countChanged);
        connect(this, &QAbstractItemModel::modelReset, this, &RowListModel::countChanged);
    }

    int count() const { return rowCount(); }

    // More moves than this in one update reset the model instead.
    static constexpr int maximumMoves = 200;

Q_SIGNALS:
    void countChanged();

protected:
    // Makes rows equal to incoming. keyOf(record) gives the key; same(a, b) tells
    // whether two records with one key show the same.
    template<typename T, typename KeyOf, typename Same>
    void updateRows(QList<T> &rows, const QList<T> &incoming, KeyOf keyOf, Same same)
    {
        using Key = decltype(keyOf(incoming.first()));
        QSet<Key> incomingKeys;
        incomingKeys.reserve(incoming.size());
        for (const T &record : incoming)
            incomingKeys.insert(keyOf(record));
        if (incomingKeys.size() != incoming.size() || rows.isEmpty()) {
            // Repeated keys cannot be followed row by row; an empty model has nothing to keep.
            if (rows.isEmpty() && incoming.isEmpty())
                return;
            beginResetModel();
            rows = incoming;
            endResetModel();
            return;
        }

        // 1. Rows whose key is gone, removed in runs from the end.
        for (qsizetype end = rows.size(); end > 0;) {
            if (incomingKeys.contains(keyOf(rows.at(end - 1)))) {
                --end;
                continue;
            }
            qsizetype first = end - 1;
            while (first > 0 && !incomingKeys.contains(keyOf(rows.at(first - 1))))
                --first;
            beginRemoveRows({}, int(first), int(end - 1));
            rows.remove(first, end - first);
            endRemoveRows();
            end = first;
        }

        QSet<Key> currentKeys;
        currentKeys.reserve(rows.size());
        for (const T &record : std::as_const(rows))
            currentKeys.insert(keyOf(record));

        // 2. Walk the incoming list; rows before i already match it.
        int moves = 0;
        for (qsizetype i = 0; i < incoming.size();) {
            const Key key = keyOf(incoming.at(i));
            if (i < rows.size() && keyOf(rows.at(i)) == key) {
                if (!same(rows.at(i), incoming.at(i))) {
                    rows[i] = incoming.at(i);
                    const QModelIndex changed = index(int(i));
                    Q_EMIT dataChanged(changed, changed);
                }
                ++i;
                continue;
            }
            if (!currentKeys.contains(key)) {
                qsizetype last = i;
                while (last + 1 < incoming.size() && !currentKeys.contains(keyOf(incoming.at(last + 1))))
                    ++last;
                beginInsertRows({}, int(i), int(last));
                rows.insert(i, last - i + 1, T());
                for (qsizetype j = i; j <= last; ++j)
                    rows[j] = incoming.at(j);
                endInsertRows();
                for (qsizetype j = i; j <= last; ++j)
                    currentKeys.insert(keyOf(incoming.at(j)));
                i = last + 1;
                continue;
            }
            if (++moves > maximumMoves) {
                beginResetModel();
                rows = incoming;
                endResetModel();
                return;
            }
            if (i + 1 < rows.size() && keyOf(rows.at(i + 1)) == key) {
                // The row here went down: move it to its new place.
                moveDown(rows, i, placeOf(rows, incoming, i, keyOf));
                continue;
            }
            // The record came up from further down.
            qsizetype from = i + 1;
            while (keyOf(rows.at(from)) != key)
                ++from;
            beginMoveRows({}, int(from), int(from), {}, int(i));
            rows.move(from, i);
            endMoveRows();
        }
        // The rows now match incoming row by row: sharing its storage keeps one copy
        // of a long list instead of one per model, and drops what insertions grew.
        Q_ASSERT(rows.size() == incoming.size());
        rows = incoming;
    }

private:
    template<typename T> void moveDown(QList<T> &rows, qsizetype from, qsizetype to)
    {
        beginMoveRows({}, int(from), int(from), {}, int(to + 1));
        rows.move(from, to);
        endMoveRows();
    }

    // Where the row at `from` goes: just before the first later row that follows it
    // in the incoming list, or last.
    template<typename T, typename KeyOf>
    static qsizetype placeOf(const QList<T> &rows, const QList<T> &incoming, qsizetype from, KeyOf keyOf)
    {
        const auto key = keyOf(rows.at(from));
        qsizetype position = -1;
        for (qsizetype j = from; j < incoming.size(); ++j) {
            if (keyOf(incoming.at(j)) == key) {
                position = j;
                break;
            }
        }
        if (position < 0 || position + 1 >= incoming.size())
            return rows.size() - 1;
        QSet<decltype(keyOf(rows.at(from)))> after;
        for (qsizetype j = position + 1; j < incoming.size(); ++j)
            after.insert(keyOf(incoming.at(j)));
        for (qsizetype j = from + 1; j < rows.size(); ++j) {
            if (after.contains(keyOf(rows.at(j))))
                return j - 1;
        }
        return rows.size() - 1;
    }
};
