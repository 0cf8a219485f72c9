#pragma once

#include <QObject>

#include <memory>

// Says when the XEmbed tray the program's icon sits in goes away. Qt's own tray
// icon only hides itself then, and the program would be left with nothing on
// screen.
class EmbeddedTrayWatch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Follows the tray there is now, if there is one: whether there is.
    virtual bool watch() = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    // The tray watched went away. Sent from the event loop, after Qt has taken
    // note of the same change.
    void gone();
};

// The X11 watch under an X server; none elsewhere.
std::unique_ptr<EmbeddedTrayWatch> makeSystemEmbeddedTrayWatch();
