// Which file of a message is shown as its media or document, and TDLib's
// downloads of the files that are shown.

#include "session/ContentTexts.h"
#include "session/DownloadStore.h"
#include "session/StickerStore.h"
#include "session/TelegramSession.h"
#include "session/UserStore.h"

using namespace Qt::StringLiterals;

std::pair<std::optional<QString>, std::optional<MessageMediaKind>>
TelegramSession::prepareMessageMedia(const TdObject &content, const QString &chatID)
{
    const QString type = typeOf(content);
    TdObject file;
    MessageMediaKind kind;
    if (type == "messagePhoto"_L1) {
        file = largestPhotoSize(content.value("photo"_L1).toObject().value("sizes"_L1).toArray())
                   .value("photo"_L1)
                   .toObject();
        kind = MessageMediaKind::Photo;
    } else if (type == "messageSticker"_L1) {
        file = content.value("sticker"_L1).toObject().value("sticker"_L1).toObject();
        kind = MessageMediaKind::Sticker;
    } else if (type == "messageVideo"_L1) {
        file = content.value("video"_L1).toObject().value("video"_L1).toObject();
        kind = MessageMediaKind::Video;
    } else if (type == "messageAnimation"_L1) {
        file = content.value("animation"_L1).toObject().value("animation"_L1).toObject();
        kind = MessageMediaKind::Animation;
    } else if (type == "messageVoiceNote"_L1) {
        file = content.value("voice_note"_L1).toObject().value("voice"_L1).toObject();
        kind = MessageMediaKind::Voice;
    } else if (type == "messageAudio"_L1) {
        file = content.value("audio"_L1).toObject().value("audio"_L1).toObject();
        kind = MessageMediaKind::Audio;
    } else if (type == "messageDocument"_L1 && isImageDocument(content.value("document"_L1).toObject())) {
        file = content.value("document"_L1).toObject().value("document"_L1).toObject();
        kind = MessageMediaKind::Photo;
    } else {
        return {};
    }
    return {m_downloads->messageFile(file, chatID), kind};
}

std::pair<std::optional<QString>, std::optional<QString>>
TelegramSession::prepareMessageDocument(const TdObject &content, const QString &chatID)
{
    const TdObject document = content.value("document"_L1).toObject();
    if (typeOf(content) != "messageDocument"_L1 || isImageDocument(document))
        return {};
    const QJsonValue fileName = document.value("file_name"_L1);
    const QString name = fileName.isString() ? fileName.toString() : u"Document"_s;
    return {m_downloads->messageFile(document.value("document"_L1).toObject(), chatID), name};
}

void TelegramSession::applyDownloadedFile(const TdObject &file)
{
    const std::optional<qint64> fileID = int64From(file.value("id"_L1));
    const std::optional<QString> path = completedPath(file);
    if (!fileID || !path)
        return;
    const DownloadStore::Waiting waiting = m_downloads->applyDownloaded(*fileID, *path);
    if (waiting.photoChat)
        updateChat(*waiting.photoChat, [&path](Chat &c) { c.avatarPath = path; });
    m_users->applyDownloadedFile(*fileID, *path);
    m_stickers->applyDownloadedFile(*fileID, *path);
    for (const QString &chatID : waiting.messageChats)
        publishMessages(chatID);
}
