#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

// The application's own symbols, drawn by code so that they stay sharp at every
// scale and take any colour. Names follow the platform symbol names the views use:
// "paperplane.fill", "lock.fill", "number.square.fill",
// "exclamationmark.triangle.fill", "exclamationmark.triangle" and
// "ellipsis.message.fill" (the tray glyph). An unknown name draws nothing.
namespace Symbols {
bool isKnown(const QString &name);
// Draws the symbol into rect, whose size need not be square; the drawing keeps its
// aspect ratio and is centred.
void draw(QPainter &painter, const QString &name, const QRectF &rect, const QColor &color);
} // namespace Symbols
