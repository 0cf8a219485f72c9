#include "ChatListModel.h"

#include "ChatViewModel.h"

#include "render/SmileyText.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// Whether two versions of a chat look the same in the list; messages are not shown.
bool sameRow(const Chat &a, const Chat &b)
{
    return a.title == b.title && a.subtitle == b.subtitle && a.preview == b.preview && a.timestamp == b.timestamp &&
           a.unreadCount == b.unreadCount && a.isMuted == b.isMuted && a.isArchived == b.isArchived &&
           a.isPinned == b.isPinned && a.isMarkedUnread == b.isMarkedUnread && a.isSecret == b.isSecret &&
           a.isTyping == b.isTyping && a.draftText == b.draftText && a.avatarText == b.avatarText &&
           a.avatarSymbol == b.avatarSymbol && a.avatarPath == b.avatarPath;
}

} // namespace

ChatListModel::ChatListModel(ChatViewModel *viewModel, QObject *parent)
    : ChatListModel(viewModel, Rows::Searched, parent)
{}

ChatListModel::ChatListModel(ChatViewModel *viewModel, Rows rows, QObject *parent)
    : RowListModel(parent)
    , m_viewModel(viewModel)
    , m_which(rows)
{
    connect(viewModel, &ChatViewModel::chatsChanged, this, &ChatListModel::refresh);
    connect(viewModel, &ChatViewModel::searchTextChanged, this, &ChatListModel::refresh);
    connect(viewModel, &ChatViewModel::selectedChatIDChanged, this, &ChatListModel::followSelection);
    m_selectedID = viewModel->selectedChatIDText();
    m_rows = sourceRows();
}

void ChatListModel::refresh()
{
    if (!m_viewModel)
        return;
    updateRows(
        m_rows, sourceRows(), [](const Chat &chat) { return chat.id; }, sameRow);
}

QList<Chat> ChatListModel::sourceRows() const
{
    return m_which == Rows::All ? m_viewModel->chats() : m_viewModel->filteredChats();
}

void ChatListModel::followSelection()
{
    const QString previous = m_selectedID;
    m_selectedID = m_viewModel ? m_viewModel->selectedChatIDText() : QString();
    for (const QString &id : {previous, m_selectedID}) {
        if (const int row = rowOf(id); row >= 0) {
            const QModelIndex changed = index(row);
            Q_EMIT dataChanged(changed, changed, {IsSelectedRole});
        }
    }
}

int ChatListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ChatListModel::rowOf(const QString &chatID) const
{
    if (chatID.isEmpty())
        return -1;
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row).id == chatID)
            return int(row);
    }
    return -1;
}

QString ChatListModel::idAt(int row) const
{
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).id : QString();
}

QColor ChatListModel::avatarColor(const QString &chatID)
{
    static const QColor palette[] = {QColor(0x2a, 0x9d, 0x8f), QColor(0x3a, 0x7b, 0xd5), QColor(0xe0, 0x7a, 0x5f),
                                     QColor(0x81, 0x5a, 0xc0), QColor(0x3d, 0xa3, 0x5d), QColor(0xd4, 0x8a, 0x1e),
                                     QColor(0xc9, 0x4f, 0x7c)};
    quint64 sum = 0;
    for (const QChar c : chatID)
        sum = sum * 31 + c.unicode();
    return palette[sum % std::size(palette)];
}

QVariant ChatListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Chat &chat = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return chat.title;
    case IdRole:
        return chat.id;
    case SubtitleRole:
        return chat.subtitle;
    case PreviewRole:
        return SmileyText::render(chat.preview);
    case TimestampRole:
        return chat.timestamp;
    case UnreadCountRole:
        return int(std::clamp<qint64>(chat.unreadCount, 0, std::numeric_limits<int>::max()));
    case IsMutedRole:
        return chat.isMuted;
    case IsPinnedRole:
        return chat.isPinned;
    case IsArchivedRole:
        return chat.isArchived;
    case IsMarkedUnreadRole:
        return chat.isMarkedUnread;
    case DraftTextRole:
        return SmileyText::render(chat.draftText);
    case AvatarTextRole:
        return chat.avatarText;
    case AvatarSymbolRole:
        return chat.avatarSymbol.value_or(QString());
    case AvatarPathRole:
        return chat.avatarPath.value_or(QString());
    case AvatarUrlRole:
        return chat.avatarPath ? QUrl::fromLocalFile(*chat.avatarPath) : QUrl();
    case AvatarColorRole:
        return avatarColor(chat.id);
    case IsSelectedRole:
        return !m_selectedID.isEmpty() && chat.id == m_selectedID;
    case IsTypingRole:
        return chat.isTyping;
    case IsSecretRole:
        return chat.isSecret;
    default:
        return {};
    }
}

QHash<int, QByteArray> ChatListModel::roleNames() const
{
    return {{IdRole, "chatID"},
            {TitleRole, "title"},
            {SubtitleRole, "subtitle"},
            {PreviewRole, "preview"},
            {TimestampRole, "timestamp"},
            {UnreadCountRole, "unreadCount"},
            {IsMutedRole, "isMuted"},
            {IsPinnedRole, "isPinned"},
            {IsArchivedRole, "isArchived"},
            {IsMarkedUnreadRole, "isMarkedUnread"},
            {DraftTextRole, "draftText"},
            {AvatarTextRole, "avatarText"},
            {AvatarSymbolRole, "avatarSymbol"},
            {AvatarPathRole, "avatarPath"},
            {AvatarUrlRole, "avatarUrl"},
            {AvatarColorRole, "avatarColor"},
            {IsSelectedRole, "isSelected"},
            {IsTypingRole, "isTyping"},
            {IsSecretRole, "isSecret"}};
}
