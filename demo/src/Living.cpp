#include "Client.h"

#include "Json.h"
#include "Runtime.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace demo {

namespace {

const char16_t *const kChatter[] = {
    u"Are you free later? :)",
    u"Just saw something funny :D",
    u"Coffee tomorrow?",
    u"Look what I found: https://example.org/cats",
    u"On my way!",
    u"Thanks for yesterday <3",
    u"Did anyone try the new café?",
    u"Photos coming soon 📸",
};

QJsonObject typingUpdate(qint64 chatID, qint64 userID, const char *action)
{
    return object("updateChatAction", {{"chat_id", chatID},
                                       {"topic_id", QJsonValue::Null},
                                       {"sender_id", object("messageSenderUser", {{"user_id", userID}})},
                                       {"action", object(action)}});
}

constexpr int kIncomingPollMs = 100;

} // namespace

void Client::watchIncoming(const QString &path)
{
    // The file names the chat on its first line; the rest is the text, sent by the
    // chat's other side (a group's last sender, nobody in a channel).
    QFile file(path);
    if (m_account && file.open(QIODevice::ReadOnly)) {
        const QString request = QString::fromUtf8(file.readAll());
        file.close();
        file.remove();
        const qsizetype lineEnd = request.indexOf(u'\n');
        const QString title = request.left(lineEnd).trimmed();
        const QString text = lineEnd < 0 ? QString() : request.mid(lineEnd + 1).trimmed();
        for (auto &[id, chat] : m_account->chats) {
            if (chat.title != title || text.isEmpty())
                continue;
            qint64 sender = chat.userID;
            for (auto it = chat.messages.crbegin(); sender == 0 && it != chat.messages.crend(); ++it)
                if (it->second.senderUserID != m_account->selfID())
                    sender = it->second.senderUserID;
            receiveMessage(chat, sender, m_account->textContent(text));
            break;
        }
    }
    after(kIncomingPollMs, [path](Client &client) { client.watchIncoming(path); });
}

void Client::receiveMessage(DemoChat &chat, qint64 senderID, const QJsonObject &content)
{
    DemoMessage message;
    message.chatID = chat.id;
    message.id = m_account->nextServerMessageID(chat);
    message.senderUserID = senderID;
    message.date = Runtime::now();
    message.content = content;
    if (chat.kind == ChatKind::Channel) {
        message.senderUserID = 0;
        message.views = 1;
    }
    const DemoMessage &stored = chat.messages[message.id] = message;
    chat.inList = true;
    announceChat(chat);
    update(object("updateNewMessage", {{"message", m_account->messageJson(stored)}}));
    chatLastMessageChanged(chat);
    chatReadInboxChanged(chat);
}

void Client::afterOutgoingSent(DemoChat &chat, const DemoMessage &sent)
{
    const qint64 chatID = chat.id;
    const qint64 messageID = sent.id;
    if (typeOf(sent.content) == "messageSticker"_L1) {
        const qint64 stickerID = int64Of(sent.content.value("sticker"_L1).toObject().value("id"_L1));
        std::vector<qint64> &recent = m_account->recentStickers;
        std::erase(recent, stickerID);
        recent.insert(recent.begin(), stickerID);
        QJsonArray fileIDs;
        for (qint64 id : recent)
            fileIDs.append(m_account->sticker(id)->fileID);
        update(object("updateRecentStickers", {{"is_attached", false}, {"sticker_ids", fileIDs}}));
    }
    const bool personal = chat.kind == ChatKind::Private || chat.kind == ChatKind::Secret;
    if (!personal || chat.userID == m_account->serviceID())
        return;
    // The other side reads the message after a moment.
    after(delay(100, 1500, 5000), [chatID, messageID](Client &client) {
        DemoChat *read = client.m_account->chat(chatID);
        if (!read || read->lastReadOutbox >= messageID)
            return;
        read->lastReadOutbox = messageID;
        client.update(
            object("updateChatReadOutbox", {{"chat_id", chatID}, {"last_read_outbox_message_id", messageID}}));
    });
    // An album is answered once, when its last message has gone.
    const bool albumStillSending =
        sent.albumID != 0 && std::any_of(chat.messages.cbegin(), chat.messages.cend(), [&sent](const auto &entry) {
            return entry.second.pending && entry.second.albumID == sent.albumID;
        });
    if (albumStillSending)
        return;
    if (chat.userID == m_account->botID()) {
        const QString type = typeOf(sent.content);
        const QString prompt =
            type == "messageText"_L1 ? sent.content.value("text"_L1).toObject().value("text"_L1).toString() : type;
        after(delay(150, 1800, 2500), [chatID](Client &client) {
            client.update(typingUpdate(chatID, client.m_account->botID(), "chatActionTyping"));
        });
        after(delay(200, 3000, 4500), [chatID, prompt](Client &client) { client.botAnswer(chatID, prompt); });
    } else if (!Runtime::deterministic() && random(3) == 0) {
        const qint64 userID = chat.userID;
        after(delay(0, 4000, 8000), [chatID, userID](Client &client) {
            client.update(typingUpdate(chatID, userID, "chatActionTyping"));
            client.after(delay(0, 2000, 5000), [chatID, userID](Client &again) {
                DemoChat *target = again.m_account->chat(chatID);
                if (!target)
                    return;
                again.update(typingUpdate(chatID, userID, "chatActionCancel"));
                again.receiveMessage(
                    *target, userID,
                    again.m_account->textContent(QString::fromUtf16(kChatter[random(int(std::size(kChatter)))])));
            });
        });
    }
}

