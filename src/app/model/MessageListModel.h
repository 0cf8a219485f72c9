#pragma once

#include "RowListModel.h"

#include "session/ModelTypes.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

class ChatViewModel;

// The selected chat's transcript, oldest first. A change of the selected chat
// resets the model; everything else (new, older, edited, deleted or sent
// messages, the unread divider) changes rows only.
//
// Roles: messageID, senderName, senderInitials, senderColor (color), senderAvatarPath
// ("" when none), text, timestamp, isOutgoing, deliveryState ("none", "sending",
// "sent", "read"), mediaPath ("" when none), mediaPaths (list of text), mediaKind
// ("" or "photo", "sticker", "video", "animation", "voice", "audio"),
// stickerEmoji, stickerFormat ("webp", "animated", "video"), documentName,
// documentPath ("" when none), albumID ("" when none), reactions (list of
// {emoji, count, isChosen}), isUnread, showsUnreadDivider (the unread run starts
// here), isFirstOfGroup (the first of consecutive messages from one sender).
class MessageListModel : public RowListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The root view owns the transcript.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)
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
    };
    Q_ENUM(Role)

    struct Row {
        Message message;
        bool showsUnreadDivider = false;
        bool isFirstOfGroup = false;
    };

    explicit MessageListModel(ChatViewModel *viewModel, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return int(m_rows.size()); }
    QString chatID() const { return m_chatID; }
    Q_INVOKABLE int rowOf(const QString &messageID) const;

    // Rows for a chat's messages: the divider before dividerID, groups by sender.
    static QList<Row> makeRows(const QList<Message> &messages, const QString &dividerID);

Q_SIGNALS:
    void countChanged();
    void chatIDChanged();

private:
    void refresh();

    QPointer<ChatViewModel> m_viewModel;
    QString m_chatID;
    QList<Row> m_rows;
};
