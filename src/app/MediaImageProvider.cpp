#include "MediaImageProvider.h"

#include <QImageReader>
#include <QRunnable>
#include <QThreadPool>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

class MediaImageResponse : public QQuickImageResponse, public QRunnable
{
public:
    MediaImageResponse(QString path, QSize requestedSize)
        : m_path(std::move(path))
        , m_requestedSize(requestedSize)
    {
        setAutoDelete(false);
    }

    void run() override
    {
        const QString key = m_path + u'@' + QString::number(m_requestedSize.width()) + u'x' +
                            QString::number(m_requestedSize.height());
        {
            QMutexLocker lock(&MediaImageProvider::cacheLock());
            if (const QImage *cached = MediaImageProvider::cache().object(key))
                m_image = *cached;
        }
        if (m_image.isNull()) {
            m_image = MediaImageProvider::decode(m_path, m_requestedSize);
            if (!m_image.isNull()) {
                QMutexLocker lock(&MediaImageProvider::cacheLock());
                MediaImageProvider::cache().insert(key, new QImage(m_image), int(m_image.sizeInBytes()));
            }
        }
        Q_EMIT finished();
    }

    QQuickTextureFactory *textureFactory() const override { return QQuickTextureFactory::textureFactoryForImage(m_image); }
    QString errorString() const override { return m_image.isNull() ? u"The picture cannot be read."_s : QString(); }

private:
    QString m_path;
    QSize m_requestedSize;
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
    reader.setAutoTransform(true);
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
    auto *response = new MediaImageResponse(QUrl::fromPercentEncoding(id.toUtf8()), requestedSize);
    QThreadPool::globalInstance()->start(response);
    return response;
}
