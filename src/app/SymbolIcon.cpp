#include "SymbolIcon.h"

#include "Symbols.h"

SymbolIcon::SymbolIcon(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &SymbolIcon::nameChanged, this, &QQuickItem::update);
    connect(this, &SymbolIcon::colorChanged, this, &QQuickItem::update);
}

void SymbolIcon::paint(QPainter *painter)
{
    Symbols::draw(*painter, m_name, QRectF(0, 0, width(), height()), m_color);
}
