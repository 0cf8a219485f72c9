#include "PopoverWindow.h"

#include "session/NotificationCenter.h"

#include <QKeyEvent>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

PopoverWindow::PopoverWindow(QQmlEngine *engine, QWindow *parent)
    : QQuickView(engine, parent)
{
    setTitle(u"Vost"_s);
    setResizeMode(QQuickView::SizeRootObjectToView);
    resize(contentSize);
    setMinimumSize(contentSize);
    setMaximumSize(contentSize);
    setTrayMode(false);
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
    if (event->key() == Qt::Key_Escape && !event->isAccepted() && !popupWasOpen && event->modifiers() == Qt::NoModifier) {
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
        NotificationCenter::defaultCenter().post(QString::fromLatin1(NotificationName::commandClick));
    QQuickView::mousePressEvent(event);
}
