#pragma once

#include "platform/ColorScheme.h"

#include <QDBusConnection>
#include <QDBusVariant>

// The desktop's colour scheme from the XDG settings portal
// (org.freedesktop.portal.Settings, namespace "org.freedesktop.appearance", key
// "color-scheme") on a D-Bus connection, the session bus by default. The first
// answer is asked for without waiting; until it comes, and without a portal, the
// scheme is Unknown. Later changes arrive through the portal's SettingChanged.
class PortalColorSchemeWatcher : public ColorSchemeWatcher
{
    Q_OBJECT

public:
    explicit PortalColorSchemeWatcher(QDBusConnection connection = QDBusConnection::sessionBus(),
                                      QObject *parent = nullptr);

    DesktopColorScheme scheme() const override { return m_scheme; }

    // The portal's value: 1 prefers dark, 2 prefers light, 0 and anything else no
    // preference. Read answers it inside one variant more than SettingChanged does.
    static DesktopColorScheme fromPortalValue(const QVariant &value);

private Q_SLOTS:
    void onSettingChanged(const QString &settingNamespace, const QString &key, const QDBusVariant &value);

private:
    void setScheme(DesktopColorScheme scheme);

    QDBusConnection m_connection;
    DesktopColorScheme m_scheme = DesktopColorScheme::Unknown;
    // A change that arrives before the first answer wins over that answer.
    bool m_changed = false;
};
