#include "platform/linux/PortalColorScheme.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

using namespace Qt::StringLiterals;

namespace {
const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString settingsInterface = u"org.freedesktop.portal.Settings"_s;
const QString appearanceNamespace = u"org.freedesktop.appearance"_s;
const QString colorSchemeKey = u"color-scheme"_s;
} // namespace

PortalColorSchemeWatcher::PortalColorSchemeWatcher(QDBusConnection connection, QObject *parent)
    : ColorSchemeWatcher(parent)
    , m_connection(std::move(connection))
{
    if (!m_connection.isConnected())
        return;
    m_connection.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                         SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    read << appearanceNamespace << colorSchemeKey;
    auto *watcher = new QDBusPendingCallWatcher(m_connection.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        // No portal, or one without the setting: the scheme stays Unknown.
        if (reply.isError() || m_changed)
            return;
        setScheme(fromPortalValue(reply.argumentAt(0)));
    });
}

DesktopColorScheme PortalColorSchemeWatcher::fromPortalValue(const QVariant &value)
{
    QVariant inner = value;
    // Variants inside variants: a QDBusVariant, or one still marshalled.
    for (int depth = 0; depth < 4; ++depth) {
        if (inner.metaType() == QMetaType::fromType<QDBusVariant>())
            inner = inner.value<QDBusVariant>().variant();
        else if (inner.metaType() == QMetaType::fromType<QDBusArgument>())
            inner = qdbus_cast<QDBusVariant>(inner.value<QDBusArgument>()).variant();
        else
            break;
    }
    if (inner.metaType() != QMetaType::fromType<uint>())
        return DesktopColorScheme::NoPreference;
    switch (inner.toUInt()) {
    case 1:
        return DesktopColorScheme::Dark;
    case 2:
        return DesktopColorScheme::Light;
    default:
        return DesktopColorScheme::NoPreference;
    }
}

void PortalColorSchemeWatcher::onSettingChanged(const QString &settingNamespace, const QString &key,
                                                const QDBusVariant &value)
{
    if (settingNamespace != appearanceNamespace || key != colorSchemeKey)
        return;
    m_changed = true;
    setScheme(fromPortalValue(QVariant::fromValue(value)));
}

void PortalColorSchemeWatcher::setScheme(DesktopColorScheme scheme)
{
    if (scheme == m_scheme)
        return;
    m_scheme = scheme;
    Q_EMIT schemeChanged();
}

std::unique_ptr<ColorSchemeWatcher> makeSystemColorSchemeWatcher()
{
    return std::make_unique<PortalColorSchemeWatcher>();
}
