#include "AppPreferences.h"

#include "AppEvents.h"
#include "bundle/AppBundle.h"
#include "platform/Autostart.h"

using namespace Qt::StringLiterals;

AppPreferences::AppPreferences(QObject *parent)
    : QObject(parent)
{
    connect(&AppEvents::shared(), &AppEvents::globalShortcutStatusDidChange, this,
            &AppPreferences::shortcutStatusChanged);
    connect(&AppEvents::shared(), &AppEvents::globalShortcutRecordingDidChange, this,
            &AppPreferences::recordsShortcutChanged);
}

bool AppPreferences::startsAtLogin() const
{
    return Autostart::isEnabled();
}

void AppPreferences::setStartsAtLogin(bool starts)
{
    Autostart::setEnabled(starts);
    // Whatever happened, the switch shows what is on disk.
    Q_EMIT startsAtLoginChanged();
}

QString AppPreferences::version() const
{
    return AppBundle::main().infoDictionary().value(u"CFBundleShortVersionString"_s).toString();
}

void AppPreferences::setShortcutStatus(ShortcutStatus status)
{
    if (status == s_shortcutStatus)
        return;
    s_shortcutStatus = status;
    Q_EMIT AppEvents::shared().globalShortcutStatusDidChange();
}

void AppPreferences::setRecordsShortcut(bool recording)
{
    if (recording == s_recordsShortcut)
        return;
    s_recordsShortcut = recording;
    Q_EMIT AppEvents::shared().globalShortcutRecordingDidChange(recording);
}
