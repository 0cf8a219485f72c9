#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringView>

// Where the popover opens: under the tray icon when its place is known (above it
// when the panel is at the bottom of the screen), otherwise at the pointer, and
// always inside the screen's available area.
QPoint popoverPosition(const QRect &iconGeometry, const QPoint &pointer, const QRect &availableArea,
                       const QSize &popoverSize);

// What the program may say of where its window goes. A Wayland client places
// nothing (the compositor does). Under Xwayland the pointer Qt reports is stale
// when the click lands on a Wayland panel: only a point the tray host gives counts,
// else the window manager places the window.
enum class WindowPlacement { Free, HostPointOnly, ByCompositor };

WindowPlacement windowPlacement(QStringView platformName, bool waylandSession);
// Whether the desktop session runs a Wayland compositor, from its environment.
bool inWaylandSession();
