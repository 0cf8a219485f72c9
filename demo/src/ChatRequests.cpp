#include "Client.h"

#include "Json.h"
#include "MediaFiles.h"
#include "Runtime.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace demo {

namespace {

// A page before a given message comes as from a slow server. VOST_DEMO_PAGE_DELAY_MS
// lengthens it for tests that watch a page on its way.
int historyPageDelay(int otherwise)
{
    bool given = false;
    const int milliseconds = qEnvironmentVariableIntValue("VOST_DEMO_PAGE_DELAY_MS", &given);
    return given && milliseconds >= 0 ? milliseconds : otherwise;
}

bool isArchiveList(const QJsonObject &request)
{
    return typeOf(request.value("chat_list"_L1)) == "chatListArchive"_L1;
}

// What a search looks through: a message's text, or its media's caption.
QString searchableText(const DemoMessage &message)
{
    const QJsonObject content = message.content;
    const QJsonValue text = content.value("text"_L1).toObject().value("text"_L1);
    return text.isString() ? text.toString() : content.value("caption"_L1).toObject().value("text"_L1).toString();
}

} // namespace

QJsonObject Client::searchChat(const DemoChat &chat, const QString &query, qint64 fromMessageID, int limit) const
{
    // Newest first; a page starts below from_message_id and the next one below its last.
    QJsonArray page;
    int total = 0;
    qint64 last = 0;
    bool more = false;
    for (auto it = chat.messages.rbegin(); it != chat.messages.rend(); ++it) {
        const DemoMessage &message = it->second;
        if (message.pending || !searchableText(message).contains(query, Qt::CaseInsensitive))
            continue;
        ++total;
        if (fromMessageID != 0 && message.id >= fromMessageID)
            continue;
        if (page.size() < limit) {
            page.append(m_account->messageJson(message));
            last = message.id;
        } else {
            more = true;
        }
    }
    return object("foundChatMessages",
                  {{"total_count", total}, {"messages", page}, {"next_from_message_id", more ? last : qint64(0)}});
}

QByteArray makeBytes(const DemoFile &file)
{
    switch (file.recipe) {
    case FileRecipe::Photo:
        return media::photo(file.seed, file.width, file.height, file.name.endsWith(u".png"_s));
    case FileRecipe::Avatar:
        return media::avatar(file.seed, file.width);
    case FileRecipe::StickerWebp:
        return media::webpSticker(file.seed, file.width);
    case FileRecipe::StickerTgs:
        return media::tgsSticker(file.seed);
    case FileRecipe::Animation:
    case FileRecipe::Video:
        return media::gifAnimation(file.seed, file.width, file.height);
    case FileRecipe::Voice:
        return media::wavSound(file.seed, 4);
    case FileRecipe::Audio:
        return media::wavSound(file.seed + 3, 5);
    case FileRecipe::Pdf:
        return media::pdfDocument(QFileInfo(file.name).completeBaseName());
    case FileRecipe::Text:
        return media::textDocument(QFileInfo(file.name).completeBaseName());
    case FileRecipe::Uploaded:
        break;
    }
    return {};
}

void Client::announceChat(DemoChat &chat)
{
    if (chat.announced)
        return;
    chat.announced = true;
    if (chat.kind != ChatKind::Private)
        update(m_account->chatGroupJson(chat));
    update(object("updateNewChat", {{"chat", m_account->chatJson(chat)}}));
}

void Client::chatLastMessageChanged(const DemoChat &chat)
{
    update(object("updateChatLastMessage", {{"chat_id", chat.id},
                                            {"last_message", m_account->lastMessageJson(chat)},
                                            {"positions", m_account->positionsJson(chat)}}));
}

void Client::chatReadInboxChanged(const DemoChat &chat)
{
    update(object("updateChatReadInbox", {{"chat_id", chat.id},
                                          {"last_read_inbox_message_id", chat.lastReadInbox},
                                          {"unread_count", m_account->unreadCount(chat)}}));
}

