#pragma once

#include <QObject>

#include <memory>

// Shows desktop notifications of messages and reports what the user does with them.
class NotificationPoster : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Shows a notification at once, without a sound of its own. The identifier is
    // unique per notification, so notifications never replace each other. Where the
    // desktop offers actions, the notification offers "Reply" and "Mark as read" on
    // the message; where it offers replies typed into the notification, the reply
    // is written there.
    virtual void show(const QString &identifier, const QString &title, const QString &body, const QString &chatID,
                      const QString &messageID) = 0;

Q_SIGNALS:
    // The user clicked a notification; chatID is what it was shown with.
    void clicked(const QString &chatID);
    // "Reply": the chat is to be opened with the composer replying to the message.
    void replyRequested(const QString &chatID, const QString &messageID);
    // "Mark as read": the chat is read without being shown.
    void markAsReadRequested(const QString &chatID);
    // A reply typed into the notification itself.
    void replied(const QString &chatID, const QString &messageID, const QString &text);
};

// The platform's notification service (freedesktop notifications over D-Bus on Linux).
std::unique_ptr<NotificationPoster> makeSystemNotificationPoster();
