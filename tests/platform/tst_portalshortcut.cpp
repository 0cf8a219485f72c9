// The global shortcut through the GlobalShortcuts portal, on a private session bus:
// the real xdg-desktop-portal speaks to the program, and a backend of the test's
// own stands where KDE's would, answering CreateSession and BindShortcuts and
// sending Activated as a desktop does when the keys are pressed.

#include "platform/linux/PortalGlobalShortcut.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString backendService = u"org.freedesktop.impl.portal.desktop.vosttest"_s;
const QString backendPath = u"/org/freedesktop/portal/desktop"_s;
} // namespace

namespace {
QDBusConnection backendConnection()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"backend"_s);
}
} // namespace

// What a desktop's backend does, with the user's answers decided by the test.
class TestShortcutsBackend : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.GlobalShortcuts")
    Q_PROPERTY(uint version READ version)

public:
    uint version() const { return 1; }

    // 0 binds what is asked; 1 is the user cancelling the desktop's dialog.
    uint bindResponse = 0;
    QList<QDBusObjectPath> sessions;
    QList<PortalShortcut> asked;

public Q_SLOTS:
    uint CreateSession(const QDBusObjectPath &, const QDBusObjectPath &session, const QString &, const QVariantMap &,
                       QVariantMap &results)
    {
        sessions.append(session);
        // As KDE's backend answers: the session's shortcuts so far (xdg-desktop-portal
        // 1.16 passes them on and complains when they are missing).
        results = {{u"shortcuts"_s, QVariant::fromValue(QList<PortalShortcut>())}};
        return 0;
    }

    uint BindShortcuts(const QDBusObjectPath &, const QDBusObjectPath &, const QList<PortalShortcut> &shortcuts,
                       const QString &, const QVariantMap &, QVariantMap &results)
    {
        asked = shortcuts;
        results = {};
        if (bindResponse == 0)
            results.insert(u"shortcuts"_s, QVariant::fromValue(asked));
        return bindResponse;
    }

    uint ListShortcuts(const QDBusObjectPath &, const QDBusObjectPath &, QVariantMap &results)
    {
        results = {{u"shortcuts"_s, QVariant::fromValue(asked)}};
        return 0;
    }

Q_SIGNALS:
    void Activated(const QDBusObjectPath &session, const QString &shortcut, qulonglong timestamp,
                   const QVariantMap &options);
};

class PortalShortcutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "needs a session bus: run under dbus-run-session");
        // Known by name before the backend's slots are exported.
        qRegisterMetaType<QDBusObjectPath>();
        qDBusRegisterMetaType<PortalShortcut>();
        qDBusRegisterMetaType<QList<PortalShortcut>>();
    }

    void withoutThePortalThereIsNone()
    {
        PortalGlobalShortcut shortcut;
        QSignalSpy learnt(&shortcut, &GlobalShortcut::availabilityChanged);
        QVERIFY(learnt.wait(5000));
        QVERIFY(!shortcut.isAvailable());
        QVERIFY(!shortcut.setShortcut(QKeySequence(u"Ctrl+Alt+V"_s)));
    }

    void triggersReadAsTheDesktopWritesThem()
    {
        QCOMPARE(PortalGlobalShortcut::trigger(QKeySequence(u"Ctrl+Alt+V"_s)), u"CTRL+ALT+v"_s);
        QCOMPARE(PortalGlobalShortcut::trigger(QKeySequence(u"Meta+Shift+Space"_s)), u"SHIFT+LOGO+space"_s);
        QCOMPARE(PortalGlobalShortcut::trigger(QKeySequence(u"Ctrl+F12"_s)), u"CTRL+F12"_s);
        QCOMPARE(PortalGlobalShortcut::trigger(QKeySequence(u"Alt+PgDown"_s)), u"ALT+Page_Down"_s);
        QCOMPARE(PortalGlobalShortcut::trigger(QKeySequence()), QString());
    }

    void theDesktopBindsItAndItsKeysOpenVost()
    {
        TestShortcutsBackend backend;
        QProcess portal;
        startPortal(backend, portal);

        PortalGlobalShortcut shortcut;
        QSignalSpy learnt(&shortcut, &GlobalShortcut::availabilityChanged);
        QVERIFY(learnt.wait(5000));
        QVERIFY(shortcut.isAvailable());

        QSignalSpy settled(&shortcut, &GlobalShortcut::settled);
        QSignalSpy activated(&shortcut, &GlobalShortcut::activated);
        QVERIFY(shortcut.setShortcut(QKeySequence(u"Ctrl+Alt+V"_s)));
        QVERIFY(settled.wait(10000));
        QCOMPARE(settled.first().first().toBool(), true);
        QCOMPARE(backend.asked.size(), 1);
        QCOMPARE(backend.asked.first().id, PortalGlobalShortcut::shortcutID);
        QCOMPARE(backend.asked.first().properties.value(u"preferred_trigger"_s).toString(), u"CTRL+ALT+v"_s);
        QVERIFY(!backend.asked.first().properties.value(u"description"_s).toString().isEmpty());

        // Another session's shortcut, or another id, is not ours.
        Q_EMIT backend.Activated(QDBusObjectPath(u"/org/freedesktop/portal/desktop/session/x/other"_s),
                                 PortalGlobalShortcut::shortcutID, 1, {});
        Q_EMIT backend.Activated(backend.sessions.last(), u"something-else"_s, 2, {});
        Q_EMIT backend.Activated(backend.sessions.last(), PortalGlobalShortcut::shortcutID, 3, {});
        QVERIFY(activated.wait(5000));
        QTest::qWait(200);
        QCOMPARE(activated.size(), 1);

        // A new combination is bound in a session of its own; the old one's keys
        // open nothing any more.
        const QDBusObjectPath old = backend.sessions.last();
        QVERIFY(shortcut.setShortcut(QKeySequence(u"Ctrl+Shift+F5"_s)));
        QVERIFY(settled.wait(10000));
        QCOMPARE(backend.sessions.size(), 2);
        QCOMPARE(backend.asked.first().properties.value(u"preferred_trigger"_s).toString(), u"CTRL+SHIFT+F5"_s);
        Q_EMIT backend.Activated(old, PortalGlobalShortcut::shortcutID, 4, {});
        QTest::qWait(300);
        QCOMPARE(activated.size(), 1);

        // The user turns the desktop's question down.
        backend.bindResponse = 1;
        QVERIFY(shortcut.setShortcut(QKeySequence(u"Ctrl+Alt+K"_s)));
        QVERIFY(settled.wait(10000));
        QCOMPARE(settled.last().first().toBool(), false);
        // Asked for the same again (a recording that ends unchanged), it is still not held.
        QVERIFY(!shortcut.setShortcut(QKeySequence(u"Ctrl+Alt+K"_s)));

        // None chosen: nothing asked, nothing held.
        settled.clear();
        QVERIFY(shortcut.setShortcut(QKeySequence()));
        QTest::qWait(300);
        QCOMPARE(settled.size(), 0);
        QCOMPARE(backend.sessions.size(), 3);

        stopPortal(portal);
    }

private:
    QTemporaryDir m_portals;

    // xdg-desktop-portal with only the test's backend, for a desktop named "vosttest".
    void startPortal(TestShortcutsBackend &backend, QProcess &portal)
    {
        QVERIFY(m_portals.isValid());
        QFile description(m_portals.filePath(u"vosttest.portal"_s));
        QVERIFY(description.open(QIODevice::WriteOnly));
        description.write("[portal]\nDBusName=org.freedesktop.impl.portal.desktop.vosttest\n"
                          "Interfaces=org.freedesktop.impl.portal.GlobalShortcuts;\nUseIn=vosttest\n");
        description.close();

        QDBusConnection bus = backendConnection();
        QVERIFY(bus.registerObject(backendPath, &backend,
                                   QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                                       QDBusConnection::ExportAllProperties));
        QVERIFY(bus.registerService(backendService));

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DESKTOP_PORTAL_DIR"_s, m_portals.path());
        environment.insert(u"XDG_CURRENT_DESKTOP"_s, u"vosttest"_s);
        portal.setProcessEnvironment(environment);
        portal.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        portal.start(u"/usr/libexec/xdg-desktop-portal"_s, {u"--replace"_s});
        QVERIFY2(portal.waitForStarted(), "xdg-desktop-portal is installed by ./run.sh test");
        QTRY_VERIFY_WITH_TIMEOUT(
            QDBusConnection::sessionBus().interface()->isServiceRegistered(u"org.freedesktop.portal.Desktop"_s), 10000);
    }

    static void stopPortal(QProcess &portal)
    {
        portal.terminate();
        if (!portal.waitForFinished(3000))
            portal.kill();
        QDBusConnection bus = backendConnection();
        bus.unregisterObject(backendPath);
        bus.unregisterService(backendService);
    }
};

QTEST_GUILESS_MAIN(PortalShortcutTest)
#include "tst_portalshortcut.moc"
