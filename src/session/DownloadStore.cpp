#include "session/DownloadStore.h"

#include "session/ContentTexts.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

DownloadStore::DownloadStore(SendRequest send, QObject *parent)
    : QObject(parent)
    , m_send(std::move(send))
{}

std::optional<QString> DownloadStore::messageFile(const TdObject &file, const QString &chatID)
{
    const std::optional<qint64> fileID = int64From(file.value("id"_L1));
    if (!fileID)
        return completedPath(file);
    m_messageFileChats[*fileID].insert(chatID);
    if (const auto completed = completedPath(file))
        m_paths.insert(*fileID, *completed);
    const auto recorded = m_paths.constFind(*fileID);
    if (recorded != m_paths.cend()) {
        if (QFileInfo::exists(*recorded))
            return *recorded;
        // The file was deleted behind our back: forget it so it is downloaded again.
        m_paths.erase(recorded);
    }
    download(*fileID);
    return std::nullopt;
}

void DownloadStore::addChatPhoto(qint64 fileID, const QString &chatID)
{
    m_chatPhotos.insert(fileID, chatID);
}

void DownloadStore::download(qint64 fileID)
{
    requestDownload(m_send, fileID);
}

void DownloadStore::trackProgress(const TdObject &file)
{
    const std::optional<qint64> fileID = int64From(file.value("id"_L1));
    if (!fileID || !m_messageFileChats.contains(*fileID))
        return;
    const TdObject local = file.value("local"_L1).toObject();
    const qint64 size =
        std::max(int64From(file.value("size"_L1)).value_or(0), int64From(file.value("expected_size"_L1)).value_or(0));
    const qint64 downloaded = int64From(local.value("downloaded_size"_L1)).value_or(0);
    const double progress = local.value("is_downloading_completed"_L1).toBool() ? 1.0
                            : size > 0 ? std::clamp(double(downloaded) / double(size), 0.0, 1.0)
                                       : 0.0;
    if (m_progress.value(*fileID, -1.0) == progress)
        return;
    m_progress.insert(*fileID, progress);
    Q_EMIT progressChanged(*fileID, progress);
}

DownloadStore::Waiting DownloadStore::applyDownloaded(qint64 fileID, const QString &path)
{
    m_paths.insert(fileID, path);
    Waiting waiting{m_messageFileChats.value(fileID), std::nullopt};
    if (const auto chat = m_chatPhotos.constFind(fileID); chat != m_chatPhotos.cend())
        waiting.photoChat = *chat;
    return waiting;
}

void DownloadStore::reset()
{
    m_messageFileChats.clear();
    m_paths.clear();
    m_progress.clear();
    m_chatPhotos.clear();
}
