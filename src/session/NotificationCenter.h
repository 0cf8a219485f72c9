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
    // "Reply" on a notification: the chat is to be shown, replying to messageID.
    void replyInTelegramChat(const QString &chatID, const QString &messageID);
    // "Mark as read" on a notification: the chat is read where it is.
    void markTelegramChatRead(const QString &chatID);
    // A reply typed into a notification, to be sent as a reply to messageID.
    void sendTelegramReply(const QString &chatID, const QString &messageID, const QString &text);
};
