#include "session/UserStore.h"

#include "session/ContentTexts.h"
#include "session/Initials.h"

using namespace Qt::StringLiterals;

UserStore::UserStore(SendRequest send, QObject *parent)
    : QObject(parent)
    , m_send(std::move(send))
{}

void UserStore::store(const TdObject &object)
{
    const std::optional<qint64> id = int64From(object.value("id"_L1));
    if (!id)
        return;
    const QString joined = fullName(object);
    const QString name = joined.isEmpty() ? tr("Telegram user") : joined;
    std::optional<QString> avatarPath =
        prepareAvatar(m_send, object.value("profile_photo"_L1),
                      [this, userID = *id](qint64 fileID) { m_avatarOwners.insert(fileID, userID); });
    if (!avatarPath) {
        if (const auto stored = m_users.constFind(*id); stored != m_users.cend())
            avatarPath = stored->avatarPath;
    }
    m_users.insert(*id, User{newViewID(), name, initials(name), AvatarColor::Teal, avatarPath});
    setOnline(*id, typeOf(object.value("status"_L1)) == "userStatusOnline"_L1);
    Q_EMIT userStored(*id);
}

void UserStore::setOnline(qint64 userID, bool online)
{
    if (online)
        m_onlineUsers.insert(userID);
    else
        m_onlineUsers.remove(userID);
    Q_EMIT presenceChanged(userID);
}

void UserStore::requestMissingUsers(const QList<TdObject> &messages)
{
    for (const TdObject &message : messages) {
        const TdObject sender = message.value("sender_id"_L1).toObject();
        if (typeOf(sender) != "messageSenderUser"_L1)
            continue;
        const std::optional<qint64> userID = int64From(sender.value("user_id"_L1));
        if (!userID || m_users.contains(*userID) || m_requestedUserIDs.contains(*userID))
            continue;
        m_requestedUserIDs.insert(*userID);
        m_send(u"getUser"_s, {{"user_id"_L1, *userID}});
    }
}

void UserStore::applyDownloadedFile(qint64 fileID, const QString &path)
{
    const auto owner = m_avatarOwners.constFind(fileID);
    if (owner == m_avatarOwners.cend())
        return;
    const auto user = m_users.find(*owner);
    if (user == m_users.end())
        return;
    user->avatarPath = path;
    Q_EMIT avatarArrived(*owner);
}

const User *UserStore::user(qint64 userID) const
{
    const auto found = m_users.constFind(userID);
    return found == m_users.cend() ? nullptr : &*found;
}

QString UserStore::presenceSubtitle(std::optional<qint64> privateChatUser, const QString &fallback) const
{
    if (privateChatUser && m_onlineUsers.contains(*privateChatUser))
        return tr("Online");
    return fallback;
}

std::optional<QString> UserStore::typingSubtitle(const TdObject &update, bool privateChat, const QString &idle) const
{
    const QString action = typeOf(update.value("action"_L1));
    if (action == "chatActionCancel"_L1)
        return idle;
    if (action != "chatActionTyping"_L1)
        return std::nullopt;
    if (privateChat)
        //: The chat's subtitle while the other person types.
        return tr("Typing…");
    const auto typist = int64From(update.value("sender_id"_L1).toObject().value("user_id"_L1));
    const User *typing = typist ? user(*typist) : nullptr;
    //: A group's subtitle while a member types; %1 is the member's name.
    return tr("%1 is typing…").arg(typing ? typing->name : tr("Someone"));
}
