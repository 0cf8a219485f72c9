#pragma once

#include "EmojiCatalog.h"
#include "RowListModel.h"
#include "SearchFilterModel.h"

#include <QtQml/qqmlregistration.h>

// The emoji picker's emoji: the user's recently used ones first (kept in the
// settings, newest first, at most 24), then every emoji of the catalog by group.
// Roles: emoji, name, characterName (ICU's, "" for sequences), group (EmojiGroup).
class EmojiListModel : public RowListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    enum Role { EmojiRole = Qt::UserRole + 1, NameRole, CharacterNameRole, GroupRole };
    Q_ENUM(Role)

    static constexpr int maximumRecent = 24;
    static constexpr auto recentKey = "recentEmoji";

    explicit EmojiListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    // Puts the emoji first among the recently used ones.
    Q_INVOKABLE void remember(const QString &emoji);

private:
    void rebuild();

    QList<EmojiEntry> m_rows;
};

// The emoji the search text finds (every word in an emoji's name), or all of them
// while it is empty; the recent ones are left out of a search, which lists each
// emoji once.
class EmojiSearchModel : public SearchFilterModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    using SearchFilterModel::SearchFilterModel;

    // The first row of a group, or -1 when none of it is shown.
    Q_INVOKABLE int firstRowOf(int group) const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;
};
