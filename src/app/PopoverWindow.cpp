#include "PopoverWindow.h"

#include "AppEvents.h"
#include "session/ChangedValue.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlEngine>
#include <QQmlIncubationController>
#include <QSGRendererInterface>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// Long enough for a quick look back to find everything as it was.
constexpr int contentReleaseDelayMs = 5000;

} // namespace

PopoverWindow::PopoverWindow(QQmlEngine *engine, QWindow *parent)
    : QQuickView(engine, parent)
    , m_releaseTimer(new QTimer(this))
{
    setTitle(u"Vost"_s);
    setResizeMode(QQuickView::SizeRootObjectToView);
    setMaximumSize(contentSize);
    takeContentSize();
    setTrayMode(false);
    m_releaseTimer->setSingleShot(true);
    m_releaseTimer->setInterval(contentReleaseDelayMs);
    connect(m_releaseTimer, &QTimer::timeout, this, &PopoverWindow::releaseContent);
    // The views are made before the first frame, so the window opens complete.
    connect(this, &QWindow::visibleChanged, this, [this](bool visible) {
        if (visible) {
            // Before the views are made: hidden, the window may have been made smaller.
            takeContentSize();
            m_releaseTimer->stop();
            setHoldsContent(true);
        } else {
            m_releaseTimer->start();
        }
    });
}

void PopoverWindow::setHoldsContent(bool holds)
{
    if (assignChanged(m_holdsContent, holds))
        Q_EMIT holdsContentChanged();
}

void PopoverWindow::dropReleasedScene()
{
    // A hidden window makes no frames, and only the next frame's sync frees the
    // scene nodes (and their textures) of items deleted since. The software
    // renderer can make one without a window on screen.
    if (isVisible() || rendererInterface()->graphicsApi() != QSGRendererInterface::Software)
        return;
    // Purging the pixmap cache (part of releasing resources) only queues the
    // textures made from its pictures; that sync deletes them too.
    releaseResources();
    // The render loop keeps the window's backing store (a full-size image shared
    // with the X server) until the window is destroyed, but fits it to the window
    // on every frame: this frame, at a token size, hands the image back. The size
    // comes back before the window shows.
    setMinimumSize(QSize(1, 1));
    resize(1, 1);
    grabWindow();
}

void PopoverWindow::takeContentSize()
{
    if (size() != contentSize)
        resize(contentSize);
    setMinimumSize(contentSize);
}

void PopoverWindow::holdContentWhileHidden()
{
    m_releaseTimer->stop();
}

void PopoverWindow::releaseContent()
{
    if (isVisible())
        return;
    // A hidden window makes no frames, so delegates being made in the background
    // would wait half-built; destroying their component then is fatal in Qt.
    QQmlIncubationController *incubation = engine()->incubationController();
    for (int round = 0; incubation && incubation->incubatingObjectCount() > 0; ++round) {
        if (round == 40) {
            m_releaseTimer->start(); // still busy after 2 s: another time
            return;
        }
        incubation->incubateFor(50);
    }
    setHoldsContent(false);
}

void PopoverWindow::setTrayMode(bool inTray)
{
    m_inTray = inTray;
    // Qt::Tool keeps the panel out of the taskbar and the window switcher.
    setFlags(inTray ? Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                    : Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                          Qt::WindowCloseButtonHint);
}

void PopoverWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Quit) ||
        (event->key() == Qt::Key_Q && event->modifiers() == Qt::ControlModifier)) {
        event->accept();
        Q_EMIT quitRequested();
        return;
    }
    // The views get Esc first: it closes a picker, a menu or a dialog, or cancels a
    // reply, before it closes the popover. A popup that closes on Esc leaves the
    // event unaccepted, so whether one was open decides.
    const bool popupWasOpen = hasOpenPopup();
    event->setAccepted(false);
    QQuickView::keyPressEvent(event);
    if (event->key() == Qt::Key_Escape && !event->isAccepted() && !popupWasOpen &&
        event->modifiers() == Qt::NoModifier) {
        event->accept();
        Q_EMIT escapeNotHandled();
    }
}

bool PopoverWindow::hasOpenPopup() const
{
    // Popups live in the window's overlay, an item of the content item.
    const QList<QQuickItem *> layers = contentItem()->childItems();
    return std::any_of(layers.cbegin(), layers.cend(), [](const QQuickItem *layer) {
        if (!layer->inherits("QQuickOverlay"))
            return false;
        const QList<QQuickItem *> popups = layer->childItems();
        return std::any_of(popups.cbegin(), popups.cend(), [](const QQuickItem *popup) { return popup->isVisible(); });
    });
}

void PopoverWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ControlModifier))
        Q_EMIT AppEvents::shared().commandClick();
    QQuickView::mousePressEvent(event);
}
