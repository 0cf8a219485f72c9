#include "Client.h"

#include "Json.h"

using namespace Qt::StringLiterals;

namespace demo {

bool Client::handleStickersAndContacts(const QString &type, const QJsonObject &request)
{
    Account &account = *m_account;
    if (type == "getInstalledStickerSets"_L1 || type == "getTrendingStickerSets"_L1) {
        const bool trending = type == "getTrendingStickerSets"_L1;
        const int offset = trending ? int(request.value("offset"_L1).toInteger()) : 0;
        const int limit = trending ? int(request.value("limit"_L1).toInteger()) : 1000;
        QJsonArray sets;
        int index = 0;
        for (const DemoStickerSet &set : account.stickerSets) {
            if (set.installed == trending)
                continue;
            if (index++ >= offset && sets.size() < limit)
                sets.append(account.stickerSetInfoJson(set));
        }
        if (trending)
            answer(request,
                   object("trendingStickerSets", {{"total_count", index}, {"sets", sets}, {"is_premium", false}}));
        else
            answer(request, object("stickerSets", {{"total_count", index}, {"sets", sets}}));
        return true;
    }
    if (type == "getStickerSet"_L1) {
        const DemoStickerSet *set = account.stickerSet(int64Of(request.value("set_id"_L1)));
        answer(request, set ? account.stickerSetJson(*set) : error(400, u"STICKERSET_INVALID"_s));
        return true;
    }
    if (type == "getRecentStickers"_L1 || type == "searchStickers"_L1) {
        QJsonArray list;
        if (type == "getRecentStickers"_L1) {
            if (!request.value("is_attached"_L1).toBool())
                for (qint64 id : account.recentStickers)
                    list.append(account.stickerJson(id));
        } else {
            const QString emojis = stringOf(request, "emojis");
            const QString query = stringOf(request, "query").trimmed();
            const int limit = std::max(1, int(request.value("limit"_L1).toInteger()));
            for (const DemoStickerSet &set : account.stickerSets) {
                const bool setMatches = !query.isEmpty() && (set.title.contains(query, Qt::CaseInsensitive) ||
                                                             set.name.contains(query, Qt::CaseInsensitive));
                for (qint64 id : set.stickers) {
                    const DemoSticker &sticker = *account.sticker(id);
                    const bool emojiMatches = !emojis.isEmpty() && emojis.contains(sticker.emoji);
                    if ((setMatches || emojiMatches) && list.size() < limit)
                        list.append(account.stickerJson(id));
                }
            }
        }
        answer(request, object("stickers", {{"stickers", list}}));
        return true;
    }
    if (type == "getContacts"_L1 || type == "searchContacts"_L1) {
        const QString query = stringOf(request, "query").trimmed();
        const int limit = type == "searchContacts"_L1 ? int(request.value("limit"_L1).toInteger()) : 10000;
        QJsonArray ids;
        for (const auto &[id, user] : account.users) {
            if (!user.isContact || ids.size() >= limit)
                continue;
            const QString name = user.firstName + u' ' + user.lastName;
            if (query.isEmpty() || name.contains(query, Qt::CaseInsensitive) ||
                user.username.contains(query, Qt::CaseInsensitive) || user.phone.contains(query))
                ids.append(id);
        }
        answer(request, object("users", {{"total_count", int(ids.size())}, {"user_ids", ids}}));
        return true;
    }
    if (type == "importContacts"_L1) {
        QJsonArray ids;
        QJsonArray counts;
        for (const QJsonValue &value : request.value("contacts"_L1).toArray()) {
            const QJsonObject contact = value.toObject();
            const QString phone = digitsOf(stringOf(contact, "phone_number"));
            qint64 found = 0;
            for (auto &[id, user] : account.users) {
                if (id == account.selfID() || phone.isEmpty() || user.phone != phone)
                    continue;
                found = id;
                if (!user.isContact) {
                    user.isContact = true;
                    update(object("updateUser", {{"user", account.userJson(id)}}));
                }
            }
            ids.append(found);
            counts.append(0);
        }
        answer(request, object("importedContacts", {{"user_ids", ids}, {"importer_count", counts}}));
        return true;
    }
    if (type == "removeContacts"_L1) {
        for (const QJsonValue &value : request.value("user_ids"_L1).toArray()) {
            DemoUser *user = account.user(int64Of(value));
            if (user && user->isContact) {
                user->isContact = false;
                update(object("updateUser", {{"user", account.userJson(user->id)}}));
            }
        }
        answer(request, ok());
        return true;
    }
    if (type == "searchPublicChat"_L1 || type == "createPrivateChat"_L1) {
        qint64 userID = 0;
        if (type == "searchPublicChat"_L1) {
            QString username = stringOf(request, "username").trimmed();
            if (username.startsWith(u'@'))
                username.remove(0, 1);
            for (const auto &[id, user] : account.users)
                if (!user.username.isEmpty() && user.username.compare(username, Qt::CaseInsensitive) == 0)
                    userID = id;
            if (!userID) {
                answer(request, error(400, u"USERNAME_NOT_OCCUPIED"_s));
                return true;
            }
        } else {
            userID = int64Of(request.value("user_id"_L1));
            if (!account.user(userID)) {
                answer(request, error(400, u"User not found"_s));
                return true;
            }
        }
        DemoChat *chat = account.privateChatWith(userID);
        if (!chat) {
            const DemoUser &user = *account.user(userID);
            DemoChat created;
            created.id = userID;
            created.userID = userID;
            created.title = user.lastName.isEmpty() ? user.firstName : user.firstName + u' ' + user.lastName;
            created.photoSmall = user.photoSmall;
            created.photoBig = user.photoBig;
            created.inList = false; // it enters the list with its first message
            chat = &(account.chats[userID] = created);
        }
        announceChat(*chat);
        answer(request, account.chatJson(*chat));
        return true;
    }
    if (type == "deleteChatHistory"_L1 || type == "deleteChat"_L1) {
        DemoChat *chat = account.chat(int64Of(request.value("chat_id"_L1)));
        if (!chat) {
            answer(request, error(400, u"Chat not found"_s));
            return true;
        }
        const bool wasListed = chat->inList;
        const bool archived = chat->archived;
        chat->messages.clear();
        chat->lastReadInbox = 0;
        if (type == "deleteChat"_L1 || request.value("remove_from_chat_list"_L1).toBool())
            chat->inList = false;
        announceChat(*chat);
        chatLastMessageChanged(*chat);
        if (wasListed && !chat->inList)
            update(object(
                "updateChatPosition",
                {{"chat_id", chat->id},
                 {"position", object("chatPosition", {{"list", object(archived ? "chatListArchive" : "chatListMain")},
                                                      {"order", int64String(0)},
                                                      {"is_pinned", false},
                                                      {"source", QJsonValue::Null}})}}));
        chatReadInboxChanged(*chat);
        answer(request, ok());
        return true;
    }
    return false;
}

} // namespace demo
