"""The GlobalShortcuts portal on a UI case's desktop: the real xdg-desktop-portal,
with a backend of the case's own standing where a desktop's (KDE's) would. The
backend binds or refuses what is asked, as the case decides, and sends Activated
as a desktop does when the keys are pressed."""

import os
import tempfile
import threading

from gi.repository import Gio, GLib

from vostui import wait_until

PORTAL = "/usr/libexec/xdg-desktop-portal"
DESKTOP = "vosttest"
SERVICE = "org.freedesktop.impl.portal.desktop." + DESKTOP
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.impl.portal.GlobalShortcuts"

_INTROSPECTION = f"""
<node>
  <interface name="{INTERFACE}">
    <method name="CreateSession">
      <arg type="o" direction="in"/><arg type="o" direction="in"/><arg type="s" direction="in"/>
      <arg type="a{{sv}}" direction="in"/><arg type="u" direction="out"/><arg type="a{{sv}}" direction="out"/>
    </method>
    <method name="BindShortcuts">
      <arg type="o" direction="in"/><arg type="o" direction="in"/><arg type="a(sa{{sv}})" direction="in"/>
      <arg type="s" direction="in"/><arg type="a{{sv}}" direction="in"/>
      <arg type="u" direction="out"/><arg type="a{{sv}}" direction="out"/>
    </method>
    <method name="ListShortcuts">
      <arg type="o" direction="in"/><arg type="o" direction="in"/>
      <arg type="u" direction="out"/><arg type="a{{sv}}" direction="out"/>
    </method>
    <signal name="Activated">
      <arg type="o"/><arg type="s"/><arg type="t"/><arg type="a{{sv}}"/>
    </signal>
    <property name="version" type="u" access="read"/>
  </interface>
</node>"""


class ShortcutsPortal:
    """Starts the backend on the desktop's bus, then xdg-desktop-portal for a desktop
    named vosttest. bound holds (id, preferred trigger) of the last binding."""

    def __init__(self, desktop, refuse=False):
        self.desktop = desktop
        self.refuse = refuse
        self.sessions = []
        self.bound = []
        self._lock = threading.Lock()
        self._context = GLib.MainContext.new()
        self._loop = GLib.MainLoop.new(self._context, False)
        ready = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=(ready,), daemon=True)
        self._thread.start()
        ready.wait(10)
        folder = tempfile.mkdtemp(dir=desktop.work)
        with open(os.path.join(folder, DESKTOP + ".portal"), "w") as description:
            description.write(f"[portal]\nDBusName={SERVICE}\nInterfaces={INTERFACE};\nUseIn={DESKTOP}\n")
        env = dict(desktop.env, XDG_DESKTOP_PORTAL_DIR=folder, XDG_CURRENT_DESKTOP=DESKTOP)
        self._portal = desktop._spawn([PORTAL, "--replace"], env=env)
        wait_until(lambda: "org.freedesktop.portal.Desktop" in desktop.bus_names(), timeout=20, what="the desktop portal")

    def _serve(self, ready):
        self._context.push_thread_default()
        self._bus = Gio.DBusConnection.new_for_address_sync(
            self.desktop.env["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        info = Gio.DBusNodeInfo.new_for_xml(_INTROSPECTION).interfaces[0]
        self._registration = self._bus.register_object(PATH, info, self._call, self._property, None)
        self._bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                            GLib.Variant("(su)", (SERVICE, 0)), GLib.VariantType("(u)"), Gio.DBusCallFlags.NONE,
                            -1, None)
        ready.set()
        self._loop.run()

    def _call(self, connection, sender, path, interface, method, parameters, invocation):
        arguments = parameters.unpack()
        shortcuts = GLib.Variant("a(sa{sv})", [])
        with self._lock:
            if method == "CreateSession":
                self.sessions.append(arguments[1])
                # As KDE's backend answers: the session's shortcuts so far.
                results, response = {"shortcuts": shortcuts}, 0
            elif method == "BindShortcuts":
                asked = arguments[2]
                self.bound = [] if self.refuse else [(id, options.get("preferred_trigger")) for id, options in asked]
                results = {} if self.refuse else {"shortcuts": GLib.Variant("a(sa{sv})", [
                    (id, {"description": GLib.Variant("s", options.get("description", ""))})
                    for id, options in asked])}
                response = 1 if self.refuse else 0
            else:
                results, response = {"shortcuts": shortcuts}, 0
        invocation.return_value(GLib.Variant("(ua{sv})", (response, results)))

    def _property(self, connection, sender, path, interface, name):
        return GLib.Variant("u", 1)

    def activate(self, shortcut_id):
        """The desktop saw the keys of shortcut_id pressed in the latest session."""
        with self._lock:
            session = self.sessions[-1]
        self._bus.emit_signal(None, PATH, INTERFACE, "Activated",
                              GLib.Variant("(osta{sv})", (session, shortcut_id, 0, {})))
        self._bus.flush_sync(None)

    def stop(self):
        self.desktop.stop([self._portal])
        self._context.invoke_full(GLib.PRIORITY_DEFAULT, self._loop.quit)
        self._thread.join(5)
        # The backend's name goes with its connection, for the next case's backend.
        self._bus.close_sync(None)
