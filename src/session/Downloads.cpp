// Which file of a message is shown as its media or document, and TDLib's
// downloads of the files that are shown.

#include "session/ContentTexts.h"
#include "session/StickerStore.h"
#include "session/TelegramSession.h"
#include "session/UserStore.h"

#include <QFileInfo>

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
    const std::optional<QString> path = resolvedMediaPath(file, chatID);
    if (!path) {
        if (const auto fileID = int64From(file.value("id"_L1)))
            downloadFile(*fileID);
    }
    return {path, kind};
}

std::pair<std::optional<QString>, std::optional<QString>>
TelegramSession::prepareMessageDocument(const TdObject &content, const QString &chatID)
{
    const TdObject document = content.value("document"_L1).toObject();
    if (typeOf(content) != "messageDocument"_L1 || isImageDocument(document))
        return {};
    const QJsonValue fileName = document.value("file_name"_L1);
    const QString name = fileName.isString() ? fileName.toString() : u"Document"_s;
    const TdObject file = document.value("document"_L1).toObject();
    const std::optional<QString> path = resolvedMediaPath(file, chatID);
    if (!path) {
        if (const auto fileID = int64From(file.value("id"_L1))) {
            m_messageMediaOwners[*fileID].insert(chatID);
            downloadFile(*fileID);
        }
    }
    return {path, name};
}

std::optional<QString> TelegramSession::resolvedMediaPath(const TdObject &file, const QString &chatID)
{
    const std::optional<qint64> fileID = int64From(file.value("id"_L1));
    if (!fileID)
        return completedPath(file);
    m_messageMediaOwners[*fileID].insert(chatID);
    if (const auto completed = completedPath(file))
        m_downloadedMediaPaths.insert(*fileID, *completed);
    const auto recorded = m_downloadedMediaPaths.constFind(*fileID);
    if (recorded == m_downloadedMediaPaths.cend())
        return std::nullopt;
    if (QFileInfo::exists(*recorded))
        return *recorded;
    // The file was deleted behind our back: forget it so it is downloaded again.
    m_downloadedMediaPaths.erase(recorded);
    return std::nullopt;
}

void TelegramSession::downloadFile(qint64 fileID)
{
    requestDownload(storeSender(), fileID);
}

void TelegramSession::trackDownload(const TdObject &file)
{
    const std::optional<qint64> fileID = int64From(file.value("id"_L1));
    if (!fileID || !m_messageMediaOwners.contains(*fileID))
        return;
    const TdObject local = file.value("local"_L1).toObject();
    const qint64 size =
        std::max(int64From(file.value("size"_L1)).value_or(0), int64From(file.value("expected_size"_L1)).value_or(0));
    const qint64 downloaded = int64From(local.value("downloaded_size"_L1)).value_or(0);
    const double progress = local.value("is_downloading_completed"_L1).toBool() ? 1.0
                            : size > 0 ? std::clamp(double(downloaded) / double(size), 0.0, 1.0)
                                       : 0.0;
    if (m_downloadProgress.value(*fileID, -1.0) == progress)
        return;
    m_downloadProgress.insert(*fileID, progress);
    Q_EMIT downloadProgressChanged(*fileID, progress);
}

void TelegramSession::applyDownloadedFile(const TdObject &file)
{
    const std::optional<qint64> fileID = int64From(file.value("id"_L1));
    const std::optional<QString> path = completedPath(file);
    if (!fileID || !path)
        return;
    if (const auto chat = m_chatAvatarOwners.constFind(*fileID); chat != m_chatAvatarOwners.cend())
        updateChat(*chat, [&path](Chat &c) { c.avatarPath = path; });
    m_users->applyDownloadedFile(*fileID, *path);
    m_downloadedMediaPaths.insert(*fileID, *path);
    m_stickers->applyDownloadedFile(*fileID, *path);
    for (const QString &chatID : m_messageMediaOwners.value(*fileID))
        publishMessages(chatID);
}
