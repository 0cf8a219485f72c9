#include "RoundImageProvider.h"

#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QUrl>

RoundImageProvider::RoundImageProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{}

QImage RoundImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    QImageReader reader(QUrl::fromPercentEncoding(id.toUtf8()));
    reader.setAutoTransform(true);
    const QImage source = reader.read();
    const int side = requestedSize.isValid() && requestedSize.width() > 0 ? requestedSize.width() : 80;
    QImage round(side, side, QImage::Format_ARGB32_Premultiplied);
    round.fill(Qt::transparent);
    if (!source.isNull()) {
        const QImage scaled = source.scaled(side, side, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
        QPainter painter(&round);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath circle;
        circle.addEllipse(0, 0, side, side);
        painter.setClipPath(circle);
        painter.drawImage((side - scaled.width()) / 2, (side - scaled.height()) / 2, scaled);
    }
    if (size)
        *size = round.size();
    return round;
}
