#pragma once

#include "platform/GlobalShortcut.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QPointer>
#include <QVariantMap>

class PortalRequest;

// One entry of the portal's a(sa{sv}): a shortcut's id and its properties. Outside
// any namespace: QtDBus matches the slots of a desktop's backend by this name.
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};
Q_DECLARE_METATYPE(PortalShortcut)

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut);
const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut);

// The XDG GlobalShortcuts portal: one session holding one shortcut, "open-vost".
// The combination chosen in Preferences goes as the preferred trigger; the desktop
// may ask the user to confirm or pick another, and answers whether it is bound.
// A new combination closes the session and binds it in a new one.
class PortalGlobalShortcut : public GlobalShortcut
{
    Q_OBJECT

public:
    static const QString shortcutID;

    explicit PortalGlobalShortcut(QDBusConnection connection = QDBusConnection::sessionBus(),
                                  QObject *parent = nullptr);
    ~PortalGlobalShortcut() override;

    bool isAvailable() const override { return m_available; }
    bool setShortcut(const QKeySequence &sequence) override;

    // The trigger in the XDG shortcuts format ("CTRL+ALT+v"); "" for none.
    static QString trigger(const QKeySequence &sequence);

private Q_SLOTS:
    void onActivated(const QDBusObjectPath &session, const QString &shortcut, qulonglong timestamp,
                     const QVariantMap &options);

private:
    void createSession();
    void bind();
    void closeSession();
    void settle(bool held);

    QDBusConnection m_connection;
    bool m_available = false;
    QString m_trigger;
    QString m_session;
    // The desktop did not bind the combination asked for last.
    bool m_refused = false;
    // The request on its way (creating the session, or binding); its answer is
    // forgotten when the shortcut changes meanwhile.
    QPointer<PortalRequest> m_request;
};

// The GlobalShortcuts portal on the session bus, for Wayland sessions.
std::unique_ptr<GlobalShortcut> makeWaylandGlobalShortcut();
