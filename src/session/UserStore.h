#pragma once

#include "session/ModelTypes.h"
#include "session/SendRequest.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <optional>

// Users as shown beside their messages, their profile photos, who is online, and
// what typing shows in a chat's subtitle.
class UserStore : public QObject
{
    Q_OBJECT

public:
    explicit UserStore(SendRequest send, QObject *parent = nullptr);

    // Keeps a user object from TDLib; its photo is asked for when it is not here.
    void store(const TdObject &user);
    void setOnline(qint64 userID, bool online);
    // Asks TDLib, once each, for the senders of these messages it has not described.
    void requestMissingUsers(const QList<TdObject> &messages);
    void applyDownloadedFile(qint64 fileID, const QString &path);

    const User *user(qint64 userID) const;
    bool isOnline(qint64 userID) const { return m_onlineUsers.contains(userID); }
    // "Online" for a private chat whose person is online, otherwise the fallback.
    QString presenceSubtitle(std::optional<qint64> privateChatUser, const QString &fallback) const;
    // What a chat action makes the chat's subtitle; nothing for actions not shown.
    std::optional<QString> typingSubtitle(const TdObject &update, bool privateChat, const QString &idle) const;

Q_SIGNALS:
    // Set each time TDLib states it, changed or not.
    void presenceChanged(qint64 userID);
    // A user object was stored: names beside messages may have changed.
    void userStored(qint64 userID);
    void avatarArrived(qint64 userID);

private:
    SendRequest m_send;
    QHash<qint64, User> m_users;
    QSet<qint64> m_requestedUserIDs;
    QSet<qint64> m_onlineUsers;
    QHash<qint64, qint64> m_avatarOwners; // file, user
};
