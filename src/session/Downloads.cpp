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
    } else if (const MediaPlace *place = mediaPlace(type)) {
        const TdObject media = content.value(place->mediaKey).toObject();
        if (place->shownAs)
            kind = *place->shownAs;
        else if (type == "messageDocument"_L1 && isImageDocument(media))
            kind = MessageMediaKind::Photo;
        else
            return {};
        file = media.value(place->fileKey).toObject();
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
