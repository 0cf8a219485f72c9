#pragma once

#include <QObject>
#include <QVariant>

// Process-wide notifications between the parts of the application, on the main thread.
namespace NotificationName {
inline constexpr auto unreadCountDidChange = "vostUnreadCountDidChange";
inline constexpr auto openTelegramChat = "openTelegramChat";
inline constexpr auto popoverVisibilityDidChange = "vostPopoverVisibilityDidChange";
inline constexpr auto filePanelWillPresent = "VostFilePanelWillPresent";
inline constexpr auto filePanelDidFinish = "VostFilePanelDidFinish";
inline constexpr auto commandClick = "VostCommandClick";
} // namespace NotificationName

class NotificationCenter : public QObject
{
    Q_OBJECT

public:
    static NotificationCenter &defaultCenter();

    void post(const QString &name, const QVariant &object = {});

    // Calls the observer, in the context's thread and lifetime, for each post of name.
    template<typename Context, typename Observer>
    QMetaObject::Connection observe(const QString &name, Context *context, Observer observer)
    {
        return connect(this, &NotificationCenter::posted, context,
                       [name, observer](const QString &postedName, const QVariant &object) {
                           if (postedName == name)
                               observer(object);
                       });
    }

Q_SIGNALS:
    void posted(const QString &name, const QVariant &object);
};
