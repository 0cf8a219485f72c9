#pragma once

#include <QImage>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

// Paints a QImage scaled to cover the item (cropping what overflows), with rounded
// corners.
class PreviewImage : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)

public:
    explicit PreviewImage(QQuickItem *parent = nullptr);

    QImage image() const { return m_image; }
    void setImage(const QImage &image);
    qreal radius() const { return m_radius; }
    void setRadius(qreal radius);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void imageChanged();
    void radiusChanged();

private:
    QImage m_image;
    qreal m_radius = 0;
};
