#include "session/NotificationService.h"

#include "platform/NotificationPoster.h"
#include "session/NotificationCenter.h"

#include <QUuid>

using namespace Qt::StringLiterals;

NotificationService &NotificationService::shared()
{
    static NotificationService service;
    return service;
}

void NotificationService::setPoster(NotificationPoster *poster)
{
    NotificationCenter *center = &NotificationCenter::defaultCenter();
    if (m_poster) {
        disconnect(m_poster, nullptr, this, nullptr);
        disconnect(m_poster, nullptr, center, nullptr);
    }
    m_poster = poster;
    if (!m_poster)
        return;
    connect(m_poster, &NotificationPoster::clicked, this, &NotificationService::didReceive);
    connect(m_poster, &NotificationPoster::replyRequested, this, &NotificationService::didRequestReply);
    connect(m_poster, &NotificationPoster::markAsReadRequested, center, &NotificationCenter::markTelegramChatRead);
    connect(m_poster, &NotificationPoster::replied, center, &NotificationCenter::sendTelegramReply);
}

void NotificationService::notify(const QString &title, const QString &body, const QString &chatID,
                                 const QString &messageID)
{
    if (!m_poster)
        return;
    const QString identifier =
        u"telegram-message-"_s + chatID + u'-' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_poster->show(identifier, title, body, chatID, messageID);
}

void NotificationService::didReceive(const QString &chatID)
{
    if (m_activate)
        m_activate();
    Q_EMIT NotificationCenter::defaultCenter().openTelegramChat(chatID);
}

void NotificationService::didRequestReply(const QString &chatID, const QString &messageID)
{
    if (m_activate)
        m_activate();
    Q_EMIT NotificationCenter::defaultCenter().replyInTelegramChat(chatID, messageID);
}
