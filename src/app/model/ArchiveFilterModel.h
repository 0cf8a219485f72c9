#pragma once

#include <QSortFilterProxyModel>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

// The sidebar's chats on one side of the archive: the main list without the
// archived chats, or the archived chats alone. It also counts the archived chats
// and their unread messages, for the "Archived chats" row at the top of the main
// list. The source is a ChatListModel.
class ArchiveFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool showsArchived MEMBER m_showsArchived NOTIFY showsArchivedChanged)
    // While the user searches, every chat that matches is listed, archived or not.
    Q_PROPERTY(bool searching MEMBER m_searching NOTIFY searchingChanged)
    Q_PROPERTY(int archivedCount READ archivedCount NOTIFY archivedChanged)
    Q_PROPERTY(int archivedUnreadCount READ archivedUnreadCount NOTIFY archivedChanged)

public:
    explicit ArchiveFilterModel(QObject *parent = nullptr);

    void setSourceModel(QAbstractItemModel *source) override;
    int archivedCount() const { return m_archivedCount; }
    int archivedUnreadCount() const { return m_archivedUnreadCount; }

    // Rows and chat identifiers of this list, for moving the selection by keyboard.
    Q_INVOKABLE int rowOf(const QString &chatID) const;
    Q_INVOKABLE QString idAt(int row) const;

Q_SIGNALS:
    void showsArchivedChanged();
    void searchingChanged();
    void archivedChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    void countArchived();

    bool m_showsArchived = false;
    bool m_searching = false;
    int m_archivedCount = 0;
    int m_archivedUnreadCount = 0;
    // One update of the list changes many rows: they are counted once, after it.
    QTimer m_countTimer;
};
