#include "Symbols.h"

#include "MoreSymbols.h"

#include <QPainter>
#include <QPainterPath>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Every symbol is designed on a 16 x 16 grid and scaled into its rectangle.
constexpr qreal grid = 16.0;

QPainterPath messageBubble()
{
    QPainterPath bubble;
    bubble.addRoundedRect(QRectF(0.5, 1.5, 15.0, 10.5), 4.2, 4.2);
    QPainterPath tail;
    tail.moveTo(2.6, 10.0);
    tail.lineTo(2.2, 15.0);
    tail.lineTo(7.2, 11.2);
    tail.closeSubpath();
    return bubble.united(tail);
}

void drawEllipsisMessage(QPainter &painter, const QColor &color)
{
    QPainterPath shape = messageBubble();
    QPainterPath dots;
    for (const qreal x : {4.5, 8.0, 11.5})
        dots.addEllipse(QPointF(x, 6.75), 1.3, 1.3);
    painter.fillPath(shape.subtracted(dots), color);
}

void drawPaperplane(QPainter &painter, const QColor &color)
{
    // A paper plane flying to the upper right, its fold as a gap.
    QPainterPath wing;
    wing.moveTo(15.4, 0.6);
    wing.lineTo(0.6, 7.0);
    wing.lineTo(5.6, 9.0);
    wing.closeSubpath();
    QPainterPath body;
    body.moveTo(15.4, 0.6);
    body.lineTo(6.6, 9.6);
    body.lineTo(9.0, 15.4);
    body.closeSubpath();
    QPainterPath fold;
    fold.moveTo(15.4, 0.6);
    fold.lineTo(6.4, 10.4);
    fold.lineTo(6.4, 14.6);
    fold.lineTo(8.2, 11.6);
    fold.closeSubpath();
    painter.fillPath(wing.united(body).united(fold), color);
}

void drawLock(QPainter &painter, const QColor &color)
{
    QPainterPath body;
    body.addRoundedRect(QRectF(2.5, 7.0, 11.0, 8.5), 1.8, 1.8);
    QPainterPath keyhole;
    keyhole.addEllipse(QPointF(8.0, 10.6), 1.3, 1.3);
    keyhole.addRect(QRectF(7.45, 10.6, 1.1, 2.8));
    painter.fillPath(body.subtracted(keyhole), color);
    QPen shackle(color, 1.7, Qt::SolidLine, Qt::FlatCap);
    painter.setPen(shackle);
    painter.setBrush(Qt::NoBrush);
    QPainterPath arc;
    arc.moveTo(4.9, 7.2);
    arc.lineTo(4.9, 4.9);
    arc.arcTo(QRectF(4.9, 1.35, 6.2, 7.1), 180.0, -180.0);
    arc.lineTo(11.1, 7.2);
    painter.drawPath(arc);
}

void drawNumberSquare(QPainter &painter, const QColor &color)
{
    QPainterPath square;
    square.addRoundedRect(QRectF(0.8, 0.8, 14.4, 14.4), 3.4, 3.4);
    // A number sign cut out of the square.
    QPainterPath lines;
    lines.moveTo(6.9, 3.7);
    lines.lineTo(5.7, 12.3);
    lines.moveTo(10.3, 3.7);
    lines.lineTo(9.1, 12.3);
    lines.moveTo(3.9, 6.3);
    lines.lineTo(12.3, 6.3);
    lines.moveTo(3.7, 9.7);
    lines.lineTo(12.1, 9.7);
    QPainterPathStroker stroker;
    stroker.setWidth(1.35);
    stroker.setCapStyle(Qt::RoundCap);
    const QPainterPath sign = stroker.createStroke(lines);
    painter.fillPath(square.subtracted(sign.simplified()), color);
}

QPainterPath triangleOutline()
{
    QPainterPath triangle;
    triangle.moveTo(8.0, 1.2);
    triangle.lineTo(15.4, 14.6);
    triangle.lineTo(0.6, 14.6);
    triangle.closeSubpath();
    return triangle;
}

QPainterPath exclamationMark()
{
    QPainterPath mark;
    mark.addRoundedRect(QRectF(7.25, 5.3, 1.5, 5.3), 0.7, 0.7);
    mark.addEllipse(QPointF(8.0, 12.4), 0.95, 0.95);
    return mark;
}

void drawTriangleFill(QPainter &painter, const QColor &color)
{
    QPainterPathStroker rounder;
    rounder.setWidth(1.0);
    rounder.setJoinStyle(Qt::RoundJoin);
    const QPainterPath triangle = triangleOutline().united(rounder.createStroke(triangleOutline()));
    painter.fillPath(triangle.subtracted(exclamationMark()), color);
}

void drawTriangle(QPainter &painter, const QColor &color)
{
    QPen pen(color, 1.4);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    QPainterPath inset;
    inset.moveTo(8.0, 2.0);
    inset.lineTo(14.7, 14.0);
    inset.lineTo(1.3, 14.0);
    inset.closeSubpath();
    painter.drawPath(inset);
    painter.fillPath(exclamationMark(), color);
}

using Drawing = std::function<void(QPainter &, const QColor &)>;

Drawing drawingFor(const QString &name)
{
    if (name == "ellipsis.message.fill"_L1)
        return drawEllipsisMessage;
    if (name == "paperplane.fill"_L1)
        return drawPaperplane;
    if (name == "lock.fill"_L1)
        return drawLock;
    if (name == "number.square.fill"_L1)
        return drawNumberSquare;
    if (name == "exclamationmark.triangle.fill"_L1)
        return drawTriangleFill;
    if (name == "exclamationmark.triangle"_L1)
        return drawTriangle;
    return MoreSymbols::drawingFor(name);
}

} // namespace

bool Symbols::isKnown(const QString &name)
{
    return bool(drawingFor(name));
}

void Symbols::draw(QPainter &painter, const QString &name, const QRectF &rect, const QColor &color)
{
    const Drawing drawing = drawingFor(name);
    if (!drawing || rect.isEmpty())
        return;
    const qreal side = std::min(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.center().x() - side / 2, rect.center().y() - side / 2);
    painter.scale(side / grid, side / grid);
    painter.setPen(Qt::NoPen);
    drawing(painter, color);
    painter.restore();
}
