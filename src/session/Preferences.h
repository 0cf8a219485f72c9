#pragma once

#include "session/SoundManager.h"

#include <QObject>
#include <QStringList>

// The user's preferences in one place: the sound manager, the notification
// service and the preferences page read and write them here, and hear about
// changes. They live in the user-defaults store ("soundsEnabled", "soundPack",
// "showNotifications", "checkSpelling", "globalShortcut"); the appearance mode has its
// own home in Appearance.
class Preferences : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool soundsEnabled READ soundsEnabled WRITE setSoundsEnabled NOTIFY soundsEnabledChanged)
    // The pack's raw value: "crystal", "gentle", "classic" or "playful".
    Q_PROPERTY(QString soundPack READ soundPackName WRITE setSoundPackName NOTIFY soundPackChanged)
    Q_PROPERTY(QStringList soundPacks READ soundPacks CONSTANT)
    Q_PROPERTY(
        bool showsNotifications READ showsNotifications WRITE setShowsNotifications NOTIFY showsNotificationsChanged)
    Q_PROPERTY(bool checksSpelling READ checksSpelling WRITE setChecksSpelling NOTIFY checksSpellingChanged)
    // The shortcut that opens and closes the popover from anywhere, in Qt's portable
    // text ("Ctrl+Alt+K"); empty when there is none.
    Q_PROPERTY(QString globalShortcut READ globalShortcut WRITE setGlobalShortcut NOTIFY globalShortcutChanged)
    // The same as the platform writes it, for people.
    Q_PROPERTY(QString globalShortcutLabel READ globalShortcutLabel NOTIFY globalShortcutChanged)

public:
    static Preferences &shared();

    // Sounds play unless a boolean false is stored.
    bool soundsEnabled() const;
    void setSoundsEnabled(bool enabled);
    // A missing or unknown pack is crystal.
    SoundPack soundPack() const;
    QString soundPackName() const { return rawValue(soundPack()); }
    void setSoundPackName(const QString &name);
    QStringList soundPacks() const;
    // Desktop notifications are shown unless the user turned them off.
    bool showsNotifications() const;
    void setShowsNotifications(bool shown);
    // The composer marks misspelt words unless the user turned that off.
    bool checksSpelling() const;
    void setChecksSpelling(bool checks);
    // None unless the user chose one; what is stored and cannot be a shortcut is none.
    QString globalShortcut() const;
    QString globalShortcutLabel() const;
    // Takes a usable combination or empty (none); anything else changes nothing.
    void setGlobalShortcut(const QString &shortcut);

    // The portable text of a key press as a shortcut for anywhere on the desktop, or
    // empty when it cannot be one: it needs Ctrl, Alt or Meta (Shift only with one
    // of them) and a key that is not itself a modifier.
    Q_INVOKABLE static QString shortcutForKeyPress(int key, int modifiers);
    // A stored text of one combination as shortcutForKeyPress would make it, or empty.
    static QString normalizedShortcut(const QString &text);

    // Plays the pack's two preview sounds, one after the other, whether sounds are
    // on or not.
    Q_INVOKABLE void previewSoundPack(const QString &name);

Q_SIGNALS:
    void soundsEnabledChanged();
    void soundPackChanged();
    void showsNotificationsChanged();
    void checksSpellingChanged();
    void globalShortcutChanged();

private:
    using QObject::QObject;
};
