// Every incoming message in a chat that is not muted is announced with a desktop
// notification (unless the user turned them off) and the sound pack's sound,
// whichever chat is open.

#include "session/ContentTexts.h"
#include "session/NotificationService.h"
#include "session/Preferences.h"
#include "session/SoundManager.h"
#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

void TelegramSession::notifyIfNeeded(const TdObject &message)
{
    if (message.value("is_outgoing"_L1).toBool())
        return;
    const std::optional<qint64> chat = int64From(message.value("chat_id"_L1));
    const QJsonValue content = message.value("content"_L1);
    if (!chat || !content.isObject())
        return;
    const QString chatID = QString::number(*chat);
    const ChatRecord *record = findChatRecord(*chat);
    if (record && record->isMuted)
        return;
    const QString title = record && record->listKey && record->chat ? record->chat->title : tr("New Telegram message");
    if (Preferences::shared().showsNotifications())
        NotificationService::shared().notify(title, messageText(content.toObject()), chatID);
    m_soundManager->play(SoundEvent::IncomingMessage);
}
