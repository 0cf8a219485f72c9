// The whole client against the demo account, end to end: the real loader, the real
// receive loop and the session's stores, with the demo library in deterministic
// mode. The functions run in order on one signed-in session.
#include "../support/ModelRecords.h"
#include "../support/TemporaryHome.h"
#include "bundle/AppBundle.h"
#include "session/TelegramSession.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Generous: the machines that run the tests may be busy.
constexpr int timeoutMs = 15000;

const QString emmaChat = u"200000101"_s;
const QString liamChat = u"200000102"_s;

const Message *findMessage(const TelegramSession &session, const QString &chatID,
                           const std::function<bool(const Message &)> &predicate)
{
    const auto messages = session.messagesByChat().constFind(chatID);
    if (messages == session.messagesByChat().cend())
        return nullptr;
    for (const Message &message : *messages)
        if (predicate(message))
            return &message;
    return nullptr;
}

} // namespace

class DemoEndToEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_home.enter());

        m_session = std::make_unique<TelegramSession>();
        m_session->setBundle(AppBundle(QStringLiteral(VOST_DEMO_BUNDLE)));
        m_session->setResponseObserver([this](const QByteArray &json) { observe(json); });
    }

    void cleanupTestCase() { m_session.reset(); }

    void signsIn()
    {
        m_session->start(1, u"demo"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_session->step(), Step::phoneNumber(), timeoutMs);
        m_session->submitPhoneNumber(u"+1 555 0100"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_session->step(), Step::verificationCode(), timeoutMs);
        m_session->submitVerificationCode(u"22222"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_session->step(), Step::ready(), timeoutMs);
        QTRY_COMPARE_WITH_TIMEOUT(m_session->currentAccountName(), u"Alex Demo"_s, timeoutMs);
        QTRY_VERIFY_WITH_TIMEOUT(!m_session->contacts().isEmpty(), timeoutMs);
    }

    void chatListArrivesInServerOrder()
    {
        // Both lists are complete once the library has said there are no more chats.
        QTRY_COMPARE_WITH_TIMEOUT(m_exhaustedLists, (QSet<QString>{u"chatListMain"_s, u"chatListArchive"_s}),
                                  timeoutMs);
        // The library's positions, highest order first; the session's tie-break is the larger id.
        std::map<std::pair<qint64, qint64>, QString, std::greater<>> byOrder;
        for (auto it = m_orders.cbegin(); it != m_orders.cend(); ++it)
            if (it.value() > 0)
                byOrder.emplace(std::pair(it.value(), it.key().toLongLong()), it.key());
        QStringList expected;
        for (const auto &[key, id] : byOrder)
            expected.append(id);
        QVERIFY(expected.size() >= 20);
        QTRY_COMPARE_WITH_TIMEOUT(chatIDs(m_session->chats()), expected, timeoutMs);

        // Pinned chats first, in the pins' order.
        const QList<Chat> chats = m_session->chats();
        QCOMPARE(chats.at(0).title, u"Vost Helper"_s);
        QVERIFY(chats.at(1).title.startsWith(u"Emma"_s));
        QCOMPARE(chats.at(2).title, u"Family"_s);
        qsizetype pinned = 0;
        while (pinned < chats.size() && chats.at(pinned).isPinned)
            ++pinned;
        QCOMPARE(pinned, 3);
        for (qsizetype i = pinned; i < chats.size(); ++i)
            QVERIFY2(!chats.at(i).isPinned, qPrintable(chats.at(i).title));
        QVERIFY(std::any_of(chats.cbegin(), chats.cend(), [](const Chat &chat) { return chat.isArchived; }));
    }

    void opensAChatAndLoadsOlderPages()
    {
        m_session->loadMessages(emmaChat);
        QTRY_COMPARE_WITH_TIMEOUT(m_session->messagesByChat().value(emmaChat).size(), 15, timeoutMs);
        verifyOrdered(m_session->messagesByChat().value(emmaChat));

        // A page starts at the oldest message shown, which TDLib repeats: 15 bring 14 new.
        for (const int expected : {29, 43}) {
            const QList<Message> before = m_session->messagesByChat().value(emmaChat);
            m_session->loadOlderMessages(emmaChat, before.constFirst().id);
            QTRY_COMPARE_WITH_TIMEOUT(m_session->messagesByChat().value(emmaChat).size(), expected, timeoutMs);
            const QList<Message> after = m_session->messagesByChat().value(emmaChat);
            verifyOrdered(after);
            // The older page comes before what was shown, which stays as it was.
            QCOMPARE(ids(after.mid(after.size() - before.size())), ids(before));
        }
    }

    void sentMessageGoesFromSendingToSentToRead()
    {
        m_session->loadMessages(liamChat);
        QTRY_VERIFY_WITH_TIMEOUT(!m_session->messagesByChat().value(liamChat).isEmpty(), timeoutMs);

        const QString text = u"Hello from the end-to-end test"_s;
        QList<MessageDeliveryState> states;
        const auto record = [&] {
            const Message *sent =
                findMessage(*m_session, liamChat, [&](const Message &m) { return m.isOutgoing && m.text == text; });
            if (sent && (states.isEmpty() || states.constLast() != sent->deliveryState))
                states.append(sent->deliveryState);
        };
        const QMetaObject::Connection connection =
            connect(m_session.get(), &TelegramSession::messagesChanged, this, [&](const QString &chatID) {
                if (chatID == liamChat)
                    record();
            });
        m_session->sendText(text, liamChat);
        record();
        QTRY_VERIFY_WITH_TIMEOUT(!states.isEmpty() && states.constLast() == MessageDeliveryState::Read, timeoutMs);
        disconnect(connection);
        QCOMPARE(states, (QList<MessageDeliveryState>{MessageDeliveryState::Sending, MessageDeliveryState::Sent,
                                                      MessageDeliveryState::Read}));
        // Shown once, as the newest message, under the identifier the server gave it.
        const QList<Message> messages = m_session->messagesByChat().value(liamChat);
        QCOMPARE(std::count_if(messages.cbegin(), messages.cend(), [&](const Message &m) { return m.text == text; }),
                 1);
        QCOMPARE(messages.constLast().text, text);
        verifyOrdered(messages);
    }

    void downloadCompletesAndTheMessageShowsItsFile()
    {
        // Emma's newest page has photos; the session downloads what it shows.
        const auto photo = [](const Message &m) { return m.mediaKind == MessageMediaKind::Photo; };
        QVERIFY(findMessage(*m_session, emmaChat, photo));
        QTRY_VERIFY_WITH_TIMEOUT(
            findMessage(*m_session, emmaChat,
                        [&](const Message &m) { return photo(m) && m.mediaPath && QFileInfo::exists(*m.mediaPath); }),
            timeoutMs);
        const Message *shown = findMessage(*m_session, emmaChat, [&](const Message &m) {
            return photo(m) && m.mediaPath && QFileInfo::exists(*m.mediaPath);
        });
        QVERIFY2(QFileInfo(*shown->mediaPath).canonicalFilePath().startsWith(QDir(m_home.path()).canonicalPath()),
                 qPrintable(*shown->mediaPath));
        QVERIFY(QImage(*shown->mediaPath).width() > 0);
    }

    void reactionRoundTrips()
    {
        const QString text = u"Of course! See you at 7 🍕"_s;
        const auto answer = [&](const Message &m) { return m.text == text; };
        const auto thumbsUp = [&]() -> std::optional<MessageReaction> {
            const Message *message = findMessage(*m_session, emmaChat, answer);
            if (!message)
                return std::nullopt;
            for (const MessageReaction &reaction : message->reactions)
                if (reaction.emoji == u"👍"_s)
                    return reaction;
            return std::nullopt;
        };
        const Message *message = findMessage(*m_session, emmaChat, answer);
        QVERIFY(message);
        const QString messageID = message->id;
        QCOMPARE(thumbsUp(), (MessageReaction{u"👍"_s, 1, false}));

        m_session->setReaction(u"👍"_s, false, messageID, emmaChat);
        QTRY_COMPARE_WITH_TIMEOUT(thumbsUp(), (MessageReaction{u"👍"_s, 2, true}), timeoutMs);
        m_session->setReaction(u"👍"_s, true, messageID, emmaChat);
        QTRY_COMPARE_WITH_TIMEOUT(thumbsUp(), (MessageReaction{u"👍"_s, 1, false}), timeoutMs);
    }

    void logOutReturnsToThePhoneStepWithEmptyStores()
    {
        QVERIFY(!m_session->chats().isEmpty());
        m_session->logOutAndChangeAccount();
        QTRY_COMPARE_WITH_TIMEOUT(m_session->step(), Step::phoneNumber(), timeoutMs);
        QVERIFY(m_session->chats().isEmpty());
        QVERIFY(m_session->messagesByChat().isEmpty());
        QVERIFY(m_session->contacts().isEmpty());
        QCOMPARE(m_session->currentAccountName(), QString());
        QCOMPARE(m_session->currentAccountPhoneNumber(), QString());
    }

