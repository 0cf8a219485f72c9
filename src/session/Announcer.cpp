#include "session/Announcer.h"

#include "session/ContentTexts.h"
#include "session/NotificationService.h"
#include "session/Preferences.h"
#include "session/SoundManager.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

Announcer::Announcer()
    : m_soundManager(&SoundManager::shared())
{}

void Announcer::play(SoundEvent event) const
{
    m_soundManager->play(event);
}

void Announcer::announceMessage(const TdObject &message, bool muted, const std::optional<QString> &listedTitle) const
{
    if (message.value("is_outgoing"_L1).toBool() || muted)
        return;
    const std::optional<qint64> chat = int64From(message.value("chat_id"_L1));
    const std::optional<qint64> id = int64From(message.value("id"_L1));
    const QJsonValue content = message.value("content"_L1);
    if (!chat || !content.isObject())
        return;
    const QString title = listedTitle.value_or(QCoreApplication::translate("Announcer", "New Telegram message"));
    if (Preferences::shared().showsNotifications())
        NotificationService::shared().notify(title, veiledMessageText(content.toObject()), QString::number(*chat),
                                             id ? QString::number(*id) : QString());
    m_soundManager->play(SoundEvent::IncomingMessage);
}
