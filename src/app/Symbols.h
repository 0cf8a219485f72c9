#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

// The application's own symbols: single-colour SVG drawings on a 16 x 16 grid in the
// resources under :/symbols, so that they stay sharp at every scale and take any
// colour. Names follow the platform symbol names the views use ("paperplane.fill",
// "lock.fill", "ellipsis.message.fill" for the tray glyph, …). An unknown name draws
// nothing.
namespace Symbols {
bool isKnown(const QString &name);
// Draws the symbol into rect, whose size need not be square; the drawing keeps its
// aspect ratio and is centred.
void draw(QPainter &painter, const QString &name, const QRectF &rect, const QColor &color);
} // namespace Symbols
