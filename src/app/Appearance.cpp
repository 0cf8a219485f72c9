#include "Appearance.h"

#include "session/UserDefaults.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {
QPalette systemPalette()
{
    return QGuiApplication::palette();
}

QColor withAlpha(QColor color, qreal alpha)
{
    color.setAlphaF(float(alpha));
    return color;
}
} // namespace

Appearance::Appearance(QObject *parent)
    : QObject(parent)
    , m_mode(normalizedMode(UserDefaults::value(QString::fromLatin1(preferenceKey)).toString()))
{
    if (qApp)
        qApp->installEventFilter(this);
}

QString Appearance::normalizedMode(const QString &mode)
{
    if (mode == "light"_L1 || mode == "dark"_L1)
        return mode;
    return u"system"_s;
}

void Appearance::setMode(const QString &mode)
{
    const QString normalized = normalizedMode(mode);
    UserDefaults::setValue(QString::fromLatin1(preferenceKey), normalized);
    if (normalized == m_mode)
        return;
    m_mode = normalized;
    Q_EMIT changed();
}

bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && followsSystem())
        Q_EMIT changed();
    return QObject::eventFilter(watched, event);
}

bool Appearance::isDark() const
{
    if (m_mode == "dark"_L1)
        return true;
    if (m_mode == "light"_L1)
        return false;
    return systemPalette().color(QPalette::Window).lightness() < 128;
}

QColor Appearance::background() const
{
    if (followsSystem())
        return systemPalette().color(QPalette::Base);
    return isDark() ? QColor(0x1E, 0x1F, 0x22) : QColor(0xFF, 0xFF, 0xFF);
}

QColor Appearance::sidebar() const
{
    if (followsSystem())
        return systemPalette().color(QPalette::Window);
    return isDark() ? QColor(0x25, 0x26, 0x2A) : QColor(0xF5, 0xF5, 0xF7);
}

QColor Appearance::text() const
{
    if (followsSystem())
        return systemPalette().color(QPalette::Text);
    return isDark() ? QColor(0xEC, 0xEC, 0xEE) : QColor(0x1C, 0x1C, 0x1E);
}

QColor Appearance::secondaryText() const
{
    return withAlpha(text(), 0.6);
}

QColor Appearance::separator() const
{
    return withAlpha(text(), isDark() ? 0.16 : 0.12);
}

QColor Appearance::fieldBackground() const
{
    return isDark() ? QColor(0x2B, 0x2D, 0x31) : QColor(0xF1, 0xF1, 0xF4);
}

QColor Appearance::accent() const
{
    return isDark() ? QColor(0x5E, 0xA2, 0xEF) : QColor(0x33, 0x90, 0xEC);
}

QColor Appearance::neutralBubble() const
{
    return isDark() ? QColor(0x2B, 0x2D, 0x31) : QColor(0xF1, 0xF1, 0xF4);
}
