"""A Wayland desktop for the UI cases: headless sway with waybar's tray, run by an
unprivileged user (sway refuses root), driven through sway's own seat commands
(pointer) and wtype (keyboard), seen through the accessibility tree and grim."""

import atexit
import json
import os
import pwd
import shutil
import socket
import struct
import subprocess
import sys
import time

from vostui import FAILURES_DIR, VOST, Desktop, Vost, VostTestCase, signed_in_template, wait_until

USER = "vost-wayland"
# waybar's own style, with a dark bar and tray of one known colour.
BAR_COLOUR = (0x20, 0x20, 0x20)
BAR_HEIGHT = 30
_WAYBAR_STYLE = """* { border: none; border-radius: 0; min-height: 0; font-size: 13px; }
window#waybar { background: #202020; color: #ffffff; }
#tray { background: #202020; padding: 0 8px; }
"""


def run_as_unprivileged_user():
    """Root goes on as USER (made if missing), after what only root can do: the
    signed-in account's template, a place for failure screenshots."""
    global _template
    if os.getuid() != 0:
        return
    try:
        pwd.getpwnam(USER)
    except KeyError:
        subprocess.run(["useradd", "--system", "--no-create-home", "--shell", "/usr/sbin/nologin", USER], check=True)
    _template = signed_in_template()
    os.makedirs(FAILURES_DIR, exist_ok=True)
    os.chmod(FAILURES_DIR, 0o1777)
    user = pwd.getpwnam(USER)
    sys.stdout.flush()
    sys.stderr.flush()
    os.setgroups([])
    os.setgid(user.pw_gid)
    os.setuid(user.pw_uid)
    os.environ["HOME"] = "/tmp"
    os.environ["USER"] = os.environ["LOGNAME"] = USER


class VirtualPointer:
    """A pointer device made through wlroots' virtual pointer protocol, spoken on
    the Wayland socket directly (a few requests; nothing to install). While it is
    connected the seat has a pointer, so that clients listen for one."""

    BUTTON_LEFT = 0x110

    def __init__(self, path, screen_size):
        self.width, self.height = screen_size
        self.socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self.socket.connect(path)
        self.buffer = b""
        self.send(1, 1, struct.pack("<I", 2))  # wl_display.get_registry -> 2
        self.send(1, 0, struct.pack("<I", 3))  # wl_display.sync -> 3
        manager = None
        while True:
            sender, opcode, body = self.receive()
            if sender == 2 and opcode == 0:  # wl_registry.global
                name, length = struct.unpack_from("<II", body)
                interface = body[8:8 + length - 1].decode()
                if interface == "zwlr_virtual_pointer_manager_v1":
                    manager = (name, interface)
            elif sender == 3:  # the sync's callback: every global has been announced
                break
        if manager is None:
            raise RuntimeError("the compositor offers no virtual pointer")
        name, interface = manager
        self.send(2, 0, struct.pack("<I", name) + self.string(interface) + struct.pack("<II", 1, 4))
        self.send(4, 0, struct.pack("<II", 0, 5))  # create_virtual_pointer(default seat) -> 5

    @staticmethod
    def string(text):
        data = text.encode() + b"\0"
        return struct.pack("<I", len(data)) + data + b"\0" * (-len(data) % 4)

    def send(self, target, opcode, body):
        self.socket.sendall(struct.pack("<II", target, (8 + len(body)) << 16 | opcode) + body)

    def receive(self):
        while len(self.buffer) < 8 or len(self.buffer) < struct.unpack_from("<I", self.buffer, 4)[0] >> 16:
            data = self.socket.recv(4096)
            if not data:
                raise RuntimeError("the compositor closed the connection")
            self.buffer += data
        sender, word = struct.unpack_from("<II", self.buffer)
        size = word >> 16
        body, self.buffer = self.buffer[8:size], self.buffer[size:]
        return sender, word & 0xFFFF, body

    @staticmethod
    def now():
        return int(time.monotonic() * 1000) & 0xFFFFFFFF

    def move(self, x, y):
        self.send(5, 1, struct.pack("<IIIII", self.now(), x, y, self.width, self.height))  # motion_absolute
        self.send(5, 4, b"")  # frame

    def button(self, pressed, button=BUTTON_LEFT):
        self.send(5, 2, struct.pack("<III", self.now(), button, 1 if pressed else 0))  # button
        self.send(5, 4, b"")

    def close(self):
        self.socket.close()


