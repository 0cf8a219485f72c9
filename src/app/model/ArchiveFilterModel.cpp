#include "ArchiveFilterModel.h"

#include "ChatListModel.h"

ArchiveFilterModel::ArchiveFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    // Rows follow the archive flag as chats move in and out of the archive.
    setDynamicSortFilter(true);
    m_countTimer.setSingleShot(true);
    m_countTimer.setInterval(0);
    connect(&m_countTimer, &QTimer::timeout, this, &ArchiveFilterModel::countArchived);
    for (const auto signal : {&ArchiveFilterModel::showsArchivedChanged, &ArchiveFilterModel::searchingChanged})
        connect(this, signal, this, &ArchiveFilterModel::invalidateRowsFilter);
}

void ArchiveFilterModel::setSourceModel(QAbstractItemModel *source)
{
    if (sourceModel())
        disconnect(sourceModel(), nullptr, this, nullptr);
    QSortFilterProxyModel::setSourceModel(source);
    if (source) {
        const auto scheduleCount = [this] { m_countTimer.start(); };
        for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
            connect(source, signal, this, scheduleCount);
        connect(source, &QAbstractItemModel::dataChanged, this, scheduleCount);
        connect(source, &QAbstractItemModel::modelReset, this, scheduleCount);
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

void ArchiveFilterModel::countArchived()
{
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
