// A per-chat record of history requests and image messages, kept short, so that a
// picture that does not show can be traced.

#include "session/ContentTexts.h"
#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype maximumLinesPerChat = 200;
}

void TelegramSession::appendImageDiagnostic(const QString &chatID, const QString &line)
{
    QStringList &lines = m_imageDiagnosticEvents[chatID];
    lines.append(line);
    if (lines.size() > maximumLinesPerChat)
        lines.removeFirst();
}

void TelegramSession::recordImageDiagnosticEvent(const QString &type, const TdObject &object)
{
    QJsonArray messages;
    if (type == "messages"_L1)
        messages = object.value("messages"_L1).toArray();
    else if (type == "updateNewMessage"_L1)
        messages.append(object.value("message"_L1));
    else
        return;
    if (type == "messages"_L1) {
        const TdObject extra = object.value("@extra"_L1).toObject();
        if (const auto chat = int64From(extra.value("chat_id"_L1))) {
            appendImageDiagnostic(
                QString::number(*chat),
                u"history answer purpose=%1 count=%2"_s.arg(extra.value("purpose"_L1).toString()).arg(messages.size()));
        }
    }
    for (const QJsonValue &value : std::as_const(messages)) {
        const TdObject message = value.toObject();
        const TdObject content = message.value("content"_L1).toObject();
        const QString contentType = typeOf(content);
        const bool image =
            contentType == "messagePhoto"_L1 ||
            (contentType == "messageDocument"_L1 && isImageDocument(content.value("document"_L1).toObject()));
        if (!image)
            continue;
        const auto chat = int64From(message.value("chat_id"_L1));
        const auto id = int64From(message.value("id"_L1));
        if (chat && id)
            appendImageDiagnostic(QString::number(*chat), u"image message %1 (%2)"_s.arg(*id).arg(contentType));
    }
}
