#include "SymbolIcon.h"

#include "Symbols.h"

SymbolIcon::SymbolIcon(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void SymbolIcon::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    update();
    Q_EMIT nameChanged();
}

void SymbolIcon::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void SymbolIcon::paint(QPainter *painter)
{
    Symbols::draw(*painter, m_name, QRectF(0, 0, width(), height()), m_color);
}
