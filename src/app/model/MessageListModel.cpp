#include "MessageListModel.h"

#include "ChatViewModel.h"
#include "PictureFormats.h"

#include "session/Initials.h"

#include <QColor>
#include <QDebug>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>

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
    return a.showsUnreadDivider == b.showsUnreadDivider && a.isFirstOfGroup == b.isFirstOfGroup &&
           a.startsDay == b.startsDay && sameSender(x, y) && x.sender.color == y.sender.color && x.text == y.text &&
           x.timestamp == y.timestamp && x.deliveryState == y.deliveryState && x.mediaPath == y.mediaPath &&
           x.mediaPaths == y.mediaPaths && x.mediaKind == y.mediaKind && x.stickerEmoji == y.stickerEmoji &&
           x.stickerFormat == y.stickerFormat && x.mediaAlbumID == y.mediaAlbumID && x.documentPath == y.documentPath &&
           x.documentName == y.documentName && x.reactions == y.reactions && x.isUnread == y.isUnread &&
           a.details == b.details && a.album == b.album;
}

// An album's row is known by its album, so that it stays one row while its
// messages arrive one by one.
QString rowKey(const MessageListModel::Row &row)
{
    return row.album.isEmpty() ? row.message.id : u"album:"_s + QString::number(*row.message.mediaAlbumID);
}

QString dataUrl(const QByteArray &jpeg)
{
    return jpeg.isEmpty() ? QString() : u"data:image/jpeg;base64,"_s + QString::fromLatin1(jpeg.toBase64());
}

// A picture sent as a file (a document whose type or name says picture) is shown
// as one only when it is one: by its bytes once the file is here, until then by
// the type TDLib gives. Its name alone never makes a picture tile that stays blank.
bool showsAsPicture(const Message &message, const MessageDetails &details)
{
    // Photos have neither a file name nor a type of their own: documents do.
    const bool sentAsFile = !details.fileName.isEmpty() || !details.mimeType.isEmpty();
    if (details.kind != MessageContent::Kind::Photo || !sentAsFile)
        return true;
    if (message.mediaPath) {
        QImageReader reader(*message.mediaPath);
        reader.setDecideFormatFromContent(true);
        return reader.canRead() && isMessagePictureFormat(reader.format());
    }
    return details.mimeType.startsWith("image/"_L1, Qt::CaseInsensitive);
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
    connect(viewModel, &ChatViewModel::downloadProgressChanged, this, &MessageListModel::progressChanged);
    refresh();
}

QList<MessageListModel::Row> MessageListModel::makeRows(const QList<Message> &messages,
                                                        const QList<MessageDetails> &details, const QString &dividerID)
{
    // Oldest first while grouping; reversed at the end.
    QList<Row> rows;
    rows.reserve(messages.size());
    QDate previousDay;
    for (qsizetype i = 0; i < messages.size(); ++i) {
        const Message &message = messages.at(i);
        MessageDetails shown;
        if (i < details.size() && details.at(i).messageID == message.id) {
            shown = details.at(i);
        } else {
            shown.messageID = message.id;
            shown.text = message.text;
        }
        if (!showsAsPicture(message, shown))
            shown.kind = MessageContent::Kind::Document;
        const bool divider = !dividerID.isEmpty() && message.id == dividerID;
        Row *previous = rows.isEmpty() ? nullptr : &rows.last();
        // TDLib gives messages outside albums the album id 0.
        if (message.mediaAlbumID.value_or(0) != 0 && previous &&
            previous->message.mediaAlbumID == message.mediaAlbumID && sameSender(previous->message, message) &&
            !divider) {
            if (previous->album.isEmpty())
                previous->album.append({previous->message, previous->details});
            previous->album.append({message, shown});
            // The album's text is the one caption among its messages.
            if (previous->details.text.isEmpty() && !shown.text.isEmpty()) {
                previous->details.text = shown.text;
                previous->details.entities = shown.entities;
            }
            continue;
        }
        const QDate day = shown.date.isValid() ? shown.date.toLocalTime().date() : previousDay;
        rows.append({message,
                     shown,
                     {},
                     divider,
                     i == 0 || !sameSender(messages.at(i - 1), message),
                     day.isValid() && day != previousDay});
        previousDay = day;
    }
    std::reverse(rows.begin(), rows.end());
    return rows;
}

