// Incoming messages are announced with what the chat list knows of their chat.

#include "session/Announcer.h"
#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

void TelegramSession::notifyIfNeeded(const TdObject &message)
{
    const std::optional<qint64> chat = int64From(message.value("chat_id"_L1));
    const ChatListStore::Record *record = chat ? m_chatList->find(*chat) : nullptr;
    const bool muted = record && record->isMuted;
    const bool listed = record && record->listKey && record->chat;
    m_announcer->announceMessage(message, muted, listed ? std::optional(record->chat->title) : std::nullopt);
}
