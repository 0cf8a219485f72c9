#include "X11GlobalShortcut.h"

#include "PortalGlobalShortcut.h"
#include "X11Keys.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

Q_LOGGING_CATEGORY(lcGlobalShortcut, "vost.shortcut", QtWarningMsg)

namespace {

// Where no key grab or portal exists, the desktop keeps its shortcuts to itself.
class UnavailableGlobalShortcut : public GlobalShortcut
{
public:
    using GlobalShortcut::GlobalShortcut;

    bool isAvailable() const override { return false; }
    bool setShortcut(const QKeySequence &) override { return false; }
};

template<typename Reply> struct FreeReply {
    void operator()(Reply *reply) const { std::free(reply); }
};
template<typename Reply> using ReplyPointer = std::unique_ptr<Reply, FreeReply<Reply>>;

} // namespace

std::unique_ptr<GlobalShortcut> makeSystemGlobalShortcut()
{
    if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        if (auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
            xcb_connection_t *connection = x11->connection();
            const xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
            if (connection && screens.rem > 0)
                return std::make_unique<X11GlobalShortcut>(connection, screens.data->root);
        }
    }
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return makeWaylandGlobalShortcut();
    return std::make_unique<UnavailableGlobalShortcut>();
}

X11GlobalShortcut::X11GlobalShortcut(xcb_connection_t *connection, uint32_t rootWindow, QObject *parent)
    : GlobalShortcut(parent)
    , m_connection(connection)
    , m_root(rootWindow)
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11GlobalShortcut::~X11GlobalShortcut()
{
    ungrab();
    QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool X11GlobalShortcut::setShortcut(const QKeySequence &sequence)
{
    ungrab();
    if (sequence.isEmpty())
        return true;
    const QKeyCombination combination = sequence[0];
    const std::optional<uint32_t> keysym = X11Keys::keysym(combination.key());
    m_mask = X11Keys::modifierMask(combination.keyboardModifiers());
    m_keycodes = keysym ? keycodesFor(*keysym) : QList<uint8_t>();
    if (m_keycodes.isEmpty()) {
        qCDebug(lcGlobalShortcut) << "no key of this keyboard gives" << sequence;
        return false;
    }
    // Each grab is checked: the server answers BadAccess when another client holds it.
    const QList<uint16_t> masks = X11Keys::grabMasks(m_mask, numLockMask());
    bool refused = false;
    for (const uint8_t keycode : std::as_const(m_keycodes)) {
        for (const uint16_t mask : masks) {
            const xcb_void_cookie_t cookie =
                xcb_grab_key_checked(m_connection, 1, m_root, mask, keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
            if (ReplyPointer<xcb_generic_error_t> error{xcb_request_check(m_connection, cookie)}) {
                refused = true;
                break;
            }
            m_grabs.append({keycode, mask});
        }
        if (refused)
            break;
    }
    if (refused) {
        qCDebug(lcGlobalShortcut) << sequence << "is held by another program";
        ungrab();
        return false;
    }
    xcb_flush(m_connection);
    return true;
}

bool X11GlobalShortcut::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (m_grabs.isEmpty() || eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & ~0x80) != XCB_KEY_PRESS)
        return false;
    const auto *press = reinterpret_cast<const xcb_key_press_event_t *>(event);
    if (press->event != m_root || !m_keycodes.contains(press->detail) ||
        (press->state & X11Keys::shortcutMask) != m_mask)
        return false;
    Q_EMIT activated();
    return true;
}

QList<uint8_t> X11GlobalShortcut::keycodesFor(uint32_t keysym) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection);
    const int count = setup->max_keycode - setup->min_keycode + 1;
    const ReplyPointer<xcb_get_keyboard_mapping_reply_t> mapping{xcb_get_keyboard_mapping_reply(
        m_connection, xcb_get_keyboard_mapping(m_connection, setup->min_keycode, uint8_t(count)), nullptr)};
    if (!mapping)
        return {};
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int perKeycode = mapping->keysyms_per_keycode;
    // Only the first group's plain and shifted symbols: those are what the key gives
    // with and without Shift, and the modifiers say which of the two is meant.
    QList<uint8_t> keycodes;
    for (int index = 0; index < count; ++index) {
        for (int column = 0; column < std::min(perKeycode, 2); ++column) {
            if (keysyms[index * perKeycode + column] == keysym) {
                keycodes.append(uint8_t(setup->min_keycode + index));
                break;
            }
        }
    }
    return keycodes;
}

// The modifier bit that Num Lock sets on this keyboard (usually Mod2).
uint16_t X11GlobalShortcut::numLockMask() const
{
    const QList<uint8_t> numLockKeys = keycodesFor(X11Keys::numLockKeysym);
    const ReplyPointer<xcb_get_modifier_mapping_reply_t> modifiers{
        xcb_get_modifier_mapping_reply(m_connection, xcb_get_modifier_mapping(m_connection), nullptr)};
    if (!modifiers || numLockKeys.isEmpty())
        return 0;
    const xcb_keycode_t *keycodes = xcb_get_modifier_mapping_keycodes(modifiers.get());
    const int perModifier = modifiers->keycodes_per_modifier;
    for (int modifier = 0; modifier < 8; ++modifier)
        for (int index = 0; index < perModifier; ++index)
            if (numLockKeys.contains(keycodes[modifier * perModifier + index]))
                return uint16_t(1 << modifier);
    return 0;
}

void X11GlobalShortcut::ungrab()
{
    for (const Grab &grab : std::as_const(m_grabs))
        xcb_ungrab_key(m_connection, grab.keycode, m_root, grab.mask);
    if (!m_grabs.isEmpty())
        xcb_flush(m_connection);
    m_grabs.clear();
    m_keycodes.clear();
    m_mask = 0;
}
