#pragma once

#include "platform/TrayItem.h"

#include <QDBusConnection>

class DBusMenuExporter;
class QDBusServiceWatcher;

struct StatusNotifierPixmap {
    int width = 0;
    int height = 0;
    // ARGB32, each pixel in network byte order.
    QByteArray bytes;
};
using StatusNotifierPixmaps = QList<StatusNotifierPixmap>;

struct StatusNotifierToolTip {
    QString iconName;
    StatusNotifierPixmaps iconPixmaps;
    QString title;
    QString text;
};

class QDBusArgument;
QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierPixmap &pixmap);
QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierToolTip &toolTip);

// The KDE/freedesktop StatusNotifierItem, exported at /StatusNotifierItem under a
// name of its own, with its menu at /MenuBar. It registers with the
// StatusNotifierWatcher each time that name gets an owner, so the item follows
// panels that start, restart or quit after the program did.
class StatusNotifierItem : public TrayItem
{
    Q_OBJECT

public:
    static constexpr auto watcherService = "org.kde.StatusNotifierWatcher";

    explicit StatusNotifierItem(QDBusConnection connection = QDBusConnection::sessionBus(), QObject *parent = nullptr);
    ~StatusNotifierItem() override;

    bool isShown() const override { return m_shown; }
    QList<int> iconHeights() const override;
    void setIcon(const QList<QImage> &images) override;
    void setToolTip(const QString &title, const QString &text) override;
    void setStatus(Status status) override;
    void setMenu(const QStringList &labels) override;

    QString serviceName() const { return m_serviceName; }
    StatusNotifierPixmaps iconPixmaps() const { return m_pixmaps; }
    StatusNotifierToolTip toolTip() const { return m_toolTip; }
    QString statusText() const;

    // The picture as the protocol carries it.
    static StatusNotifierPixmap pixmap(const QImage &image);

Q_SIGNALS:
    void iconChanged();
    void toolTipChanged();
    void statusChanged(const QString &status);

private:
    void registerWithWatcher();
    void setShown(bool shown);

    QDBusConnection m_connection;
    QString m_serviceName;
    DBusMenuExporter *m_menu = nullptr;
    QDBusServiceWatcher *m_watcher = nullptr;
    StatusNotifierPixmaps m_pixmaps;
    StatusNotifierToolTip m_toolTip;
    Status m_status = Status::Active;
    bool m_shown = false;
};
