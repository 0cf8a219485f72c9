#pragma once

#include "RowListModel.h"

#include "session/ModelTypes.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

class ChatViewModel;

// The view model's recent stickers, for the sticker picker.
// Roles: stickerID (text), fileID (text), path, url (file URL), emoji, width,
// height, format (Model.StickerFormat). queueStickerAt(row) on the view
// model queues one.
class StickerListModel : public RowListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The root view owns the sticker list.")

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        FileIDRole,
        PathRole,
        UrlRole,
        EmojiRole,
        WidthRole,
        HeightRole,
        FormatRole
    };
    Q_ENUM(Role)

    explicit StickerListModel(ChatViewModel *viewModel, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void refresh();

    QPointer<ChatViewModel> m_viewModel;
    QList<StickerChoice> m_rows;
};

// The view model's contacts (the roster), or the people Telegram found for the
// last contact search, for the new-chat view. The found people leave out the
// contacts whose name holds listedText: the roster's name filter lists them already.
// Roles: userID (text; openContact(userID) on the view model opens the chat),
// name, username, initials, avatarPath ("" when none), isOnline.
class ContactListModel : public RowListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The root view owns the contact list.")
    Q_PROPERTY(QString listedText MEMBER m_listedText NOTIFY listedTextChanged)

public:
    enum Role { IdRole = Qt::UserRole + 1, NameRole, UsernameRole, InitialsRole, AvatarPathRole, IsOnlineRole };
    Q_ENUM(Role)

    enum class Source { Roster, SearchResults };

    explicit ContactListModel(ChatViewModel *viewModel, QObject *parent = nullptr);
    ContactListModel(ChatViewModel *viewModel, Source source, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void listedTextChanged();

private:
    void refresh();

    QList<ContactChoice> sourceRows() const;

    QPointer<ChatViewModel> m_viewModel;
    Source m_source = Source::Roster;
    QString m_listedText;
    QList<ContactChoice> m_rows;
};
