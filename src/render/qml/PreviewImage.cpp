#include "PreviewImage.h"

#include <QPainter>
#include <QPainterPath>

PreviewImage::PreviewImage(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void PreviewImage::setImage(const QImage &image)
{
    m_image = image;
    Q_EMIT imageChanged();
    update();
}

void PreviewImage::setRadius(qreal radius)
{
    if (qFuzzyCompare(radius, m_radius))
        return;
    m_radius = radius;
    Q_EMIT radiusChanged();
    update();
}

void PreviewImage::paint(QPainter *painter)
{
    if (m_image.isNull() || width() <= 0 || height() <= 0)
        return;
    const QRectF target(0, 0, width(), height());
    // The largest centred part of the image that has the item's shape.
    const QSizeF crop = target.size().scaled(m_image.size(), Qt::KeepAspectRatio);
    const QRectF sourceRect((m_image.width() - crop.width()) / 2, (m_image.height() - crop.height()) / 2, crop.width(),
                            crop.height());
    QPainterPath clip;
    clip.addRoundedRect(target, m_radius, m_radius);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->setClipPath(clip);
    painter->drawImage(target, m_image, sourceRect);
}