QVariantMap MessageListModel::detailsItem(const MessageDetails &details)
{
    QVariantList choices;
    for (const PollChoice &choice : details.pollChoices)
        choices.append(QVariantMap{{u"text"_s, choice.text},
                                   {u"voterCount"_s, choice.voterCount},
                                   {u"percentage"_s, choice.percentage},
                                   {u"isChosen"_s, choice.isChosen}});
    return {{u"kind"_s, int(details.kind)},
            {u"text"_s, details.text},
            {u"entities"_s, QVariant::fromValue(details.entities)},
            {u"date"_s, details.date},
            {u"isEdited"_s, details.isEdited},
            {u"forwardedFrom"_s, details.forwardedFrom},
            {u"replyToMessageID"_s, details.replyToMessageID},
            {u"replyToSender"_s, details.replyToSender},
            {u"replyToIsOutgoing"_s, details.replyToIsOutgoing},
            {u"replyToText"_s, details.replyToText},
            {u"replyToMissing"_s, details.replyToMissing},
            {u"fileID"_s, QString::number(details.fileID)},
            {u"fileSize"_s, details.fileSize},
            {u"fileName"_s, details.fileName},
            {u"mimeType"_s, details.mimeType},
            {u"width"_s, details.width},
            {u"height"_s, details.height},
            {u"duration"_s, details.duration},
            {u"title"_s, details.title},
            {u"performer"_s, details.performer},
            {u"minithumbnail"_s, dataUrl(details.minithumbnail)},
            {u"latitude"_s, details.latitude},
            {u"longitude"_s, details.longitude},
            {u"placeName"_s, details.placeName},
            {u"address"_s, details.address},
            {u"contactName"_s, details.contactName},
            {u"contactInitials"_s, initials(details.contactName)},
            {u"contactPhone"_s, details.contactPhone},
            {u"contactUserID"_s, details.contactUserID ? QString::number(details.contactUserID) : QString()},
            {u"pollQuestion"_s, details.pollQuestion},
            {u"pollChoices"_s, choices},
            {u"pollVoterCount"_s, details.pollVoterCount},
            {u"pollIsClosed"_s, details.pollIsClosed},
            {u"pollIsAnonymous"_s, details.pollIsAnonymous},
            {u"pollIsQuiz"_s, details.pollIsQuiz},
            {u"callIsVideo"_s, details.callIsVideo},
            {u"callEnd"_s, int(details.callEnd)},
            {u"diceEmoji"_s, details.diceEmoji},
            {u"diceValue"_s, details.diceValue}};
}

void MessageListModel::refresh()
{
    if (!m_viewModel)
        return;
    const QString chatID = m_viewModel->selectedChatIDText();
    const Chat *chat = m_viewModel->chat(chatID);
    const QList<Row> rows = chat ? makeRows(chat->messages, m_viewModel->messageDetails(chatID),
                                            m_viewModel->unreadDividers().value(chatID))
                                 : QList<Row>();
    if (chatID != m_chatID) {
        // Another chat: nothing of the old transcript stays.
        beginResetModel();
        m_chatID = chatID;
        m_rows = rows;
        endResetModel();
        Q_EMIT chatIDChanged();
    } else {
        updateRows(m_rows, rows, rowKey, sameRow);
    }
}

int MessageListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int MessageListModel::rowOf(const QString &messageID) const
{
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        const Row &candidate = m_rows.at(row);
        if (candidate.message.id == messageID ||
            std::any_of(candidate.album.cbegin(), candidate.album.cend(),
                        [&messageID](const Item &item) { return item.message.id == messageID; }))
            return int(row);
    }
    return -1;
}

int MessageListModel::dividerRowToOpenAt() const
{
    const auto row =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [](const Row &candidate) { return candidate.showsUnreadDivider; });
    if (row == m_rows.cend() || m_openedDividers.contains(m_chatID + u'/' + row->message.id))
        return -1;
    return int(row - m_rows.cbegin());
}

void MessageListModel::dividerOpened()
{
    const auto row =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [](const Row &candidate) { return candidate.showsUnreadDivider; });
    if (row != m_rows.cend())
        m_openedDividers.insert(m_chatID + u'/' + row->message.id);
}

