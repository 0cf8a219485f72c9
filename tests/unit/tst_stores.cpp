// The session's stores on their own: what each forgets when the account changes,
// and that each leaves answers and updates that are not its own to the others.

#include "platform/SoundPlayer.h"
#include "session/Announcer.h"
#include "session/AuthorizationStore.h"
#include "session/ChatListStore.h"
#include "session/ChatMessages.h"
#include "session/ContactStore.h"
#include "session/DownloadStore.h"
#include "session/HistoryProgress.h"
#include "session/Preferences.h"
#include "session/RepliedMessageStore.h"
#include "session/SoundManager.h"
#include "session/StickerStore.h"
#include "session/TDLibChannel.h"
#include "session/UserStore.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Request {
    QString type;
    TdObject fields;
};

// Keeps what a store sends, as TDLib would receive it.
struct Sent {
    QList<Request> requests;
    SendRequest sender()
    {
        return [this](const QString &type, const TdObject &fields) { requests.append({type, fields}); };
    }
    TdObject extraOf(const QString &type) const
    {
        for (const Request &request : requests) {
            if (request.type == type)
                return request.fields.value("@extra"_L1).toObject();
        }
        return {};
    }
    int count(const QString &type) const
    {
        return int(
            std::count_if(requests.cbegin(), requests.cend(), [&type](const Request &r) { return r.type == type; }));
    }
};

TdObject file(qint64 id, const QString &path = {})
{
    return {{"@type"_L1, u"file"_s},
            {"id"_L1, id},
            {"local"_L1, TdObject{{"path"_L1, path}, {"is_downloading_completed"_L1, !path.isEmpty()}}}};
}

TdObject sticker(qint64 id, qint64 fileID)
{
    return {{"@type"_L1, u"sticker"_s},  {"id"_L1, QString::number(id)},
            {"emoji"_L1, u"🙂"_s},     {"width"_L1, 512},
            {"height"_L1, 512},          {"format"_L1, TdObject{{"@type"_L1, u"stickerFormatWebp"_s}}},
            {"sticker"_L1, file(fileID)}};
}

TdObject user(qint64 id, const QString &firstName, bool online = false, std::optional<bool> contact = {})
{
    TdObject object{{"@type"_L1, u"user"_s},
                    {"id"_L1, id},
                    {"first_name"_L1, firstName},
                    {"last_name"_L1, u""_s},
                    {"status"_L1, TdObject{{"@type"_L1, online ? u"userStatusOnline"_s : u"userStatusOffline"_s}}},
                    {"profile_photo"_L1, TdObject{{"small"_L1, file(900 + id)}}}};
    if (contact)
        object.insert("is_contact"_L1, *contact);
    return object;
}

TdObject answer(const QString &type, const TdObject &extra, TdObject fields = {})
{
    fields.insert("@type"_L1, type);
    fields.insert("@extra"_L1, extra);
    return fields;
}

// The sounds as the speaker would get them.
struct HeardSounds : SoundPlayer {
    QStringList names;
    void play(const QString &name) override { names.append(name); }
};

} // namespace

class StoresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stickersResetForgetsTheLoadAndItsLateAnswers()
    {
        Sent sent;
        StickerStore stickers(sent.sender());
        stickers.load(QString(), u"recent"_s);
        const TdObject extra = sent.extraOf(u"getRecentStickers"_s);
        QVERIFY(!extra.value("sticker_request"_L1).toString().isEmpty());
        const TdObject list{{"stickers"_L1, QJsonArray{sticker(1, 11), sticker(2, 12)}}};
        QVERIFY(stickers.handleAnswer(u"stickers"_s, extra, list));
        QCOMPARE(stickers.recentStickers().size(), 2);
        QVERIFY(stickers.recentStickersLoaded());
        QCOMPARE(sent.count(u"downloadFile"_s), 2);

        QSignalSpy changed(&stickers, &StickerStore::recentStickersChanged);
        stickers.reset();
        QVERIFY(stickers.recentStickers().isEmpty());
        QVERIFY(!stickers.recentStickersLoaded());
        QVERIFY(!stickers.stickerError());
        QCOMPARE(changed.size(), 1);
        // The old load's answers and files are taken and change nothing.
        QVERIFY(stickers.handleAnswer(u"stickers"_s, extra, list));
        QVERIFY(stickers.handleAnswer(u"error"_s, extra, {}));
        stickers.applyDownloadedFile(11, u"/tmp/eleven.webp"_s);
        QVERIFY(stickers.recentStickers().isEmpty());
        QVERIFY(!stickers.stickerError());
        QCOMPARE(changed.size(), 1);
    }

    void stickersLeaveOtherAnswersAlone()
    {
        Sent sent;
        StickerStore stickers(sent.sender());
        stickers.load(u"cat"_s, u"all"_s);
        const TdObject own = sent.extraOf(u"searchStickers"_s);
        QVERIFY(!stickers.handleAnswer(u"stickers"_s, {{"purpose"_L1, u"recent_stickers"_s}}, {}));
        QVERIFY(!stickers.handleAnswer(u"error"_s, {{"purpose"_L1, u"load_chat_list"_s}}, {}));
        QVERIFY(!stickers.handleAnswer(u"messages"_s, own, {}));
        QVERIFY(!stickers.stickerError());
        QVERIFY(stickers.handleAnswer(u"error"_s, own, {}));
        QCOMPARE(stickers.stickerError(), std::optional(u"Unable to load stickers."_s));
    }

    void chatListKeepsTdLibsOrderAndForgetsTheAccount()
    {
        ChatListStore list;
        QSignalSpy changed(&list, &ChatListStore::changed);
        const auto describe = [&list](qint64 id, const QJsonArray &positions) {
            ChatListStore::Record &record = list.record(id);
            Chat chat;
            chat.id = QString::number(id);
            chat.title = chat.id;
            record.chat = chat;
            list.place(chat.id, positions, true);
        };
        const auto at = [](qint64 order, const QString &listType = ChatListStore::mainList, bool pinned = false) {
            return TdObject{{"list"_L1, TdObject{{"@type"_L1, listType}}},
                            {"order"_L1, QString::number(order)},
                            {"is_pinned"_L1, pinned}};
        };
        const auto ids = [&list] {
            QStringList shown;
            for (const Chat &chat : list.chats())
                shown.append(chat.id);
            return shown;
        };
        // More chats than the index moves one by one: it is sorted whole, in the same order.
        for (qint64 id = 1; id <= 100; ++id)
            describe(id, QJsonArray{at(1000 - id)});
        describe(200, QJsonArray{at(5000, ChatListStore::archiveList, true)});
        // A chat without a position is in no list.
        describe(300, QJsonArray{});
        list.sort();
        QCOMPARE(ids().size(), 101);
        QCOMPARE(ids().first(), u"200"_s);
        QVERIFY(list.chats().first().isArchived && list.chats().first().isPinned);
        QCOMPARE(ids().at(1), u"1"_s);
        QCOMPARE(ids().last(), u"100"_s);

        // A few moves at a time.
        list.place(u"100"_s, QJsonArray{at(2000)}, true);
        list.sort();
        QCOMPARE(ids().at(1), u"100"_s);

        // A deleted chat leaves the list until opened again; an opened one shows before it has a place.
        list.forget(u"1"_s);
        list.sort();
        QVERIFY(!ids().contains(u"1"_s));
        QVERIFY(list.isRemoved(u"1"_s));
        list.openExplicitly(u"300"_s);
        list.markToSort(u"300"_s);
        list.sort();
        QVERIFY(ids().contains(u"300"_s));

        list.setPrivateChatUser(list.record(7), u"7"_s, 42);
        list.record(7).lastReadInbox = 9;
        QVERIFY(list.beginLoading(ChatListStore::mainList));
        QVERIFY(!list.beginLoading(ChatListStore::mainList));
        changed.clear();
        list.reset();
        QCOMPARE(changed.size(), 1);
        QVERIFY(list.chats().isEmpty());
        QVERIFY(list.privateChatsWith(42).isEmpty());
        QVERIFY(!list.isRemoved(u"1"_s));
        QVERIFY(list.beginLoading(ChatListStore::mainList));
        // What describes Telegram stays.
        QCOMPARE(list.find(7)->lastReadInbox, 9);
        // A chat described again takes its place anew.
        describe(5, QJsonArray{at(10)});
        list.sort();
        QCOMPARE(ids(), QStringList{u"5"_s});
    }

    void repliedMessagesAreAskedOnceAndForgottenAtReset()
    {
        Sent sent;
        RepliedMessageStore replied(sent.sender());
        const auto replyTo = [](qint64 id, std::optional<qint64> chat = std::nullopt) {
            TdObject reply{{"@type"_L1, u"messageReplyToMessage"_s}, {"message_id"_L1, id}};
            if (chat)
                reply.insert("chat_id"_L1, *chat);
            return TdObject{{"id"_L1, 100 + id}, {"reply_to"_L1, reply}};
        };
        const TdObject held{{"id"_L1, 2}};
        const QList<TdObject> messages{replyTo(1), replyTo(1), replyTo(2), replyTo(3, 99), replyTo(0)};
        // Only the one neither held, nor of another chat, nor asked before.
        replied.requestMissing(5, messages, {{2, &held}});
        replied.requestMissing(5, messages, {{2, &held}});
        QCOMPARE(sent.count(u"getMessage"_s), 1);
        const TdObject extra = sent.extraOf(u"getMessage"_s);

        const TdObject answer{{"@type"_L1, u"message"_s}, {"id"_L1, 1}};
        QCOMPARE(replied.handleAnswer(extra, u"message"_s, answer), u"5"_s);
        QVERIFY(replied.message(u"5"_s, 1));
        QVERIFY(!replied.message(u"6"_s, 1));
        // An answer nobody asked for, or of another kind, is not its own.
        QCOMPARE(replied.handleAnswer(TdObject{{"chat_id"_L1, 5}, {"message_id"_L1, 7}}, u"message"_s, answer),
                 std::nullopt);
        QCOMPARE(replied.handleAnswer(extra, u"ok"_s, {}), std::nullopt);

        replied.reset();
        QVERIFY(!replied.message(u"5"_s, 1));
        // A late error from before the reset changes nothing.
        QCOMPARE(replied.handleAnswer(extra, u"error"_s, {}), std::nullopt);
        QVERIFY(!replied.isMissing(u"5"_s, 1));
        replied.requestMissing(5, messages, {});
        QCOMPARE(sent.count(u"getMessage"_s), 3);
        QCOMPARE(replied.handleAnswer(sent.extraOf(u"getMessage"_s), u"error"_s, {}), u"5"_s);
        QVERIFY(replied.isMissing(u"5"_s, 1));
    }

    void historyPagesOneAtATimeAndAroundTheLastAskedMessage()
    {
        HistoryProgress history;
        const QString chat = u"5"_s;
        QVERIFY(history.beginFirstLoad(chat));
        QVERIFY(!history.beginFirstLoad(chat));
        history.firstLoadMessages(chat).insert(9);
        QCOMPARE(history.firstLoadCount(chat), 1);
        history.endFirstLoad(chat);
        QVERIFY(!history.isFirstLoading(chat) && history.firstLoadCount(chat) == 0);

        QVERIFY(history.beginOlderPage(chat));
        QVERIFY(!history.beginOlderPage(chat));
        QVERIFY(history.isExpanded(chat));
        history.endOlderPage(chat, true);
        QVERIFY(history.isExhausted(chat));
        QVERIFY(!history.beginOlderPage(chat));

        // Only the message last asked for counts, once.
        history.askAround(chat, 1);
        history.askAround(chat, 2);
        QVERIFY(!history.takeAroundAnswer(chat, 1));
        QVERIFY(history.takeAroundAnswer(chat, 2));
        QVERIFY(!history.takeAroundAnswer(chat, 2));
        history.showAround(chat);
        QVERIFY(history.showsAround(chat) && !history.isExhausted(chat));
        QVERIFY(history.leaveAround(chat));
        QVERIFY(!history.leaveAround(chat));
        QVERIFY(!history.isExpanded(chat) && history.beginOlderPage(chat));

        history.askAround(chat, 3);
        history.reset();
        QVERIFY(!history.takeAroundAnswer(chat, 3));
        QVERIFY(!history.isLoadingOlder(chat));
    }

    void chatMessagesResetKeepsOnlyTheMarks()
    {
        ChatMessages messages;
        QVERIFY(!messages.stored(u"5"_s));
        messages.storedOrAdded(u"5"_s).append(StoredMessage(TdObject{{"id"_L1, 1}}));
        messages.storedOrAdded(u"6"_s);
        QCOMPARE(messages.chatsWithStored().size(), 2);
        messages.publish(u"5"_s, {Message{}}, {MessageDetails{}});
        messages.setLastReadOutbox(u"5"_s, 3);
        QVERIFY(messages.markViewed(u"5"_s, 4));
        QVERIFY(!messages.markViewed(u"5"_s, 4));
        QVERIFY(!messages.markViewed(u"7"_s, 0));

        QVERIFY(!messages.forget(u"6"_s));
        QCOMPARE(messages.reset(), QStringList{u"5"_s});
        QVERIFY(messages.published().isEmpty() && messages.publishedDetails().isEmpty());
        QVERIFY(messages.chatsWithStored().isEmpty());
        // How far each side read describes Telegram, not the account.
        QCOMPARE(messages.lastReadOutbox(u"5"_s), 3);
        QVERIFY(!messages.markViewed(u"5"_s, 4));
    }

    void downloadsFollowWhatWaitsForEachFile()
    {
        Sent sent;
        DownloadStore downloads(sent.sender());
        QSignalSpy progress(&downloads, &DownloadStore::progressChanged);
        // Asked for once shown; two chats show the same file.
        QCOMPARE(downloads.messageFile(file(7), u"1"_s), std::nullopt);
        QCOMPARE(downloads.messageFile(file(7), u"2"_s), std::nullopt);
        QCOMPARE(sent.count(u"downloadFile"_s), 2);
        downloads.addChatPhoto(8, u"3"_s);

        TdObject partial = file(7);
        partial.insert("size"_L1, 200);
        partial.insert("local"_L1, TdObject{{"downloaded_size"_L1, 50}});
        downloads.trackProgress(partial);
        downloads.trackProgress(partial);
        QCOMPARE(progress.size(), 1);
        QCOMPARE(progress.first().at(1).toDouble(), 0.25);
        // A chat photo's download shows no progress.
        downloads.trackProgress(file(8));
        QCOMPARE(progress.size(), 1);

        QTemporaryDir folder;
        const QString path = folder.filePath(u"photo.jpg"_s);
        QFile written(path);
        QVERIFY(written.open(QIODevice::WriteOnly));
        written.close();
        const DownloadStore::Waiting photo = downloads.applyDownloaded(7, path);
        QCOMPARE(photo.messageChats, (QSet<QString>{u"1"_s, u"2"_s}));
        QCOMPARE(photo.photoChat, std::nullopt);
        QCOMPARE(downloads.applyDownloaded(8, path).photoChat, u"3"_s);
        QCOMPARE(downloads.messageFile(file(7), u"1"_s), path);

        // A file deleted behind our back is asked for again.
        QVERIFY(QFile::remove(path));
        QCOMPARE(downloads.messageFile(file(7), u"1"_s), std::nullopt);
        QCOMPARE(sent.count(u"downloadFile"_s), 3);

        downloads.reset();
        QCOMPARE(downloads.applyDownloaded(7, path).messageChats, QSet<QString>());
        QCOMPARE(downloads.applyDownloaded(8, path).photoChat, std::nullopt);
        downloads.trackProgress(partial);
        QCOMPARE(progress.size(), 1);
    }

    void usersKeepPhotosAndPresence()
    {
        Sent sent;
        UserStore users(sent.sender());
        QSignalSpy presence(&users, &UserStore::presenceChanged);
        QSignalSpy avatars(&users, &UserStore::avatarArrived);
        users.store(user(7, u"Ada"_s, true));
        QVERIFY(users.user(7));
        QCOMPARE(users.user(7)->name, u"Ada"_s);
        QVERIFY(users.isOnline(7));
        QCOMPARE(presence.size(), 1);
        QCOMPARE(sent.count(u"downloadFile"_s), 1);

        users.applyDownloadedFile(4242, u"/tmp/other.jpg"_s); // nobody's photo
        QCOMPARE(avatars.size(), 0);
        users.applyDownloadedFile(907, u"/tmp/ada.jpg"_s);
        QCOMPARE(avatars.size(), 1);
        QCOMPARE(users.user(7)->avatarPath, std::optional(u"/tmp/ada.jpg"_s));
        // A later description without a photo here keeps the one that came.
        users.store(user(7, u"Ada L."_s));
        QCOMPARE(users.user(7)->avatarPath, std::optional(u"/tmp/ada.jpg"_s));
        QVERIFY(!users.isOnline(7));

        const TdObject typing{{"action"_L1, TdObject{{"@type"_L1, u"chatActionTyping"_s}}},
                              {"sender_id"_L1, TdObject{{"@type"_L1, u"messageSenderUser"_s}, {"user_id"_L1, 7}}}};
        QCOMPARE(users.typingSubtitle(typing, false, u"idle"_s), std::optional(u"Ada L. is typing…"_s));
        QCOMPARE(users.typingSubtitle(typing, true, u"idle"_s), std::optional(u"Typing…"_s));
        const TdObject recording{{"action"_L1, TdObject{{"@type"_L1, u"chatActionRecordingVideo"_s}}}};
        QVERIFY(!users.typingSubtitle(recording, true, u"idle"_s));
    }

    void usersAskOnceForUnknownSenders()
    {
        Sent sent;
        UserStore users(sent.sender());
        users.store(user(1, u"Known"_s));
        const auto from = [](qint64 id) {
            return TdObject{{"sender_id"_L1, TdObject{{"@type"_L1, u"messageSenderUser"_s}, {"user_id"_L1, id}}}};
        };
        const TdObject fromChat{{"sender_id"_L1, TdObject{{"@type"_L1, u"messageSenderChat"_s}, {"chat_id"_L1, 5}}}};
        users.requestMissingUsers({from(1), from(2), from(2), fromChat});
        users.requestMissingUsers({from(2)});
        QCOMPARE(sent.count(u"getUser"_s), 1);
    }

    void contactsResetLeavesNothingBehind()
    {
        Sent sent;
        UserStore users(sent.sender());
        ContactStore contacts(sent.sender(), users);
        contacts.refresh();
        QVERIFY(contacts.handleAnswer(
            u"contact_roster"_s, u"users"_s,
            answer(u"users"_s, sent.extraOf(u"getContacts"_s), {{"user_ids"_L1, QJsonArray{3, 4}}})));
        const TdObject rosterResult{{"purpose"_L1, u"contact_roster_result"_s}};
        QVERIFY(contacts.handleAnswer(u"contact_roster_result"_s, u"user"_s,
                                      answer(u"user"_s, rosterResult, user(3, u"Cleo"_s, false, true))));
        QCOMPARE(contacts.contacts().size(), 1);
        contacts.deleteChat(u"55"_s, std::nullopt);
        QCOMPARE(contacts.deletingChats(), QSet<QString>{u"55"_s});
        const QString requestID = contacts.beginConversation();
        QVERIFY(contacts.creatingConversation());

        contacts.reset();
        QVERIFY(contacts.contacts().isEmpty());
        QVERIFY(contacts.contactResults().isEmpty());
        QVERIFY(contacts.deletingChats().isEmpty());
        QVERIFY(!contacts.creatingConversation());
        QVERIFY(!contacts.conversationError());
        QVERIFY(!contacts.newlyOpenedChatID());
        // The old roster's order is gone: its late entries are not listed.
        QVERIFY(contacts.handleAnswer(u"contact_roster_result"_s, u"user"_s,
                                      answer(u"user"_s, rosterResult, user(4, u"Dora"_s, false, true))));
        QVERIFY(contacts.contacts().isEmpty());
        // A late answer to the conversation of the old account opens nothing.
        QSignalSpy opened(&contacts, &ContactStore::conversationChatReceived);
        const TdObject late{{"purpose"_L1, u"open_private_chat"_s}, {"conversation_request"_L1, requestID}};
        QVERIFY(contacts.handleAnswer(u"open_private_chat"_s, u"chat"_s,
                                      answer(u"chat"_s, late, {{"id"_L1, 55}, {"title"_L1, u"Cleo"_s}})));
        QCOMPARE(opened.size(), 0);
        QVERIFY(!contacts.newlyOpenedChatID());
    }

    void authorizationResetForgetsTheAccount()
    {
        Sent sent;
        AuthorizationStore authorization(sent.sender());
        QSignalSpy received(&authorization, &AuthorizationStore::currentUserReceived);
        const TdObject ready{{"authorization_state"_L1, TdObject{{"@type"_L1, u"authorizationStateReady"_s}}}};
        QVERIFY(authorization.handleUpdate(u"updateAuthorizationState"_s, ready, false));
        QVERIFY(authorization.isReady());
        const TdObject me = sent.extraOf(u"getMe"_s);
        TdObject self = user(12, u"Ada"_s);
        self.insert("phone_number"_L1, u"15550100"_s);
        QVERIFY(authorization.handleAnswer(me.value("purpose"_L1).toString(), u"user"_s, answer(u"user"_s, me, self)));
        QCOMPARE(authorization.currentAccountName(), u"Ada"_s);
        QCOMPARE(authorization.currentAccountPhoneNumber(), u"15550100"_s);
        QCOMPARE(authorization.currentUserID(), std::optional<qint64>(12));
        QCOMPARE(received.size(), 1);

        QSignalSpy name(&authorization, &AuthorizationStore::currentAccountNameChanged);
        QSignalSpy phone(&authorization, &AuthorizationStore::currentAccountPhoneNumberChanged);
        authorization.reset();
        QVERIFY(authorization.currentAccountName().isEmpty());
        QVERIFY(authorization.currentAccountPhoneNumber().isEmpty());
        QVERIFY(!authorization.currentUserID());
        QCOMPARE(name.size(), 1);
        QCOMPARE(phone.size(), 1);
    }

    void authorizationClosesQuietlyWhileQuitting()
    {
        Sent sent;
        AuthorizationStore authorization(sent.sender());
        QSignalSpy closed(&authorization, &AuthorizationStore::clientClosed);
        QSignalSpy left(&authorization, &AuthorizationStore::accountLeft);
        const auto state = [](const QString &type) {
            return TdObject{{"authorization_state"_L1, TdObject{{"@type"_L1, type}}}};
        };
        authorization.handleUpdate(u"updateAuthorizationState"_s, state(u"authorizationStateReady"_s), false);
        authorization.handleUpdate(u"updateAuthorizationState"_s, state(u"authorizationStateClosing"_s), true);
        authorization.handleUpdate(u"updateAuthorizationState"_s, state(u"authorizationStateClosed"_s), true);
        QCOMPARE(authorization.step(), Step::ready());
        QCOMPARE(closed.size(), 1);
        QCOMPARE(left.size(), 0);
        // Closed without logging out or quitting: the session is over.
        authorization.handleUpdate(u"updateAuthorizationState"_s, state(u"authorizationStateClosed"_s), false);
        QCOMPARE(authorization.step(), Step::unavailable(u"The Telegram session closed."_s));
        QCOMPARE(left.size(), 0);
    }

    void authorizationLeavesOtherAnswersAlone()
    {
        Sent sent;
        AuthorizationStore authorization(sent.sender());
        QSignalSpy step(&authorization, &AuthorizationStore::stepChanged);
        QSignalSpy received(&authorization, &AuthorizationStore::currentUserReceived);
        const TdObject roster{{"purpose"_L1, u"contact_roster_result"_s}};
        QVERIFY(!authorization.handleAnswer(u"contact_roster_result"_s, u"user"_s,
                                            answer(u"user"_s, roster, user(3, u"Cleo"_s))));
        const TdObject me{{"purpose"_L1, u"current_user"_s}};
        QVERIFY(!authorization.handleAnswer(u"current_user"_s, u"error"_s, answer(u"error"_s, me)));
        const TdObject wrapped{{"authorization_state"_L1, TdObject{{"@type"_L1, u"authorizationStateReady"_s}}}};
        QVERIFY(!authorization.handleUpdate(u"updateUser"_s, wrapped, false));
        QVERIFY(!authorization.handleUpdate(u"updateConnectionState"_s, wrapped, false));
        // Logging out before signing in does nothing.
        authorization.logOut();
        QCOMPARE(authorization.step(), Step::idle());
        QCOMPARE(step.size(), 0);
        QCOMPARE(received.size(), 0);
        QVERIFY(authorization.currentAccountName().isEmpty());
        QVERIFY(sent.requests.isEmpty());
    }

    void channelShowsEveryRequestAndEventToItsObservers()
    {
        Sent sent;
        TDLibChannel channel(sent.sender());
        QStringList observed;
        channel.setRequestObserver([&observed](const QString &type, const TdObject &) { observed.append(type); });
        QList<QByteArray> events;
        channel.setResponseObserver([&events](const QByteArray &json) { events.append(json); });
        channel.send(u"getMe"_s, {{"@extra"_L1, TdObject{{"purpose"_L1, u"current_user"_s}}}});
        QCOMPARE(observed, QStringList{u"getMe"_s});
        QCOMPARE(sent.extraOf(u"getMe"_s).value("purpose"_L1).toString(), u"current_user"_s);

        const auto read = channel.read(R"({"@type":"ok","@client_id":3})"_ba);
        QVERIFY(read);
        QCOMPARE(typeOf(*read), u"ok"_s);
        // Events that are not one JSON object are seen, and read as nothing.
        QVERIFY(!channel.read("[1]"_ba));
        QVERIFY(!channel.read(R"({"@type":)"_ba));
        QVERIFY(!channel.read(QByteArray()));
        QCOMPARE(events.size(), 4);
        // Without a client of its own, no event is from one left behind.
        QVERIFY(!channel.isStale(*read));
        QVERIFY(!channel.isLoaded());
        QVERIFY(!channel.isQuitting());
    }

    void channelWithoutTDLibReportsIt()
    {
        TDLibChannel channel;
        channel.setBundle(std::nullopt);
        const std::optional<QString> error = channel.load();
        QVERIFY(error);
        QVERIFY(!error->isEmpty());
        QVERIFY(!channel.isLoaded());
        // Requests before a client exists go nowhere and break nothing.
        channel.send(u"getMe"_s, {});
        channel.shutDown();
    }

    void announcerKeepsQuietForOwnAndMutedMessages()
    {
        Preferences::shared().setSoundsEnabled(true);
        HeardSounds heard;
        SoundManager sounds;
        sounds.setPlayer(&heard);
        Announcer announcer;
        announcer.setSoundManager(&sounds);
        const auto message = [](bool outgoing, QJsonValue content) {
            return TdObject{{"chat_id"_L1, 42}, {"is_outgoing"_L1, outgoing}, {"content"_L1, content}};
        };
        const TdObject text{{"@type"_L1, u"messageText"_s},
                            {"text"_L1, TdObject{{"@type"_L1, u"formattedText"_s}, {"text"_L1, u"hi"_s}}}};
        announcer.announceMessage(message(true, text), false, u"Ada"_s);
        announcer.announceMessage(message(false, text), true, u"Ada"_s);
        announcer.announceMessage(message(false, u"not an object"_s), false, std::nullopt);
        announcer.announceMessage(TdObject{{"content"_L1, text}}, false, std::nullopt);
        QVERIFY(heard.names.isEmpty());
        announcer.announceMessage(message(false, text), false, std::nullopt);
        QCOMPARE(heard.names.size(), 1);
        announcer.play(SoundEvent::Failure);
        QCOMPARE(heard.names.size(), 2);
        QVERIFY(heard.names.at(0) != heard.names.at(1));
    }

    void contactsLeaveOtherAnswersAlone()
    {
        Sent sent;
        UserStore users(sent.sender());
        ContactStore contacts(sent.sender(), users);
        QSignalSpy received(&contacts, &ContactStore::userReceived);
        const TdObject me{{"purpose"_L1, u"current_user"_s}};
        QVERIFY(!contacts.handleAnswer(u"current_user"_s, u"user"_s, answer(u"user"_s, me, user(1, u"Me"_s))));
        const TdObject history{{"purpose"_L1, u"initial_history"_s}};
        QVERIFY(!contacts.handleAnswer(u"initial_history"_s, u"messages"_s, answer(u"messages"_s, history)));
        const TdObject chats{{"purpose"_L1, u"load_chat_list"_s}};
        QVERIFY(!contacts.handleAnswer(u"load_chat_list"_s, u"error"_s, answer(u"error"_s, chats)));
        QCOMPARE(received.size(), 0);
        QVERIFY(!contacts.conversationError());
        QVERIFY(sent.requests.isEmpty());
    }
};

QTEST_GUILESS_MAIN(StoresTest)
#include "tst_stores.moc"
