#pragma once

#include <QObject>

#include <memory>

// Shows desktop notifications and reports clicks on them.
class NotificationPoster : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Shows a notification at once, without a sound of its own. The identifier is
    // unique per notification, so notifications never replace each other.
    virtual void show(const QString &identifier, const QString &title, const QString &body,
                      const QString &chatID) = 0;

Q_SIGNALS:
    // The user clicked a notification; chatID is what it was shown with.
    void clicked(const QString &chatID);
};

// The platform's notification service (freedesktop notifications over D-Bus on Linux).
std::unique_ptr<NotificationPoster> makeSystemNotificationPoster();
