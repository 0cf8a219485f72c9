#pragma once

#include <QKeySequence>
#include <QObject>

#include <memory>

// A key combination that reaches the program whatever window has the keyboard
// (on X11 a passive grab on the root window; on Wayland the desktop's
// GlobalShortcuts portal, which may ask the user and answers later).
class GlobalShortcut : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Whether this desktop lets a program have a shortcut of its own at all.
    virtual bool isAvailable() const = 0;
    // Lets go of the previous combination and takes the sequence's first one; an
    // empty sequence only lets go. Whether the new combination is now held (or, where
    // the desktop answers later, asked for): false where the platform has none, or
    // another program holds it already.
    virtual bool setShortcut(const QKeySequence &sequence) = 0;

Q_SIGNALS:
    void activated();
    // isAvailable() has changed: where it is learnt from the desktop, after start.
    void availabilityChanged();
    // The desktop's later answer to the last setShortcut(): whether it is held.
    void settled(bool held);
};

// The platform's global shortcut: the X11 key grab under an X server, the
// GlobalShortcuts portal under Wayland, elsewhere one that is never available.
std::unique_ptr<GlobalShortcut> makeSystemGlobalShortcut();
