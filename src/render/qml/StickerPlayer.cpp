#include "StickerPlayer.h"

#include "session/ChangedValue.h"

#include <QCoreApplication>
#include <QPainter>
#include <QQuickWindow>
#include <QThreadPool>

namespace {
// More frames than this a second cost CPU that nobody sees on a sticker.
constexpr double maximumFramesPerSecond = 30.0;
} // namespace

StickerPlayer::StickerPlayer(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setImplicitSize(160, 160);
    m_timer.setTimerType(Qt::CoarseTimer);
    connect(&m_timer, &QTimer::timeout, this, &StickerPlayer::advance);
    connect(this, &StickerPlayer::playingChanged, this, &StickerPlayer::updateTimer);
}

StickerPlayer::~StickerPlayer() = default;

void StickerPlayer::setPath(const QString &path)
{
    if (!assignChanged(m_path, path))
        return;
    Q_EMIT pathChanged();
    const quint64 generation = ++m_generation;
    m_animation.reset();
    m_image = {};
    m_frame = 0;
    updateTimer();
    update();
    if (path.isEmpty()) {
        setStatus(Null);
        return;
    }
    setStatus(Loading);
    QPointer<StickerPlayer> self(this);
    QThreadPool::globalInstance()->start([self, path, generation] {
        auto result = LottieAnimation::load(path);
        std::shared_ptr<LottieAnimation> animation;
        if (auto *ready = std::get_if<LottieAnimation>(&result))
            animation = std::make_shared<LottieAnimation>(std::move(*ready));
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [self, generation, animation] {
                if (self)
                    self->loaded(generation, animation);
            },
            Qt::QueuedConnection);
    });
}

void StickerPlayer::loaded(quint64 generation, std::shared_ptr<LottieAnimation> animation)
{
    // A path set meanwhile wins over a slower load of the old one.
    if (generation != m_generation)
        return;
    m_animation = std::move(animation);
    setStatus(m_animation ? Ready : Error);
    drawFrame();
    updateTimer();
}

void StickerPlayer::setStatus(Status status)
{
    if (assignChanged(m_status, status))
        Q_EMIT statusChanged();
}

void StickerPlayer::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickPaintedItem::itemChange(change, value);
    if (change == ItemSceneChange) {
        if (m_window)
            disconnect(m_window, nullptr, this, nullptr);
        m_window = value.window;
        if (m_window)
            connect(m_window, &QWindow::visibleChanged, this, &StickerPlayer::updateTimer);
    }
    if (change == ItemVisibleHasChanged || change == ItemSceneChange)
        updateTimer();
}

void StickerPlayer::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        drawFrame();
}

void StickerPlayer::updateTimer()
{
    const bool shown = isVisible() && m_window && m_window->isVisible();
    if (m_playing && shown && m_animation && m_animation->frameCount() > 1) {
        const double rate = std::min(m_animation->frameRate(), maximumFramesPerSecond);
        m_timer.start(int(1000.0 / rate));
    } else {
        m_timer.stop();
    }
}

void StickerPlayer::advance()
{
    if (!m_animation)
        return;
    // At a capped rate, frames are skipped so that the animation keeps its speed.
    const double step = std::max(1.0, m_animation->frameRate() / maximumFramesPerSecond);
    m_frame = (m_frame + int(step)) % m_animation->frameCount();
    drawFrame();
}

void StickerPlayer::drawFrame()
{
    if (!m_animation || width() <= 0 || height() <= 0)
        return;
    const qreal ratio = m_window ? m_window->devicePixelRatio() : 1.0;
    const QSize pixels = (QSizeF(width(), height()) * ratio).toSize();
    m_image = m_animation->render(m_frame, pixels);
    m_image.setDevicePixelRatio(ratio);
    update();
}

void StickerPlayer::paint(QPainter *painter)
{
    if (!m_image.isNull())
        painter->drawImage(QRectF(0, 0, width(), height()), m_image);
}
