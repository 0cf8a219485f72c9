#include "platform/TrayHost.h"

#include <QDBusConnection>
#include <QDBusInterface>

using namespace Qt::StringLiterals;

bool TrayHost::drawsItemMenus()
{
    // The question Qt asks before it chooses a StatusNotifierItem over XEmbed.
    QDBusInterface watcher(u"org.kde.StatusNotifierWatcher"_s, u"/StatusNotifierWatcher"_s,
                           u"org.kde.StatusNotifierWatcher"_s, QDBusConnection::sessionBus());
    return watcher.isValid() && watcher.property("IsStatusNotifierHostRegistered").toBool();
}