QJsonObject Client::history(DemoChat &chat, qint64 fromMessageID, int offset, int limit, bool onlyLocal)
{
    QJsonArray list;
    // Like TDLib with an empty message database, the first request from the newest
    // message returns only what the chat already knows: its last message.
    const bool fetched = m_historyFetched.count(chat.id) > 0;
    if (!fetched && (onlyLocal || (fromMessageID == 0 && offset == 0))) {
        if (!onlyLocal)
            m_historyFetched.insert(chat.id);
        if (!chat.messages.empty())
            list.append(m_account->messageJson(chat.messages.rbegin()->second));
        return object("messages", {{"total_count", int(list.size())}, {"messages", list}});
    }
    m_historyFetched.insert(chat.id);
    std::vector<const DemoMessage *> newestFirst;
    for (auto it = chat.messages.rbegin(); it != chat.messages.rend(); ++it)
        newestFirst.push_back(&it->second);
    qsizetype start = 0;
    if (fromMessageID != 0)
        while (start < qsizetype(newestFirst.size()) && newestFirst[size_t(start)]->id > fromMessageID)
            ++start;
    qsizetype first = start + offset;
    const qsizetype end = std::min<qsizetype>(first + limit, qsizetype(newestFirst.size()));
    first = std::max<qsizetype>(first, 0);
    for (qsizetype i = first; i < end; ++i)
        list.append(m_account->messageJson(*newestFirst[size_t(i)]));
    return object("messages", {{"total_count", int(list.size())}, {"messages", list}});
}

bool Client::handleChats(const QString &type, const QJsonObject &request)
{
    Account &account = *m_account;
    if (type == "loadChats"_L1 || type == "getChats"_L1) {
        const bool archive = isArchiveList(request);
        const QString listType = typeOf(request.value("chat_list"_L1));
        if (listType != "chatListMain"_L1 && listType != "chatListArchive"_L1) {
            answer(request, error(400, u"Chat list not found"_s));
            return true;
        }
        const int limit = int(request.value("limit"_L1).toInteger());
        if (limit <= 0) {
            answer(request, error(400, u"Parameter limit must be positive"_s));
            return true;
        }
        const std::vector<qint64> ids = account.chatList(archive);
        int &loaded = m_loaded[archive ? 1 : 0];
        if (type == "loadChats"_L1 && loaded >= int(ids.size())) {
            answer(request, error(404, u"Not Found"_s));
            return true;
        }
        const int wanted = type == "loadChats"_L1 ? loaded + limit : limit;
        const int count = std::min(wanted, int(ids.size()));
        for (int i = 0; i < count; ++i) {
            DemoChat &chat = *account.chat(ids[size_t(i)]);
            if (chat.announced && i >= loaded)
                update(object("updateChatPosition",
                              {{"chat_id", chat.id}, {"position", account.positionsJson(chat).first()}}));
            announceChat(chat);
        }
        loaded = std::max(loaded, count);
        if (type == "loadChats"_L1) {
            answer(request, ok());
            return true;
        }
        QJsonArray chatIDs;
        for (int i = 0; i < count; ++i)
            chatIDs.append(ids[size_t(i)]);
        answer(request, object("chats", {{"total_count", int(ids.size())}, {"chat_ids", chatIDs}}));
        return true;
    }
    if (type == "getMe"_L1) {
        answer(request, account.userJson(account.selfID()));
        return true;
    }
    if (type == "getUser"_L1) {
        const QJsonObject user = account.userJson(int64Of(request.value("user_id"_L1)));
        answer(request, user.isEmpty() ? error(400, u"User not found"_s) : user);
        return true;
    }
    if (type == "downloadFile"_L1) {
        const int priority = int(request.value("priority"_L1).toInteger());
        if (priority < 1 || priority > 32) {
            answer(request, error(400, u"Download priority must be between 1 and 32"_s));
            return true;
        }
        downloadFile(request, int(request.value("file_id"_L1).toInteger()), request.value("synchronous"_L1).toBool());
        return true;
    }
    if (type == "getFile"_L1) {
        DemoFile *file = account.file(int(request.value("file_id"_L1).toInteger()));
        answer(request, file ? account.fileJson(file->id) : error(400, u"Invalid file identifier"_s));
        return true;
    }
    const qint64 chatID = int64Of(request.value("chat_id"_L1));
    if (type == "getChat"_L1 || type == "openChat"_L1 || type == "closeChat"_L1 || type == "getChatHistory"_L1) {
        DemoChat *chat = account.chat(chatID);
        if (!chat) {
            answer(request, error(400, u"Chat not found"_s));
            return true;
        }
        announceChat(*chat);
        if (type == "getChat"_L1) {
            answer(request, account.chatJson(*chat));
        } else if (type == "getChatHistory"_L1) {
            const int limit = int(request.value("limit"_L1).toInteger());
            const int offset = int(request.value("offset"_L1).toInteger());
            if (limit <= 0)
                answer(request, error(400, u"Parameter limit must be positive"_s));
            else if (offset > 0)
                answer(request, error(400, u"Parameter offset must be non-positive"_s));
            else if (offset <= -limit)
                answer(request, error(400, u"Parameter offset must be greater than -limit"_s));
            else if (const qint64 from = int64Of(request.value("from_message_id"_L1)); from == 0)
                answer(request,
                       history(*chat, from, offset, std::min(limit, 100), request.value("only_local"_L1).toBool()));
            else
                // Pages before a message come as from the server, after a moment.
                after(historyPageDelay(delay(1200, 200, 900)),
                      [request, page = history(*chat, from, offset, std::min(limit, 100),
                                               request.value("only_local"_L1).toBool())](Client &client) {
                          client.answer(request, page);
                      });
        } else {
            answer(request, ok());
        }
        return true;
    }
    if (type == "searchChatMessages"_L1) {
        const DemoChat *chat = account.chat(chatID);
        const int limit = int(request.value("limit"_L1).toInteger());
        if (!chat)
            answer(request, error(400, u"Chat not found"_s));
        else if (limit <= 0)
            answer(request, error(400, u"Parameter limit must be positive"_s));
        else if (request.value("offset"_L1).toInteger() != 0)
            answer(request, error(400, u"Only offset 0 is supported"_s));
        else
            answer(request, searchChat(*chat, request.value("query"_L1).toString().trimmed(),
                                       int64Of(request.value("from_message_id"_L1)), std::min(limit, 100)));
        return true;
    }
    if (type == "getMessage"_L1) {
        const DemoChat *chat = account.chat(chatID);
        const qint64 messageID = int64Of(request.value("message_id"_L1));
        if (!chat)
            answer(request, error(400, u"Chat not found"_s));
        else if (const auto found = chat->messages.find(messageID); found == chat->messages.end())
            answer(request, error(404, u"Not Found"_s));
        else
            answer(request, account.messageJson(found->second));
        return true;
    }
    if (type == "viewMessages"_L1) {
        DemoChat *chat = account.chat(chatID);
        if (!chat) {
            answer(request, error(400, u"Chat not found"_s));
            return true;
        }
        qint64 newest = 0;
        for (const QJsonValue &id : request.value("message_ids"_L1).toArray()) {
            const auto it = chat->messages.find(int64Of(id));
            if (it != chat->messages.end() && !it->second.pending)
                newest = std::max(newest, it->first);
        }
        if (newest > chat->lastReadInbox) {
            chat->lastReadInbox = newest;
            chatReadInboxChanged(*chat);
        }
        if (chat->markedUnread && request.value("force_read"_L1).toBool()) {
            chat->markedUnread = false;
            update(object("updateChatIsMarkedAsUnread", {{"chat_id", chat->id}, {"is_marked_as_unread", false}}));
        }
        answer(request, ok());
        return true;
    }
    return false;
}

