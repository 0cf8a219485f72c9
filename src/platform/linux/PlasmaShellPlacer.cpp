#include "platform/WindowPlacer.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

#include <wayland-client.h>

#include "plasma-shell-client-protocol.h"

namespace {

// Asks KWin, through Plasma's shell surface, to put the window where the tray
// host's click says. KWin then leaves the window where it was asked instead of
// placing it (centred) itself. Ordinary programs may use the protocol; Plasma's
// panels and Yakuake do.
class PlasmaShellPlacer final : public WindowPlacer
{
public:
    PlasmaShellPlacer(wl_display *display, wl_event_queue *queue, org_kde_plasma_shell *shell)
        : m_display(display)
        , m_queue(queue)
        , m_shell(shell)
    {}

    ~PlasmaShellPlacer() override
    {
        if (m_surface)
            org_kde_plasma_surface_destroy(m_surface);
        org_kde_plasma_shell_destroy(m_shell);
        wl_event_queue_destroy(m_queue);
    }

    void place(QWindow *window, QPoint topLeft) override
    {
        QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
        auto *surface =
            static_cast<wl_surface *>(native ? native->nativeResourceForWindow("surface", window) : nullptr);
        if (!surface)
            return;
        // The previous showing's surface is gone; its shell surface goes with it.
        if (m_surface)
            org_kde_plasma_surface_destroy(m_surface);
        m_surface = org_kde_plasma_shell_get_surface(m_shell, surface);
        org_kde_plasma_surface_set_position(m_surface, topLeft.x(), topLeft.y());
        // Before the window's first frame, so that KWin maps it there at once.
        wl_display_flush(m_display);
    }

private:
    wl_display *m_display;
    wl_event_queue *m_queue;
    org_kde_plasma_shell *m_shell;
    org_kde_plasma_surface *m_surface = nullptr;
};

struct Announced {
    uint32_t name = 0;
};

void announceGlobal(void *data, wl_registry *, uint32_t name, const char *interface, uint32_t)
{
    if (qstrcmp(interface, org_kde_plasma_shell_interface.name) == 0)
        static_cast<Announced *>(data)->name = name;
}

void removeGlobal(void *, wl_registry *, uint32_t) {}

constexpr wl_registry_listener registryListener = {announceGlobal, removeGlobal};

} // namespace

std::unique_ptr<WindowPlacer> makeSystemWindowPlacer()
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return nullptr;
    QPlatformNativeInterface *native = QGuiApplication::platformNativeInterface();
    auto *display = static_cast<wl_display *>(native ? native->nativeResourceForIntegration("wl_display") : nullptr);
    if (!display)
        return nullptr;
    // A queue of our own, so that asking for the globals dispatches none of Qt's events.
    wl_event_queue *queue = wl_display_create_queue(display);
    auto *wrapper = static_cast<wl_display *>(wl_proxy_create_wrapper(display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(wrapper), queue);
    wl_registry *registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    Announced announced;
    wl_registry_add_listener(registry, &registryListener, &announced);
    org_kde_plasma_shell *shell = nullptr;
    if (wl_display_roundtrip_queue(display, queue) >= 0 && announced.name != 0)
        shell = static_cast<org_kde_plasma_shell *>(
            wl_registry_bind(registry, announced.name, &org_kde_plasma_shell_interface, 1));
    wl_registry_destroy(registry);
    if (!shell) {
        wl_event_queue_destroy(queue);
        return nullptr;
    }
    return std::make_unique<PlasmaShellPlacer>(display, queue, shell);
}
