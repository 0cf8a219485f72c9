#pragma once

#include "render/LottieAnimation.h"

#include <QImage>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <memory>

// Plays an animated (.tgs) sticker natively: the file is read and parsed away from
// the main thread, then each frame is drawn at the size shown. It plays only while
// playing is set and it is visible in a shown window; otherwise it keeps its
// current frame and draws nothing new.
class StickerPlayer : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)
    Q_PROPERTY(bool playing MEMBER m_playing NOTIFY playingChanged)
    Q_PROPERTY(Status status READ status NOTIFY statusChanged)

public:
    enum Status { Null, Loading, Ready, Error };
    Q_ENUM(Status)

    explicit StickerPlayer(QQuickItem *parent = nullptr);
    ~StickerPlayer() override;

    QString path() const { return m_path; }
    void setPath(const QString &path);
    Status status() const { return m_status; }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void pathChanged();
    void playingChanged();
    void statusChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void setStatus(Status status);
    void loaded(quint64 generation, std::shared_ptr<LottieAnimation> animation);
    void updateTimer();
    void drawFrame();
    void advance();

    QString m_path;
    bool m_playing = true;
    Status m_status = Null;
    quint64 m_generation = 0;
    std::shared_ptr<LottieAnimation> m_animation;
    int m_frame = 0;
    QImage m_image;
    QTimer m_timer;
    QPointer<QWindow> m_window;
};
