#pragma once

#include <QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

// The rows of a list whose filterRole (by default a chat's title) contains the
// search text, ignoring case as the sidebar's search does; all of them while it is
// empty. The "Forward to" chooser lists chats through it, the new-chat view its
// contacts by name. Subclasses may decide what matches (the emoji search).
class SearchFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString searchText MEMBER m_searchText NOTIFY searchTextChanged)

public:
    explicit SearchFilterModel(QObject *parent = nullptr);

Q_SIGNALS:
    void searchTextChanged();

protected:
    const QString &searchText() const { return m_searchText; }
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    QString m_searchText;
};
