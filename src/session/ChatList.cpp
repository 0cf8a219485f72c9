// The chat list: loading TDLib's two lists, building chats from TDLib's chat
// objects and keeping them in TDLib's order.

#include "session/ContentTexts.h"
#include "session/DateTexts.h"
#include "session/Initials.h"
#include "session/TelegramSession.h"
#include "session/UserStore.h"

using namespace Qt::StringLiterals;

namespace {

bool isMuted(const QJsonValue &notificationSettings)
{
    return integerFrom(notificationSettings.toObject().value("mute_for"_L1)).value_or(0) >= 1;
}

} // namespace

void TelegramSession::requestChats()
{
    for (const QString &listType : {ChatListStore::mainList, ChatListStore::archiveList}) {
        if (!m_chatList->beginLoading(listType))
            continue;
        send(u"getChats"_s, {{"chat_list"_L1, TdObject{{"@type"_L1, listType}}}, {"limit"_L1, 1000}});
        loadChatList(listType);
    }
}

void TelegramSession::loadChatList(const QString &listType)
{
    send(u"loadChats"_s, {{"chat_list"_L1, TdObject{{"@type"_L1, listType}}},
                          {"limit"_L1, 50},
                          {"@extra"_L1, TdObject{{"purpose"_L1, u"load_chat_list"_s}, {"list"_L1, listType}}}});
}

void TelegramSession::requestChat(qint64 chatID)
{
    send(u"getChat"_s, {{"chat_id"_L1, chatID}});
}

void TelegramSession::addOrUpdateChat(const TdObject &object)
{
    const std::optional<qint64> numericID = int64From(object.value("id"_L1));
    const QJsonValue title = object.value("title"_L1);
    if (!numericID || !title.isString())
        return;
    const QString id = QString::number(*numericID);
    if (m_chatList->isRemoved(id))
        return;

    Chat chat;
    chat.id = id;
    chat.title = title.toString();
    const QJsonValue lastMessage = object.value("last_message"_L1);
    const std::optional<qint64> date =
        lastMessage.isObject() ? integerFrom(lastMessage.toObject().value("date"_L1)) : std::nullopt;
    chat.preview = previewText(lastMessage.isObject() ? std::optional(lastMessage.toObject()) : std::nullopt);
    chat.timestamp = timestampText(date, localToday());
    chat.unreadCount = integerFrom(object.value("unread_count"_L1)).value_or(0);
    chat.isMuted = isMuted(object.value("notification_settings"_L1));

    chat.isMarkedUnread = object.value("is_marked_as_unread"_L1).toBool();
    chat.draftText = draftText(object.value("draft_message"_L1));
    chat.avatarPath = prepareChatAvatar(object.value("photo"_L1), id);

    ChatListStore::Record &record = m_chatList->record(*numericID);
    if (!chat.avatarPath && record.chat)
        chat.avatarPath = record.chat->avatarPath;
    if (const auto lastRead = int64From(object.value("last_read_inbox_message_id"_L1)))
        record.lastReadInbox = *lastRead;
    const TdObject type = object.value("type"_L1).toObject();
    chat.isSecret = typeOf(type) == "chatTypeSecret"_L1;
    if (typeOf(type) == "chatTypePrivate"_L1) {
        if (const auto userID = int64From(type.value("user_id"_L1)))
            m_chatList->setPrivateChatUser(record, id, *userID);
    }
    record.chatType = typeOf(type);
    record.lastMessage = lastMessage.isObject() ? std::optional(StoredMessage(lastMessage.toObject())) : std::nullopt;
    QString baseSubtitle = chatSubtitle(type);
    chat.subtitle = m_users->presenceSubtitle(record.privateChatUser, baseSubtitle);
    record.baseSubtitle = std::move(baseSubtitle);
    chat.avatarText = initials(chat.title);
    record.isMuted = chat.isMuted;
    record.chat = std::move(chat);
    // Placing the chat decides whether it is archived and pinned, and queues it for
    // sorting; a chat without positions is in no list.
    m_chatList->place(id, object.value("positions"_L1).toArray(), true);
    m_chatList->sort();
}

void TelegramSession::updateChatLastMessage(const QString &chatID, const QJsonValue &message,
                                            const QJsonValue &positions)
{
    const std::optional<qint64> date =
        message.isObject() ? integerFrom(message.toObject().value("date"_L1)) : std::nullopt;
    if (ChatListStore::Record *record = m_chatList->find(chatID); record && record->chat)
        record->lastMessage = message.isObject() ? std::optional(StoredMessage(message.toObject())) : std::nullopt;
    // The texts are made only for a chat that is known and can show them.
    updateChat(chatID, [&](Chat &chat) {
        chat.preview = previewText(message.isObject() ? std::optional(message.toObject()) : std::nullopt);
        chat.timestamp = timestampText(date, localToday());
    });
    m_chatList->place(chatID, positions, true);
    if (!knownChat(chatID) && hasListPosition(chatID))
        requestChat(chatID.toLongLong());
    m_chatList->sort();
}

void TelegramSession::retranslate()
{
    const QDate today = localToday();
    bool changed = false;
    m_chatList->forEachRecord([&](ChatListStore::Record &record) {
        if (!record.chat)
            return;
        Chat &chat = *record.chat;
        const std::optional<TdObject> last =
            record.lastMessage ? std::optional(record.lastMessage->object()) : std::nullopt;
        chat.preview = previewText(last);
        chat.timestamp = timestampText(last ? integerFrom(last->value("date"_L1)) : std::optional<qint64>(), today);
        const QString baseSubtitle = chatSubtitle(TdObject{{"@type"_L1, record.chatType}});
        // A subtitle that tells who is typing stays until the next chat action.
        if (!chat.isTyping)
            chat.subtitle = m_users->presenceSubtitle(record.privateChatUser, baseSubtitle);
        record.baseSubtitle = baseSubtitle;
        changed = changed || record.listKey;
    });
    if (changed)
        m_chatList->republish();
    for (const QString &chatID : m_messages.chatsWithStored())
        publishMessages(chatID);
}

bool TelegramSession::hasListPosition(const QString &chatID) const
{
    const ChatListStore::Record *record = m_chatList->find(chatID);
    return record && !record->positions.isEmpty();
}

const Chat *TelegramSession::knownChat(const QString &chatID) const
{
    const ChatListStore::Record *record = m_chatList->find(chatID);
    return record && record->chat ? &*record->chat : nullptr;
}

bool TelegramSession::isListed(const QString &chatID) const
{
    const ChatListStore::Record *record = m_chatList->find(chatID);
    return record && record->listKey;
}

std::optional<qint64> TelegramSession::privateChatUser(const QString &chatID) const
{
    const ChatListStore::Record *record = m_chatList->find(chatID);
    return record ? record->privateChatUser : std::nullopt;
}

qint64 TelegramSession::lastReadInbox(const QString &chatID) const
{
    const ChatListStore::Record *record = m_chatList->find(chatID);
    return record ? record->lastReadInbox : 0;
}

std::optional<QString> TelegramSession::baseSubtitle(const QString &chatID) const
{
    const ChatListStore::Record *record = m_chatList->find(chatID);
    return record ? record->baseSubtitle : std::nullopt;
}

const QList<Chat> &TelegramSession::chats() const
{
    return m_chatList->chats();
}

void TelegramSession::applyNotificationSettings(const TdObject &settings, const QString &chatID)
{
    const bool muted = isMuted(settings);
    if (ChatListStore::Record *record = m_chatList->record(chatID))
        record->isMuted = muted;
    updateChat(chatID, [muted](Chat &chat) { chat.isMuted = muted; });
}
