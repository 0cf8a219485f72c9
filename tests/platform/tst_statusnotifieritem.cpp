// The StatusNotifierItem and its menu over a real D-Bus session bus (a private
// one, see CMakeLists.txt). A watcher of our own comes and goes on a second
// connection, the way a panel does; the menu is read and clicked the way hosts do.

#include "platform/linux/DBusMenuExporter.h"
#include "platform/linux/StatusNotifierItem.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TestWatcher : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    QStringList registered;

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service) { registered.append(service); }
};

class StatusNotifierItemTest : public QObject
{
    Q_OBJECT

private:
    // A connection of its own, as a panel process has.
    QDBusConnection panel() { return QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"panel"_s); }

    QDBusMessage callMenu(const StatusNotifierItem &item, const QString &method, const QVariantList &arguments)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(
            item.serviceName(), QString::fromLatin1(DBusMenuExporter::objectPath), u"com.canonical.dbusmenu"_s, method);
        call.setArguments(arguments);
        // The item answers from this same process: its event loop must keep running.
        return panel().call(call, QDBus::BlockWithGui);
    }

private Q_SLOTS:
    void pixmapsAreArgbInNetworkOrder()
    {
        QImage image(2, 1, QImage::Format_ARGB32);
        image.setPixel(0, 0, qRgba(0x11, 0x22, 0x33, 0xff));
        image.setPixel(1, 0, qRgba(0, 0, 0, 0));
        const StatusNotifierPixmap pixmap = StatusNotifierItem::pixmap(image);
        QCOMPARE(pixmap.width, 2);
        QCOMPARE(pixmap.height, 1);
        QCOMPARE(pixmap.bytes, QByteArray::fromHex("ff11223300000000"));
    }

    void followsTheWatcherEveryTime()
    {
        StatusNotifierItem item;
        QVERIFY(!item.isShown());
        QSignalSpy shown(&item, &TrayItem::shownChanged);
        TestWatcher watcher;
        QDBusConnection bus = panel();
        QVERIFY(bus.registerObject(u"/StatusNotifierWatcher"_s, &watcher, QDBusConnection::ExportAllSlots));
        for (int round = 0; round < 2; ++round) {
            QVERIFY(bus.registerService(QString::fromLatin1(StatusNotifierItem::watcherService)));
            QTRY_COMPARE(watcher.registered.size(), round + 1);
            QCOMPARE(watcher.registered.last(), item.serviceName());
            QVERIFY(item.isShown());
            QVERIFY(bus.unregisterService(QString::fromLatin1(StatusNotifierItem::watcherService)));
            QTRY_VERIFY(!item.isShown());
        }
        QCOMPARE(shown.size(), 4);
        QVERIFY(item.serviceName().startsWith("org.kde.StatusNotifierItem-"_L1));
        QVERIFY(bus.interface()->isServiceRegistered(item.serviceName()));
    }

    void theMenuIsReadAndClickedByHosts()
    {
        StatusNotifierItem item;
        item.setMenu({u"Open Vost"_s, QString(), u"Quit Vost"_s});
        QSignalSpy triggered(&item, &TrayItem::menuEntryTriggered);
        QSignalSpy aboutToShow(&item, &TrayItem::menuAboutToShow);

        const QDBusMessage layout = callMenu(item, u"GetLayout"_s, {0, -1, QStringList()});
        QCOMPARE(layout.type(), QDBusMessage::ReplyMessage);
        QCOMPARE(layout.signature(), u"u(ia{sv}av)"_s);
        const QDBusMessage group = callMenu(item, u"GetGroupProperties"_s,
                                            {QVariant::fromValue(QList<int>{1, 2, 3}), QStringList{u"label"_s}});
        QCOMPARE(group.signature(), u"a(ia{sv})"_s);
        const QDBusMessage label = callMenu(item, u"GetProperty"_s, {3, u"label"_s});
        QCOMPARE(label.arguments().value(0).value<QDBusVariant>().variant().toString(), u"Quit Vost"_s);
        const QDBusMessage separator = callMenu(item, u"GetProperty"_s, {2, u"type"_s});
        QCOMPARE(separator.arguments().value(0).value<QDBusVariant>().variant().toString(), u"separator"_s);

        callMenu(item, u"AboutToShow"_s, {0});
        QTRY_COMPARE(aboutToShow.size(), 1);
        const QVariant noData = QVariant::fromValue(QDBusVariant(0));
        callMenu(item, u"Event"_s, {3, u"clicked"_s, noData, 0u});
        QTRY_COMPARE(triggered.size(), 1);
        QCOMPARE(triggered.first().first().toInt(), 2);
        // A separator does nothing; an unknown entry is an error, not a crash.
        callMenu(item, u"Event"_s, {2, u"clicked"_s, noData, 0u});
        QCOMPARE(callMenu(item, u"Event"_s, {9, u"clicked"_s, noData, 0u}).type(), QDBusMessage::ErrorMessage);
        QCOMPARE(callMenu(item, u"GetLayout"_s, {9, -1, QStringList()}).type(), QDBusMessage::ErrorMessage);
        QTest::qWait(50);
        QCOMPARE(triggered.size(), 1);
    }

    void aNewLanguageUpdatesTheLayout()
    {
        StatusNotifierItem item;
        item.setMenu({u"Open Vost"_s, QString(), u"Quit Vost"_s});
        QSignalSpy updated(item.findChild<DBusMenuExporter *>(), &DBusMenuExporter::layoutUpdated);
        const uint before = callMenu(item, u"GetLayout"_s, {0, -1, QStringList()}).arguments().value(0).toUInt();
        item.setMenu({u"Vost öffnen"_s, QString(), u"Vost beenden"_s});
        QCOMPARE(updated.size(), 1);
        const uint after = callMenu(item, u"GetLayout"_s, {0, -1, QStringList()}).arguments().value(0).toUInt();
        QVERIFY(after > before);
        const QDBusMessage label = callMenu(item, u"GetProperty"_s, {1, u"label"_s});
        QCOMPARE(label.arguments().value(0).value<QDBusVariant>().variant().toString(), u"Vost öffnen"_s);
    }
};

QTEST_GUILESS_MAIN(StatusNotifierItemTest)
#include "tst_statusnotifieritem.moc"
