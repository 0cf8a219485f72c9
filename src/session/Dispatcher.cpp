// The one entry point for every TDLib answer and update: answers are routed by the
// purpose their request was tagged with, everything else by its type.

#include "session/Announcer.h"
#include "session/AuthorizationStore.h"
#include "session/ChatSearchStore.h"
#include "session/ContactStore.h"
#include "session/ContentTexts.h"
#include "session/DownloadStore.h"
#include "session/RepliedMessageStore.h"
#include "session/SoundManager.h"
#include "session/StickerStore.h"
#include "session/TDLibChannel.h"
#include "session/TelegramSession.h"
#include "session/UserStore.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> chatIDIn(const TdObject &object)
{
    const std::optional<qint64> chat = int64From(object.value("chat_id"_L1));
    return chat ? std::optional(QString::number(*chat)) : std::nullopt;
}

std::optional<ConnectionState> connectionStateFrom(const QString &type)
{
    if (type == "connectionStateWaitingForNetwork"_L1)
        return ConnectionState::WaitingForNetwork;
    if (type == "connectionStateConnectingToProxy"_L1)
        return ConnectionState::ConnectingToProxy;
    if (type == "connectionStateConnecting"_L1)
        return ConnectionState::Connecting;
    if (type == "connectionStateUpdating"_L1)
        return ConnectionState::Updating;
    if (type == "connectionStateReady"_L1)
        return ConnectionState::Ready;
    return std::nullopt;
}

} // namespace

void TelegramSession::handle(const TdObject &object, const QString &type)
{
    // Answers to a client the session has left behind (after logging out) are stale.
    if (m_channel->isStale(object))
        return;
    recordImageDiagnosticEvent(type, object);
    if (type == "updateConnectionState"_L1) {
        // A state this client does not know leaves the last one standing.
        if (const auto state = connectionStateFrom(typeOf(object.value("state"_L1))))
            setConnectionState(*state);
        if (typeOf(object.value("state"_L1)) == "connectionStateReady"_L1 && isReady()) {
            requestChats();
            refreshContacts();
        }
        return;
    }
    // Read once: every event passes here, and updates carry no tag at all.
    const TdObject extra = object.value("@extra"_L1).toObject();
    if (m_stickers->handleAnswer(type, extra, object))
        return;
    const QJsonValue purpose = extra.value("purpose"_L1);
    if (purpose.isString() && routeByPurpose(purpose.toString(), type, object))
        return;
    if (routeByType(type, object))
        return;
    if (m_authorization->handleUpdate(type, object, m_channel->isQuitting()))
        return;
    if (type == "error"_L1)
        handleGenericError(object);
}

bool TelegramSession::routeByPurpose(const QString &purpose, const QString &type, const TdObject &object)
{
    if (purpose == "load_chat_list"_L1) {
        const QString listType = object.value("@extra"_L1).toObject().value("list"_L1).toString();
        if (type == "ok"_L1) {
            loadChatList(listType);
            return true;
        }
        if (type == "error"_L1) {
            // TDLib answers 404 once the whole list is loaded.
            m_chatList->endLoading(listType);
            if (integerFrom(object.value("code"_L1)) != 404) {
                const QJsonValue message = object.value("message"_L1);
                m_authorization->setErrorMessage(message.isString() ? message.toString()
                                                                    : tr("Unable to refresh chats."));
            }
            return true;
        }
        return false;
    }
    if (m_contacts->handleAnswer(purpose, type, object))
        return true;
    if (m_authorization->handleAnswer(purpose, type, object))
        return true;
    if (m_chatSearch->handleAnswer(purpose, type, object))
        return true;
    if (purpose == "history_around"_L1) {
        storeHistoryAround(type, object);
        return true;
    }
    if (purpose == "replied_message"_L1) {
        if (const std::optional<QString> chatID =
                m_replied->handleAnswer(object.value("@extra"_L1).toObject(), type, object))
            publishMessages(*chatID);
        return true;
    }
    if ((purpose == "initial_history"_L1 || purpose == "initial_local_history"_L1 || purpose == "older_history"_L1) &&
        type == "messages"_L1) {
        storeMessages(object.value("messages"_L1).toArray(), object.value("@extra"_L1).toObject());
        return true;
    }
    return false;
}

