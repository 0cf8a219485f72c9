#pragma once

#include <QPoint>

#include <memory>

class QWindow;

// Where a Wayland compositor lets a program say where its window goes (KDE
// Plasma's shell surface). Most compositors give programs no say, and there is
// no placer.
class WindowPlacer
{
public:
    WindowPlacer() = default;
    virtual ~WindowPlacer() = default;
    WindowPlacer(const WindowPlacer &) = delete;
    WindowPlacer &operator=(const WindowPlacer &) = delete;

    // Asks for the shown window's top left at a point in the screen's (global)
    // coordinates. Qt makes a new surface at every showing, so this follows show().
    virtual void place(QWindow *window, QPoint topLeft) = 0;
};

// The compositor's placer, or none where it places windows itself.
std::unique_ptr<WindowPlacer> makeSystemWindowPlacer();
