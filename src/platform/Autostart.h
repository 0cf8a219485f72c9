#pragma once

// Starting Vost when the user signs in to the computer: on Linux an XDG autostart
// entry named like the desktop entry (~/.config/autostart/com.corvella.Vost.desktop).
namespace Autostart {
bool isEnabled();
// False when the entry could not be written or removed.
bool setEnabled(bool enabled);
} // namespace Autostart