void Client::downloadFile(const QJsonObject &request, int fileID, bool synchronous)
{
    DemoFile *file = m_account->file(fileID);
    if (!file) {
        answer(request, error(400, u"Invalid file identifier"_s));
        return;
    }
    if (file->completed && !QFile::exists(file->localPath) && file->recipe != FileRecipe::Uploaded)
        file->completed = false;
    if (file->completed) {
        answer(request, m_account->fileJson(fileID));
        return;
    }
    if (synchronous) {
        finishDownload(fileID);
        answer(request, m_account->fileJson(fileID));
        return;
    }
    const bool started = !file->downloading;
    file->downloading = true;
    update(object("updateFile", {{"file", m_account->fileJson(fileID)}}));
    answer(request, m_account->fileJson(fileID));
    if (!started)
        return;
    after(delay(40, 80, 300), [fileID](Client &client) {
        DemoFile *half = client.m_account->file(fileID);
        if (!half || half->completed)
            return;
        half->downloaded = half->size / 2;
        client.update(object("updateFile", {{"file", client.m_account->fileJson(fileID)}}));
        client.after(delay(40, 80, 400), [fileID](Client &again) { again.finishDownload(fileID); });
    });
}

void Client::finishDownload(int fileID)
{
    DemoFile *file = m_account->file(fileID);
    if (!file || file->completed)
        return;
    const QString folder = m_filesDirectory + u'/' + file->folder;
    const QString path = folder + u'/' + file->name;
    const QByteArray bytes = makeBytes(*file);
    QDir().mkpath(folder);
    QFile out(path);
    file->downloading = false;
    if (bytes.isEmpty() || !out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size()) {
        file->downloaded = 0;
        update(object("updateFile", {{"file", m_account->fileJson(fileID)}}));
        return;
    }
    out.close();
    file->size = bytes.size();
    file->downloaded = bytes.size();
    file->localPath = path;
    file->completed = true;
    update(object("updateFile", {{"file", m_account->fileJson(fileID)}}));
}

} // namespace demo
