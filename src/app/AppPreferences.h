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
// starting at login, the version, and whether this is the offline demo account.
class AppPreferences : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Preferences *preferences READ preferences CONSTANT)
    Q_PROPERTY(bool startsAtLogin READ startsAtLogin WRITE setStartsAtLogin NOTIFY startsAtLoginChanged)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(bool isDemoAccount READ isDemoAccount CONSTANT)

public:
    explicit AppPreferences(QObject *parent = nullptr);

    Preferences *preferences() const { return &Preferences::shared(); }
    bool startsAtLogin() const;
    void setStartsAtLogin(bool starts);
    QString version() const;
    bool isDemoAccount() const { return s_demoAccount; }

    // Set once at launch, before the views are made.
    static void setDemoAccount(bool demo) { s_demoAccount = demo; }

Q_SIGNALS:
    void startsAtLoginChanged();

private:
    static inline bool s_demoAccount = false;
};
