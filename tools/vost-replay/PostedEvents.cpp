#include "ReplayDriver.h"
#include "ReplayModules.h"

#include "AppEvents.h"
#include "session/NotificationCenter.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

// The process-wide events read as "posted" lines: a name and its object (null
// for those without one), under the names the scripts use.
namespace {
constexpr auto unreadCountDidChange = "vostUnreadCountDidChange";
constexpr auto openTelegramChat = "openTelegramChat";
constexpr auto popoverVisibilityDidChange = "vostPopoverVisibilityDidChange";
constexpr auto filePanelWillPresent = "VostFilePanelWillPresent";
constexpr auto filePanelDidFinish = "VostFilePanelDidFinish";
constexpr auto commandClick = "VostCommandClick";

void printPosted(ReplayDriver &driver, const char *name, const QJsonValue &object = QJsonValue::Null)
{
    driver.emitLine({{"posted"_L1, QJsonObject{{"name"_L1, QString::fromLatin1(name)}, {"object"_L1, object}}}});
}
} // namespace

void registerPostedEvents(ReplayDriver &driver)
{
    const NotificationCenter &center = NotificationCenter::defaultCenter();
    QObject::connect(&center, &NotificationCenter::openTelegramChat, &driver,
                     [&driver](const QString &chatID) { printPosted(driver, openTelegramChat, chatID); });
    const AppEvents &events = AppEvents::shared();
    QObject::connect(&events, &AppEvents::unreadCountDidChange, &driver,
                     [&driver](qint64 total) { printPosted(driver, unreadCountDidChange, double(total)); });
    QObject::connect(&events, &AppEvents::popoverVisibilityDidChange, &driver,
                     [&driver](bool visible) { printPosted(driver, popoverVisibilityDidChange, visible); });
    QObject::connect(&events, &AppEvents::filePanelWillPresent, &driver,
                     [&driver] { printPosted(driver, filePanelWillPresent); });
    QObject::connect(&events, &AppEvents::filePanelDidFinish, &driver,
                     [&driver] { printPosted(driver, filePanelDidFinish); });
    QObject::connect(&events, &AppEvents::commandClick, &driver, [&driver] { printPosted(driver, commandClick); });
}

void post(ReplayDriver &driver, const QString &name, const QJsonValue &object)
{
    AppEvents &events = AppEvents::shared();
    if (name == QLatin1StringView(openTelegramChat) && object.isString())
        Q_EMIT NotificationCenter::defaultCenter().openTelegramChat(object.toString());
    else if (name == QLatin1StringView(unreadCountDidChange) && object.isDouble())
        Q_EMIT events.unreadCountDidChange(qint64(object.toDouble()));
    else if (name == QLatin1StringView(popoverVisibilityDidChange))
        Q_EMIT events.popoverVisibilityDidChange(object.isBool() && object.toBool());
    else if (name == QLatin1StringView(filePanelWillPresent))
        Q_EMIT events.filePanelWillPresent();
    else if (name == QLatin1StringView(filePanelDidFinish))
        Q_EMIT events.filePanelDidFinish();
    else if (name == QLatin1StringView(commandClick))
        Q_EMIT events.commandClick();
    else // a name or an object no part of the program can be sent: announced, heard by no one
        printPosted(driver, name.toLatin1().constData(), object.isUndefined() ? QJsonValue::Null : object);
}
