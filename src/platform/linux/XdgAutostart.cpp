#include "platform/Autostart.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString autostartFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/autostart/"_s;
}

// Named like the application's desktop entry, so that session managers that
// list autostart entries show Vost's name and icon.
QString entryPath()
{
    return autostartFolder() + QStringLiteral(VOST_APP_ID) + u".desktop"_s;
}

// Where versions before the application id wrote the entry.
QString earlierEntryPath()
{
    return autostartFolder() + u"vost.desktop"_s;
}

// The Exec key quotes arguments with double quotes, escaping ", `, $ and \.
QString quotedForExec(QString path)
{
    for (const QChar special : {u'\\', u'"', u'`', u'$'})
        path.replace(special, QString(u'\\') + special);
    return u'"' + path + u'"';
}

} // namespace

namespace Autostart {

bool isEnabled()
{
    return QFile::exists(entryPath()) || QFile::exists(earlierEntryPath());
}

bool setEnabled(bool enabled)
{
    const QString path = entryPath();
    const QString earlier = earlierEntryPath();
    if (QFile::exists(earlier) && !QFile::remove(earlier))
        return false;
    if (!enabled)
        return !QFile::exists(path) || QFile::remove(path);
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QFile entry(path);
    if (!entry.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QString text =
        u"[Desktop Entry]\n"
        u"Type=Application\n"
        u"Name=Vost\n"
        u"Comment=Telegram in the system tray\n"
        u"Exec=%1\n"
        u"Icon=" VOST_APP_ID "\n"
        u"Terminal=false\n"
        u"X-GNOME-Autostart-enabled=true\n"_s.arg(quotedForExec(QCoreApplication::applicationFilePath()));
    return entry.write(text.toUtf8()) > 0;
}

} // namespace Autostart
