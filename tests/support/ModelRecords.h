#pragma once

#include "session/ModelTypes.h"

#include <QAbstractItemModel>
#include <QStringList>

// Builders and readers of the model's records that several tests share.

// The ids of chats, in their order.
inline QStringList chatIDs(const QList<Chat> &chats)
{
    QStringList ids;
    for (const Chat &chat : chats)
        ids.append(chat.id);
    return ids;
}

// One role's values down a list model, as text.
inline QStringList column(const QAbstractItemModel &model, int role)
{
    QStringList values;
    for (int row = 0; row < model.rowCount(); ++row)
        values.append(model.index(row, 0).data(role).toString());
    return values;
}

// A chat with an id, a title and a preview, and nothing else.
inline Chat makeChat(const QString &id, const QString &title, const QString &preview = {})
{
    Chat chat;
    chat.id = id;
    chat.title = title;
    chat.preview = preview;
    return chat;
}
