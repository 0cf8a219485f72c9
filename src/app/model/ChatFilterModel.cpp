#include "ChatFilterModel.h"

#include "ChatListModel.h"
#include "ChatViewModel.h"

ChatFilterModel::ChatFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{}

void ChatFilterModel::setSearchText(const QString &text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    invalidateRowsFilter();
    Q_EMIT searchTextChanged();
}

bool ChatFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QString title = sourceModel()->index(sourceRow, 0, sourceParent).data(ChatListModel::TitleRole).toString();
    return localizedCaseInsensitiveContains(title, m_searchText);
}
