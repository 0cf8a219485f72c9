#pragma once

#include "RowListModel.h"

#include "session/MessageDetails.h"
#include "session/ModelTypes.h"

#include <QPointer>
#include <QSet>
#include <QtQml/qqmlregistration.h>

class ChatViewModel;

// The selected chat's transcript, newest first, for a view laid out from the
// bottom up: new messages arrive at row 0 and older pages at the end, so neither
// moves what the reader is looking at. The messages of an album share one row. A
// change of the selected chat resets the model; everything else (new, older,
// edited, deleted or sent messages, the unread divider, download progress)
// changes rows only.
//
// Roles: messageID (of the album's first message), senderName, senderInitials,
// senderColor (color), senderAvatarPath ("" when none), text, timestamp,
// isOutgoing, deliveryState (Model.MessageDeliveryState), mediaPath (""
// when none), mediaPaths (list of text), mediaKind (Model.MessageMediaKind,
// undefined when none), stickerEmoji, stickerFormat (Model.StickerFormat),
// documentName, documentPath ("" when none), albumID (""
// when none), reactions (list of {emoji, count, isChosen}), isUnread,
// showsUnreadDivider (the unread run starts here), isFirstOfGroup (the first, in
// time, of consecutive messages from one sender), bodyText (the bubble's text
// line: the text or the caption, "" for media without one), date (QDateTime,
// invalid when unknown), startsDay (the first message of its calendar day),
// kind (MessageContent.Kind), details (a map of MessageDetails' fields; the
// minithumbnail as a data URL), downloadProgress (0 to 1 while the file arrives,
// -1 when nothing is known), albumItems (for an album, each message's messageID,
// mediaPath, kind, width, height, fileID and downloadProgress, oldest first).
class MessageListModel : public RowListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The root view owns the transcript.")
    Q_PROPERTY(QString chatID READ chatID NOTIFY chatIDChanged)

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        SenderNameRole,
        SenderInitialsRole,
        SenderColorRole,
        SenderAvatarPathRole,
        TextRole,
        TimestampRole,
        IsOutgoingRole,
        DeliveryStateRole,
        MediaPathRole,
        MediaPathsRole,
        MediaKindRole,
        StickerEmojiRole,
        StickerFormatRole,
        DocumentNameRole,
        DocumentPathRole,
        AlbumIDRole,
        ReactionsRole,
        IsUnreadRole,
        ShowsUnreadDividerRole,
        IsFirstOfGroupRole,
        BodyTextRole,
        DateRole,
        StartsDayRole,
        KindRole,
        DetailsRole,
        DownloadProgressRole,
        AlbumItemsRole,
    };
    Q_ENUM(Role)

    struct Item {
        Message message;
        MessageDetails details;

        friend bool operator==(const Item &, const Item &) = default;
    };
    struct Row {
        Message message;
        MessageDetails details;
        // The album's messages, oldest first; empty for a message of its own.
        QList<Item> album;
        bool showsUnreadDivider = false;
        bool isFirstOfGroup = false;
        bool startsDay = false;
    };

    explicit MessageListModel(ChatViewModel *viewModel, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString chatID() const { return m_chatID; }
    // The row showing the message (an album's row for any of its messages), or -1.
    Q_INVOKABLE int rowOf(const QString &messageID) const;
    // The row of the unread divider the chat has yet to open at, or -1: a chat may
    // open at its divider once, the first time it shows it, and later opens at its
    // newest message like any other.
    Q_INVOKABLE int dividerRowToOpenAt() const;
    // The chat's first screen with its divider has been shown (at the divider, or
    // at the newest message with the divider in view).
    Q_INVOKABLE void dividerOpened();
    // The photos and videos of the loaded messages whose files are here, oldest
    // first, for the viewer: messageID, path, kind (MessageContent.Kind), fileName
    // and saveName.
    Q_INVOKABLE QVariantList media() const;
    // The name a saved copy of a message's file is offered under: the file's own
    // name when it has one, else what it is and when it was sent ("Photo
    // 2026-11-24 14.03.jpg"), with the extension its content calls for.
    static QString saveName(const MessageDetails &details, const QString &path);

    // Rows for a chat's messages (given oldest first), newest first: the divider
    // before dividerID, groups by sender, an album's messages in one row. details
    // holds what each message's widgets show, in the order of messages; a message
    // without them gets its own text.
    static QList<Row> makeRows(const QList<Message> &messages, const QList<MessageDetails> &details,
                               const QString &dividerID);
    static QVariantMap detailsItem(const MessageDetails &details);

Q_SIGNALS:
    void chatIDChanged();

private:
    void refresh();
    void progressChanged(qint64 fileID);
    double progressOf(qint64 fileID) const;

    QPointer<ChatViewModel> m_viewModel;
    QString m_chatID;
    QList<Row> m_rows;
    // Chat and divider ids ("chat/message") whose first screen has been shown.
    QSet<QString> m_openedDividers;
};
