#pragma once

#include <QObject>

#include <memory>

// Whether the desktop prefers light or dark, as its settings say (on Linux the
// freedesktop settings portal's "color-scheme").
enum class DesktopColorScheme {
    Unknown, // nobody answered (no portal), or not yet
    NoPreference,
    Dark,
    Light,
};

// Follows the desktop's colour scheme as it changes.
class ColorSchemeWatcher : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual DesktopColorScheme scheme() const = 0;

Q_SIGNALS:
    void schemeChanged();
};

// The platform's watcher (the XDG settings portal over D-Bus on Linux).
std::unique_ptr<ColorSchemeWatcher> makeSystemColorSchemeWatcher();
