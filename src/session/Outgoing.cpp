// Requests that change messages on the server: text, edits, deletions, forwards,
// photos and documents singly or in albums, reactions and stickers. They are sent
// and forgotten; what they change reaches the screen through TDLib's updates.

#include "session/TelegramSession.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype albumSize = 10;

// Text always goes without entities.
TdObject formattedText(const QString &text)
{
    return {{"@type"_L1, u"formattedText"_s}, {"text"_L1, text}, {"entities"_L1, QJsonArray()}};
}

TdObject inputText(const QString &text)
{
    return {{"@type"_L1, u"inputMessageText"_s}, {"text"_L1, formattedText(text)}, {"clear_draft"_L1, true}};
}

TdObject localFile(const QString &path)
{
    return {{"@type"_L1, u"inputFileLocal"_s}, {"path"_L1, path}};
}

TdObject photoContent(const QString &path, const QString &caption)
{
    return {{"@type"_L1, u"inputMessagePhoto"_s},
            {"photo"_L1, TdObject{{"@type"_L1, u"inputPhoto"_s},
                                  {"photo"_L1, localFile(path)},
                                  {"thumbnail"_L1, QJsonValue::Null},
                                  {"video"_L1, QJsonValue::Null},
                                  {"added_sticker_file_ids"_L1, QJsonArray()},
                                  {"width"_L1, 0},
                                  {"height"_L1, 0}}},
            {"caption"_L1, formattedText(caption)},
            {"show_caption_above_media"_L1, false},
            {"has_spoiler"_L1, false}};
}

TdObject documentContent(const QString &path, const QString &caption)
{
    return {{"@type"_L1, u"inputMessageDocument"_s},
            {"document"_L1, TdObject{{"@type"_L1, u"inputDocument"_s},
                                     {"document"_L1, localFile(path)},
                                     {"thumbnail"_L1, QJsonValue::Null},
                                     {"disable_content_type_detection"_L1, false}}},
            {"caption"_L1, formattedText(caption)}};
}

TdObject fileContent(const PendingAttachment &attachment, const QString &caption)
{
    return attachment.kind == PendingAttachmentKind::Photo ? photoContent(attachment.path, caption)
                                                           : documentContent(attachment.path, caption);
}

} // namespace

void TelegramSession::sendText(const QString &text, const QString &chatID, const QString &replyTo)
{
    const QString trimmed = text.trimmed();
    const std::optional<qint64> chat = parseInt64(chatID);
    if (trimmed.isEmpty() || !chat)
        return;
    TdObject fields{{"chat_id"_L1, *chat}, {"input_message_content"_L1, inputText(trimmed)}};
    // A reply target that is not a message identifier is dropped; the text still goes.
    if (const std::optional<qint64> reply = parseInt64(replyTo)) {
        fields.insert("reply_to"_L1, TdObject{{"@type"_L1, u"inputMessageReplyToMessage"_s},
                                              {"message_id"_L1, *reply},
                                              {"quote"_L1, QJsonValue::Null},
                                              {"checklist_task_id"_L1, 0},
                                              {"poll_option_id"_L1, u""_s}});
    }
    send(u"sendMessage"_s, fields);
}

void TelegramSession::editText(const QString &messageID, const QString &text, const QString &chatID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    const std::optional<qint64> message = parseInt64(messageID);
    if (!chat || !message)
        return;
    // Edits keep the text exactly as written.
    send(u"editMessageText"_s, {{"chat_id"_L1, *chat},
                                {"message_id"_L1, *message},
                                {"reply_markup"_L1, QJsonValue::Null},
                                {"input_message_content"_L1, inputText(text)}});
}

void TelegramSession::deleteMessage(const QString &messageID, const QString &chatID)
{
    const std::optional<qint64> message = parseInt64(messageID);
    const std::optional<qint64> chat = parseInt64(chatID);
    if (!message || !chat)
        return;
    send(u"deleteMessages"_s, {{"chat_id"_L1, *chat}, {"message_ids"_L1, QJsonArray{*message}}, {"revoke"_L1, true}});
}

