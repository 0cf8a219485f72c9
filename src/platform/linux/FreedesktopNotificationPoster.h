#pragma once

#include "platform/NotificationPoster.h"

#include <QDBusConnection>
#include <QHash>
#include <QList>
#include <QStringList>

#include <optional>

class QDBusServiceWatcher;

// Desktop notifications through the freedesktop notification service
// (org.freedesktop.Notifications) on a D-Bus connection, the session bus by default.
//
// Every call is asynchronous, so a slow server never holds up the caller. Without a
// connection or without the service nothing is shown and nothing is reported.
// Clicks and actions arrive in this object's thread, which is the main thread when it is made there.
class FreedesktopNotificationPoster : public NotificationPoster
{
    Q_OBJECT

public:
    explicit FreedesktopNotificationPoster(QDBusConnection connection = QDBusConnection::sessionBus(),
                                           QObject *parent = nullptr);
    ~FreedesktopNotificationPoster() override;

    void show(const QString &identifier, const QString &title, const QString &body, const QString &chatID,
              const QString &messageID) override;

    // What a notification the server still shows was posted with.
    std::optional<QString> chatID(uint notificationID) const;
    std::optional<QString> identifier(uint notificationID) const;
    std::optional<QString> messageID(uint notificationID) const;
    // Notifications asked for whose server id is not known yet.
    int pendingCount() const { return static_cast<int>(m_waiting.size()) + m_inFlight; }

private Q_SLOTS:
    void onActionInvoked(uint notificationID, const QString &actionKey);
    void onNotificationClosed(uint notificationID, uint reason);
    // KDE's servers: the reply typed into a notification offered "inline-reply".
    void onNotificationReplied(uint notificationID, const QString &text);

private:
    struct Request {
        QString identifier;
        QString title;
        QString body;
        QString chatID;
        QString messageID;
    };

    void askForCapabilities();
    void send(const Request &request);
    void forgetServer();

    QDBusConnection m_connection;
    QDBusServiceWatcher *m_watcher = nullptr;
    // The server's capabilities, once it has told them.
    std::optional<QStringList> m_capabilities;
    bool m_askingForCapabilities = false;
    // Requests held until the capabilities are known.
    QList<Request> m_waiting;
    int m_inFlight = 0;
    // Bumped whenever the server goes away, so late answers of the old one are dropped.
    quint64 m_serverGeneration = 0;

    struct Shown {
        QString identifier;
        QString chatID;
        QString messageID;
    };
    // Takes a notification that has been acted on off the screen; what it was shown with.
    std::optional<Shown> use(uint notificationID);
    QHash<uint, Shown> m_shown;
    // The ids of m_shown, oldest first.
    QList<uint> m_order;
};
