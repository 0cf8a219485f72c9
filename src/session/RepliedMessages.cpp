// The messages that replies answer but the loaded history does not hold: asked of
// TDLib with getMessage, once each, so that a reply's quote names its sender and
// text; a message TDLib no longer has is remembered as gone.

#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

void TelegramSession::requestRepliedMessages(qint64 chatID, const QList<TdObject> &messages,
                                             const QHash<qint64, const TdObject *> &held)
{
    const QString chatKey = QString::number(chatID);
    QSet<qint64> &requested = m_requestedRepliedMessages[chatKey];
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
        send(u"getMessage"_s,
             {{"chat_id"_L1, chatID},
              {"message_id"_L1, *id},
              {"@extra"_L1,
               TdObject{{"purpose"_L1, u"replied_message"_s}, {"chat_id"_L1, chatID}, {"message_id"_L1, *id}}}});
    }
}

void TelegramSession::storeRepliedMessage(const TdObject &extra, const QString &type, const TdObject &answer)
{
    const std::optional<qint64> chat = int64From(extra.value("chat_id"_L1));
    const std::optional<qint64> id = int64From(extra.value("message_id"_L1));
    if (!chat || !id)
        return;
    const QString chatID = QString::number(*chat);
    if (!m_requestedRepliedMessages.value(chatID).contains(*id))
        return; // asked before logging out
    if (type == "message"_L1)
        m_repliedMessages[chatID].insert(*id, answer);
    else if (type == "error"_L1)
        m_missingRepliedMessages[chatID].insert(*id);
    else
        return;
    publishMessages(chatID);
}
