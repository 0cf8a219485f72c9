#include "AppPreferences.h"

#include "bundle/AppBundle.h"
#include "platform/Autostart.h"

using namespace Qt::StringLiterals;

AppPreferences::AppPreferences(QObject *parent)
    : QObject(parent)
{}

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
