// The desktop's colour scheme from the settings portal and the launcher count, over
// a real D-Bus session bus (a private one, see CMakeLists.txt): a small portal of our
// own answers Read and sends SettingChanged, and a second connection listens for the
// launcher's Update signal as a dock does.

#include "platform/LauncherEntry.h"
#include "platform/linux/PortalColorScheme.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
} // namespace

// The portal lives on a connection of its own, as it would in another process.
QDBusConnection portalConnection()
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"portal"_s);
}

class TestSettingsPortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QVariant colorScheme = QVariant::fromValue(1U);

public Q_SLOTS:
    // As xdg-desktop-portal answers Read: the value inside one variant more.
    QDBusVariant Read(const QString &settingNamespace, const QString &key, const QDBusMessage &message)
    {
        if (settingNamespace != "org.freedesktop.appearance"_L1 || key != "color-scheme"_L1 || !colorScheme.isValid()) {
            message.setDelayedReply(true);
            portalConnection().send(
                message.createErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"Requested setting not found"_s));
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &settingNamespace, const QString &key, const QDBusVariant &value);
};

class DesktopBusTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void onLauncherUpdate(const QDBusMessage &message) { m_updates.append(message); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "needs a session bus: run under dbus-run-session");
    }

    void cleanup()
    {
        QDBusConnection bus = portalConnection();
        bus.unregisterObject(portalPath);
        bus.unregisterService(portalService);
    }

    static bool publish(TestSettingsPortal &portal)
    {
        QDBusConnection bus = portalConnection();
        return bus.registerObject(portalPath, &portal,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
               bus.registerService(portalService);
    }

    void portalValues()
    {
        using Scheme = DesktopColorScheme;
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(QVariant::fromValue(1U)), Scheme::Dark);
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(QVariant::fromValue(2U)), Scheme::Light);
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(QVariant::fromValue(0U)), Scheme::NoPreference);
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(QVariant::fromValue(7U)), Scheme::NoPreference);
        const QVariant nested = QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(2U))));
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(nested), Scheme::Light);
        // Not the documented type: no preference rather than a guess.
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(u"dark"_s), Scheme::NoPreference);
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(QVariant(1)), Scheme::NoPreference);
        QCOMPARE(PortalColorSchemeWatcher::fromPortalValue(QVariant()), Scheme::NoPreference);
    }

    void withoutAPortalTheSchemeIsUnknown()
    {
        PortalColorSchemeWatcher watcher;
        QSignalSpy changes(&watcher, &ColorSchemeWatcher::schemeChanged);
        // The bus answers the Read at once with an error; nothing changes.
        QVERIFY(!changes.wait(500));
        QCOMPARE(watcher.scheme(), DesktopColorScheme::Unknown);
    }

    void thePortalsAnswerAndItsChangesAreFollowed()
    {
        TestSettingsPortal portal;
        QVERIFY(publish(portal));

        PortalColorSchemeWatcher watcher;
        QCOMPARE(watcher.scheme(), DesktopColorScheme::Unknown);
        QSignalSpy changes(&watcher, &ColorSchemeWatcher::schemeChanged);
        QTRY_COMPARE(watcher.scheme(), DesktopColorScheme::Dark);
        QCOMPARE(changes.size(), 1);

        Q_EMIT portal.SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s, QDBusVariant(2U));
        QTRY_COMPARE(watcher.scheme(), DesktopColorScheme::Light);
        // Other settings are not the colour scheme.
        Q_EMIT portal.SettingChanged(u"org.freedesktop.appearance"_s, u"contrast"_s, QDBusVariant(1U));
        Q_EMIT portal.SettingChanged(u"org.gnome.desktop.interface"_s, u"color-scheme"_s, QDBusVariant(1U));
        Q_EMIT portal.SettingChanged(u"org.freedesktop.appearance"_s, u"color-scheme"_s, QDBusVariant(0U));
        QTRY_COMPARE(watcher.scheme(), DesktopColorScheme::NoPreference);
        QCOMPARE(changes.size(), 3);
    }

    void aPortalWithoutTheSettingLeavesItUnknown()
    {
        TestSettingsPortal portal;
        portal.colorScheme = QVariant();
        QVERIFY(publish(portal));
        PortalColorSchemeWatcher watcher;
        QSignalSpy changes(&watcher, &ColorSchemeWatcher::schemeChanged);
        QVERIFY(!changes.wait(500));
        QCOMPARE(watcher.scheme(), DesktopColorScheme::Unknown);
    }

    // What a dock sees: Update(s app_uri, a{sv} properties) with "count" as int64
    // and "count-visible" as boolean, for our desktop entry.
    void theLauncherCountIsSignalled()
    {
        QDBusConnection dock = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"dock"_s);
        QVERIFY(dock.isConnected());
        QVERIFY(dock.connect(QString(), QString(), u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, this,
                             SLOT(onLauncherUpdate(QDBusMessage))));
        const QList<std::pair<qint64, bool>> cases{{5, true}, {0, false}, {123456789012, true}, {-3, false}};
        for (const auto &[count, visible] : cases) {
            m_updates.clear();
            LauncherEntry::showCount(count);
            QTRY_COMPARE(m_updates.size(), 1);
            const QDBusMessage update = m_updates.constFirst();
            QCOMPARE(update.signature(), u"sa{sv}"_s);
            QCOMPARE(update.path(), u"/com/corvella/Vost/UnityLauncher"_s);
            const QList<QVariant> arguments = update.arguments();
            QCOMPARE(arguments.at(0).toString(), u"application://com.corvella.Vost.desktop"_s);
            const QVariantMap properties = qdbus_cast<QVariantMap>(arguments.at(1));
            QCOMPARE(properties.value(u"count"_s).metaType(), QMetaType::fromType<qint64>());
            QCOMPARE(properties.value(u"count"_s).toLongLong(), std::max<qint64>(count, 0));
            QCOMPARE(properties.value(u"count-visible"_s).metaType(), QMetaType::fromType<bool>());
            QCOMPARE(properties.value(u"count-visible"_s).toBool(), visible);
        }
        QDBusConnection::disconnectFromBus(u"dock"_s);
    }

private:
    QList<QDBusMessage> m_updates;
};

QTEST_GUILESS_MAIN(DesktopBusTest)
#include "tst_desktopbus.moc"
