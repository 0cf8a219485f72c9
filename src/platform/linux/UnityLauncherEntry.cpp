#include "platform/LauncherEntry.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

using namespace Qt::StringLiterals;

// The Unity launcher protocol: whoever draws launchers listens for the signal
// com.canonical.Unity.LauncherEntry.Update(s app_uri, a{sv} properties) from any
// object and matches app_uri to its desktop entry. Nothing is registered: a
// signal from an object path of our own is the whole protocol.
void LauncherEntry::showCount(qint64 count)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage update = QDBusMessage::createSignal(u"/com/corvella/Vost/UnityLauncher"_s,
                                                     u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    const QVariantMap properties{{u"count"_s, QVariant::fromValue<qint64>(std::max<qint64>(count, 0))},
                                 {u"count-visible"_s, count > 0}};
    update << QStringLiteral("application://" VOST_APP_ID ".desktop") << properties;
    bus.send(update);
}