QVariantList MessageListModel::media() const
{
    QVariantList found;
    const auto add = [&found](const Message &message, const MessageDetails &details) {
        const bool viewable = details.kind == MessageContent::Kind::Photo ||
                              details.kind == MessageContent::Kind::Video ||
                              details.kind == MessageContent::Kind::Animation;
        if (viewable && message.mediaPath)
            found.append(QVariantMap{{u"messageID"_s, message.id},
                                     {u"path"_s, *message.mediaPath},
                                     {u"kind"_s, int(details.kind)},
                                     {u"fileName"_s, details.fileName},
                                     {u"saveName"_s, saveName(details, *message.mediaPath)}});
    };
    // Rows are newest first; the viewer goes from the oldest.
    for (auto row = m_rows.crbegin(); row != m_rows.crend(); ++row) {
        if (row->album.isEmpty()) {
            add(row->message, row->details);
        } else {
            for (const Item &item : row->album)
                add(item.message, item.details);
        }
    }
    return found;
}

QString MessageListModel::saveName(const MessageDetails &details, const QString &path)
{
    if (!details.fileName.isEmpty())
        return details.fileName;
    QString what;
    switch (details.kind) {
    case MessageContent::Kind::Photo:
        what = tr("Photo");
        break;
    case MessageContent::Kind::Animation:
        what = tr("GIF");
        break;
    case MessageContent::Kind::Video:
        what = tr("Video");
        break;
    default:
        what = tr("File");
        break;
    }
    // Dots rather than colons: a colon is not allowed in every file system.
    const QString when =
        details.date.isValid() ? details.date.toLocalTime().toString(u"yyyy-MM-dd HH.mm"_s) : QString();
    // The local file's extension when its content agrees ("jpg" rather than
    // "jpeg"), else the content's own.
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchContent);
    const QString own = QFileInfo(path).suffix().toLower();
    QString suffix = type.suffixes().contains(own) ? own : type.preferredSuffix();
    if (suffix.isEmpty())
        suffix = own;
    const QString name = when.isEmpty() ? what : what + u' ' + when;
    return suffix.isEmpty() ? name : name + u'.' + suffix;
}

double MessageListModel::progressOf(qint64 fileID) const
{
    return m_viewModel && fileID ? m_viewModel->downloadProgress(fileID) : -1.0;
}

void MessageListModel::progressChanged(qint64 fileID)
{
    for (qsizetype row = 0; row < m_rows.size(); ++row) {
        const Row &candidate = m_rows.at(row);
        if (candidate.details.fileID == fileID ||
            std::any_of(candidate.album.cbegin(), candidate.album.cend(),
                        [fileID](const Item &item) { return item.details.fileID == fileID; })) {
            const QModelIndex changed = index(int(row));
            Q_EMIT dataChanged(changed, changed, {DownloadProgressRole, AlbumItemsRole});
        }
    }
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
        return int(message.deliveryState);
    case MediaPathRole:
        return message.mediaPath.value_or(QString());
    case MediaPathsRole:
        return message.mediaPaths;
    case MediaKindRole:
        return message.mediaKind ? QVariant(int(*message.mediaKind)) : QVariant();
    case StickerEmojiRole:
        return message.stickerEmoji;
    case StickerFormatRole:
        return int(message.stickerFormat);
    case DocumentNameRole:
        return message.documentName.value_or(QString());
    case DocumentPathRole:
        return message.documentPath.value_or(QString());
    case AlbumIDRole:
        return message.mediaAlbumID.value_or(0) != 0 ? QString::number(*message.mediaAlbumID) : QString();
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
    case BodyTextRole:
        return row.details.text;
    case DateRole:
        return row.details.date;
    case StartsDayRole:
        return row.startsDay;
    case KindRole:
        return int(row.details.kind);
    case DetailsRole:
        return detailsItem(row.details);
    case DownloadProgressRole:
        return progressOf(row.details.fileID);
    case AlbumItemsRole: {
        QVariantList items;
        for (const Item &item : row.album)
            items.append(QVariantMap{{u"messageID"_s, item.message.id},
                                     {u"mediaPath"_s, item.message.mediaPath.value_or(QString())},
                                     {u"kind"_s, int(item.details.kind)},
                                     {u"width"_s, item.details.width},
                                     {u"height"_s, item.details.height},
                                     {u"fileID"_s, QString::number(item.details.fileID)},
                                     {u"minithumbnail"_s, dataUrl(item.details.minithumbnail)},
                                     {u"downloadProgress"_s, progressOf(item.details.fileID)}});
        return items;
    }
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
            {IsFirstOfGroupRole, "isFirstOfGroup"},
            {BodyTextRole, "bodyText"},
            {DateRole, "date"},
            {StartsDayRole, "startsDay"},
            {KindRole, "kind"},
            {DetailsRole, "details"},
            {DownloadProgressRole, "downloadProgress"},
            {AlbumItemsRole, "albumItems"}};
}
