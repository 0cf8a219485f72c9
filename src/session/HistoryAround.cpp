// The history around a message a search found, in place of the chat's newest
// messages, and the way back to those.

#include "session/TelegramSession.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

// Newer messages asked for beside the found one; as many older ones come with it.
constexpr int newerAroundMessage = 7;
constexpr int aroundWindow = 2 * newerAroundMessage + 1;

} // namespace

void TelegramSession::loadHistoryAround(const QString &chatID, const QString &messageID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    const std::optional<qint64> message = parseInt64(messageID);
    if (!chat || !message)
        return;
    if (const QList<StoredMessage> *held = m_messages.stored(chatID);
        held &&
        std::any_of(held->cbegin(), held->cend(), [&](const StoredMessage &stored) { return stored.id() == message; }))
        return;
    m_history.askAround(chatID, *message);
    send(u"getChatHistory"_s,
         {{"chat_id"_L1, *chat},
          {"from_message_id"_L1, *message},
          {"offset"_L1, -newerAroundMessage},
          {"limit"_L1, aroundWindow},
          {"only_local"_L1, false},
          {"@extra"_L1,
           TdObject{{"purpose"_L1, u"history_around"_s}, {"chat_id"_L1, *chat}, {"message_id"_L1, *message}}}});
}

void TelegramSession::storeHistoryAround(const QString &type, const TdObject &answer)
{
    const TdObject extra = answer.value("@extra"_L1).toObject();
    const std::optional<qint64> chat = int64From(extra.value("chat_id"_L1));
    if (!chat)
        return;
    const QString chatID = QString::number(*chat);
    // Only the answer for the message last asked for counts; a failed one leaves
    // the transcript as it was.
    if (!m_history.takeAroundAnswer(chatID, int64From(extra.value("message_id"_L1)).value_or(0)))
        return;
    if (type != "messages"_L1 || m_chatList->isRemoved(chatID))
        return;
    QList<StoredMessage> window;
    for (const QJsonValue &value : answer.value("messages"_L1).toArray()) {
        const TdObject message = value.toObject();
        if (int64From(message.value("chat_id"_L1)) == chat && int64From(message.value("id"_L1)))
            window.append(StoredMessage(message));
    }
    if (window.isEmpty())
        return;
    m_messages.storedOrAdded(chatID) = window;
    m_history.showAround(chatID);
    Q_EMIT historyStateChanged(chatID);
    publishMessages(chatID);
}

void TelegramSession::returnToNewest(const QString &chatID)
{
    if (!m_history.leaveAround(chatID))
        return;
    // Between the window and the newest messages lies a gap: the chat loads afresh.
    m_messages.storedOrAdded(chatID).clear();
    Q_EMIT historyStateChanged(chatID);
    loadMessages(chatID);
}
