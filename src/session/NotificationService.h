#pragma once

#include <QObject>

#include <functional>

class NotificationPoster;

// Announces incoming messages on the desktop. A click on an announcement brings
// the client forward and asks for that chat to be opened ("openTelegramChat"); its
// actions ask for a reply or for the chat to be read.
class NotificationService : public QObject
{
    Q_OBJECT

public:
    static NotificationService &shared();

    // The platform poster; none: nothing is shown.
    void setPoster(NotificationPoster *poster);
    // Brings the client to the front; set by the application.
    void setActivator(std::function<void()> activate) { m_activate = std::move(activate); }

    void notify(const QString &title, const QString &body, const QString &chatID, const QString &messageID);
    // What a click on the notification of chatID does.
    void didReceive(const QString &chatID);
    // What "Reply" on the notification of messageID does.
    void didRequestReply(const QString &chatID, const QString &messageID);

private:
    NotificationPoster *m_poster = nullptr;
    std::function<void()> m_activate;
};
