// Desktop notifications over a real D-Bus session bus (a private one, see CMakeLists.txt):
// a small notification server of our own records what the poster sends and reports
// clicks, actions, typed replies and closings back, down to what the process is told.

#include "platform/linux/FreedesktopNotificationPoster.h"
#include "session/NotificationCenter.h"
#include "session/NotificationService.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {
const QString serviceName = u"org.freedesktop.Notifications"_s;
const QString objectPath = u"/org/freedesktop/Notifications"_s;
} // namespace

class TestNotificationServer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Call {
        QString appName;
        uint replacesID = 0;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
        int expireTimeout = 0;
        uint id = 0;
    };
    QList<Call> calls;

public Q_SLOTS:
    uint Notify(const QString &appName, uint replacesID, const QString &, const QString &summary, const QString &body,
                const QStringList &actions, const QVariantMap &hints, int expireTimeout)
    {
        calls.append({appName, replacesID, summary, body, actions, hints, expireTimeout, m_nextID});
        return m_nextID++;
    }
    QStringList GetCapabilities() { return capabilities; }
    void CloseNotification(uint id) { Q_EMIT NotificationClosed(id, 3); }

public:
    QStringList capabilities{u"actions"_s, u"body"_s, u"body-markup"_s};

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &actionKey);
    void NotificationClosed(uint id, uint reason);
    void NotificationReplied(uint id, const QString &text);

private:
    uint m_nextID = 7;
};

class NotificationPosterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "needs a session bus: run under dbus-run-session");
        const NotificationCenter &center = NotificationCenter::defaultCenter();
        connect(&center, &NotificationCenter::openTelegramChat, this,
                [this](const QString &chatID) { m_opened.append(chatID); });
        connect(
            &center, &NotificationCenter::replyInTelegramChat, this,
            [this](const QString &chatID, const QString &messageID) { m_opened.append(chatID + u'/' + messageID); });
        connect(&center, &NotificationCenter::markTelegramChatRead, this,
                [this](const QString &chatID) { m_read.append(chatID); });
        connect(&center, &NotificationCenter::sendTelegramReply, this,
                [this](const QString &chatID, const QString &messageID, const QString &text) {
                    m_replies.append(chatID + u'/' + messageID + u' ' + text);
                });
        NotificationService::shared().setActivator([this] { ++m_activations; });
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        m_opened.clear();
        m_read.clear();
        m_replies.clear();
        m_activations = 0;
        m_poster = std::make_unique<FreedesktopNotificationPoster>();
        NotificationService::shared().setPoster(m_poster.get());
    }

    void cleanup()
    {
        NotificationService::shared().setPoster(nullptr);
        m_poster.reset();
        stopServer();
    }

    void clickOpensTheChat()
    {
        startServer();
        NotificationService::shared().notify(u"Alice"_s, u"See <this> & that :)"_s, u"-100123"_s, u"4096"_s);

        QTRY_COMPARE(m_server->calls.size(), 1);
        const TestNotificationServer::Call call = m_server->calls.constFirst();
        QCOMPARE(call.appName, u"Vost"_s);
        QCOMPARE(call.replacesID, 0u);
        QCOMPARE(call.summary, u"Alice"_s);
        // The server renders markup, so the text is escaped; typed smileys show as emoji.
        QCOMPARE(call.body, u"See &lt;this&gt; &amp; that 🙂"_s);
        QCOMPARE(call.actions.size(), 6);
        QCOMPARE(call.actions.at(0), u"default"_s);
        QCOMPARE(call.actions.at(2), u"reply"_s);
        QCOMPARE(call.actions.at(3), u"Reply"_s);
        QCOMPARE(call.actions.at(4), u"mark-read"_s);
        QCOMPARE(call.actions.at(5), u"Mark as read"_s);
        QCOMPARE(call.hints.value(u"desktop-entry"_s), QVariant(u"com.corvella.Vost"_s));
        QCOMPARE(call.hints.value(u"category"_s), QVariant(u"im.received"_s));
        QCOMPARE(call.hints.value(u"suppress-sound"_s), QVariant(true));
        QCOMPARE(call.expireTimeout, -1);

        QTRY_COMPARE(m_poster->chatID(call.id), std::optional(u"-100123"_s));
        QCOMPARE(m_poster->messageID(call.id), std::optional(u"4096"_s));
        const QString identifier = m_poster->identifier(call.id).value_or(QString());
        const QString prefix = u"telegram-message--100123-"_s;
        QVERIFY2(identifier.startsWith(prefix), qPrintable(identifier));
        QVERIFY(!QUuid::fromString(identifier.mid(prefix.size())).isNull());
        QVERIFY(m_opened.isEmpty());

        Q_EMIT m_server->ActionInvoked(call.id, u"default"_s);
        QTRY_COMPARE(m_opened, QVariantList{u"-100123"_s});
        QCOMPARE(m_activations, 1);
    }

    void replyOpensTheChatAndMarkAsReadStaysBehind()
    {
        startServer();
        const uint replying = showAndWait(u"1"_s);
        const uint reading = showAndWait(u"2"_s);

        Q_EMIT m_server->ActionInvoked(reading, u"mark-read"_s);
        QTRY_COMPARE(m_read, QVariantList{u"2"_s});
        QVERIFY(m_opened.isEmpty());
        QCOMPARE(m_activations, 0);
        QTRY_VERIFY(!m_poster->chatID(reading));

        Q_EMIT m_server->ActionInvoked(replying, u"reply"_s);
        QTRY_COMPARE(m_opened, QVariantList{u"1/message 1"_s});
        QCOMPARE(m_activations, 1);
        // Used once: a second press of the same button finds nothing.
        QTRY_VERIFY(!m_poster->chatID(replying));
        Q_EMIT m_server->ActionInvoked(replying, u"mark-read"_s);
        const uint last = showAndWait(u"3"_s);
        Q_EMIT m_server->ActionInvoked(last, u"default"_s);
        QTRY_COMPARE(m_opened.size(), 2);
        QCOMPARE(m_read, QVariantList{u"2"_s});
    }

    void repliesTypedIntoTheNotificationAreSent()
    {
        startServer();
        m_server->capabilities = {u"actions"_s, u"body"_s, u"inline-reply"_s};
        const uint id = showAndWait(u"1"_s);
        const QStringList actions = m_server->calls.constLast().actions;
        QVERIFY2(actions.contains(u"inline-reply"_s) && !actions.contains(u"reply"_s), qPrintable(actions.join(u' ')));
        QVERIFY(actions.contains(u"mark-read"_s));
        QVERIFY(!m_server->calls.constLast().hints.value(u"x-kde-reply-placeholder-text"_s).toString().isEmpty());

        // The button only opens the server's field; the reply comes with NotificationReplied.
        Q_EMIT m_server->ActionInvoked(id, u"inline-reply"_s);
        Q_EMIT m_server->NotificationReplied(id, u"   "_s);
        const uint second = showAndWait(u"2"_s);
        Q_EMIT m_server->NotificationReplied(second, u"On my way 🚲"_s);
        QTRY_COMPARE(m_replies, QVariantList{u"2/message 2 On my way 🚲"_s});
        QVERIFY(m_opened.isEmpty());
        QCOMPARE(m_activations, 0);
    }

    void serversWithoutActionsOfferOnlyTheClick()
    {
        startServer();
        m_server->capabilities = {u"body"_s};
        showAndWait(u"1"_s);
        QCOMPARE(m_server->calls.constLast().actions.size(), 2);
        QCOMPARE(m_server->calls.constLast().actions.constFirst(), u"default"_s);
    }

    void otherActionsAndUnknownIDsPostNothing()
    {
        startServer();
        const uint first = showAndWait(u"1"_s);
        const uint second = showAndWait(u"2"_s);

        Q_EMIT m_server->ActionInvoked(second + 100, u"default"_s);
        Q_EMIT m_server->ActionInvoked(second + 100, u"mark-read"_s);
        Q_EMIT m_server->ActionInvoked(first, u"snooze"_s);
        // The bus keeps the order, so once this click is in, the two above were seen.
        Q_EMIT m_server->ActionInvoked(second, u"default"_s);
        QTRY_COMPARE(m_opened, QVariantList{u"2"_s});
        QCOMPARE(m_activations, 1);
    }

    void closedNotificationsAreForgotten()
    {
        startServer();
        const uint closed = showAndWait(u"1"_s);
        Q_EMIT m_server->NotificationClosed(closed, 2);
        QTRY_VERIFY(!m_poster->chatID(closed));
        Q_EMIT m_server->ActionInvoked(closed, u"default"_s);

        const uint open = showAndWait(u"2"_s);
        Q_EMIT m_server->ActionInvoked(open, u"default"_s);
        QTRY_COMPARE(m_opened, QVariantList{u"2"_s});
    }

    void serverThatQuitsTakesItsNotifications()
    {
        startServer();
        const uint id = showAndWait(u"1"_s);
        stopServer();
        QTRY_VERIFY(!m_poster->chatID(id));
    }

    void withoutServerNothingIsShown()
    {
        NotificationService::shared().notify(u"Alice"_s, u"Hello"_s, u"1"_s, u"10"_s);
        QTRY_COMPARE(m_poster->pendingCount(), 0);

        // A server that starts later is used from then on.
        startServer();
        QTRY_VERIFY(QDBusConnection::sessionBus().interface()->isServiceRegistered(serviceName));
        const uint id = showAndWait(u"2"_s);
        QCOMPARE(m_server->calls.size(), 1);
        QCOMPARE(m_server->calls.constFirst().summary, u"Title 2"_s);
        QVERIFY(id != 0);
    }

    void withoutBusNothingIsShown()
    {
        FreedesktopNotificationPoster poster(
            QDBusConnection::connectToBus(u"unix:path=/nonexistent/vost-test-bus"_s, u"no bus"_s));
        poster.show(u"telegram-message-1-x"_s, u"Alice"_s, u"Hello"_s, u"1"_s, u"10"_s);
        QCOMPARE(poster.pendingCount(), 0);
        QDBusConnection::disconnectFromBus(u"no bus"_s);
    }

