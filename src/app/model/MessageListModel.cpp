#include "MessageListModel.h"

#include "ChatViewModel.h"

#include <QColor>

using namespace Qt::StringLiterals;

namespace {

bool sameSender(const Message &a, const Message &b)
{
    // The sender's uuid tells views apart, not people: compare what is shown.
    return a.isOutgoing == b.isOutgoing && a.sender.name == b.sender.name && a.sender.initials == b.sender.initials &&
           a.sender.avatarPath == b.sender.avatarPath;
}

bool sameRow(const MessageListModel::Row &a, const MessageListModel::Row &b)
{
    const Message &x = a.message;
    const Message &y = b.message;
    return a.showsUnreadDivider == b.showsUnreadDivider && a.isFirstOfGroup == b.isFirstOfGroup && sameSender(x, y) &&
           x.sender.color == y.sender.color && x.text == y.text && x.timestamp == y.timestamp &&
           x.deliveryState == y.deliveryState && x.mediaPath == y.mediaPath && x.mediaPaths == y.mediaPaths &&
           x.mediaKind == y.mediaKind && x.stickerEmoji == y.stickerEmoji && x.stickerFormat == y.stickerFormat &&
           x.mediaAlbumID == y.mediaAlbumID && x.documentPath == y.documentPath && x.documentName == y.documentName &&
           x.reactions == y.reactions && x.isUnread == y.isUnread;
}

QColor senderColor(AvatarColor color)
{
    return color == AvatarColor::Teal ? QColor(0x2a, 0x9d, 0x8f) : QColor(0x3a, 0x7b, 0xd5);
}

} // namespace

MessageListModel::MessageListModel(ChatViewModel *viewModel, QObject *parent)
    : RowListModel(parent)
    , m_viewModel(viewModel)
{
    connect(viewModel, &ChatViewModel::selectedChatIDChanged, this, &MessageListModel::refresh);
    connect(viewModel, &ChatViewModel::chatsChanged, this, &MessageListModel::refresh);
    connect(viewModel, &ChatViewModel::unreadDividersChanged, this, &MessageListModel::refresh);
    connect(viewModel, &ChatViewModel::messagesChanged, this, [this](const QString &chatID) {
        if (chatID == m_chatID)
            refresh();
    });
    refresh();
}

QList<MessageListModel::Row> MessageListModel::makeRows(const QList<Message> &messages, const QString &dividerID)
{
    QList<Row> rows;
    rows.reserve(messages.size());
    for (qsizetype i = 0; i < messages.size(); ++i) {
        const Message &message = messages.at(i);
        rows.append({message, !dividerID.isEmpty() && message.id == dividerID,
                     i == 0 || !sameSender(messages.at(i - 1), message)});
    }
    return rows;
}

void MessageListModel::refresh()
{
    if (!m_viewModel)
        return;
    const QString chatID = m_viewModel->selectedChatIDText();
    const Chat *chat = m_viewModel->chat(chatID);
    const QList<Row> rows = chat ? makeRows(chat->messages, m_viewModel->unreadDividers().value(chatID)) : QList<Row>();
    const int before = count();
    if (chatID != m_chatID) {
        // Another chat: nothing of the old transcript stays.
        beginResetModel();
        m_chatID = chatID;
        m_rows = rows;
        endResetModel();
        Q_EMIT chatIDChanged();
    } else {
        updateRows(
            m_rows, rows, [](const Row &row) { return row.message.id; }, sameRow);
    }
    if (count() != before)
        Q_EMIT countChanged();
}

int MessageListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

int MessageListModel::rowOf(const QString &messageID) const
{
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        if (m_rows.at(row).message.id == messageID)
            return int(row);
    }
    return -1;
}

QVariant MessageListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Row &row = m_rows.at(index.row());
    const Message &message = row.message;
    switch (role) {
    case Qt::DisplayRole:
    case TextRole:
        return message.text;
    case IdRole:
        return message.id;
    case SenderNameRole:
        return message.sender.name;
    case SenderInitialsRole:
        return message.sender.initials;
    case SenderColorRole:
        return senderColor(message.sender.color);
    case SenderAvatarPathRole:
        return message.sender.avatarPath.value_or(QString());
    case TimestampRole:
        return message.timestamp;
    case IsOutgoingRole:
        return message.isOutgoing;
    case DeliveryStateRole:
        return caseName(message.deliveryState);
    case MediaPathRole:
        return message.mediaPath.value_or(QString());
    case MediaPathsRole:
        return message.mediaPaths;
    case MediaKindRole:
        return caseName(message.mediaKind);
    case StickerEmojiRole:
        return message.stickerEmoji;
    case StickerFormatRole:
        return caseName(message.stickerFormat);
    case DocumentNameRole:
        return message.documentName.value_or(QString());
    case DocumentPathRole:
        return message.documentPath.value_or(QString());
    case AlbumIDRole:
        return message.mediaAlbumID ? QString::number(*message.mediaAlbumID) : QString();
    case ReactionsRole: {
        QVariantList reactions;
        for (const MessageReaction &reaction : message.reactions)
            reactions.append(QVariantMap{
                {u"emoji"_s, reaction.emoji}, {u"count"_s, reaction.count}, {u"isChosen"_s, reaction.isChosen}});
        return reactions;
    }
    case IsUnreadRole:
        return message.isUnread;
    case ShowsUnreadDividerRole:
        return row.showsUnreadDivider;
    case IsFirstOfGroupRole:
        return row.isFirstOfGroup;
    default:
        return {};
    }
}

QHash<int, QByteArray> MessageListModel::roleNames() const
{
    return {{IdRole, "messageID"},
            {SenderNameRole, "senderName"},
            {SenderInitialsRole, "senderInitials"},
            {SenderColorRole, "senderColor"},
            {SenderAvatarPathRole, "senderAvatarPath"},
            {TextRole, "text"},
            {TimestampRole, "timestamp"},
            {IsOutgoingRole, "isOutgoing"},
            {DeliveryStateRole, "deliveryState"},
            {MediaPathRole, "mediaPath"},
            {MediaPathsRole, "mediaPaths"},
            {MediaKindRole, "mediaKind"},
            {StickerEmojiRole, "stickerEmoji"},
            {StickerFormatRole, "stickerFormat"},
            {DocumentNameRole, "documentName"},
            {DocumentPathRole, "documentPath"},
            {AlbumIDRole, "albumID"},
            {ReactionsRole, "reactions"},
            {IsUnreadRole, "isUnread"},
            {ShowsUnreadDividerRole, "showsUnreadDivider"},
            {IsFirstOfGroupRole, "isFirstOfGroup"}};
}