class WaybarTray:
    """waybar's tray as the desktop's host, along the top edge: dark, of one known colour."""

    def start_tray(self, kind="waybar"):
        self.stop_tray()
        self.tray_kind = kind
        folder = os.path.join(self.work, "waybar")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "config"), "w") as file:
            json.dump({"layer": "top", "position": "top", "height": BAR_HEIGHT, "modules-right": ["tray"],
                       "tray": {"icon-size": 22, "spacing": 6}}, file)
        with open(os.path.join(folder, "style.css"), "w") as file:
            file.write(_WAYBAR_STYLE)
        self.tray_process = self._spawn(["waybar", "--config", os.path.join(folder, "config"),
                                         "--style", os.path.join(folder, "style.css")])
        wait_until(lambda: "org.kde.StatusNotifierWatcher" in self.bus_names(), what="waybar's tray")

    def tray_item_box(self):
        """Where waybar draws something other than the bar: the item's picture, as
        (x, y, w, h) on the screen, or None."""
        width = int(self.size.split("x")[0])
        left = width - 200
        rows = self.pixels((left, 0, 200, BAR_HEIGHT))
        points = [(x, y) for y, row in enumerate(rows) for x, pixel in enumerate(row)
                  if max(abs(a - b) for a, b in zip(pixel, BAR_COLOUR)) > 40]
        if not points:
            return None
        xs, ys = [x for x, _ in points], [y for _, y in points]
        return left + min(xs), min(ys), max(xs) - min(xs) + 1, max(ys) - min(ys) + 1


class SwayDesktop(WaybarTray, Desktop):
    """sway on a headless output instead of an X server; the tray host is waybar."""

    def _start_screen(self):
        width, height = self.size.split("x")
        config = os.path.join(self.work, "sway.conf")
        with open(config, "w") as file:
            file.write(f"output HEADLESS-1 resolution {width}x{height} bg #3f3f3f solid_color\n"
                       "default_border none\nfocus_follows_mouse no\n")
        self.env.update({"WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman",
                         "XDG_CURRENT_DESKTOP": "sway", "XDG_SESSION_TYPE": "wayland", "DISPLAY": ""})
        self._spawn(["sway", "--config", config])
        runtime = self.env["XDG_RUNTIME_DIR"]
        display = wait_until(lambda: next((name for name in os.listdir(runtime) if name.startswith("wayland-")
                                           and not name.endswith(".lock")), None), what="sway's socket")
        self.env["WAYLAND_DISPLAY"] = display
        self.env["SWAYSOCK"] = wait_until(
            lambda: next((os.path.join(runtime, name) for name in os.listdir(runtime) if name.startswith("sway-ipc")),
                         None), what="sway's command socket")
        wait_until(lambda: self.sway("-t", "get_outputs").startswith("["), what="sway answering")
        width, height = map(int, self.size.split("x"))
        self.pointer = VirtualPointer(os.path.join(runtime, display), (width, height))

    def sway(self, *args):
        return subprocess.run(["swaymsg", *args], env=self.env, capture_output=True, text=True, check=False).stdout

    def click(self, point):
        self.pointer.move(*point)
        time.sleep(0.1)
        self.pointer.button(True)
        time.sleep(0.05)
        self.pointer.button(False)

    def key(self, name):
        subprocess.run(["wtype", "-k", name], env=self.env, check=False, capture_output=True)

    def windows(self):
        """sway's windows of every workspace, floating ones included."""
        found = []

        def walk(node):
            if node.get("pid"):
                found.append(node)
            for child in node.get("nodes", []) + node.get("floating_nodes", []):
                walk(child)
        walk(json.loads(self.sway("-t", "get_tree") or "{}"))
        return found

    def screenshot(self, path, crop=None):
        args = ["grim"]
        if crop:
            x, y, w, h = crop
            args += ["-g", f"{x},{y} {w}x{h}"]
        subprocess.run(args + [path], env=self.env, check=False, capture_output=True)
        return path


_desktops = {}
_template = None


class WaylandTestCase(VostTestCase):
    """A case on the one Wayland desktop of its kind in this process."""
    desktop_class = SwayDesktop

    def setUp(self):
        if not os.access(VOST, os.X_OK):
            self.skipTest(f"{USER} cannot reach {VOST}: the build tree lies in a folder only its owner may open")
        if self.desktop_class not in _desktops:
            desktop = _desktops[self.desktop_class] = self.desktop_class(tray=None)
            atexit.register(desktop.close)
        self.desktop = _desktops[self.desktop_class]
        self.desktop.new_home()
        if self.tray and self.desktop.tray_kind != "waybar":
            self.desktop.start_tray("waybar")
        elif not self.tray:
            self.desktop.stop_tray()
        self.vost = None

    def launch(self, signed_in=None, **kwargs):
        signed_in = self.signed_in if signed_in is None else signed_in
        kwargs.setdefault("extra_env", {})["QT_QPA_PLATFORM"] = "wayland"
        template = account_template() if signed_in else None
        self.vost = Vost(self.desktop, home_template=template, **kwargs)
        self.addCleanup(self._finish, self.vost)
        return self.vost.start()

    def second_launch(self, vost):
        """The program started again, as a launcher would: it hands over and ends."""
        process = subprocess.run([vost.binary, *vost.args], env=vost.env, capture_output=True, timeout=30)
        return process.returncode


def account_template():
    """The signed-in account's template, made before the user changed where root runs this."""
    return _template or signed_in_template()


def have_tools():
    return all(shutil.which(tool) for tool in ("sway", "waybar", "grim", "wtype", "swaymsg"))

