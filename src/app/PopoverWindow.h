#pragma once

#include <QQuickItem>
#include <QQuickView>
#include <QtQml/qqmlregistration.h>

class QTimer;

// The window that holds the whole client. In the tray it is a frameless panel
// without a taskbar entry; without a tray it is an ordinary window. It reports
// what the application decides on: an Esc that no view took, the quit shortcut,
// and Ctrl-clicks ("VostCommandClick", posted here before the click is delivered).
//
// Vost spends most of its life in the tray, so the views inside the window are
// let go a few seconds after it hides and made again when it shows (holdsContent);
// the models behind them stay.
class PopoverWindow : public QQuickView
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application makes the one popover.")
    // Whether the views should exist: from showing until a few seconds after hiding.
    Q_PROPERTY(bool holdsContent READ holdsContent NOTIFY holdsContentChanged)

public:
    static constexpr QSize contentSize{860, 560};

    explicit PopoverWindow(QQmlEngine *engine, QWindow *parent = nullptr);

    // true: a frameless tool window under the tray icon; false: an ordinary window.
    void setTrayMode(bool inTray);
    bool isInTrayMode() const { return m_inTray; }

    bool holdsContent() const { return m_holdsContent; }
    // Frees what the scene graph still keeps of views let go while hidden, and the
    // window's backing store.
    void dropReleasedScene();
    // Keeps the views until the window shows again: a file dialog in front of the
    // hidden popover answers to them.
    void holdContentWhileHidden();

Q_SIGNALS:
    void escapeNotHandled();
    void quitRequested();
    void holdsContentChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    // Whether a popup (a menu, a picker, a dialog) is open.
    bool hasOpenPopup() const;
    void setHoldsContent(bool holds);
    // The window's one size while shown; hidden, it may have been made smaller.
    void takeContentSize();
    void releaseContent();

    bool m_inTray = false;
    bool m_holdsContent = true; // made with the window, ready for the first opening
    QTimer *m_releaseTimer;
};
