#include "SearchFilterModel.h"

#include "ChatListModel.h"
#include "ChatViewModel.h"

SearchFilterModel::SearchFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setFilterRole(ChatListModel::TitleRole);
}

void SearchFilterModel::setSearchText(const QString &text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    invalidateRowsFilter();
    Q_EMIT searchTextChanged();
}

bool SearchFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QString text = sourceModel()->index(sourceRow, 0, sourceParent).data(filterRole()).toString();
    return localizedCaseInsensitiveContains(text, m_searchText);
}
