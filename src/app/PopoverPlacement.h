#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// Where the popover opens: under the tray icon when its place is known (above it
// when the panel is at the bottom of the screen), otherwise at the pointer, and
// always inside the screen's available area.
QPoint popoverPosition(const QRect &iconGeometry, const QPoint &pointer, const QRect &availableArea,
                       const QSize &popoverSize);
