"""KDE Plasma's Wayland session for the UI cases: KDE's KWin on a virtual output,
run by an unprivileged user, with waybar's tray as the host (KWin has the layer
shell waybar needs; Plasma's own panel would bring the whole Plasma shell). Where
a window stands is asked of KWin through its scripting interface."""

import os
import re
import shutil
import subprocess

from gi.repository import Gio, GLib

from vostui import Desktop, wait_until
from wayland import WaybarTray

KWIN = "/usr/bin/kwin_wayland"


class KWinDesktop(WaybarTray, Desktop):
    """KWin's Wayland session on a virtual output."""

    def _start_screen(self):
        # KWin names itself on the session bus, so it starts after the bus; the bus's
        # services (the accessibility registry) learn its socket now.
        self.env.update({"XDG_SESSION_TYPE": "wayland", "XDG_CURRENT_DESKTOP": "KDE", "DISPLAY": "",
                         "WAYLAND_DISPLAY": "wayland-kwin"})
        self.scripts = 0

    def _start_bus(self):
        super()._start_bus()
        # The installed binary carries a file capability beyond what this container
        # grants, so it cannot be run; a copy carries none. KWin takes its platform
        # plugin only when the program is named kwin_wayland.
        kwin = os.path.join(self.work, "kwin", "kwin_wayland")
        os.makedirs(os.path.dirname(kwin))
        shutil.copy(KWIN, kwin)
        width, height = self.size.split("x")
        # Scripts' print() goes to KWin's log.
        self._spawn([kwin, "--virtual", "--no-lockscreen", "--socket", self.env["WAYLAND_DISPLAY"], "--width", width,
                     "--height", height], env={**self.env, "QT_LOGGING_RULES": "kwin_scripting=true",
                                                  # Screenshots for any caller, as in KWin's own tests.
                                                  "KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1"})
        wait_until(lambda: "org.kde.KWin" in self.bus_names(), timeout=30, what="KWin on the bus")

    def window_frame(self, app_id):
        """Where KWin has the window of that application id: (x, y, width, height),
        or None where it has no such window."""
        self.scripts += 1
        marker = f"vost-frame-{self.scripts}"
        path = os.path.join(self.work, marker + ".js")
        with open(path, "w") as file:
            file.write(f"let found = '{marker} none';\n"
                       "for (const window of workspace.clientList()) {\n"
                       f"    if (window.resourceClass.toLowerCase() == '{app_id.lower()}') {{\n"
                       "        const frame = window.frameGeometry;\n"
                       f"        found = ['{marker}', frame.x, frame.y, frame.width, frame.height].join(' ');\n"
                       "    }\n"
                       "}\n"
                       "print(found);\n")
        self.kwin_call("/Scripting", "org.kde.kwin.Scripting.loadScript", f"string:{path}", f"string:{marker}")
        self.kwin_call("/Scripting", "org.kde.kwin.Scripting.start")
        answer = wait_until(lambda: re.search(f"js: {marker} (none|-?\\d+ -?\\d+ \\d+ \\d+)", self.kwin_log()),
                            timeout=5, what="KWin's script")
        self.kwin_call("/Scripting", "org.kde.kwin.Scripting.unloadScript", f"string:{marker}")
        return None if answer.group(1) == "none" else tuple(map(int, answer.group(1).split()))

    def screenshot(self, path, crop=None):
        """What the screen shows in crop (x, y, w, h), or all of it, through KWin's
        screenshot interface, saved as a PNG."""
        x, y, width, height = crop or (0, 0, *map(int, self.size.split("x")))
        read_end, write_end = os.pipe()
        fds = Gio.UnixFDList.new()
        fds.append(write_end)
        os.close(write_end)
        bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        answer, _ = bus.call_with_unix_fd_list_sync(
            "org.kde.KWin", "/org/kde/KWin/ScreenShot2", "org.kde.KWin.ScreenShot2", "CaptureArea",
            GLib.Variant("(iiuua{sv}h)", (x, y, width, height, {}, 0)), GLib.VariantType("(a{sv})"),
            Gio.DBusCallFlags.NONE, 10000, fds, None)
        del fds  # its copy of the pipe's end closes, so that the reading ends
        image = answer.unpack()[0]
        with os.fdopen(read_end, "rb") as pipe:
            data = pipe.read()
        # Rows of image["stride"] bytes, each pixel blue, green, red, alpha (QImage's ARGB32).
        width, height, stride = image["width"], image["height"], image["stride"]
        rows = b"".join(data[row * stride:row * stride + width * 4] for row in range(height))
        subprocess.run(["convert", "-size", f"{width}x{height}", "-depth", "8", "bgra:-", path], input=rows,
                       check=True)
        return path

    def kwin_call(self, path, method, *args):
        return subprocess.run(["dbus-send", "--session", "--print-reply", "--dest=org.kde.KWin", path, method, *args],
                              env=self.env, capture_output=True, text=True).stdout

    def kwin_log(self):
        with open(os.path.join(self.work, "kwin_wayland.log"), errors="replace") as log:
            return log.read()


def have_tools():
    return all(os.access(tool, os.X_OK) for tool in (KWIN, "/usr/bin/waybar"))
