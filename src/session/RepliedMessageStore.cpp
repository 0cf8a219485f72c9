#include "session/RepliedMessageStore.h"

using namespace Qt::StringLiterals;

RepliedMessageStore::RepliedMessageStore(SendRequest send, QObject *parent)
    : QObject(parent)
    , m_send(std::move(send))
{}

void RepliedMessageStore::requestMissing(qint64 chatID, const QList<TdObject> &messages,
                                         const QHash<qint64, const TdObject *> &held)
{
    const QString chatKey = QString::number(chatID);
    QSet<qint64> &requested = m_requested[chatKey];
    for (const TdObject &message : messages) {
        const TdObject reply = message.value("reply_to"_L1).toObject();
        if (typeOf(reply) != "messageReplyToMessage"_L1 || reply.value("content"_L1).isObject())
            continue;
        // An answered message of another chat comes with what TDLib knows of it.
        const std::optional<qint64> replyChat = int64From(reply.value("chat_id"_L1));
        const std::optional<qint64> id = int64From(reply.value("message_id"_L1));
        if (!id || *id == 0 || (replyChat && *replyChat != chatID) || held.contains(*id) || requested.contains(*id))
            continue;
        requested.insert(*id);
        m_send(u"getMessage"_s,
               {{"chat_id"_L1, chatID},
                {"message_id"_L1, *id},
                {"@extra"_L1,
                 TdObject{{"purpose"_L1, u"replied_message"_s}, {"chat_id"_L1, chatID}, {"message_id"_L1, *id}}}});
    }
}

std::optional<QString> RepliedMessageStore::handleAnswer(const TdObject &extra, const QString &type,
                                                         const TdObject &answer)
{
    const std::optional<qint64> chat = int64From(extra.value("chat_id"_L1));
    const std::optional<qint64> id = int64From(extra.value("message_id"_L1));
    if (!chat || !id)
        return std::nullopt;
    const QString chatID = QString::number(*chat);
    if (!m_requested.value(chatID).contains(*id))
        return std::nullopt; // asked before logging out
    if (type == "message"_L1)
        m_messages[chatID].insert(*id, answer);
    else if (type == "error"_L1)
        m_missing[chatID].insert(*id);
    else
        return std::nullopt;
    return chatID;
}

const TdObject *RepliedMessageStore::message(const QString &chatID, qint64 messageID) const
{
    const auto chat = m_messages.constFind(chatID);
    if (chat == m_messages.cend())
        return nullptr;
    const auto found = chat->constFind(messageID);
    return found == chat->cend() ? nullptr : &*found;
}

bool RepliedMessageStore::isMissing(const QString &chatID, qint64 messageID) const
{
    return m_missing.value(chatID).contains(messageID);
}

void RepliedMessageStore::reset()
{
    m_messages.clear();
    m_missing.clear();
    m_requested.clear();
}
