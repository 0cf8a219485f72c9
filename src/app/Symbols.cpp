#include "Symbols.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

QString resourcePath(const QString &name)
{
    return u":/symbols/"_s + name + u".svg"_s;
}

// The drawings are black ("#000"); the colour is written into the document instead,
// so the symbol stays a vector drawing at any scale.
QByteArray tinted(const QString &name, const QColor &color)
{
    QFile file(resourcePath(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray document = file.readAll();
    document.replace(R"("#000")", '"' + color.name(QColor::HexRgb).toLatin1() + '"');
    return document;
}

} // namespace

bool Symbols::isKnown(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'/') && QFile::exists(resourcePath(name));
}

void Symbols::draw(QPainter &painter, const QString &name, const QRectF &rect, const QColor &color)
{
    if (rect.isEmpty() || !isKnown(name))
        return;
    QSvgRenderer renderer(tinted(name, color));
    if (!renderer.isValid())
        return;
    const qreal side = std::min(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * color.alphaF());
    renderer.render(&painter, QRectF(rect.center().x() - side / 2, rect.center().y() - side / 2, side, side));
    painter.restore();
}
