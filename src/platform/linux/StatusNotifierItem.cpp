#include "StatusNotifierItem.h"

#include "DBusMenuExporter.h"
#include "DBusStructure.h"

#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QtEndian>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(StatusNotifierPixmap)
Q_DECLARE_METATYPE(StatusNotifierToolTip)

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierPixmap &pixmap)
{
    return DBusStructure::write(argument, pixmap.width, pixmap.height, pixmap.bytes);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierPixmap &pixmap)
{
    return DBusStructure::read(argument, pixmap.width, pixmap.height, pixmap.bytes);
}

QDBusArgument &operator<<(QDBusArgument &argument, const StatusNotifierToolTip &toolTip)
{
    return DBusStructure::write(argument, toolTip.iconName, toolTip.iconPixmaps, toolTip.title, toolTip.text);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, StatusNotifierToolTip &toolTip)
{
    return DBusStructure::read(argument, toolTip.iconName, toolTip.iconPixmaps, toolTip.title, toolTip.text);
}

namespace {

constexpr auto itemPath = "/StatusNotifierItem";

void registerItemTypes()
{
    static const bool registered = [] {
        qDBusRegisterMetaType<StatusNotifierPixmap>();
        qDBusRegisterMetaType<StatusNotifierPixmaps>();
        qDBusRegisterMetaType<StatusNotifierToolTip>();
        return true;
    }();
    Q_UNUSED(registered);
}

} // namespace

// The interface as hosts call it; the item's state lives in StatusNotifierItem.
class StatusNotifierItemAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(QString IconThemePath READ emptyText)
    Q_PROPERTY(QString IconName READ emptyText)
    Q_PROPERTY(StatusNotifierPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(QString OverlayIconName READ emptyText)
    Q_PROPERTY(StatusNotifierPixmaps OverlayIconPixmap READ noPixmaps)
    Q_PROPERTY(QString AttentionIconName READ emptyText)
    Q_PROPERTY(StatusNotifierPixmaps AttentionIconPixmap READ noPixmaps)
    Q_PROPERTY(QString AttentionMovieName READ emptyText)
    Q_PROPERTY(StatusNotifierToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)

public:
    StatusNotifierItemAdaptor(QObject *exported, StatusNotifierItem &item)
        : QDBusAbstractAdaptor(exported)
        , m_item(item)
    {
        connect(&item, &StatusNotifierItem::iconChanged, this, &StatusNotifierItemAdaptor::NewIcon);
        connect(&item, &StatusNotifierItem::toolTipChanged, this, &StatusNotifierItemAdaptor::NewToolTip);
        connect(&item, &StatusNotifierItem::statusChanged, this, &StatusNotifierItemAdaptor::NewStatus);
    }

    QString category() const { return u"Communications"_s; }
    QString id() const { return QStringLiteral(VOST_APP_ID); }
    QString title() const { return u"Vost"_s; }
    QString status() const { return m_item.statusText(); }
    int windowId() const { return 0; }
    QString emptyText() const { return {}; }
    StatusNotifierPixmaps iconPixmap() const { return m_item.iconPixmaps(); }
    StatusNotifierPixmaps noPixmaps() const { return {}; }
    StatusNotifierToolTip toolTip() const { return m_item.toolTip(); }
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menu() const { return QDBusObjectPath(QString::fromLatin1(DBusMenuExporter::objectPath)); }

public Q_SLOTS:
    void Activate(int x, int y)
    {
        // Hosts that do not know where the item is send 0, 0.
        Q_EMIT m_item.activated(QPoint(x, y), x != 0 || y != 0);
    }
    void SecondaryActivate(int x, int y)
    {
        Q_UNUSED(x);
        Q_UNUSED(y);
    }
    void ContextMenu(int x, int y) { Q_EMIT m_item.contextMenuRequested(QPoint(x, y)); }
    // KDE's hosts hand over the click's token before Activate: with it a Wayland
    // compositor lets the window take the focus.
    void ProvideXdgActivationToken(const QString &token) { Q_EMIT m_item.activationTokenProvided(token); }
    void Scroll(int delta, const QString &orientation)
    {
        Q_UNUSED(delta);
        Q_UNUSED(orientation);
    }

Q_SIGNALS:
    void NewTitle();
    void NewIcon();
    void NewAttentionIcon();
    void NewOverlayIcon();
    void NewToolTip();
    void NewStatus(const QString &status);

private:
    StatusNotifierItem &m_item;
};

