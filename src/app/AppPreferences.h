#pragma once

#include "session/Preferences.h"

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

// The core's preferences object, as the page's view of it.
struct PreferencesForeign {
    Q_GADGET
    QML_FOREIGN(Preferences)
    QML_NAMED_ELEMENT(Preferences)
    QML_UNCREATABLE("The user's preferences are one, shared.")
};

// What the preferences page shows beyond the account: the user's preferences,
// starting at login, the version, whether this is the offline demo account, and
// what became of the global shortcut the user chose.
class AppPreferences : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Preferences *preferences READ preferences CONSTANT)
    Q_PROPERTY(bool startsAtLogin READ startsAtLogin WRITE setStartsAtLogin NOTIFY startsAtLoginChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(bool isDemoAccount READ isDemoAccount CONSTANT)
    Q_PROPERTY(ShortcutStatus shortcutStatus READ shortcutStatus NOTIFY shortcutStatusChanged)
    Q_PROPERTY(bool recordsShortcut READ recordsShortcut WRITE setRecordsShortcut NOTIFY recordsShortcutChanged)

public:
    enum class ShortcutStatus {
        Off,
        Working,
        // Another program holds the combination.
        Taken,
        // The desktop gives programs no shortcuts of their own (a Wayland desktop
        // without the GlobalShortcuts portal).
        Unavailable,
        // The desktop was asked through its portal and did not bind it (the user
        // turned its question down).
        Refused,
    };
    Q_ENUM(ShortcutStatus)

    explicit AppPreferences(QObject *parent = nullptr);

    Preferences *preferences() const { return &Preferences::shared(); }
    bool startsAtLogin() const;
    void setStartsAtLogin(bool starts);
    QString version() const;
    bool isDemoAccount() const { return s_demoAccount; }

    // Set once at launch, before the views are made.
    static void setDemoAccount(bool demo) { s_demoAccount = demo; }
    ShortcutStatus shortcutStatus() const { return s_shortcutStatus; }
    // The application says so whenever it grabs the shortcut anew.
    static void setShortcutStatus(ShortcutStatus status);
    // While the page waits for a new combination.
    bool recordsShortcut() const { return s_recordsShortcut; }
    void setRecordsShortcut(bool recording);

Q_SIGNALS:
    void startsAtLoginChanged();
    void shortcutStatusChanged();
    void recordsShortcutChanged();

private:
    static inline bool s_demoAccount = false;
    static inline ShortcutStatus s_shortcutStatus = ShortcutStatus::Off;
    static inline bool s_recordsShortcut = false;
};
