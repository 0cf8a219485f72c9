#include "X11EmbeddedTrayWatch.h"

#include <QGuiApplication>
#include <QMetaObject>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace {

struct FreeReply {
    void operator()(void *reply) const { std::free(reply); }
};
template<typename Reply> using ReplyPointer = std::unique_ptr<Reply, FreeReply>;

} // namespace

std::unique_ptr<EmbeddedTrayWatch> makeSystemEmbeddedTrayWatch()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->connection())
        return nullptr;
    // Qt's tray icon docks on the first screen's tray.
    return std::make_unique<X11EmbeddedTrayWatch>(x11->connection(), 0);
}

X11EmbeddedTrayWatch::X11EmbeddedTrayWatch(xcb_connection_t *connection, int screenNumber, QObject *parent)
    : EmbeddedTrayWatch(parent)
    , m_connection(connection)
{
    const QByteArray name = "_NET_SYSTEM_TRAY_S" + QByteArray::number(screenNumber);
    const ReplyPointer<xcb_intern_atom_reply_t> atom{xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, false, uint16_t(name.size()), name.constData()), nullptr)};
    if (atom)
        m_selection = atom->atom;
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11EmbeddedTrayWatch::~X11EmbeddedTrayWatch()
{
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

uint32_t X11EmbeddedTrayWatch::trayWindow() const
{
    if (!m_selection)
        return 0;
    const ReplyPointer<xcb_get_selection_owner_reply_t> owner{
        xcb_get_selection_owner_reply(m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr)};
    return owner ? owner->owner : 0;
}

bool X11EmbeddedTrayWatch::watch()
{
    const uint32_t tray = trayWindow();
    if (tray == m_tray)
        return tray != 0;
    m_tray = 0;
    if (!tray)
        return false;
    // Added to whatever this connection already asks of that window (Qt's tray
    // icon asks for the same).
    const ReplyPointer<xcb_get_window_attributes_reply_t> attributes{
        xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, tray), nullptr)};
    if (!attributes)
        return false;
    const uint32_t mask = attributes->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, tray, XCB_CW_EVENT_MASK, &mask);
    // The tray may have gone between the questions; asked again after the request,
    // a destruction from then on arrives as an event.
    if (trayWindow() != tray)
        return false;
    m_tray = tray;
    return true;
}

bool X11EmbeddedTrayWatch::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (!m_tray || eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & ~0x80) != XCB_DESTROY_NOTIFY)
        return false;
    if (reinterpret_cast<const xcb_destroy_notify_event_t *>(event)->window != m_tray)
        return false;
    m_tray = 0;
    // Queued: Qt forgets its tray window when it handles the same event, after
    // this filter, and the receiver asks Qt whether a tray is left.
    QMetaObject::invokeMethod(this, &EmbeddedTrayWatch::gone, Qt::QueuedConnection);
    // Qt's tray tracking needs the event too.
    return false;
}
