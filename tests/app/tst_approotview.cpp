// The root view's glue between the session and the view model: handler wiring,
// reactions to session changes (applied once per turn of the event loop) and to
// the process-wide notifications, and the unread total.

#include "AppRootView.h"

#include "AppEvents.h"
#include "session/NotificationCenter.h"

#include <QFile>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString newChat(int id, const QString &title, int order, int unread)
{
    return QString::fromUtf8(
        QJsonDocument(
            QJsonObject{
                {u"@type"_s, u"updateNewChat"_s},
                {u"chat"_s,
                 QJsonObject{
                     {u"@type"_s, u"chat"_s},
                     {u"id"_s, id},
                     {u"title"_s, title},
                     {u"type"_s, QJsonObject{{u"@type"_s, u"chatTypeBasicGroup"_s}, {u"basic_group_id"_s, id}}},
                     {u"unread_count"_s, unread},
                     {u"positions"_s, QJsonArray{QJsonObject{{u"@type"_s, u"chatPosition"_s},
                                                             {u"list"_s, QJsonObject{{u"@type"_s, u"chatListMain"_s}}},
                                                             {u"order"_s, QString::number(order)},
                                                             {u"is_pinned"_s, false}}}}}}})
            .toJson(QJsonDocument::Compact));
}

Chat chatWithUnread(qint64 unread)
{
    Chat chat;
    chat.unreadCount = unread;
    return chat;
}

} // namespace

class AppRootViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QFile::remove(TypedTexts::defaultPath());
        m_requests.clear();
        m_session = std::make_unique<TelegramSession>(
            [this](const QString &type, const TdObject &) { m_requests.append(type); });
        m_credentials = std::make_unique<CredentialStore>(QVariantMap());
        m_root = std::make_unique<AppRootView>(*m_credentials, *m_session);
    }

    void cleanup()
    {
        m_root.reset();
        m_session.reset();
    }

    void startFillsTheHandlersWithoutCredentialsStartingNothing()
    {
        ChatViewModel &model = *m_root->viewModel();
        QVERIFY(!model.canSendMessages());
        m_root->start();
        QVERIFY(model.canSendMessages());
        QVERIFY(model.liveSendHandler && model.livePhotoHandler && model.liveAttachmentsHandler);
        QVERIFY(model.liveStickerHandler && model.liveEditHandler && model.liveDeleteHandler);
        QVERIFY(model.liveReactionHandler && model.liveForwardHandler && model.loadOlderHandler);
        QVERIFY(model.contactSearchHandler && model.openContactHandler);
        QVERIFY(!model.liveDocumentHandler && !model.liveRichMediaHandler && !model.typingHandler);
        QVERIFY(!model.muteChatHandler && !model.archiveChatHandler && !model.pinChatHandler);
        QVERIFY(!model.markUnreadHandler && !model.draftHandler);
        QCOMPARE(m_session->step().kind(), Step::Case::Idle);
        QVERIFY(m_requests.isEmpty());
    }

    void sessionChangesAreAppliedOncePerTurn()
    {
        QSignalSpy posted(&AppEvents::shared(), &AppEvents::unreadCountDidChange);
        for (int i = 1; i <= 50; ++i)
            m_session->handleResponse(newChat(i, u"Chat %1"_s.arg(i), i, 1));
        QVERIFY(m_root->hasPendingChanges());
        QVERIFY(m_root->viewModel()->chats().isEmpty());
        QTRY_VERIFY(!m_root->hasPendingChanges());
        QCOMPARE(m_root->viewModel()->chats().size(), 50);
        QCOMPARE(m_root->viewModel()->chats().first().id, u"50"_s);
        QCOMPARE(m_root->viewModel()->selectedChatID(), u"50"_s);
        QCOMPARE(m_root->chatList()->count(), 50);
        QCOMPARE(posted.size(), 1);
        QCOMPARE(posted.first().at(0).toLongLong(), 50);
        // Selecting the first chat asked for its history.
        QVERIFY(m_requests.contains(u"openChat"_s));
    }

    void typedTextStaysWithItsChat()
    {
        m_session->handleResponse(newChat(1, u"One"_s, 1, 0));
        m_session->handleResponse(newChat(2, u"Two"_s, 2, 0));
        m_root->applyPendingChanges();
        ChatViewModel *model = m_root->viewModel();
        model->setSelectedChatID(u"1"_s);
        model->setComposerText(u"half a thought"_s);
        model->setSelectedChatID(u"2"_s);
        QCOMPARE(model->composerText(), QString());
        model->setComposerText(u"for two"_s);
        model->setSelectedChatID(u"1"_s);
        QCOMPARE(model->composerText(), u"half a thought"_s);
        // Cleared text is forgotten; nothing was sent as a draft.
        model->setComposerText({});
        model->setSelectedChatID(u"2"_s);
        QCOMPARE(model->composerText(), u"for two"_s);
        model->setSelectedChatID(u"1"_s);
        QCOMPARE(model->composerText(), QString());
        QVERIFY(!m_requests.contains(u"setChatDraftMessage"_s));
    }

    void typedTextIsKeptOnThisComputerAfterAPause()
    {
        const QString path = TypedTexts::defaultPath();
        {
            TypedTexts texts(path);
            texts.setText(u"1"_s, u"half a thought"_s);
            texts.setText(u"2"_s, u"for two"_s);
            // Not on every keystroke: the file waits for a pause in the typing.
            QVERIFY(!QFile::exists(path));
            QTRY_VERIFY(QFile::exists(path));
            texts.setText(u"2"_s, u"for two, and more"_s);
        } // quitting writes what is unsaved
        TypedTexts again(path);
        QCOMPARE(again.text(u"1"_s), u"half a thought"_s);
        QCOMPARE(again.text(u"2"_s), u"for two, and more"_s);
        QCOMPARE(again.text(u"3"_s), QString());
        again.setText(u"1"_s, QString());
        again.flush();
        QCOMPARE(TypedTexts(path).text(u"1"_s), QString());
        again.clear();
        QVERIFY(!QFile::exists(path));
        // A damaged file is no typed text, and no failure.
        QFile damaged(path);
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("{\"1\": [\"not text\"], \"2\": ");
        damaged.close();
        QCOMPARE(TypedTexts(path).text(u"1"_s), QString());
    }

    void typedTextSurvivesARestartAndGoesWhenSent()
    {
        m_session->handleResponse(newChat(1, u"One"_s, 1, 0));
        m_root->applyPendingChanges();
        m_root->start();
        ChatViewModel *model = m_root->viewModel();
        model->setSelectedChatID(u"1"_s);
        model->setComposerText(u"see you at"_s);
        m_root.reset(); // the application quits
        m_root = std::make_unique<AppRootView>(*m_credentials, *m_session);
        m_root->start();
        model = m_root->viewModel();
        model->setSelectedChatID(u"1"_s);
        QCOMPARE(model->composerText(), u"see you at"_s);
        model->sendMessage();
        QCOMPARE(model->composerText(), QString());
        QVERIFY(m_requests.contains(u"sendMessage"_s));
        QVERIFY(!m_requests.contains(u"setChatDraftMessage"_s));
        m_root.reset();
        QCOMPARE(TypedTexts(TypedTexts::defaultPath()).text(u"1"_s), QString());
    }

    void popoverVisibilityRefreshesChatsAndOpenChatSelects()
    {
        m_session->handleResponse(newChat(1, u"One"_s, 1, 0));
        m_session->handleResponse(newChat(2, u"Two"_s, 2, 0));
        m_root->applyPendingChanges();
        QVERIFY(!m_root->isPopoverVisible());
        m_requests.clear();
        AppEvents &events = AppEvents::shared();
        Q_EMIT events.popoverVisibilityDidChange(false);
        QVERIFY(!m_root->isPopoverVisible());
        QVERIFY(m_requests.isEmpty());
        // Before sign-in there is nothing to refresh.
        Q_EMIT events.popoverVisibilityDidChange(true);
        QVERIFY(m_root->isPopoverVisible());
        QVERIFY(!m_requests.contains(u"loadChats"_s));
        Q_EMIT events.popoverVisibilityDidChange(false);
        m_session->handleResponse(
            R"({"@type":"updateAuthorizationState","authorization_state":{"@type":"authorizationStateReady"}})"_ba);
        for (const char *list : {"chatListMain", "chatListArchive"})
            m_session->handleResponse(u"{\"@type\":\"error\",\"code\":404,\"@extra\":{\"purpose\":\"load_chat_list\","
                                      u"\"list\":\"%1\"}}"_s.arg(QLatin1StringView(list)));
        m_requests.clear();
        Q_EMIT events.popoverVisibilityDidChange(true);
        QVERIFY(m_requests.contains(u"loadChats"_s));

        QCOMPARE(m_root->viewModel()->selectedChatID(), u"2"_s);
        Q_EMIT NotificationCenter::defaultCenter().openTelegramChat(u"1"_s);
        QCOMPARE(m_root->viewModel()->selectedChatID(), u"1"_s);
        Q_EMIT events.popoverVisibilityDidChange(false);
        QVERIFY(!m_root->isPopoverVisible());
    }

    void unreadTotalCountsPositiveCountsAndSaturates()
    {
        QCOMPARE(AppRootView::unreadTotal({chatWithUnread(3), chatWithUnread(0), chatWithUnread(-1)}), 3);
        QCOMPARE(AppRootView::unreadTotal({}), 0);
        const qint64 most = std::numeric_limits<qint64>::max();
        QCOMPARE(AppRootView::unreadTotal({chatWithUnread(most), chatWithUnread(1), chatWithUnread(5)}), most);

        QSignalSpy posted(&AppEvents::shared(), &AppEvents::unreadCountDidChange);
        m_root->publishUnreadCount({chatWithUnread(2), chatWithUnread(4)});
        QCOMPARE(posted.size(), 1);
        QCOMPARE(posted.first().at(0).toLongLong(), 6);
    }

    void openingAContactStartsOneConversation()
    {
        m_root->start();
        m_requests.clear();
        m_root->viewModel()->openContact(u"42"_s);
        QVERIFY(m_session->creatingConversation());
        const qsizetype sent = m_requests.size();
        QVERIFY(sent > 0);
        m_root->viewModel()->openContactHandler(43); // one is under way: ignored
        QCOMPARE(m_requests.size(), sent);
    }

private:
    QStringList m_requests;
    std::unique_ptr<TelegramSession> m_session;
    std::unique_ptr<CredentialStore> m_credentials;
    std::unique_ptr<AppRootView> m_root;
};

QTEST_MAIN(AppRootViewTest)
#include "tst_approotview.moc"
