#pragma once

// What the desktop's tray is. A StatusNotifierItem host (KDE, Xfce, LXQt, GNOME
// with AppIndicator) draws an item's menu itself from the menu the item exports;
// an XEmbed tray leaves the menu to the program.
namespace TrayHost {
bool drawsItemMenus();
} // namespace TrayHost