private:
    // Keeps what the library says about chat positions and the ends of the lists.
    void observe(const QByteArray &json)
    {
        const QJsonObject object = QJsonDocument::fromJson(json).object();
        const QString type = object.value("@type"_L1).toString();
        if (type == "updateNewChat"_L1) {
            const QJsonObject chat = object.value("chat"_L1).toObject();
            setPositions(chat.value("id"_L1), chat.value("positions"_L1).toArray());
        } else if (type == "updateChatPosition"_L1) {
            setPositions(object.value("chat_id"_L1), {object.value("position"_L1)});
        } else if (type == "updateChatLastMessage"_L1) {
            setPositions(object.value("chat_id"_L1), object.value("positions"_L1).toArray());
        } else if (type == "error"_L1 && object.value("code"_L1).toInt() == 404) {
            const QJsonObject extra = object.value("@extra"_L1).toObject();
            if (extra.value("purpose"_L1) == "load_chat_list"_L1)
                m_exhaustedLists.insert(extra.value("list"_L1).toString());
        }
    }

    void setPositions(const QJsonValue &chatID, const QJsonArray &positions)
    {
        const QString id = QString::number(chatID.toInteger());
        for (const QJsonValue &position : positions) {
            const QString list = position["list"_L1]["@type"_L1].toString();
            if (list == "chatListMain"_L1 || list == "chatListArchive"_L1)
                m_orders.insert(id, position["order"_L1].toString().toLongLong());
        }
    }

    static QStringList ids(const QList<Message> &messages)
    {
        QStringList list;
        for (const Message &message : messages)
            list.append(message.id);
        return list;
    }

    // Oldest first, each once.
    static void verifyOrdered(const QList<Message> &messages)
    {
        for (qsizetype i = 1; i < messages.size(); ++i)
            QVERIFY2(messages.at(i - 1).id.toLongLong() < messages.at(i).id.toLongLong(),
                     qPrintable(ids(messages).join(u' ')));
    }

    TemporaryHome m_home;
    std::unique_ptr<TelegramSession> m_session;
    QHash<QString, qint64> m_orders; // each chat's order in the list it is in
    QSet<QString> m_exhaustedLists;
};

QTEST_GUILESS_MAIN(DemoEndToEndTest)
#include "tst_demoendtoend.moc"
