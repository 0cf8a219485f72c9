#include "Symbols.h"

#include <QFile>
#include <QHash>
#include <QMutex>
#include <QPainter>
#include <QSvgRenderer>

#include <memory>

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

// Parsed drawings by name and colour. The views use a handful of colours, so the
// cache stays small; it is emptied if a theme change ever lets it grow. Views paint
// on the scene graph's thread, the tray on the main one: callers hold symbolsMutex.
QMutex symbolsMutex;

std::shared_ptr<QSvgRenderer> renderer(const QString &name, const QColor &color)
{
    static QHash<QString, std::shared_ptr<QSvgRenderer>> renderers;
    const QString key = name + u' ' + color.name(QColor::HexRgb);
    if (auto found = renderers.constFind(key); found != renderers.cend())
        return *found;
    if (renderers.size() >= 256)
        renderers.clear();
    auto made = std::make_shared<QSvgRenderer>(tinted(name, color));
    if (!made->isValid())
        made.reset();
    renderers.insert(key, made);
    return made;
}

} // namespace

bool Symbols::isKnown(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'/') && QFile::exists(resourcePath(name));
}

void Symbols::draw(QPainter &painter, const QString &name, const QRectF &rect, const QColor &color)
{
    if (rect.isEmpty() || name.isEmpty() || name.contains(u'/'))
        return;
    const QMutexLocker locker(&symbolsMutex);
    const std::shared_ptr<QSvgRenderer> drawing = renderer(name, color);
    if (!drawing)
        return;
    const qreal side = std::min(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * color.alphaF());
    drawing->render(&painter, QRectF(rect.center().x() - side / 2, rect.center().y() - side / 2, side, side));
    painter.restore();
}
