#include "Client.h"

#include "Json.h"
#include "Runtime.h"

#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>

using namespace Qt::StringLiterals;

namespace demo {

namespace {

// The local path of an input file, looking through the wrappers around it
// (inputPhoto, inputDocument, inputSticker).
QString localPath(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    if (object.value("@type"_L1).toString() == "inputFileLocal"_L1)
        return object.value("path"_L1).toString();
    for (const char *key : {"photo", "document", "sticker"})
        if (object.value(QLatin1StringView(key)).isObject())
            return localPath(object.value(QLatin1StringView(key)));
    return {};
}

int fileIdOf(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    if (object.value("@type"_L1).toString() == "inputFileId"_L1)
        return int(object.value("id"_L1).toInteger());
    if (object.value("sticker"_L1).isObject())
        return fileIdOf(object.value("sticker"_L1));
    return 0;
}

QJsonObject captionOf(const QJsonObject &input)
{
    const QString text = input.value("caption"_L1).toObject().value("text"_L1).toString();
    return formattedText(text, urlEntities(text));
}

} // namespace

QJsonObject Client::contentFromInput(const QJsonObject &input, QString *failure)
{
    Account &account = *m_account;
    const QString type = input.value("@type"_L1).toString();
    if (type == "inputMessageText"_L1) {
        const QString text = input.value("text"_L1).toObject().value("text"_L1).toString();
        if (text.trimmed().isEmpty()) {
            *failure = u"Message must be non-empty"_s;
            return {};
        }
        return account.textContent(text);
    }
    if (type == "inputMessageSticker"_L1) {
        const DemoSticker *sticker = account.stickerByFile(fileIdOf(input.value("sticker"_L1)));
        if (!sticker) {
            *failure = u"Sticker not found"_s;
            return {};
        }
        return account.stickerContent(sticker->id);
    }
    if (type == "inputMessagePhoto"_L1 || type == "inputMessageDocument"_L1) {
        const bool photo = type == "inputMessagePhoto"_L1;
        const QString path = localPath(input.value(photo ? "photo"_L1 : "document"_L1));
        const QFileInfo info(path);
        if (path.isEmpty() || !info.isFile()) {
            *failure = u"File not found"_s;
            return {};
        }
        const int fileID = account.newFile(FileRecipe::Uploaded, {}, info.fileName(), 0, 0, 0, info.size());
        DemoFile &file = *account.file(fileID);
        file.localPath = info.absoluteFilePath();
        file.completed = true;
        file.uploading = true;
        if (!photo) {
            const QString mime = QMimeDatabase().mimeTypeForFile(info).name();
            return object("messageDocument", {{"document", object("document", {{"file_name", info.fileName()},
                                                                               {"mime_type", mime},
                                                                               {"minithumbnail", QJsonValue::Null},
                                                                               {"thumbnail", QJsonValue::Null},
                                                                               {"document", account.fileRef(fileID)}})},
                                              {"caption", captionOf(input)}});
        }
        const QSize size = QImageReader(path).size();
        const QJsonArray sizes{object("photoSize", {{"type", u"y"_s},
                                                    {"photo", account.fileRef(fileID)},
                                                    {"width", std::max(1, size.width())},
                                                    {"height", std::max(1, size.height())},
                                                    {"progressive_sizes", QJsonArray{}}})};
        return object(
            "messagePhoto",
            {{"photo",
              object("photo", {{"has_stickers", false}, {"minithumbnail", QJsonValue::Null}, {"sizes", sizes}})},
             {"video", QJsonValue::Null},
             {"caption", captionOf(input)},
             {"show_caption_above_media", false},
             {"has_spoiler", false},
             {"is_secret", false}});
    }
    *failure = u"The message content is not supported by the demo account"_s;
    return {};
}

DemoMessage &Client::addPending(DemoChat &chat, const QJsonObject &content, qint64 replyTo, qint64 albumID)
{
    DemoMessage message;
    message.chatID = chat.id;
    qint64 last = chat.messages.empty() ? 0 : chat.messages.rbegin()->first;
    message.id = last + 1; // yet unsent messages sit between the server's ids
    message.senderUserID = m_account->selfID();
    message.outgoing = true;
    message.pending = true;
    message.date = Runtime::now();
    message.content = content;
    message.albumID = albumID;
    message.replyTo = chat.messages.count(replyTo) ? replyTo : 0;
    if (chat.kind == ChatKind::Channel)
        message.senderUserID = 0;
    DemoMessage &stored = chat.messages[message.id] = message;
    chat.inList = true;
    announceChat(chat);
    update(object("updateNewMessage", {{"message", m_account->messageJson(stored)}}));
    chatLastMessageChanged(chat);
    if (!chat.draft.isEmpty()) {
        chat.draft.clear();
        update(object("updateChatDraftMessage", {{"chat_id", chat.id},
                                                 {"draft_message", QJsonValue::Null},
                                                 {"positions", m_account->positionsJson(chat)}}));
    }
    return stored;
}

void Client::completeSending(qint64 chatID, qint64 localID)
{
    DemoChat *chat = m_account->chat(chatID);
    if (!chat || !chat->messages.count(localID))
        return;
    DemoMessage sent = chat->messages[localID];
    chat->messages.erase(localID);
    sent.pending = false;
    sent.id = m_account->nextServerMessageID(*chat);
    sent.date = Runtime::now();
    // Uploaded files are finished before the message is.
    const std::function<void(const QJsonValue &)> finishUploads = [&](const QJsonValue &value) {
        if (value.isArray())
            for (const QJsonValue &element : value.toArray())
                finishUploads(element);
        const QJsonObject object = value.toObject();
        if (object.value("@type"_L1).toString() == "file"_L1) {
            DemoFile *file = m_account->file(int(object.value("id"_L1).toInteger()));
            if (file && file->uploading) {
                file->uploading = false;
                update(demo::object("updateFile", {{"file", m_account->fileJson(file->id)}}));
            }
            return;
        }
        for (const QJsonValue &child : object)
            finishUploads(child);
    };
    finishUploads(sent.content);
    DemoMessage &stored = chat->messages[sent.id] = sent;
    update(object("updateMessageSendSucceeded",
                  {{"message", m_account->messageJson(stored)}, {"old_message_id", localID}}));
    chatLastMessageChanged(*chat);
    // Writing to a chat reads everything in it.
    if (m_account->unreadCount(*chat) > 0) {
        chat->lastReadInbox = stored.id;
        chatReadInboxChanged(*chat);
    }
    afterOutgoingSent(*chat, stored);
}

bool Client::handleMessages(const QString &type, const QJsonObject &request)
{
    Account &account = *m_account;
    const qint64 chatID = int64Of(request.value("chat_id"_L1));
    if (type == "sendMessage"_L1 || type == "sendMessageAlbum"_L1 || type == "forwardMessages"_L1 ||
        type == "editMessageText"_L1 || type == "deleteMessages"_L1 || type == "addMessageReaction"_L1 ||
        type == "removeMessageReaction"_L1) {
        if (!account.chat(chatID)) {
            answer(request, error(400, u"Chat not found"_s));
            return true;
        }
    } else {
        return false;
    }
    DemoChat &chat = *account.chat(chatID);
    const int sendDelay = delay(100, 300, 900);
    if (type == "sendMessage"_L1 || type == "sendMessageAlbum"_L1) {
        if (chat.kind == ChatKind::Channel) {
            answer(request, error(400, u"Have no rights to send a message"_s));
            return true;
        }
        const qint64 replyTo = int64Of(request.value("reply_to"_L1).toObject().value("message_id"_L1));
        QJsonArray inputs = type == "sendMessage"_L1 ? QJsonArray{request.value("input_message_content"_L1)}
                                                     : request.value("input_message_contents"_L1).toArray();
        std::vector<QJsonObject> contents;
        for (const QJsonValue &input : inputs) {
            QString failure;
            contents.push_back(contentFromInput(input.toObject(), &failure));
            if (!failure.isEmpty()) {
                answer(request, error(400, failure));
                return true;
            }
        }
        if (contents.empty() || contents.size() > 10) {
            answer(request, error(400, u"Invalid number of messages to send"_s));
            return true;
        }
        const qint64 albumID = type == "sendMessageAlbum"_L1 && contents.size() > 1 ? account.newAlbumID() : 0;
        QJsonArray messages;
        std::vector<qint64> localIDs;
        for (const QJsonObject &content : contents) {
            DemoMessage &pending = addPending(chat, content, replyTo, albumID);
            localIDs.push_back(pending.id);
            messages.append(account.messageJson(pending));
        }
        if (type == "sendMessage"_L1)
            answer(request, messages.first().toObject());
        else
            answer(request, object("messages", {{"total_count", int(messages.size())}, {"messages", messages}}));
        after(sendDelay, [chatID, localIDs](Client &client) {
            for (qint64 localID : localIDs)
                client.completeSending(chatID, localID);
        });
        return true;
    }
    if (type == "forwardMessages"_L1) {
        DemoChat *source = account.chat(int64Of(request.value("from_chat_id"_L1)));
        if (!source) {
            answer(request, error(400, u"Chat not found"_s));
            return true;
        }
        QJsonArray messages;
        std::vector<qint64> localIDs;
        for (const QJsonValue &id : request.value("message_ids"_L1).toArray()) {
            const auto it = source->messages.find(int64Of(id));
            if (it == source->messages.end() || it->second.pending) {
                messages.append(QJsonValue::Null);
                continue;
            }
            const DemoMessage original = it->second;
            DemoMessage &copy = addPending(chat, original.content, 0, 0);
            const bool sendCopy = request.value("send_copy"_L1).toBool();
            if (!sendCopy) {
                copy.forwardedFromUser = original.forwardedFromUser ? original.forwardedFromUser
                                         : original.senderUserID    ? original.senderUserID
                                                                    : 0;
                copy.forwardDate = original.forwardDate ? original.forwardDate : original.date;
            }
            localIDs.push_back(copy.id);
            messages.append(account.messageJson(copy));
        }
        answer(request, object("messages", {{"total_count", int(messages.size())}, {"messages", messages}}));
        after(sendDelay, [chatID, localIDs](Client &client) {
            for (qint64 localID : localIDs)
                client.completeSending(chatID, localID);
        });
        return true;
    }
    DemoMessage *message = account.message(chatID, int64Of(request.value("message_id"_L1)));
    if (type == "editMessageText"_L1) {
        if (!message) {
            answer(request, error(400, u"Message not found"_s));
            return true;
        }
        const QJsonObject input = request.value("input_message_content"_L1).toObject();
        if (!message->outgoing || message->pending || typeOf(message->content) != "messageText"_L1 ||
            input.value("@type"_L1).toString() != "inputMessageText"_L1) {
            answer(request, error(400, u"Message can't be edited"_s));
            return true;
        }
        const QString text = input.value("text"_L1).toObject().value("text"_L1).toString();
        if (text.trimmed().isEmpty()) {
            answer(request, error(400, u"Message must be non-empty"_s));
            return true;
        }
        message->content = account.textContent(text);
        message->editDate = Runtime::now();
        update(object("updateMessageContent",
                      {{"chat_id", chatID}, {"message_id", message->id}, {"new_content", message->content}}));
        update(object("updateMessageEdited", {{"chat_id", chatID},
                                              {"message_id", message->id},
                                              {"edit_date", message->editDate},
                                              {"reply_markup", QJsonValue::Null}}));
        if (chat.messages.rbegin()->first == message->id)
            chatLastMessageChanged(chat);
        answer(request, account.messageJson(*message));
        return true;
    }
    if (type == "deleteMessages"_L1) {
        const qint64 lastBefore = chat.messages.empty() ? 0 : chat.messages.rbegin()->first;
        const int unreadBefore = account.unreadCount(chat);
        QJsonArray deleted;
        for (const QJsonValue &id : request.value("message_ids"_L1).toArray())
            if (chat.messages.erase(int64Of(id)))
                deleted.append(int64Of(id));
        if (!deleted.isEmpty())
            update(
                object("updateDeleteMessages",
                       {{"chat_id", chatID}, {"message_ids", deleted}, {"is_permanent", true}, {"from_cache", false}}));
        const qint64 lastAfter = chat.messages.empty() ? 0 : chat.messages.rbegin()->first;
        if (lastAfter != lastBefore)
            chatLastMessageChanged(chat);
        if (account.unreadCount(chat) != unreadBefore)
            chatReadInboxChanged(chat);
        answer(request, ok());
        return true;
    }
    // Reactions.
    if (!message) {
        answer(request, error(400, u"Message not found"_s));
        return true;
    }
    const QJsonObject reactionType = request.value("reaction_type"_L1).toObject();
    const QString emoji = reactionType.value("emoji"_L1).toString();
    const qint64 customID = int64Of(reactionType.value("custom_emoji_id"_L1));
    if (emoji.isEmpty() && customID == 0) {
        answer(request, error(400, u"REACTION_INVALID"_s));
        return true;
    }
    auto found = std::find_if(message->reactions.begin(), message->reactions.end(), [&](const DemoReaction &r) {
        return emoji.isEmpty() ? r.customEmojiID == customID : r.emoji == emoji;
    });
    bool changed = false;
    if (type == "addMessageReaction"_L1) {
        if (found == message->reactions.end()) {
            message->reactions.push_back({emoji, emoji.isEmpty() ? customID : 0, 1, true});
            changed = true;
        } else if (!found->chosen) {
            found->chosen = true;
            ++found->count;
            changed = true;
        }
    } else if (found != message->reactions.end() && found->chosen) {
        found->chosen = false;
        if (--found->count <= 0)
            message->reactions.erase(found);
        changed = true;
    }
    if (changed)
        update(object("updateMessageInteractionInfo", {{"chat_id", chatID},
                                                       {"message_id", message->id},
                                                       {"interaction_info", account.interactionInfoJson(*message)}}));
    answer(request, ok());
    return true;
}

} // namespace demo
