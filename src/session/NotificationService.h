#pragma once

#include <QObject>

#include <functional>

class NotificationPoster;

// Announces incoming messages on the desktop. A click on an announcement brings
// the client forward and asks for that chat to be opened ("openTelegramChat").
class NotificationService : public QObject
{
    Q_OBJECT

public:
    static NotificationService &shared();

    // The platform poster; none: nothing is shown.
    void setPoster(NotificationPoster *poster);
    // Brings the client to the front; set by the application.
    void setActivator(std::function<void()> activate) { m_activate = std::move(activate); }

    void notify(const QString &title, const QString &body, const QString &chatID);
    // What a click on the notification of chatID does.
    void didReceive(const QString &chatID);

private:
    NotificationPoster *m_poster = nullptr;
    std::function<void()> m_activate;
};
