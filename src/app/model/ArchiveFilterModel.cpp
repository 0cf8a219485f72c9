#include "ArchiveFilterModel.h"

#include "ChatListModel.h"

ArchiveFilterModel::ArchiveFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    // Rows follow the archive flag as chats move in and out of the archive.
    setDynamicSortFilter(true);
    for (const auto signal : {&ArchiveFilterModel::showsArchivedChanged, &ArchiveFilterModel::searchingChanged})
        connect(this, signal, this, &ArchiveFilterModel::invalidateRowsFilter);
}

void ArchiveFilterModel::setSourceModel(QAbstractItemModel *source)
{
    if (sourceModel())
        disconnect(sourceModel(), nullptr, this, nullptr);
    QSortFilterProxyModel::setSourceModel(source);
    if (source) {
        for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
            connect(source, signal, this, &ArchiveFilterModel::scheduleCount);
        connect(source, &QAbstractItemModel::dataChanged, this, &ArchiveFilterModel::scheduleCount);
        connect(source, &QAbstractItemModel::modelReset, this, &ArchiveFilterModel::scheduleCount);
    }
    countArchived();
}

int ArchiveFilterModel::rowOf(const QString &chatID) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (index(row, 0).data(ChatListModel::IdRole).toString() == chatID)
            return row;
    }
    return -1;
}

QString ArchiveFilterModel::idAt(int row) const
{
    return index(row, 0).data(ChatListModel::IdRole).toString();
}

bool ArchiveFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    return m_searching ||
           sourceModel()->index(sourceRow, 0, sourceParent).data(ChatListModel::IsArchivedRole).toBool() ==
               m_showsArchived;
}

// One update of the list changes many rows: they are counted once, after it.
void ArchiveFilterModel::scheduleCount()
{
    if (m_countScheduled)
        return;
    m_countScheduled = true;
    QMetaObject::invokeMethod(this, &ArchiveFilterModel::countArchived, Qt::QueuedConnection);
}

void ArchiveFilterModel::countArchived()
{
    m_countScheduled = false;
    int count = 0;
    int unread = 0;
    if (const QAbstractItemModel *source = sourceModel()) {
        for (int row = 0; row < source->rowCount(); ++row) {
            const QModelIndex chat = source->index(row, 0);
            if (chat.data(ChatListModel::IsArchivedRole).toBool()) {
                ++count;
                unread += chat.data(ChatListModel::UnreadCountRole).toInt();
            }
        }
    }
    if (count == m_archivedCount && unread == m_archivedUnreadCount)
        return;
    m_archivedCount = count;
    m_archivedUnreadCount = unread;
    Q_EMIT archivedChanged();
}
