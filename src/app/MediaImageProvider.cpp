#include "MediaImageProvider.h"

#include "PictureFormats.h"

#include <QImageReader>
#include <QRunnable>
#include <QThreadPool>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

// The decoding runs on a pool thread and hands its picture over by a signal, so
// that the response is only ever touched on its own thread: the pixmap reader
// deletes a response as soon as it has finished (or when it gives up on it), which
// may happen while the pool thread is still inside a signal of the response.
class MediaImageJob : public QObject, public QRunnable
{
    Q_OBJECT

public:
    MediaImageJob(QString path, QSize requestedSize)
        : m_path(std::move(path))
        , m_requestedSize(requestedSize)
    {}

    void run() override
    {
        const QString key =
            m_path + u'@' + QString::number(m_requestedSize.width()) + u'x' + QString::number(m_requestedSize.height());
        QImage image;
        {
            QMutexLocker lock(&MediaImageProvider::cacheLock());
            if (const QImage *cached = MediaImageProvider::cache().object(key))
                image = *cached;
        }
        if (image.isNull()) {
            image = MediaImageProvider::decode(m_path, m_requestedSize);
            if (!image.isNull()) {
                QMutexLocker lock(&MediaImageProvider::cacheLock());
                MediaImageProvider::cache().insert(key, new QImage(image), int(image.sizeInBytes()));
            }
        }
        Q_EMIT decoded(image);
    }

Q_SIGNALS:
    void decoded(const QImage &image);

private:
    QString m_path;
    QSize m_requestedSize;
};

class MediaImageResponse : public QQuickImageResponse
{
public:
    MediaImageResponse(QString path, QSize requestedSize)
    {
        // The job is deleted by the pool once it has run; a response deleted
        // before that merely loses the connection.
        auto *job = new MediaImageJob(std::move(path), requestedSize);
        connect(job, &MediaImageJob::decoded, this, &MediaImageResponse::take, Qt::QueuedConnection);
        QThreadPool::globalInstance()->start(job);
    }

    QQuickTextureFactory *textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }
    QString errorString() const override { return m_image.isNull() ? u"The picture cannot be read."_s : QString(); }

private:
    void take(const QImage &image)
    {
        m_image = image;
        Q_EMIT finished();
    }

    QImage m_image;
};

} // namespace

MediaImageProvider::MediaImageProvider() = default;

QCache<QString, QImage> &MediaImageProvider::cache()
{
    static QCache<QString, QImage> images{qsizetype(budgetBytes)};
    return images;
}

QMutex &MediaImageProvider::cacheLock()
{
    static QMutex lock;
    return lock;
}

void MediaImageProvider::release()
{
    QMutexLocker lock(&cacheLock());
    cache().clear();
}

QImage MediaImageProvider::decode(const QString &path, const QSize &requestedSize)
{
    QImageReader reader(path);
    // The bytes decide: a file's name may say PNG while it holds a JPEG.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isMessagePictureFormat(reader.format()))
        return {};
    const QSize full = reader.size();
    if (full.isValid() && requestedSize.isValid() && !requestedSize.isEmpty()) {
        const QSize bound(requestedSize.width() > 0 ? requestedSize.width() : full.width(),
                          requestedSize.height() > 0 ? requestedSize.height() : full.height());
        if (full.width() > bound.width() || full.height() > bound.height())
            reader.setScaledSize(full.scaled(bound, Qt::KeepAspectRatio));
    }
    return reader.read();
}

QQuickImageResponse *MediaImageProvider::requestImageResponse(const QString &id, const QSize &requestedSize)
{
    return new MediaImageResponse(QUrl::fromPercentEncoding(id.toUtf8()), requestedSize);
}

#include "MediaImageProvider.moc"
