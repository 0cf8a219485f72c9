#include "SearchFilterModel.h"

#include "ChatListModel.h"
#include "ChatViewModel.h"

SearchFilterModel::SearchFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setFilterRole(ChatListModel::TitleRole);
    connect(this, &SearchFilterModel::searchTextChanged, this, &SearchFilterModel::invalidateRowsFilter);
}

bool SearchFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QString text = sourceModel()->index(sourceRow, 0, sourceParent).data(filterRole()).toString();
    return localizedCaseInsensitiveContains(text, m_searchText);
}