StatusNotifierItem::StatusNotifierItem(QDBusConnection connection, QObject *parent)
    : TrayItem(parent)
    , m_connection(connection)
    , m_serviceName(u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid()))
{
    registerItemTypes();
    m_toolTip.title = u"Vost"_s;
    m_menu = new DBusMenuExporter(m_connection, this);
    connect(m_menu, &DBusMenuExporter::aboutToShow, this, &TrayItem::menuAboutToShow);
    connect(m_menu, &DBusMenuExporter::triggered, this, &TrayItem::menuEntryTriggered);
    auto *exported = new QObject(this);
    new StatusNotifierItemAdaptor(exported, *this);
    m_connection.registerObject(QString::fromLatin1(itemPath), exported, QDBusConnection::ExportAdaptors);
    m_connection.registerService(m_serviceName);

    m_watcher = new QDBusServiceWatcher(QString::fromLatin1(watcherService), m_connection,
                                        QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) {
                if (newOwner.isEmpty())
                    setShown(false);
                else
                    registerWithWatcher();
            });
    if (m_connection.interface() && m_connection.interface()->isServiceRegistered(QString::fromLatin1(watcherService)))
        registerWithWatcher();
}

StatusNotifierItem::~StatusNotifierItem()
{
    m_connection.unregisterObject(QString::fromLatin1(itemPath));
    m_connection.unregisterService(m_serviceName);
}

void StatusNotifierItem::registerWithWatcher()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(QString::fromLatin1(watcherService), u"/StatusNotifierWatcher"_s,
                                       QString::fromLatin1(watcherService), u"RegisterStatusNotifierItem"_s);
    call << m_serviceName;
    auto *pending = new QDBusPendingCallWatcher(m_connection.asyncCall(call), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        // A watcher that refuses the item shows nothing.
        if (finished->isError())
            setShown(false);
    });
    // Counted as shown from the start, so that nobody meanwhile looks for another
    // kind of tray on a desktop that has this one.
    setShown(true);
}

void StatusNotifierItem::setShown(bool shown)
{
    if (shown == m_shown)
        return;
    m_shown = shown;
    Q_EMIT shownChanged(shown);
}

QList<int> StatusNotifierItem::iconHeights() const
{
    return {22, 24, 32, 44, 48, 64};
}

StatusNotifierPixmap StatusNotifierItem::pixmap(const QImage &image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    StatusNotifierPixmap pixmap{argb.width(), argb.height(), {}};
    pixmap.bytes.resize(qsizetype(argb.width()) * argb.height() * 4);
    uchar *out = reinterpret_cast<uchar *>(pixmap.bytes.data());
    for (int y = 0; y < argb.height(); ++y) {
        const auto *line = reinterpret_cast<const quint32 *>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x, out += 4)
            qToBigEndian(line[x], out);
    }
    return pixmap;
}

void StatusNotifierItem::setIcon(const QList<QImage> &images)
{
    m_pixmaps.clear();
    for (const QImage &image : images)
        if (!image.isNull())
            m_pixmaps.append(pixmap(image));
    Q_EMIT iconChanged();
}

void StatusNotifierItem::setToolTip(const QString &title, const QString &text)
{
    if (title == m_toolTip.title && text == m_toolTip.text)
        return;
    m_toolTip.title = title;
    m_toolTip.text = text;
    Q_EMIT toolTipChanged();
}

QString StatusNotifierItem::statusText() const
{
    return m_status == Status::NeedsAttention ? u"NeedsAttention"_s : u"Active"_s;
}

void StatusNotifierItem::setStatus(Status status)
{
    if (status == m_status)
        return;
    m_status = status;
    Q_EMIT statusChanged(statusText());
}

void StatusNotifierItem::setMenu(const QStringList &labels)
{
    m_menu->setLabels(labels);
}

std::unique_ptr<TrayItem> makeSystemTrayItem()
{
    if (!QDBusConnection::sessionBus().isConnected())
        return nullptr;
    return std::make_unique<StatusNotifierItem>();
}

#include "StatusNotifierItem.moc"
