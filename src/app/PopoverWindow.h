#pragma once

#include <QQuickItem>
#include <QQuickView>

// The window that holds the whole client. In the tray it is a frameless panel
// without a taskbar entry; without a tray it is an ordinary window. It reports
// what the application decides on: an Esc that no view took, the quit shortcut,
// and Ctrl-clicks ("VostCommandClick", posted here before the click is delivered).
class PopoverWindow : public QQuickView
{
    Q_OBJECT

public:
    static constexpr QSize contentSize{860, 560};

    explicit PopoverWindow(QQmlEngine *engine, QWindow *parent = nullptr);

    // true: a frameless tool window under the tray icon; false: an ordinary window.
    void setTrayMode(bool inTray);
    bool isInTrayMode() const { return m_inTray; }

Q_SIGNALS:
    void escapeNotHandled();
    void quitRequested();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    // Whether a popup (a menu, a picker, a dialog) is open.
    bool hasOpenPopup() const;

    bool m_inTray = false;
};
