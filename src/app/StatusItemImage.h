#pragma once

#include "platform/ColorScheme.h"
#include "session/ModelTypes.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>

#include <array>

class QPalette;

// The tray item's picture and label for an unread count: a chat-bubble glyph and,
// from one unread message on, a red badge with the count. Pure functions, so that
// the badge can be checked pixel by pixel.
namespace StatusItem {

// "Vost", or "Vost, N unread messages" (a negative count is read as 0).
QString accessibleLabel(int unreadCount);
// The label, and under it what the connection is doing while it is not ready
// ("Waiting for network…"), translated.
QString toolTip(int unreadCount, ConnectionState connection);
// The badge text: the count up to 99, then "99+"; empty without a badge.
QString badgeText(int unreadCount);

inline constexpr QColor badgeColor{0xFF, 0x3B, 0x30};

// Linux trays give an item a square slot (22 or 24 pixels in most panels, 32 in
// some); the icon holds a picture for each of these sides, at 1x and 2x.
inline constexpr std::array<int, 3> squareSides{22, 24, 32};

// Where the badge goes in a square picture of that side, in logical pixels with the
// origin at the top left: a disc in the top-right corner, stretched to a pill for
// two and three characters. Empty without a badge.
QRectF squareBadgeRect(int unreadCount, int side);

// The side x side picture at a device pixel ratio: the glyph in glyphColor filling
// the slot and, with unread messages, the badge (white bold count on red) over its
// top-right corner; transparent elsewhere.
QImage squareImage(int unreadCount, int side, qreal devicePixelRatio, const QColor &glyphColor);

// Whether the desktop's own bar is dark whatever the colour scheme (GNOME's top bar,
// the bars of sway and Hyprland); currentDesktop is XDG_CURRENT_DESKTOP.
bool panelIsAlwaysDark(QStringView currentDesktop);

// The glyph's colour on the panel: light where the panel is dark (by design, or the
// desktop prefers dark), dark where the desktop prefers light; without a word from
// the desktop the panel is taken to wear the palette, as Xfce's, LXQt's and KDE's
// panels and the XEmbed trays do, and the glyph takes the palette's text colour.
QColor glyphColor(DesktopColorScheme scheme, bool panelAlwaysDark, const QPalette &palette);

} // namespace StatusItem