void Client::botAnswer(qint64 chatID, const QString &prompt)
{
    DemoChat *chat = m_account->chat(chatID);
    if (!chat)
        return;
    Account &account = *m_account;
    update(typingUpdate(chatID, account.botID(), "chatActionCancel"));
    const QString lower = prompt.toLower();
    QJsonObject content;
    if (lower.contains(u"photo"_s) && prompt != "messagePhoto"_L1)
        content = account.photoContent(9000 + int(chat->messages.size()), 1024, 768, u"Here is a photo for you 📷"_s);
    else if (lower.contains(u"sticker"_s) && prompt != "messageSticker"_L1)
        content = account.stickerContent(account.stickerSets[1].stickers[2]);
    else if (prompt == "messagePhoto"_L1)
        content = account.textContent(u"Nice photo! 📸"_s);
    else if (prompt == "messageSticker"_L1)
        content = account.stickerContent(account.stickerSets[0].stickers[1]);
    else if (prompt.startsWith(u"message"_s))
        content = account.textContent(u"Got your file, thanks!"_s);
    else
        content = account.textContent(u"You said: “%1”. Ask me for a photo or a sticker :)"_s.arg(prompt));
    receiveMessage(*chat, account.botID(), content);
}

void Client::scheduleLife()
{
    if (Runtime::deterministic())
        return;
    scheduleChatter();
    // One chain of presence changes: each tick schedules the next.
    after(delay(0, 15000, 40000), [](Client &client) { client.presenceTick(); });
}

void Client::scheduleChatter()
{
    // VOST_DEMO_MESSAGE_EVERY_MS: a busy account, for soak benchmarks.
    bool busy = false;
    const int every = qEnvironmentVariableIntValue("VOST_DEMO_MESSAGE_EVERY_MS", &busy);
    after(busy && every > 0 ? every : delay(0, 20000, 60000), [](Client &client) {
        client.lifeTick();
        client.scheduleChatter();
    });
}

void Client::lifeTick()
{
    std::vector<DemoChat *> candidates;
    for (auto &[id, chat] : m_account->chats)
        if (chat.announced && chat.inList && !chat.archived && chat.userID != m_account->serviceID() &&
            chat.userID != m_account->botID())
            candidates.push_back(&chat);
    if (candidates.empty())
        return;
    DemoChat &chat = *candidates[size_t(random(int(candidates.size())))];
    std::vector<qint64> senders;
    for (const auto &[id, message] : chat.messages)
        if (message.senderUserID && message.senderUserID != m_account->selfID())
            senders.push_back(message.senderUserID);
    if (senders.empty() && chat.kind != ChatKind::Channel)
        return;
    const qint64 sender = senders.empty() ? 0 : senders[size_t(random(int(senders.size())))];
    const qint64 chatID = chat.id;
    if (sender)
        update(typingUpdate(chatID, sender, "chatActionTyping"));
    after(delay(0, 1500, 4000), [chatID, sender](Client &client) {
        DemoChat *target = client.m_account->chat(chatID);
        if (!target)
            return;
        if (sender)
            client.update(typingUpdate(chatID, sender, "chatActionCancel"));
        client.receiveMessage(
            *target, sender,
            client.m_account->textContent(QString::fromUtf16(kChatter[random(int(std::size(kChatter)))])));
    });
}

void Client::presenceTick()
{
    std::vector<DemoUser *> people;
    for (auto &[id, user] : m_account->users)
        if (id != m_account->selfID() && id != m_account->serviceID() && !user.isBot)
            people.push_back(&user);
    if (!people.empty()) {
        DemoUser &user = *people[size_t(random(int(people.size())))];
        if (user.presence == Presence::Online) {
            user.presence = Presence::Offline;
            user.wasOnline = Runtime::now();
        } else {
            user.presence = Presence::Online;
        }
        update(object("updateUserStatus", {{"user_id", user.id}, {"status", m_account->userStatusJson(user)}}));
    }
    after(delay(0, 15000, 40000), [](Client &client) { client.presenceTick(); });
}

} // namespace demo
