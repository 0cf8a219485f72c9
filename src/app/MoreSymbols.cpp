// The symbols of the composer, the pickers and the message widgets, drawn like
// the others on a 16 x 16 grid.

#include "MoreSymbols.h"

#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QTransform>

using namespace Qt::StringLiterals;

namespace {

void strokePath(QPainter &painter, const QPainterPath &path, const QColor &color, qreal width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    painter.fillPath(stroker.createStroke(path), color);
}

void drawPaperclip(QPainter &painter, const QColor &color)
{
    // An upright clip of three lengths joined by round bends, leaning 45 degrees.
    QPainterPath clip;
    clip.moveTo(9.6, 5.0);
    clip.lineTo(9.6, 11.2);
    clip.arcTo(QRectF(6.4, 9.6, 3.2, 3.2), 0, -180);
    clip.lineTo(6.4, 3.4);
    clip.arcTo(QRectF(6.4, 1.2, 4.8, 4.4), 180, -180);
    clip.lineTo(11.2, 11.6);
    clip.arcTo(QRectF(4.8, 8.4, 6.4, 6.4), 0, -180);
    clip.lineTo(4.8, 4.6);
    QTransform lean;
    lean.translate(8, 8);
    lean.rotate(45);
    lean.translate(-8, -8);
    strokePath(painter, lean.map(clip), color, 1.25);
}

void drawSmilingFace(QPainter &painter, const QColor &color)
{
    QPainterPath face;
    face.addEllipse(QPointF(8, 8), 6.6, 6.6);
    strokePath(painter, face, color, 1.3);
    QPainterPath eyes;
    eyes.addEllipse(QPointF(5.7, 6.4), 0.95, 1.1);
    eyes.addEllipse(QPointF(10.3, 6.4), 0.95, 1.1);
    painter.fillPath(eyes, color);
    QPainterPath smile;
    smile.moveTo(5.0, 9.4);
    smile.quadTo(8.0, 12.6, 11.0, 9.4);
    strokePath(painter, smile, color, 1.3);
}

void drawSticker(QPainter &painter, const QColor &color)
{
    // A rounded sheet whose bottom right corner peels up.
    QPainterPath sheet;
    sheet.moveTo(5.0, 1.6);
    sheet.lineTo(11.0, 1.6);
    sheet.quadTo(14.4, 1.6, 14.4, 5.0);
    sheet.lineTo(14.4, 9.2);
    sheet.lineTo(9.2, 14.4);
    sheet.lineTo(5.0, 14.4);
    sheet.quadTo(1.6, 14.4, 1.6, 11.0);
    sheet.lineTo(1.6, 5.0);
    sheet.quadTo(1.6, 1.6, 5.0, 1.6);
    strokePath(painter, sheet, color, 1.3);
    QPainterPath fold;
    fold.moveTo(14.4, 9.2);
    fold.lineTo(11.6, 9.2);
    fold.quadTo(9.2, 9.2, 9.2, 11.6);
    fold.lineTo(9.2, 14.4);
    strokePath(painter, fold, color, 1.3);
}

void drawEllipsis(QPainter &painter, const QColor &color)
{
    QPainterPath dots;
    for (const qreal x : {3.0, 8.0, 13.0})
        dots.addEllipse(QPointF(x, 8.0), 1.5, 1.5);
    painter.fillPath(dots, color);
}

void drawXmark(QPainter &painter, const QColor &color)
{
    QPainterPath cross;
    cross.moveTo(3.5, 3.5);
    cross.lineTo(12.5, 12.5);
    cross.moveTo(12.5, 3.5);
    cross.lineTo(3.5, 12.5);
    strokePath(painter, cross, color, 1.6);
}

void drawDocument(QPainter &painter, const QColor &color)
{
    QPainterPath page;
    page.moveTo(3.0, 1.2);
    page.lineTo(9.6, 1.2);
    page.lineTo(13.0, 4.6);
    page.lineTo(13.0, 14.8);
    page.lineTo(3.0, 14.8);
    page.closeSubpath();
    QPainterPath corner;
    corner.moveTo(9.2, 1.2);
    corner.lineTo(9.2, 5.0);
    corner.lineTo(13.0, 5.0);
    QPainterPath lines;
    for (const qreal y : {8.0, 10.4, 12.8}) {
        lines.moveTo(5.4, y);
        lines.lineTo(10.6, y);
    }
    strokePath(painter, page, color, 1.2);
    strokePath(painter, corner, color, 1.2);
    strokePath(painter, lines, color, 1.0);
}

void drawPlay(QPainter &painter, const QColor &color)
{
    QPainterPath triangle;
    triangle.moveTo(4.2, 2.4);
    triangle.lineTo(13.4, 8.0);
    triangle.lineTo(4.2, 13.6);
    triangle.closeSubpath();
    painter.fillPath(triangle, color);
}

void drawPause(QPainter &painter, const QColor &color)
{
    QPainterPath bars;
    bars.addRoundedRect(QRectF(3.6, 2.4, 3.2, 11.2), 0.8, 0.8);
    bars.addRoundedRect(QRectF(9.2, 2.4, 3.2, 11.2), 0.8, 0.8);
    painter.fillPath(bars, color);
}

void drawArrowUpRight(QPainter &painter, const QColor &color)
{
    QPainterPath arrow;
    arrow.moveTo(4.0, 12.0);
    arrow.lineTo(12.0, 4.0);
    arrow.moveTo(6.0, 4.0);
    arrow.lineTo(12.0, 4.0);
    arrow.lineTo(12.0, 10.0);
    strokePath(painter, arrow, color, 1.6);
}

void drawArrowDownToLine(QPainter &painter, const QColor &color)
{
    QPainterPath arrow;
    arrow.moveTo(8.0, 2.0);
    arrow.lineTo(8.0, 10.6);
    arrow.moveTo(4.4, 7.2);
    arrow.lineTo(8.0, 10.8);
    arrow.lineTo(11.6, 7.2);
    arrow.moveTo(3.0, 13.8);
    arrow.lineTo(13.0, 13.8);
    strokePath(painter, arrow, color, 1.6);
}

void drawChevron(QPainter &painter, const QColor &color, bool left)
{
    QPainterPath chevron;
    chevron.moveTo(left ? 10.5 : 5.5, 2.5);
    chevron.lineTo(left ? 5.0 : 11.0, 8.0);
    chevron.lineTo(left ? 10.5 : 5.5, 13.5);
    strokePath(painter, chevron, color, 1.8);
}

void drawMapPin(QPainter &painter, const QColor &color)
{
    QPainterPath pin;
    pin.moveTo(8.0, 15.2);
    pin.cubicTo(3.0, 9.6, 2.6, 7.8, 2.6, 6.2);
    pin.arcTo(QRectF(2.6, 0.8, 10.8, 10.8), 180, -180);
    pin.cubicTo(13.4, 7.8, 13.0, 9.6, 8.0, 15.2);
    QPainterPath hole;
    hole.addEllipse(QPointF(8.0, 6.2), 2.1, 2.1);
    painter.fillPath(pin.subtracted(hole), color);
}

void drawPhone(QPainter &painter, const QColor &color)
{
    // A handset lying on its side.
    QPainterPath handset;
    handset.moveTo(3.2, 1.8);
    handset.lineTo(5.8, 1.8);
    handset.lineTo(7.0, 5.4);
    handset.lineTo(5.4, 6.8);
    handset.quadTo(6.8, 9.6, 9.2, 10.8);
    handset.lineTo(10.6, 9.0);
    handset.lineTo(14.2, 10.2);
    handset.lineTo(14.2, 12.8);
    handset.quadTo(14.2, 14.4, 12.4, 14.4);
    handset.quadTo(1.6, 13.6, 1.6, 3.6);
    handset.quadTo(1.6, 1.8, 3.2, 1.8);
    painter.fillPath(handset, color);
}

void drawVideoCamera(QPainter &painter, const QColor &color)
{
    QPainterPath camera;
    camera.addRoundedRect(QRectF(0.8, 3.6, 10.0, 8.8), 2.0, 2.0);
    camera.moveTo(11.6, 6.6);
    camera.lineTo(15.2, 4.4);
    camera.lineTo(15.2, 11.6);
    camera.lineTo(11.6, 9.4);
    camera.closeSubpath();
    painter.fillPath(camera, color);
}

void drawChart(QPainter &painter, const QColor &color)
{
    QPainterPath bars;
    bars.addRoundedRect(QRectF(1.6, 8.0, 3.0, 6.6), 0.8, 0.8);
    bars.addRoundedRect(QRectF(6.5, 2.0, 3.0, 12.6), 0.8, 0.8);
    bars.addRoundedRect(QRectF(11.4, 5.4, 3.0, 9.2), 0.8, 0.8);
    painter.fillPath(bars, color);
}

void drawPerson(QPainter &painter, const QColor &color)
{
    QPainterPath person;
    person.addEllipse(QPointF(8.0, 4.8), 3.2, 3.2);
    person.moveTo(1.8, 15.0);
    person.cubicTo(1.8, 10.6, 4.6, 9.2, 8.0, 9.2);
    person.cubicTo(11.4, 9.2, 14.2, 10.6, 14.2, 15.0);
    person.closeSubpath();
    painter.fillPath(person, color);
}

} // namespace

MoreSymbols::Drawing MoreSymbols::drawingFor(const QString &name)
{
    static const QHash<QString, Drawing> drawings{
        {u"paperclip"_s, drawPaperclip},
        {u"face.smiling"_s, drawSmilingFace},
        {u"sticker"_s, drawSticker},
        {u"ellipsis"_s, drawEllipsis},
        {u"xmark"_s, drawXmark},
        {u"doc"_s, drawDocument},
        {u"play.fill"_s, drawPlay},
        {u"pause.fill"_s, drawPause},
        {u"arrow.up.right"_s, drawArrowUpRight},
        {u"arrow.down.to.line"_s, drawArrowDownToLine},
        {u"chevron.left"_s, [](QPainter &p, const QColor &c) { drawChevron(p, c, true); }},
        {u"chevron.right"_s, [](QPainter &p, const QColor &c) { drawChevron(p, c, false); }},
        {u"mappin"_s, drawMapPin},
        {u"phone.fill"_s, drawPhone},
        {u"video.fill"_s, drawVideoCamera},
        {u"chart.bar.fill"_s, drawChart},
        {u"person.fill"_s, drawPerson},
    };
    return drawings.value(name);
}
