#include "ChoiceListModels.h"

#include "ChatViewModel.h"

#include <QSet>
#include <QUrl>

StickerListModel::StickerListModel(ChatViewModel *viewModel, QObject *parent)
    : RowListModel(parent)
    , m_viewModel(viewModel)
    , m_rows(viewModel->recentStickers())
{
    connect(viewModel, &ChatViewModel::recentStickersChanged, this, &StickerListModel::refresh);
}

void StickerListModel::refresh()
{
    if (!m_viewModel)
        return;
    updateRows(
        m_rows, m_viewModel->recentStickers(), [](const StickerChoice &sticker) { return sticker.id; },
        [](const StickerChoice &a, const StickerChoice &b) { return a == b; });
}

int StickerListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant StickerListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const StickerChoice &sticker = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case EmojiRole:
        return sticker.emoji;
    case IdRole:
        return QString::number(sticker.id);
    case FileIDRole:
        return QString::number(sticker.fileID);
    case PathRole:
        return sticker.path;
    case UrlRole:
        return sticker.path.isEmpty() ? QUrl() : QUrl::fromLocalFile(sticker.path);
    case WidthRole:
        return sticker.width;
    case HeightRole:
        return sticker.height;
    case FormatRole:
        return int(sticker.format);
    default:
        return {};
    }
}

QHash<int, QByteArray> StickerListModel::roleNames() const
{
    return {{IdRole, "stickerID"}, {FileIDRole, "fileID"}, {PathRole, "path"},     {UrlRole, "url"},
            {EmojiRole, "emoji"},  {WidthRole, "width"},   {HeightRole, "height"}, {FormatRole, "format"}};
}

ContactListModel::ContactListModel(ChatViewModel *viewModel, QObject *parent)
    : ContactListModel(viewModel, Source::Roster, parent)
{}

ContactListModel::ContactListModel(ChatViewModel *viewModel, Source source, QObject *parent)
    : RowListModel(parent)
    , m_viewModel(viewModel)
    , m_source(source)
    , m_rows(sourceRows())
{
    connect(viewModel,
            source == Source::Roster ? &ChatViewModel::contactsChanged : &ChatViewModel::contactResultsChanged, this,
            &ContactListModel::refresh);
    // Search results leave out the contacts whose name holds the listed text.
    if (source == Source::SearchResults) {
        connect(viewModel, &ChatViewModel::contactsChanged, this, &ContactListModel::refresh);
        connect(this, &ContactListModel::listedTextChanged, this, &ContactListModel::refresh);
    }
}

QList<ContactChoice> ContactListModel::sourceRows() const
{
    if (m_source == Source::Roster)
        return m_viewModel->contacts();
    QSet<qint64> listed;
    for (const ContactChoice &contact : m_viewModel->contacts()) {
        if (localizedCaseInsensitiveContains(contact.name, m_listedText))
            listed.insert(contact.id);
    }
    QList<ContactChoice> found = m_viewModel->contactResults();
    found.removeIf([&listed](const ContactChoice &contact) { return listed.contains(contact.id); });
    return found;
}

void ContactListModel::refresh()
{
    if (!m_viewModel)
        return;
    updateRows(
        m_rows, sourceRows(), [](const ContactChoice &contact) { return contact.id; },
        [](const ContactChoice &a, const ContactChoice &b) { return a == b; });
}

int ContactListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant ContactListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ContactChoice &contact = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return contact.name;
    case IdRole:
        return QString::number(contact.id);
    case UsernameRole:
        return contact.username;
    case InitialsRole:
        return contact.initials;
    case AvatarPathRole:
        return contact.avatarPath.value_or(QString());
    case IsOnlineRole:
        return contact.isOnline;
    default:
        return {};
    }
}

QHash<int, QByteArray> ContactListModel::roleNames() const
{
    return {{IdRole, "userID"},
            {NameRole, "name"},
            {UsernameRole, "username"},
            {InitialsRole, "initials"},
            {AvatarPathRole, "avatarPath"},
            {IsOnlineRole, "isOnline"}};
}
