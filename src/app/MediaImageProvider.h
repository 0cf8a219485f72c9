#pragma once

#include <QCache>
#include <QImage>
#include <QMutex>
#include <QQuickAsyncImageProvider>

// "image://media/<file path>": a photo decoded, away from the main thread, at the
// size it is shown (never at full resolution), and kept in a cache with a byte
// budget. The cache is emptied when another chat opens, so that the pictures of a
// chat nobody looks at do not stay in memory.
class MediaImageProvider : public QQuickAsyncImageProvider
{
public:
    static constexpr auto name = "media";
    // What the decoded pictures of the open chat may take at most.
    static constexpr qsizetype budgetBytes = 48 * 1024 * 1024;

    MediaImageProvider();

    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &requestedSize) override;

    // Decodes the file at no more than the requested size, keeping its aspect ratio.
    static QImage decode(const QString &path, const QSize &requestedSize);
    // The images kept, shared by every provider of the process.
    static QCache<QString, QImage> &cache();
    static QMutex &cacheLock();
    static void release();
};
