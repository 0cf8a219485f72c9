#include "StickerPageController.h"

#include <QMetaObject>

StickerPageController::StickerPageController(QObject *parent)
    : QObject(parent)
{}

void StickerPageController::setPath(const QString &path)
{
    const bool changed = path != m_path;
    m_path = path;
    if (changed)
        Q_EMIT pathChanged();
    scheduleUpdate();
}

void StickerPageController::setFormat(Format format)
{
    const bool changed = format != m_format;
    m_format = format;
    if (changed)
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
    std::optional<QString> page = m_coordinator.update(m_path, static_cast<StickerFormat>(m_format));
    if (!page)
        return;
    m_page = std::move(*page);
    ++m_pagesMade;
    Q_EMIT pageChanged();
}
