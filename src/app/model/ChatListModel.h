#pragma once

#include "RowListModel.h"

#include "session/ModelTypes.h"

#include <QColor>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

class ChatViewModel;

// The sidebar's chat list: the view model's filteredChats, one row per chat,
// kept in step by row changes (never a reset for a small change) whenever the
// chats, the search text or the selection change. With Rows::All it lists every
// chat whatever the sidebar's search (the choosers of other views filter it their
// own way, see SearchFilterModel).
//
// Roles: chatID, title, subtitle, preview (typed smileys shown as emoji, as
// everywhere a message text is shown), timestamp, unreadCount (int, negative read
// as 0), isMuted, isPinned, isArchived, isMarkedUnread, draftText (smileys as emoji), avatarText,
// avatarSymbol ("" when none), avatarPath ("" when none), avatarUrl (file URL or
// empty), avatarColor (color), isSelected, isTyping (someone is typing: the subtitle
// says who), isSecret (an end-to-end encrypted chat).
class ChatListModel : public RowListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The root view owns the chat list.")

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        TitleRole,
        SubtitleRole,
        PreviewRole,
        TimestampRole,
        UnreadCountRole,
        IsMutedRole,
        IsPinnedRole,
        IsArchivedRole,
        IsMarkedUnreadRole,
        DraftTextRole,
        AvatarTextRole,
        AvatarSymbolRole,
        AvatarPathRole,
        AvatarUrlRole,
        AvatarColorRole,
        IsSelectedRole,
        IsTypingRole,
        IsSecretRole,
    };
    Q_ENUM(Role)

    enum class Rows { Searched, All };

    explicit ChatListModel(ChatViewModel *viewModel, QObject *parent = nullptr);
    ChatListModel(ChatViewModel *viewModel, Rows rows, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    // The row of the chat with that id, or -1.
    Q_INVOKABLE int rowOf(const QString &chatID) const;
    Q_INVOKABLE QString idAt(int row) const;

    // The colour behind a chat's initials, fixed by its id.
    static QColor avatarColor(const QString &chatID);

private:
    void refresh();
    void followSelection();
    QList<Chat> sourceRows() const;

    QPointer<ChatViewModel> m_viewModel;
    Rows m_which = Rows::Searched;
    QList<Chat> m_rows;
    QString m_selectedID;
};
