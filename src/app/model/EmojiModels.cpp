#include "EmojiModels.h"

#include "session/UserDefaults.h"

using namespace Qt::StringLiterals;

EmojiListModel::EmojiListModel(QObject *parent)
    : RowListModel(parent)
{
    rebuild();
}

void EmojiListModel::rebuild()
{
    const QList<EmojiEntry> &catalog = EmojiCatalog::all();
    QHash<QString, const EmojiEntry *> byEmoji;
    for (const EmojiEntry &entry : catalog)
        byEmoji.insert(entry.emoji, &entry);
    QList<EmojiEntry> rows;
    const QStringList recent = UserDefaults::value(QString::fromLatin1(recentKey)).toStringList();
    for (const QString &emoji : recent) {
        // Recent emoji keep the names of the catalog; one it no longer has is dropped.
        if (const EmojiEntry *known = byEmoji.value(emoji)) {
            EmojiEntry entry = *known;
            entry.group = EmojiGroup::Recent;
            rows.append(entry);
        }
    }
    rows.append(catalog);
    updateRows(
        m_rows, rows, [](const EmojiEntry &entry) { return QString::number(entry.group) + entry.emoji; },
        [](const EmojiEntry &a, const EmojiEntry &b) { return a == b; });
}

void EmojiListModel::remember(const QString &emoji)
{
    QStringList recent = UserDefaults::value(QString::fromLatin1(recentKey)).toStringList();
    recent.removeAll(emoji);
    recent.prepend(emoji);
    UserDefaults::setValue(QString::fromLatin1(recentKey), recent.mid(0, maximumRecent));
    rebuild();
}

int EmojiListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant EmojiListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const EmojiEntry &entry = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case EmojiRole:
        return entry.emoji;
    case NameRole:
        return entry.name;
    case CharacterNameRole:
        return entry.characterName;
    case GroupRole:
        return int(entry.group);
    default:
        return {};
    }
}

QHash<int, QByteArray> EmojiListModel::roleNames() const
{
    return {{EmojiRole, "emoji"}, {NameRole, "name"}, {CharacterNameRole, "characterName"}, {GroupRole, "group"}};
}

bool EmojiSearchModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    if (searchText().trimmed().isEmpty())
        return true;
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    if (index.data(EmojiListModel::GroupRole).toInt() == EmojiGroup::Recent)
        return false;
    const EmojiEntry entry{index.data(EmojiListModel::EmojiRole).toString(),
                           index.data(EmojiListModel::NameRole).toString(),
                           index.data(EmojiListModel::CharacterNameRole).toString(), EmojiGroup::Recent};
    return EmojiCatalog::matches(entry, searchText());
}

int EmojiSearchModel::firstRowOf(int group) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (index(row, 0).data(EmojiListModel::GroupRole).toInt() == group)
            return row;
    }
    return -1;
}