private:
    void startServer()
    {
        m_server = std::make_unique<TestNotificationServer>();
        QDBusConnection bus = serverBus();
        QVERIFY(bus.registerObject(objectPath, m_server.get(),
                                   QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        QVERIFY(bus.registerService(serviceName));
    }

    void stopServer()
    {
        if (!m_server)
            return;
        QDBusConnection bus = serverBus();
        bus.unregisterService(serviceName);
        bus.unregisterObject(objectPath);
        m_server.reset();
    }

    // The server has a bus connection of its own, so every call really crosses the bus.
    static QDBusConnection serverBus()
    {
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"notification server"_s);
    }

    // Shows a notification for chatID and waits until the poster knows its server id.
    uint showAndWait(const QString &chatID)
    {
        const auto before = m_server->calls.size();
        NotificationService::shared().notify(u"Title "_s + chatID, u"Body"_s, chatID, u"message "_s + chatID);
        if (!QTest::qWaitFor([&] { return m_server->calls.size() > before; }))
            return 0;
        const uint id = m_server->calls.constLast().id;
        return QTest::qWaitFor([&] { return m_poster->chatID(id).has_value(); }) ? id : 0;
    }

    std::unique_ptr<TestNotificationServer> m_server;
    std::unique_ptr<FreedesktopNotificationPoster> m_poster;
    QVariantList m_opened;
    QVariantList m_read;
    QVariantList m_replies;
    int m_activations = 0;
};

QTEST_MAIN(NotificationPosterTest)
#include "tst_notificationposter.moc"
