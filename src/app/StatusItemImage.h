#pragma once

#include "session/ModelTypes.h"

#include <QColor>
#include <QImage>
#include <QSizeF>
#include <QString>

// The tray item's picture and label for an unread count: a chat-bubble glyph and,
// from one unread message on, a red disc with the count. Pure functions, so that
// the badge can be checked pixel by pixel.
namespace StatusItem {

// 22 x 22 logical pixels without a badge (count < 1), 38 x 22 with one.
QSizeF imageSize(int unreadCount);
// "Vost", or "Vost, N unread messages" (a negative count is read as 0).
QString accessibleLabel(int unreadCount);
// The label, and under it what the connection is doing while it is not ready
// ("Waiting for network…"), translated.
QString toolTip(int unreadCount, ConnectionState connection);
// The badge text: the count up to 99, then "99+"; empty without a badge.
QString badgeText(int unreadCount);
// The badge font's size in points (1 point = 1 logical pixel here): 9 for one
// digit, 7.5 for two, 6.1 for "99+".
qreal badgeFontSize(int unreadCount);

// Where things go, in logical pixels with the origin at the top left.
QRectF glyphRect(int unreadCount);
inline constexpr QRectF badgeRect{22.0, 4.0, 14.0, 14.0};
inline constexpr QColor badgeColor{0xFF, 0x3B, 0x30};

// The picture at a device pixel ratio, its glyph in glyphColor (the panel's text
// colour); transparent elsewhere.
QImage image(int unreadCount, qreal devicePixelRatio, const QColor &glyphColor);

} // namespace StatusItem
