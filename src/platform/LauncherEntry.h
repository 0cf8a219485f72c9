#pragma once

#include <QtGlobal>

// The unread total on the application's launcher icon (docks and task managers that
// show counts: Ubuntu's and KDE's, Plank, Dash to Dock), where the desktop has one.
namespace LauncherEntry {
// Shows count on the icon; a count below 1 hides it.
void showCount(qint64 count);
} // namespace LauncherEntry