bool TelegramSession::routeByType(const QString &type, const TdObject &object)
{
    // Updates about one chat carry its key; only those need it read.
    if (!type.startsWith("updateChat"_L1))
        return routeByTypeWithoutChat(type, object);
    const std::optional<QString> chatID = chatIDIn(object);
    if (type == "updateChatPosition"_L1) {
        if (!chatID)
            return true;
        m_chatList->place(*chatID, QJsonArray{object.value("position"_L1)}, false);
        if (!knownChat(*chatID) && hasListPosition(*chatID))
            requestChat(chatID->toLongLong());
        m_chatList->sort();
    } else if (type == "updateChatLastMessage"_L1) {
        if (chatID)
            updateChatLastMessage(*chatID, object.value("last_message"_L1), object.value("positions"_L1));
    } else if (type == "updateChatDraftMessage"_L1) {
        if (!chatID)
            return true;
        const QString draft = draftText(object.value("draft_message"_L1));
        updateChat(*chatID, [&draft](Chat &chat) { chat.draftText = draft; });
        m_chatList->place(*chatID, object.value("positions"_L1), true);
        m_chatList->sort();
    } else if (type == "updateChatTitle"_L1) {
        const QJsonValue title = object.value("title"_L1);
        if (chatID && title.isString())
            updateChat(*chatID, [&title](Chat &chat) { chat.title = title.toString(); });
    } else if (type == "updateChatUnreadCount"_L1) {
        const qint64 unread = integerFrom(object.value("unread_count"_L1)).value_or(0);
        if (chatID)
            updateChat(*chatID, [unread](Chat &chat) { chat.unreadCount = unread; });
    } else if (type == "updateChatIsMarkedAsUnread"_L1) {
        const bool marked = object.value("is_marked_as_unread"_L1).toBool();
        if (chatID)
            updateChat(*chatID, [marked](Chat &chat) { chat.isMarkedUnread = marked; });
    } else if (type == "updateChatNotificationSettings"_L1) {
        if (chatID)
            applyNotificationSettings(object.value("notification_settings"_L1).toObject(), *chatID);
    } else if (type == "updateChatReadInbox"_L1) {
        handleReadInbox(object);
    } else if (type == "updateChatReadOutbox"_L1) {
        handleReadOutbox(object);
    } else if (type == "updateChatAction"_L1) {
        updateTypingStatus(object);
    } else {
        return false;
    }
    return true;
}

void TelegramSession::handleGenericError(const TdObject &error)
{
    const QJsonValue message = error.value("message"_L1);
    const QString text = message.isString() ? message.toString() : tr("Telegram returned an unknown error.");
    // An error before the first authorization state ends the session.
    m_authorization->fail(text);
    m_announcer->play(SoundEvent::Failure);
}

bool TelegramSession::routeByTypeWithoutChat(const QString &type, const TdObject &object)
{
    if (type == "updateNewChat"_L1) {
        addOrUpdateChat(object.value("chat"_L1).toObject());
    } else if (type == "chat"_L1) {
        addOrUpdateChat(object);
    } else if (type == "chats"_L1) {
        for (const QJsonValue &id : object.value("chat_ids"_L1).toArray()) {
            if (const auto chat = int64From(id))
                requestChat(*chat);
        }
    } else if (type == "messages"_L1) {
        storeMessages(object.value("messages"_L1).toArray(), object.value("@extra"_L1).toObject());
    } else if (type == "message"_L1) {
        storeNewMessage(object);
    } else if (type == "updateNewMessage"_L1) {
        handleNewMessage(object.value("message"_L1).toObject());
    } else if (type == "updateMessageSendSucceeded"_L1) {
        const TdObject message = object.value("message"_L1).toObject();
        if (const auto oldID = int64From(object.value("old_message_id"_L1)))
            removeMessage(*oldID, int64From(message.value("chat_id"_L1)));
        storeNewMessage(message);
    } else if (type == "updateMessageContent"_L1) {
        updateMessageField(object, u"content"_s, object.value("new_content"_L1));
    } else if (type == "updateMessageInteractionInfo"_L1) {
        updateMessageField(object, u"interaction_info"_s, object.value("interaction_info"_L1));
    } else if (type == "updateDeleteMessages"_L1) {
        if (object.value("from_cache"_L1).toBool())
            return true;
        const std::optional<qint64> chat = int64From(object.value("chat_id"_L1));
        for (const QJsonValue &id : object.value("message_ids"_L1).toArray()) {
            if (const auto messageID = int64From(id))
                removeMessage(*messageID, chat);
        }
    } else if (type == "updateUser"_L1) {
        storeUser(object.value("user"_L1).toObject());
    } else if (type == "user"_L1) {
        storeUser(object);
    } else if (type == "updateUserStatus"_L1) {
        if (const auto userID = int64From(object.value("user_id"_L1)))
            m_users->setOnline(*userID, typeOf(object.value("status"_L1)) == "userStatusOnline"_L1);
    } else if (type == "updateFile"_L1) {
        m_downloads->trackProgress(object.value("file"_L1).toObject());
        applyDownloadedFile(object.value("file"_L1).toObject());
    } else {
        return false;
    }
    return true;
}
