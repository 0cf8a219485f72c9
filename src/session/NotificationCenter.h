#pragma once

#include <QObject>

// What the session announces to the rest of the process, on the main thread.
class NotificationCenter : public QObject
{
    Q_OBJECT

public:
    static NotificationCenter &defaultCenter();

Q_SIGNALS:
    // A desktop notification of a message in chatID was clicked: the chat is to be shown.
    void openTelegramChat(const QString &chatID);
};