void TelegramSession::forwardMessage(const QString &messageID, const QString &fromChatID, const QString &toChatID)
{
    const std::optional<qint64> message = parseInt64(messageID);
    const std::optional<qint64> from = parseInt64(fromChatID);
    const std::optional<qint64> to = parseInt64(toChatID);
    if (!message || !from || !to)
        return;
    send(u"forwardMessages"_s, {{"chat_id"_L1, *to},
                                {"topic_id"_L1, QJsonValue::Null},
                                {"from_chat_id"_L1, *from},
                                {"message_ids"_L1, QJsonArray{*message}},
                                {"options"_L1, QJsonValue::Null},
                                {"send_copy"_L1, false},
                                {"remove_caption"_L1, false}});
}

void TelegramSession::sendAttachments(const QList<PendingAttachment> &attachments, const QString &caption,
                                      const QString &chatID)
{
    QList<PendingAttachment> photos;
    QList<PendingAttachment> documents;
    for (const PendingAttachment &attachment : attachments)
        (attachment.kind == PendingAttachmentKind::Photo ? photos : documents).append(attachment);
    // The caption travels once: with the first photo, else with the first document.
    sendAttachmentGroups(photos, caption, chatID);
    sendAttachmentGroups(documents, photos.isEmpty() ? caption : QString(), chatID);
}

void TelegramSession::sendAttachmentGroups(const QList<PendingAttachment> &attachments, const QString &caption,
                                           const QString &chatID)
{
    for (qsizetype start = 0; start < attachments.size(); start += albumSize)
        sendAttachmentGroup(attachments.mid(start, albumSize), start == 0 ? caption : QString(), chatID);
}

void TelegramSession::sendAttachmentGroup(const QList<PendingAttachment> &attachments, const QString &caption,
                                          const QString &chatID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    if (attachments.isEmpty() || !chat)
        return;
    if (attachments.size() == 1) {
        sendFile(attachments.first().path, caption, chatID, attachments.first().kind);
        return;
    }
    QJsonArray contents;
    for (qsizetype i = 0; i < attachments.size(); ++i)
        contents.append(fileContent(attachments.at(i), i == 0 ? caption.trimmed() : QString()));
    send(u"sendMessageAlbum"_s, {{"chat_id"_L1, *chat}, {"input_message_contents"_L1, contents}});
}

void TelegramSession::sendPhoto(const QString &path, const QString &caption, const QString &chatID)
{
    sendFile(path, caption, chatID, PendingAttachmentKind::Photo);
}

void TelegramSession::sendDocument(const QString &path, const QString &caption, const QString &chatID)
{
    sendFile(path, caption, chatID, PendingAttachmentKind::Document);
}

void TelegramSession::sendFile(const QString &path, const QString &caption, const QString &chatID,
                               PendingAttachmentKind kind)
{
    if (!QFileInfo::exists(path))
        return;
    const std::optional<qint64> chat = parseInt64(chatID);
    if (!chat)
        return;
    send(u"sendMessage"_s,
         {{"chat_id"_L1, *chat}, {"input_message_content"_L1, fileContent({{}, path, kind}, caption.trimmed())}});
}

void TelegramSession::setReaction(const QString &emoji, bool chosen, const QString &messageID, const QString &chatID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    const std::optional<qint64> message = parseInt64(messageID);
    if (!chat || !message)
        return;
    TdObject fields{{"chat_id"_L1, *chat},
                    {"message_id"_L1, *message},
                    {"reaction_type"_L1, TdObject{{"@type"_L1, u"reactionTypeEmoji"_s}, {"emoji"_L1, emoji}}}};
    if (chosen) {
        send(u"removeMessageReaction"_s, fields);
        return;
    }
    fields.insert("is_big"_L1, false);
    fields.insert("update_recent_reactions"_L1, true);
    send(u"addMessageReaction"_s, fields);
}

void TelegramSession::sendSticker(const StickerChoice &sticker, const QString &chatID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    if (!chat)
        return;
    // Sent by its file identifier: the local file need not be there.
    send(u"sendMessage"_s,
         {{"chat_id"_L1, *chat},
          {"input_message_content"_L1,
           TdObject{{"@type"_L1, u"inputMessageSticker"_s},
                    {"sticker"_L1,
                     TdObject{{"@type"_L1, u"inputSticker"_s},
                              {"sticker"_L1, TdObject{{"@type"_L1, u"inputFileId"_s}, {"id"_L1, sticker.fileID}}},
                              {"thumbnail"_L1, QJsonValue::Null},
                              {"width"_L1, sticker.width},
                              {"height"_L1, sticker.height},
                              {"emoji"_L1, sticker.emoji}}}}}});
}
