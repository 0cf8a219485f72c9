// The view model's own rules: search, chat replacement and selection, unread
// dividers, the order of precedence of sending, reactions and the composer queue.

#include "../support/ModelRecords.h"
#include "ChatViewModel.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Message makeMessage(const QString &id, bool unread = false)
{
    Message message;
    message.id = id;
    message.text = u"text "_s + id;
    message.isUnread = unread;
    return message;
}

// Records every handler call as one line.
// Records what the model hands its send handlers, with sending allowed and, unless
// told otherwise, one chat "1" selected.
struct Recorder {
    QStringList calls;

    explicit Recorder(ChatViewModel &model, bool withChat = true)
    {
        model.liveSendHandler = [this](const QString &text, const QString &chat, const std::optional<QString> &reply) {
            calls.append(u"send "_s + text + u" to "_s + chat + u" reply "_s + reply.value_or(u"-"_s));
        };
        model.liveStickerHandler = [this](const StickerChoice &sticker, const QString &chat) {
            calls.append(u"sticker "_s + sticker.emoji + u" to "_s + chat);
        };
        model.liveAttachmentsHandler = [this](const QList<PendingAttachment> &a, const QString &caption,
                                              const QString &chat) {
            calls.append(u"attachments "_s + QString::number(a.size()) + u" caption "_s + caption + u" to "_s + chat);
        };
        model.liveEditHandler = [this](const QString &id, const QString &text, const QString &chat) {
            calls.append(u"edit "_s + id + u" "_s + text + u" in "_s + chat);
        };
        model.liveReactionHandler = [this](const QString &emoji, bool chosen, const QString &id, const QString &chat) {
            calls.append(u"react "_s + emoji + (chosen ? u" chosen "_s : u" not chosen "_s) + id + u" in "_s + chat);
        };
        model.setCanSendMessages(true);
        if (withChat)
            model.replaceChats({makeChat(u"1"_s, u"A"_s)});
    }
};

} // namespace

class ChatViewModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty()
    {
        ChatViewModel model(std::make_unique<EmptyTelegramService>());
        QVERIFY(model.chats().isEmpty());
        QVERIFY(!model.selectedChatID());
        QVERIFY(!model.canSendMessages());
        QVERIFY(!model.liveSendHandler);
        QVERIFY(!model.openContactHandler);
        QVERIFY(model.unreadDividers().isEmpty());
        QVERIFY(!model.selectedChat());
    }

    void searchKeepsTitleOrPreviewMatches()
    {
        ChatViewModel model(nullptr);
        model.replaceChats({makeChat(u"1"_s, u"Lab"_s), makeChat(u"2"_s, u"Bea"_s, u"ABOUT the plan"_s),
                            makeChat(u"3"_s, u"Cy"_s, u"nothing"_s), makeChat(u"4"_s, u"Straße"_s)});
        QCOMPARE(chatIDs(model.filteredChats()), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
        model.setSearchText(u"ab"_s);
        QCOMPARE(chatIDs(model.filteredChats()), (QStringList{u"1"_s, u"2"_s}));
        // No trimming: a space is searched for.
        model.setSearchText(u" "_s);
        QCOMPARE(chatIDs(model.filteredChats()), (QStringList{u"2"_s}));
        model.setSearchText(u"STRASSE"_s);
        QCOMPARE(chatIDs(model.filteredChats()), (QStringList{u"4"_s}));
    }

    void searchTreatsEquivalentTextsAlike()
    {
        // "é" composed and decomposed are the same letter, and "e" is not "é".
        QVERIFY(localizedCaseInsensitiveContains(u"Caf\u00e9"_s, u"CAFE\u0301"_s));
        QVERIFY(!localizedCaseInsensitiveContains(u"Caf\u00e9"_s, u"cafe"_s));
        QVERIFY(localizedCaseInsensitiveContains(u"anything"_s, QString()));
    }

    void replacingChatsKeepsLoadedMessagesAndSelection()
    {
        ChatViewModel model(nullptr);
        QSignalSpy selection(&model, &ChatViewModel::selectedChatIDChanged);
        model.replaceChats({makeChat(u"1"_s, u"A"_s), makeChat(u"2"_s, u"B"_s)});
        QCOMPARE(model.selectedChatID(), u"1"_s);
        QCOMPARE(selection.size(), 1);
        model.setMessages({makeMessage(u"10"_s)}, u"2"_s);
        model.setSelectedChatID(u"2"_s);

        model.replaceChats({makeChat(u"3"_s, u"C"_s), makeChat(u"2"_s, u"B again"_s)});
        QCOMPARE(model.selectedChatID(), u"2"_s);
        QCOMPARE(model.selectedChat()->title, u"B again"_s);
        QCOMPARE(model.selectedChat()->messages.size(), 1);

        model.replaceChats({makeChat(u"3"_s, u"C"_s)});
        QCOMPARE(model.selectedChatID(), u"3"_s);
        model.replaceChats({});
        QVERIFY(!model.selectedChatID());
        QVERIFY(!model.selectedChat());
    }

    void selectionOfAnUnknownChatIsReplacedOnRefresh()
    {
        ChatViewModel model(nullptr);
        model.setSelectedChatID(u"9"_s);
        QVERIFY(!model.selectedChat());
        model.replaceChats({makeChat(u"1"_s, u"A"_s)});
        QCOMPARE(model.selectedChatID(), u"1"_s);
    }

    void unreadDividerIsRecordedOnce()
    {
        ChatViewModel model(nullptr);
        model.replaceChats({makeChat(u"1"_s, u"A"_s), makeChat(u"2"_s, u"B"_s)});
        QSignalSpy messages(&model, &ChatViewModel::messagesChanged);
        model.setMessages({makeMessage(u"m1"_s), makeMessage(u"m2"_s, true), makeMessage(u"m3"_s, true)}, u"1"_s);
        QCOMPARE(model.unreadDividers().value(u"1"_s), u"m2"_s);
        QCOMPARE(messages.size(), 1);
        model.setMessages({makeMessage(u"m2"_s, true), makeMessage(u"m3"_s, true), makeMessage(u"m4"_s, true)}, u"1"_s);
        QCOMPARE(model.unreadDividers().value(u"1"_s), u"m2"_s);
        QCOMPARE(model.chat(u"1"_s)->messages.size(), 3);

        model.setMessages({makeMessage(u"x"_s)}, u"2"_s);
        QVERIFY(!model.unreadDividers().contains(u"2"_s));
        // An unknown chat: nothing at all.
        model.setMessages({makeMessage(u"y"_s, true)}, u"7"_s);
        QVERIFY(!model.unreadDividers().contains(u"7"_s));
    }

    void sendsTextBeforeAQueuedSticker()
    {
        ChatViewModel model(nullptr);
        Recorder recorder(model);
        model.queueSticker({5, 6, u"/s.webp"_s, u"😀"_s, 512, 512, StickerFormat::Webp});
        model.setComposerText(u"  hi \n"_s);
        model.sendMessage();
        QCOMPARE(recorder.calls, (QStringList{u"send hi to 1 reply -"_s, u"sticker 😀 to 1"_s}));
        QVERIFY(!model.pendingSticker());
        QCOMPARE(model.composerText(), QString());
    }

    // Nothing goes out, and the composer keeps what was typed.
    void unsendableTextStays_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("canSend");
        QTest::addColumn<bool>("chatSelected");
        QTest::newRow("blank text") << u"   "_s << true << true;
        QTest::newRow("no permission") << u"hi"_s << false << true;
        QTest::newRow("no chat selected") << u"hi"_s << true << false;
    }

    void unsendableTextStays()
    {
        QFETCH(QString, text);
        QFETCH(bool, canSend);
        QFETCH(bool, chatSelected);
        ChatViewModel model(nullptr);
        Recorder recorder(model);
        model.setCanSendMessages(canSend);
        model.setComposerText(text);
        if (!chatSelected)
            model.setSelectedChatID(std::nullopt);
        model.sendMessage();
        QVERIFY(recorder.calls.isEmpty());
        QCOMPARE(model.composerText(), text);
    }

    void attachmentsGoFirstWithTheTextAsCaption()
    {
        ChatViewModel model(nullptr);
        Recorder recorder(model);
        model.queueAttachments({{QUuid::createUuid(), u"/a.png"_s, PendingAttachmentKind::Photo}});
        model.queueAttachments({{QUuid::createUuid(), u"/b.pdf"_s, PendingAttachmentKind::Document}});
        QCOMPARE(model.pendingAttachments().size(), 2);
        model.setComposerText(u" look "_s);
        model.sendMessage();
        QCOMPARE(recorder.calls, (QStringList{u"attachments 2 caption look to 1"_s}));
        QVERIFY(model.pendingAttachments().isEmpty());
        QCOMPARE(model.composerText(), QString());
    }

    void queuedDocumentAndRichMediaWaitForTheirHandlers()
    {
        ChatViewModel model(nullptr);
        Recorder recorder(model);
        model.setPendingDocumentPath(u"/d.txt"_s);
        model.setPendingRichMediaPath(u"/v.mp4"_s);
        model.setPendingRichMediaKind(MessageMediaKind::Video);
        model.setComposerText(u"plain"_s);
        model.sendMessage(); // no document or rich-media handler: the text goes as text
        QCOMPARE(recorder.calls, (QStringList{u"send plain to 1 reply -"_s}));
        QCOMPARE(model.pendingDocumentPath(), u"/d.txt"_s);

        QStringList sent;
        model.liveDocumentHandler = [&sent](const QString &path, const QString &caption, const QString &) {
            sent.append(path + u" "_s + caption);
        };
        model.liveRichMediaHandler = [&sent](const QString &path, MessageMediaKind, const QString &, const QString &) {
            sent.append(path);
        };
        model.sendMessage();
        model.sendMessage();
        QCOMPARE(sent, (QStringList{u"/d.txt "_s, u"/v.mp4"_s}));
        QVERIFY(!model.pendingDocumentPath());
        QVERIFY(!model.pendingRichMediaPath());
        QVERIFY(!model.pendingRichMediaKind());
    }

    void editsAndRepliesClearTheirTarget()
    {
        ChatViewModel model(nullptr);
        Recorder recorder(model);
        model.setEditingMessage(makeMessage(u"7"_s));
        model.setComposerText(u"fixed"_s);
        model.sendMessage();
        model.setReplyToMessage(makeMessage(u"8"_s));
        model.setComposerText(u"answer"_s);
        model.sendMessage();
        QCOMPARE(recorder.calls, (QStringList{u"edit 7 fixed in 1"_s, u"send answer to 1 reply 8"_s}));
        QVERIFY(!model.editingMessage());
        QVERIFY(!model.replyToMessage());
    }

    void offlineEchoAppendsThroughTheService()
    {
        ChatViewModel model(std::make_unique<EmptyTelegramService>());
        model.setCanSendMessages(true);
        model.replaceChats({makeChat(u"1"_s, u"A"_s)});
        QSignalSpy messages(&model, &ChatViewModel::messagesChanged);
        model.setComposerText(u" echo "_s);
        model.sendMessage();
        QCOMPARE(messages.size(), 1);
        const Chat *chat = model.chat(u"1"_s);
        QCOMPARE(chat->messages.size(), 1);
        QCOMPARE(chat->messages.first().text, u"echo"_s);
        QVERIFY(chat->messages.first().isOutgoing);
        QCOMPARE(model.composerText(), QString());
    }

    void reactionsReportTheStateBeforeTheToggle()
    {
        ChatViewModel model(nullptr);
        Recorder recorder(model, false);
        Message message = makeMessage(u"5"_s);
        message.reactions = {{u"👍"_s, 2, true}, {u"\u2764"_s, 1, true}};
        model.toggleReaction(u"👍"_s, message); // no selection: nothing
        model.replaceChats({makeChat(u"1"_s, u"A"_s)});
        model.toggleReaction(u"👍"_s, message);
        model.toggleReaction(u"🔥"_s, message);
        model.toggleReaction(u"\u2764\ufe0f"_s, message);
        QCOMPARE(recorder.calls, (QStringList{u"react 👍 chosen 5 in 1"_s, u"react 🔥 not chosen 5 in 1"_s,
                                              u"react \u2764\ufe0f not chosen 5 in 1"_s}));
    }

    void queueingReplacesTheOtherKind()
    {
        ChatViewModel model(nullptr);
        const PendingAttachment first{QUuid::createUuid(), u"/a.png"_s, PendingAttachmentKind::Photo};
        const PendingAttachment second{QUuid::createUuid(), u"/b.png"_s, PendingAttachmentKind::Photo};
        model.setPendingRichMediaKind(MessageMediaKind::Voice);
        model.setPendingDocumentPath(u"/d"_s);
        model.queueAttachments({first, second});
        QVERIFY(!model.pendingDocumentPath());
        model.queueSticker({1, 2, u"/s"_s, u"🙂"_s, 1, 1, StickerFormat::Webp});
        QVERIFY(model.pendingAttachments().isEmpty());
        QCOMPARE(model.pendingRichMediaKind(), MessageMediaKind::Voice); // left as it was
        model.queueAttachments({first, second, first});
        QVERIFY(!model.pendingSticker());
        model.removePendingAttachment(first.id);
        QCOMPARE(model.pendingAttachments(), (QList<PendingAttachment>{second}));
    }

    void olderPagesAreAskedForOncePerOldestMessage()
    {
        // TDLib may answer the first message of a chat again instead of nothing:
        // the start is then reached, and the transcript stops asking.
        ChatViewModel model(nullptr);
        QStringList asked;
        model.loadOlderHandler = [&](const QString &chat, const QString &oldest) {
            asked.append(chat + u':' + oldest);
            model.setHistoryState(chat, true, false);
        };
        model.replaceChats({makeChat(u"1"_s, u"One"_s)});
        model.setMessages({makeMessage(u"5"_s), makeMessage(u"6"_s)}, u"1"_s);
        QSignalSpy changes(&model, &ChatViewModel::historyStateChanged);
        model.loadOlderMessages();
        model.loadOlderMessages(); // still on its way
        QVERIFY(model.loadingOlderMessages());
        QVERIFY(!model.historyStartReached());
        model.setHistoryState(u"1"_s, false, false);
        model.setMessages({makeMessage(u"3"_s), makeMessage(u"5"_s), makeMessage(u"6"_s)}, u"1"_s);
        QVERIFY(!model.historyStartReached());
        model.loadOlderMessages();
        model.setHistoryState(u"1"_s, false, false); // nothing older came
        QVERIFY(model.historyStartReached());
        model.loadOlderMessages();
        QCOMPARE(asked, (QStringList{u"1:5"_s, u"1:3"_s}));
        QVERIFY(changes.size() >= 4);
        // The session's word that the start was reached stops it as well.
        model.replaceChats({makeChat(u"1"_s, u"One"_s), makeChat(u"2"_s, u"Two"_s)});
        model.setMessages({makeMessage(u"9"_s)}, u"2"_s);
        model.setSelectedChatID(u"2"_s);
        model.setHistoryState(u"2"_s, false, true);
        QVERIFY(model.historyStartReached());
        model.loadOlderMessages();
        QCOMPARE(asked.size(), 2);
    }

    void aChatIsWaitingUntilItsFirstMessagesAreSet()
    {
        // An empty transcript before the first page answered is on its way, not empty.
        ChatViewModel model(nullptr);
        model.replaceChats({makeChat(u"1"_s, u"One"_s), makeChat(u"2"_s, u"Two"_s)});
        model.setSelectedChatID(u"1"_s);
        QVERIFY(!model.messagesArrived());
        QSignalSpy changes(&model, &ChatViewModel::historyStateChanged);
        model.setMessages({}, u"1"_s); // a chat without history
        QVERIFY(model.messagesArrived());
        QCOMPARE(changes.size(), 1);
        model.setMessages({makeMessage(u"4"_s)}, u"2"_s);
        QCOMPARE(changes.size(), 1); // not the selected chat
        model.setSelectedChatID(u"2"_s);
        QVERIFY(model.messagesArrived());
        model.setMessages({}, u"3"_s); // an unknown chat
        model.setSelectedChatID(u"3"_s);
        QVERIFY(!model.messagesArrived());
    }

    void upEditsTheNewestOwnTextMessage()
    {
        ChatViewModel model(nullptr);
        model.replaceChats({makeChat(u"1"_s, u"One"_s)});
        QVERIFY(!model.editLastOwnMessage());
        Message own = makeMessage(u"1"_s);
        own.isOutgoing = true;
        Message ownPhoto = makeMessage(u"2"_s);
        ownPhoto.isOutgoing = true;
        ownPhoto.mediaKind = MessageMediaKind::Photo;
        Message theirs = makeMessage(u"3"_s);
        model.setMessages({own, ownPhoto, theirs}, u"1"_s);
        QVERIFY(model.editLastOwnMessage());
        QCOMPARE(model.editingMessage()->id, u"1"_s);
        QCOMPARE(model.composerText(), u"text 1"_s);
    }

    void forwardedMessagesAreNotEdited()
    {
        ChatViewModel model(nullptr);
        model.replaceChats({makeChat(u"1"_s, u"One"_s)});
        Message own = makeMessage(u"1"_s);
        own.isOutgoing = true;
        Message forwarded = makeMessage(u"2"_s);
        forwarded.isOutgoing = true;
        MessageDetails forwardedDetails;
        forwardedDetails.messageID = u"2"_s;
        forwardedDetails.isForwarded = true;
        model.setMessageDetails({forwardedDetails}, u"1"_s);
        model.setMessages({own, forwarded, makeMessage(u"3"_s)}, u"1"_s);
        QVERIFY(model.canEdit(u"1"_s));
        QVERIFY(!model.canEdit(u"2"_s));
        QVERIFY(!model.canEdit(u"3"_s)); // not one's own
        QVERIFY(!model.canEdit(u"9"_s)); // not there
        // Up passes the newest (forwarded) one over.
        QVERIFY(model.editLastOwnMessage());
        QCOMPARE(model.editingMessage()->id, u"1"_s);
    }
};

QTEST_GUILESS_MAIN(ChatViewModelTest)
#include "tst_chatviewmodel.moc"
