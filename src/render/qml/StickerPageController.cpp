#include "StickerPageController.h"

#include "session/ChangedValue.h"

#include <QMetaObject>

static_assert(StickerPageController::Loading == int(StickerPage::PlayState::Loading) &&
              StickerPageController::Playing == int(StickerPage::PlayState::Playing) &&
              StickerPageController::Unavailable == int(StickerPage::PlayState::Unavailable));

StickerPageController::StickerPageController(QObject *parent)
    : QObject(parent)
{}

void StickerPageController::setPath(const QString &path)
{
    if (assignChanged(m_path, path))
        Q_EMIT pathChanged();
    scheduleUpdate();
}

void StickerPageController::setFormat(StickerFormat format)
{
    if (assignChanged(m_format, format))
        Q_EMIT formatChanged();
    scheduleUpdate();
}

void StickerPageController::scheduleUpdate()
{
    if (m_updateScheduled)
        return;
    m_updateScheduled = true;
    QMetaObject::invokeMethod(this, &StickerPageController::update, Qt::QueuedConnection);
}

void StickerPageController::update()
{
    m_updateScheduled = false;
    if (m_path.isEmpty())
        return;
    std::optional<QString> page = m_coordinator.update(m_path, m_format);
    if (!page)
        return;
    m_page = std::move(*page);
    ++m_pagesMade;
    m_playState = Loading;
    Q_EMIT pageChanged();
    Q_EMIT playStateChanged();
}

void StickerPageController::reportPlayState(PlayState state)
{
    if (assignChanged(m_playState, state))
        Q_EMIT playStateChanged();
}

void StickerPageController::markUnavailable()
{
    if (assignChanged(m_playState, Unavailable))
        Q_EMIT playStateChanged();
}
