"""Drives the real Vost the way a person or a screen reader does.

Each case gets a desktop of its own: an Xvfb screen, a private session bus with
no service folders (nothing on the machine gets activated), the accessibility
bus that screen readers use (at-spi-bus-launcher), a PulseAudio server whose only
output is a null sink that cases can record from and, unless a case asks for none,
trayer as the tray host. Vost runs on the offline demo account in its
deterministic mode. Controls are found in the accessibility tree by role and
accessible name and operated through their accessible actions, or with the
pointer and keyboard (xdotool) at their place on the screen.

A signed-in demo account is made once per build tree and copied into each
case's home folder, so a case starts signed in within a second or two.
"""

import array
import atexit
import contextlib
import fcntl
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
import warnings

BUILD_DIR = os.environ.get("VOST_BUILD_DIR", os.path.abspath(os.path.join(os.path.dirname(__file__), "../../build")))
VOST = os.environ.get("VOST_BINARY", os.path.join(BUILD_DIR, "bin", "vost"))
FAILURES_DIR = os.path.join(BUILD_DIR, "ui-failures")
TEMPLATE_DIR = os.path.join(BUILD_DIR, "ui-template")
# What QML prints for a fault in a binding or a script: every case fails on it.
SCRIPT_ERROR = re.compile(r"\b(TypeError|ReferenceError)\b|Binding loop detected")
# What the sanitizers and glibc's heap checks print for a fault in memory: every
# case fails on it too.
MEMORY_ERROR = re.compile(r"ERROR: AddressSanitizer|: runtime error: |^(malloc|free|realloc|double free)\b.*\(\)|"
                          r"corrupted (size|double-linked)")
BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
XFCONFD = "/usr/lib/x86_64-linux-gnu/xfce4/xfconf/xfconfd"
PORTAL = "/usr/libexec/xdg-desktop-portal"
PORTAL_GTK = "/usr/libexec/xdg-desktop-portal-gtk"

DEMO_PHONE = "+1 555 0100"
DEMO_CODE = "22222"
PHONE_FIELD = "Telephone number, including country code"
CODE_FIELD = "Telegram verification code"
# The demo chat most cases read, and its newest message.
EMMA_NEWEST = "You: Of course! See you at 7 🍕"

_BUS_CONFIG = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir={dir}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


def wait_until(predicate, timeout=10.0, interval=0.1, what="the condition"):
    """Returns the first true value of predicate(), or raises after timeout."""
    deadline = time.monotonic() + timeout
    last_error = None
    while True:
        try:
            value = predicate()
            if value:
                return value
        except Exception as error:  # the tree changes while it is read
            last_error = error
        if time.monotonic() > deadline:
            detail = f" (last error: {last_error})" if last_error else ""
            raise TimeoutError(f"timed out after {timeout} s waiting for {what}{detail}")
        time.sleep(interval)


def inside(inner, outer, slack=2):
    """Whether the rectangle inner (x, y, w, h) lies within outer, give or take slack."""
    x, y, w, h = inner
    ox, oy, ow, oh = outer
    return x >= ox - slack and y >= oy - slack and x + w <= ox + ow + slack and y + h <= oy + oh + slack


def within_view(item, view):
    """Whether the item is shown whole, top to bottom, in the scrolled view."""
    x, y, w, h = item.extents()
    vx, vy, vw, vh = view.extents()
    return y >= vy - 2 and y + h <= vy + vh + 2


class Desktop:
    """A virtual screen with a session bus, the accessibility bus and a tray host."""

    def __init__(self, tray="trayer", size="1280x800"):
        self.work = tempfile.mkdtemp(prefix="vost-ui.")
        self.size = size
        self.processes = []
        self.tray_process = None
        self.tray_helpers = []
        self.tray_kind = None
        self.homes = 0
        self.env = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "XDG_RUNTIME_DIR": os.path.join(self.work, "runtime"),
            "LANG": "C.UTF-8",
            # GStreamer's list of plugins, made once as on a user's computer rather
            # than in each fresh home (under load that scan outlasts an AT-SPI call).
            "GST_REGISTRY": os.path.join(self.work, "gstreamer-registry.bin"),
        }
        os.makedirs(self.env["XDG_RUNTIME_DIR"], mode=0o700)
        self.new_home()
        self._start_screen()
        self._start_bus()
        self._start_sound_server()
        if tray:
            self.start_tray(tray)

    def new_home(self):
        """A fresh, empty home folder for the next program started here."""
        self.homes += 1
        self.env["HOME"] = os.path.join(self.work, f"home{self.homes}")
        os.makedirs(self.env["HOME"])
        return self.env["HOME"]

    def _spawn(self, args, **kwargs):
        with open(os.path.join(self.work, os.path.basename(args[0]) + ".log"), "ab") as log:
            kwargs.setdefault("env", self.env)
            process = subprocess.Popen(args, stdout=log, stderr=subprocess.STDOUT, start_new_session=True, **kwargs)
        self.processes.append(process)
        return process

    def _read_line_from(self, args, what):
        read_end, write_end = os.pipe()
        self._spawn([a.replace("FD", str(write_end)) for a in args], pass_fds=(write_end,))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            line = pipe.readline().strip()
        if not line:
            raise RuntimeError(f"{what} did not start")
        return line

    def _start_screen(self):
        display = self._read_line_from(["Xvfb", "-displayfd", "FD", "-screen", "0", self.size + "x24",
                                        "-nolisten", "tcp"], "Xvfb")
        self.env["DISPLAY"] = ":" + display

    def _start_bus(self):
        bus_dir = os.path.join(self.work, "bus")
        os.makedirs(bus_dir)
        config = os.path.join(self.work, "session-bus.conf")
        with open(config, "w") as file:
            file.write(_BUS_CONFIG.format(dir=bus_dir))
        address = self._read_line_from(["dbus-daemon", "--nofork", "--config-file=" + config,
                                        "--print-address=FD"], "the session bus")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = address
        # This process talks to the same buses as the program under test.
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = address
        os.environ["DISPLAY"] = self.env["DISPLAY"]
        self._spawn([BUS_LAUNCHER, "--launch-immediately"])
        wait_until(lambda: subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
             "org.a11y.Bus.GetAddress"], env=self.env, capture_output=True).returncode == 0,
            what="the accessibility bus")

    def _start_sound_server(self):
        socket = os.path.join(self.env["XDG_RUNTIME_DIR"], "pulse-native")
        self._spawn(["pulseaudio", "--daemonize=no", "-n", "--exit-idle-time=-1", "--use-pid-file=no",
                     "--load=module-null-sink sink_name=speakers",
                     f"--load=module-native-protocol-unix auth-anonymous=1 socket={socket}"])
        self.env["PULSE_SERVER"] = "unix:" + socket
        wait_until(lambda: subprocess.run(["pactl", "info"], env=self.env, capture_output=True).returncode == 0,
                   what="the sound server")

    @contextlib.contextmanager
    def listening(self):
        """Records what the speakers play while the block runs; yields a list that
        afterwards holds the loudest sample's level, from 0 (silence) to 1."""
        path = os.path.join(self.work, "heard.raw")
        recorder = subprocess.Popen(["parecord", "--device=speakers.monitor", "--raw", "--format=s16le",
                                     "--channels=1", "--rate=16000", "--latency-msec=20", path],
                                    env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        # The file appears at once, but the samples only once the recording stream
        # runs (a second or two): until then nothing played would be heard.
        wait_until(lambda: os.path.exists(path) and os.path.getsize(path) > 0, what="the recorder running")
        loudest = []
        try:
            yield loudest
        finally:
            time.sleep(0.3)
            recorder.send_signal(signal.SIGINT)
            recorder.wait(5)
            with open(path, "rb") as file:
                data = file.read()
            os.remove(path)
            samples = array.array("h", data[:len(data) - len(data) % 2])
            loudest.append(max((abs(sample) for sample in samples), default=0) / 32768)

    def start_notification_server(self, menu=None):
        """dunst on this desktop's session bus, keeping every notification until a
        case acts on it (dunstctl drives it). menu: the program dunst asks to choose
        among a notification's actions ("dunstctl context"), in place of dmenu."""
        config = os.path.join(self.work, "dunstrc")
        with open(config, "w") as file:
            file.write("[global]\n    timeout = 0\n    idle_threshold = 0\n    sticky_history = yes\n")
            if menu:
                file.write(f"    dmenu = {menu}\n")
            file.write("[urgency_normal]\n    timeout = 0\n")
        process = self._spawn(["dunst", "-config", config])
        wait_until(lambda: self.dunstctl("is-paused").strip() in ("true", "false"), what="dunst on the bus")
        return process

    def start_file_portal(self):
        """The XDG desktop portal with GNOME's GTK backend on this desktop's bus, as
        a GNOME session runs them: the FileChooser portal. Returns the processes."""
        env = dict(self.env, XDG_CURRENT_DESKTOP="GNOME")
        processes = [self._spawn([path, "--replace"], env=env) for path in (PORTAL_GTK, PORTAL)]
        wait_until(lambda: "org.freedesktop.portal.Desktop" in self.bus_names(), what="the desktop portal")
        return processes

    def stop(self, processes):
        for process in processes:
            self._end(process)

    def application(self, name):
        """Another program on the accessibility bus, by its name."""
        import pyatspi
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            app = desktop.getChildAtIndex(i)
            if app is not None and app.name == name:
                return Node(app)
        return None

    def dunstctl(self, *args):
        return subprocess.run(["dunstctl", *args], env=self.env, capture_output=True, text=True,
                              check=False).stdout

    def start_tray(self, kind="trayer"):
        """trayer (an XEmbed tray), or a StatusNotifierItem host: xfce4-panel (with
        the xfconf daemon it keeps its settings in) or lxqt-panel (with only its
        status notifier plugin, along the top edge)."""
        self.stop_tray()
        self.tray_kind = kind
        if kind == "xfce4-panel":
            self.tray_helpers = [self._spawn([XFCONFD])]
            self.tray_process = self._spawn(["xfce4-panel", "--disable-wm-check"])
            wait_until(lambda: "org.kde.StatusNotifierWatcher" in self.bus_names(), what="the panel's tray")
            return
        if kind == "lxqt-panel":
            config = os.path.join(self.work, "lxqt-panel.conf")
            with open(config, "w") as out:
                out.write("[General]\n__userfile__=true\n\n[panel1]\nplugins=statusnotifier\nposition=Top\n"
                          "panelSize=26\niconSize=22\nalignment=1\nbackground-color=#dcdcdc\nopacity=100\n\n"
                          "[statusnotifier]\nalignment=Right\ntype=statusnotifier\n")
            self.tray_process = self._spawn(["lxqt-panel", "--config", config])
            wait_until(lambda: "org.kde.StatusNotifierWatcher" in self.bus_names(), what="the panel's tray")
            return
        self.tray_process = self._spawn(["trayer", "--edge", "top", "--align", "right", "--widthtype", "pixel",
                                         "--width", "120", "--height", "24", "--transparent", "false",
                                         "--tint", "0xdcdcdc"])
        time.sleep(0.8)

    def stop_tray(self):
        for process in [self.tray_process, *self.tray_helpers]:
            if process:
                self._end(process)
        self.tray_process = None
        self.tray_helpers = []
        self.tray_kind = None

    def bus_names(self):
        out = subprocess.run(["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
                              "/org/freedesktop/DBus", "org.freedesktop.DBus.ListNames"],
                             env=self.env, capture_output=True, text=True).stdout
        return re.findall(r'string "([^"]+)"', out)

    def registered_items(self):
        """The StatusNotifierItems the host's watcher holds, as "service/path"."""
        out = subprocess.run(["dbus-send", "--session", "--print-reply", "--dest=org.kde.StatusNotifierWatcher",
                              "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties.Get",
                              "string:org.kde.StatusNotifierWatcher", "string:RegisteredStatusNotifierItems"],
                             env=self.env, capture_output=True, text=True).stdout
        return re.findall(r'string "([^"]+)"', out)

    def xdotool(self, *args):
        return subprocess.run(["xdotool", *map(str, args)], env=self.env, capture_output=True, text=True,
                              check=False).stdout

    def screenshot(self, path, crop=None):
        args = ["import", "-window", "root"]
        if crop:
            x, y, w, h = crop
            args += ["-crop", f"{w}x{h}+{x}+{y}", "+repage"]
        subprocess.run(args + [path], env=self.env, check=False, capture_output=True)
        return path

    def pixels(self, crop):
        """The screen's pixels in crop (x, y, w, h), as rows of (r, g, b)."""
        path = self.screenshot(os.path.join(self.work, "crop.png"), crop)
        data = subprocess.run(["convert", path, "-depth", "8", "rgb:-"], capture_output=True, check=True).stdout
        width = crop[2]
        pixels = [tuple(data[i:i + 3]) for i in range(0, len(data) - 2, 3)]
        return [pixels[row * width:(row + 1) * width] for row in range(len(pixels) // width)]

    @staticmethod
    def _end(process):
        if process.poll() is None:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGTERM)
            try:
                process.wait(3)
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()

    def close(self):
        for process in reversed(self.processes):
            self._end(process)
        shutil.rmtree(self.work, ignore_errors=True)


class Node:
    """One accessible object, with the few questions the cases ask of it."""

    def __init__(self, accessible):
        self.acc = accessible

    def __repr__(self):
        return f"<{self.role} {self.name!r}>"

    @property
    def name(self):
        return self.acc.name or ""

    @property
    def role(self):
        return self.acc.getRoleName()

    @property
    def description(self):
        return self.acc.description or ""

    def states(self):
        import pyatspi
        return {pyatspi.stateToString(s) for s in self.acc.getState().getStates()}

    def has_state(self, state):
        return state in self.states()

    @property
    def showing(self):
        return self.has_state("showing")

    def children(self):
        result = []
        for i in range(self.acc.childCount):
            child = self.acc.getChildAtIndex(i)
            if child is not None:
                result.append(Node(child))
        return result

    def extents(self):
        import pyatspi
        e = self.acc.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return (e.x, e.y, e.width, e.height)

    def center(self):
        x, y, w, h = self.extents()
        return (x + w // 2, y + h // 2)

    def actions(self):
        try:
            action = self.acc.queryAction()
        except NotImplementedError:
            return []
        return [action.getName(i) for i in range(action.nActions)]

    def do(self, name):
        """Performs the named action. The action is delivered even when the program
        is too busy to answer the call in time (its first media player, on a loaded
        machine): the case goes on to look at what it did."""
        from gi.repository import GLib
        action = self.acc.queryAction()
        for i in range(action.nActions):
            if action.getName(i) == name:
                try:
                    return action.doAction(i)
                except GLib.GError as error:
                    if "Did not receive a reply" not in str(error):
                        raise
                    return None
        raise AssertionError(f"{self} has no action {name}; it has {self.actions()}")

    def press(self):
        return self.do("Press")

    def text(self):
        text = self.acc.queryText()
        return text.getText(0, text.characterCount)

    def value(self):
        return self.acc.queryValue().currentValue


OPERABLE_ROLES = {"push button", "toggle button", "check box", "radio button", "menu item", "text", "password text",
                  "scroll bar", "list item", "page tab", "combo box", "slider", "spin button", "list", "menu",
                  "popup menu", "dialog", "panel", "alert"}
READ_ONLY_ROLES = {"label", "paragraph", "heading", "image", "static", "progress bar"}


def dishonest_nodes(root):
    """What a screen reader would be told wrongly below root: controls without a
    name, and read-only text offered as a focus target."""
    problems = []
    for node in walk(root):
        role, states = node.role, node.states()
        if role in OPERABLE_ROLES and not node.name and not node.description:
            problems.append(f"{role} without a name")
        if role in READ_ONLY_ROLES and "focusable" in states:
            problems.append(f"{role} {node.name!r} is focusable")
    return problems


def walk(node, showing_only=True):
    """Every node below node, depth first; hidden subtrees are left out."""
    for child in node.children():
        try:
            if showing_only and not child.showing:
                continue
        except Exception:
            continue
        yield child
        yield from walk(child, showing_only)


def _matches(node, role, name, contains):
    if role and node.role != role:
        return False
    if name is not None:
        return (name in node.name) if contains else node.name == name
    return True


class Vost:
    """The program under test on a Desktop, seen through its accessibility tree."""

    def __init__(self, desktop, home_template=None, args=("--demo",), settings=None, extra_env=None, binary=VOST):
        self.desktop = desktop
        self.binary = binary
        self.log_path = os.path.join(desktop.work, "vost.log")
        if home_template:
            data = os.path.join(desktop.env["HOME"], ".local", "share")
            os.makedirs(data, exist_ok=True)
            shutil.copytree(home_template, os.path.join(data, "Corvella"), dirs_exist_ok=True)
        if settings:
            self.write_settings(settings)
        env = dict(desktop.env)
        env.update({
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_QPA_PLATFORM": "xcb",
            "VOST_DEMO_DETERMINISTIC": "1",
            "VOST_DEMO_NOW": "1760000000",
        })
        # A benchmark may compare Qt Quick's renderers or glibc's allocator
        # settings; a sanitized build takes the sanitizers' options (the leak
        # suppressions) from the caller. Nothing else of the caller's reaches it.
        for name in ("QT_QUICK_BACKEND", "GLIBC_TUNABLES", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"):
            if name in os.environ:
                env[name] = os.environ[name]
        env.update(extra_env or {})
        self.env = env
        self.args = list(args)
        self.process = None
        self._app = None
        self.log_start = 0

    @property
    def settings_path(self):
        return os.path.join(self.desktop.env["HOME"], ".config", "Corvella", "Vost.conf")

    def write_settings(self, values):
        os.makedirs(os.path.dirname(self.settings_path), exist_ok=True)
        with open(self.settings_path, "w") as file:
            file.write("[General]\n")
            for key, value in values.items():
                file.write(f"{key}={value}\n")

    def start(self):
        self.log_start = os.path.getsize(self.log_path) if os.path.exists(self.log_path) else 0
        with open(self.log_path, "ab") as log:
            self.process = subprocess.Popen([self.binary, *self.args], env=self.env, stdout=log,
                                            stderr=subprocess.STDOUT)
        self._app = None
        self.app()
        return self

    def running(self):
        return self.process is not None and self.process.poll() is None

    def app(self):
        """The program's accessible application object."""
        if self._app is not None:
            return self._app
        import pyatspi

        def find():
            if not self.running():
                raise AssertionError(f"vost exited with {self.process.returncode}:\n{self.output()}")
            desktop = pyatspi.Registry.getDesktop(0)
            for i in range(desktop.childCount):
                app = desktop.getChildAtIndex(i)
                if app is not None and app.get_process_id() == self.process.pid:
                    return app
            return None

        app = wait_until(find, timeout=15, what="vost on the accessibility bus")
        # Qt does not announce every change of what it exposes: read the tree
        # afresh each time instead of from the client library's cache.
        from gi.repository import Atspi
        Atspi.Accessible.set_cache_mask(app, Atspi.Cache.NONE)
        self._app = Node(app)
        return self._app

    def window(self):
        """The popover (or, without a tray, the window) as an accessible frame."""
        frames = [child for child in self.app().children() if child.role == "frame" and child.name == "Vost"]
        return frames[0] if frames else None

    def registered_item(self):
        """Its StatusNotifierItem as the host's watcher holds it ("service/path"), or None."""
        prefix = f"org.kde.StatusNotifierItem-{self.process.pid}-"
        return next((item for item in self.desktop.registered_items() if item.startswith(prefix)), None)

    def status_item(self):
        """Its StatusNotifierItem, once the host's watcher holds it."""
        return wait_until(self.registered_item, timeout=20, what="Vost's item registered with the watcher")

    def activate_item(self, x, y):
        """A primary click on its item as a host reports it: where on the screen (0, 0: not known)."""
        subprocess.run(["dbus-send", "--session", "--print-reply", f"--dest={self.status_item().split('/')[0]}",
                        "/StatusNotifierItem", "org.kde.StatusNotifierItem.Activate", f"int32:{x}", f"int32:{y}"],
                       env=self.desktop.env, capture_output=True, check=True)

    def popover_shown(self):
        window = self.window()
        return window is not None and window.showing

    def loaded_libraries(self):
        """The file names of the shared objects mapped into the process (none once it ended)."""
        try:
            with open(f"/proc/{self.process.pid}/maps") as maps:
                return {line.split()[-1].rsplit("/", 1)[-1] for line in maps if "/" in line}
        except OSError:
            return set()

    def media_player_loaded(self):
        """Whether GStreamer is in the process: a media player was made, and its
        libraries and plugins stay loaded for good (about 39 MB of PSS)."""
        return any(name.startswith("libgst") for name in self.loaded_libraries())

    def all(self, role=None, name=None, contains=False, within=None):
        """Every showing node with that role and name (None: any)."""
        root = within or self.app()
        return [node for node in walk(root) if _matches(node, role, name, contains)]

    def find(self, role=None, name=None, contains=False, within=None, timeout=10):
        """The first showing node with that role and name; waits for it."""
        def search():
            found = self.all(role, name, contains, within)
            return found[0] if found else None
        return wait_until(search, timeout=timeout, what=f"a showing {role or 'node'} named {name!r}")

    def press(self, role, name, contains=False, within=None, timeout=10):
        """Finds the control and presses it. One that a list remade between the two
        (a search filtering it) is gone from the bus: it is found again."""
        def attempt():
            self.find(role, name, contains=contains, within=within, timeout=timeout).press()
            return True
        return wait_until(attempt, timeout=timeout, what=f"{role} {name!r} pressed")

    def absent(self, role=None, name=None, contains=False, within=None, timeout=10):
        """Waits until no showing node has that role and name."""
        wait_until(lambda: not self.all(role, name, contains, within), timeout=timeout,
                   what=f"no showing {role or 'node'} named {name!r}")

    # The pointer and the keyboard.
    def click(self, node_or_point, button=1):
        x, y = node_or_point.center() if isinstance(node_or_point, Node) else node_or_point
        self.desktop.xdotool("mousemove", x, y, "sleep", "0.15", "click", button)
        time.sleep(0.2)

    def key(self, *keys):
        self.desktop.xdotool("key", "--delay", "40", *keys)
        time.sleep(0.2)

    def type(self, text):
        self.desktop.xdotool("type", "--delay", "15", text)
        time.sleep(0.1)

    def focus(self, node):
        """Gives node the keyboard focus through its accessible action."""
        node.do("SetFocus")
        wait_until(lambda: node.has_state("focused"), timeout=5, what=f"focus in {node}")

    def fill(self, field, text):
        """Focuses a text field, replaces what it holds and types text, as a person
        would. xdotool types a character that is not on the keyboard by mapping it to
        a spare key for a moment; on a busy machine the program can read the key
        after the mapping is gone and lose it, so what did not arrive is typed again."""
        for _ in range(3):
            self.focus(field)
            self.key("ctrl+a", "BackSpace")
            self.type(text)
            if text.isascii() or self._holds(field, text):
                return

    @staticmethod
    def _holds(field, text):
        try:
            return wait_until(lambda: field.text() == text, timeout=2, what="the typed text")
        except Exception:  # a timeout, or a field gone from the tree
            return False

    def save_through_dialog(self, save_button, target=None):
        """Presses a Save button and answers the file dialog: saves to target, or
        cancels without one. The popover steps aside for the dialog and is back
        afterwards; returns the name the dialog suggested."""
        save_button.press()
        wait_until(lambda: not self.popover_shown(), what="the popover out of the save dialog's way")
        dialog = self.find("dialog", "Save", timeout=15)
        name = self.find("text", within=dialog)
        suggested = name.text()
        if target is None:
            self.find("push button", "Cancel", within=dialog).press()
        else:
            self.fill(name, target)
            self.key("Return")
            wait_until(lambda: os.path.exists(target), what="the saved copy")
        wait_until(self.popover_shown, what="the popover back after the dialog")
        return suggested

    def wheel(self, node, clicks, down=False):
        """Turns the mouse wheel over node, up unless down."""
        x, y = node.center()
        self.desktop.xdotool("mousemove", x, y)
        self.desktop.xdotool("click", "--repeat", clicks, "--delay", 10, 5 if down else 4)
        time.sleep(0.05)

    def wheel_until(self, node, found, clicks=2, turns=40):
        """Turns the wheel over node (up) a few clicks at a time until found()
        answers something true, and returns that answer (or the last one). Each
        turn comes to rest before found() is asked: a flick still moving could
        carry what is looked for past the view between two looks."""
        for _ in range(turns):
            result = found()
            if result:
                return result
            self.wheel(node, clicks)
            self.wait_for_rest()
        return found()

    def wait_for_rest(self, looks=20):
        """Waits (a second at most) until the transcript's messages stop moving:
        the wheel's flick carries them on after the last click."""
        last = None
        for _ in range(looks):
            now = [(m.name, tuple(m.extents())) for m in self.messages()]
            if now == last:
                return
            last = now
            time.sleep(0.05)

    # The tray item: Qt gives it no accessible object, so it is found as the
    # program's small window inside the tray host.
    def tray_icon_geometry(self):
        ids = self.desktop.xdotool("search", "--all", "--pid", self.process.pid, "--name", ".*").split()
        for window in ids:
            geometry = self.desktop.xdotool("getwindowgeometry", "--shell", window)
            values = dict(line.split("=", 1) for line in geometry.split() if "=" in line)
            w, h = int(values.get("WIDTH", 0)), int(values.get("HEIGHT", 0))
            if 8 <= w <= 64 and 8 <= h <= 40:
                return (int(values["X"]), int(values["Y"]), w, h)
        return None

    def click_tray(self, button=1):
        x, y, w, h = wait_until(self.tray_icon_geometry, what="the tray item")
        self.click((x + w // 2, y + h // 2), button)

    def open_popover(self):
        if not self.popover_shown():
            self.click_tray()
        wait_until(self.popover_shown, what="the popover")

    def tooltip(self):
        """Hovers over the tray item and reads the tool tip it shows."""
        def hover():
            x, y, w, h = wait_until(self.tray_icon_geometry, what="the tray item")
            # A tool tip follows a move inside the item, not the entry into it.
            self.desktop.xdotool("mousemove", 640, 700)
            time.sleep(0.1)
            self.desktop.xdotool("mousemove", x + w // 2, y + h // 2 + 1)
            time.sleep(0.05)
            self.desktop.xdotool("mousemove", x + w // 2, y + h // 2)
            tips = wait_until(lambda: self.all("tool tip"), timeout=3, what="a tool tip")
            return tips[0].name
        name = wait_until(hover, timeout=15, interval=0.5, what="the tray item's tool tip")
        self.desktop.xdotool("mousemove", 640, 700)
        return name

    # Signing in.
    def sign_in(self):
        self.open_popover()
        self.fill(self.find("text", PHONE_FIELD, timeout=20), DEMO_PHONE)
        self.key("Return")
        self.fill(self.find("text", CODE_FIELD, timeout=15), DEMO_CODE)
        self.key("Return")
        self.find("list", "Chat list", timeout=20)

    def chat_rows(self):
        """The chats shown in the list (the "Archived chats" row is none)."""
        return [row for row in self.all("list item", within=self.find("list", "Chat list"))
                if not row.name.startswith("Archived chats")]

    def search_chats(self, text, titles):
        """Types text into the chat list's search field and waits until the list
        shows only the chats named in titles, in that order."""
        self.fill(self.find("text", "Search"), text)
        wait_until(lambda: [row.name.split(",")[0] for row in self.chat_rows()] == titles,
                   what=f"only {', '.join(titles)} listed")

    def wait_for_chats(self, minimum=6):
        return wait_until(lambda: len(self.chat_rows()) >= minimum and self.chat_rows(), timeout=20,
                          what=f"at least {minimum} chats")

    def open_chat(self, title):
        row = self.find("list item", title, contains=True, within=self.find("list", "Chat list"))
        row.press()
        return self.find("panel", "Conversation with " + title)

    def messages(self):
        return self.all("list item", within=self.find("list", "Messages"))

    def open_transcript(self, title, newest):
        """Opens the chat and waits for its newest message; returns the transcript."""
        self.open_chat(title)
        messages = self.find("list", "Messages")
        self.find("list item", newest, contains=True, within=messages)
        return messages

    def send(self, text):
        """Types text into the open chat's composer and sends it with Return."""
        self.fill(self.find("text", "Message"), text)
        self.key("Return")

    def quit(self):
        """Ctrl+Q in the popover, or the end of the process."""
        if self.running():
            with contextlib.suppress(Exception):
                if self.popover_shown():
                    self.key("ctrl+q")
            try:
                self.process.wait(8)
            except subprocess.TimeoutExpired:
                self.process.terminate()
                try:
                    self.process.wait(5)
                except subprocess.TimeoutExpired:
                    self.process.kill()
                    self.process.wait()
        return self.process.returncode if self.process else None

    def screenshot(self, path):
        return self.desktop.screenshot(path)

    def describe(self):
        """The showing tree as indented lines of role and name, for failure reports."""
        lines = []

        def visit(node, depth):
            for child in node.children():
                try:
                    if not child.showing:
                        continue
                    lines.append("  " * depth + f"[{child.role}] {child.name!r}")
                except Exception:
                    continue
                visit(child, depth + 1)
        try:
            visit(self.app(), 0)
        except Exception as error:
            lines.append(f"(the tree could not be read: {error})")
        return "\n".join(lines)

    def output(self):
        with open(self.log_path, errors="replace") as file:
            return file.read()

    def script_errors(self):
        """The QML errors, binding loops and memory faults this run printed: a
        fault in every case."""
        with open(self.log_path, "rb") as file:
            file.seek(self.log_start)
            lines = file.read().decode(errors="replace").splitlines()
        return [line for line in lines if SCRIPT_ERROR.search(line) or MEMORY_ERROR.search(line)]


def signed_in_template():
    """A signed-in demo account's data folder, made once per build tree (in a
    process of its own: a process reaches one accessibility bus only)."""
    os.makedirs(os.path.dirname(TEMPLATE_DIR), exist_ok=True)
    with open(TEMPLATE_DIR + ".lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        marker = os.path.join(TEMPLATE_DIR, ".complete")
        if not (os.path.exists(marker) and os.path.getmtime(marker) >= os.path.getmtime(VOST)):
            shutil.rmtree(TEMPLATE_DIR, ignore_errors=True)
            subprocess.run([sys.executable, os.path.abspath(__file__), "make-template"], check=True,
                           timeout=120)
        return TEMPLATE_DIR


def _make_template():
    desktop = Desktop()
    try:
        vost = Vost(desktop).start()
        vost.sign_in()
        vost.wait_for_chats()
        if vost.quit() != 0:
            raise RuntimeError("vost did not quit cleanly after signing in:\n" + vost.output())
        shutil.copytree(os.path.join(desktop.env["HOME"], ".local", "share", "Corvella"), TEMPLATE_DIR)
        with open(os.path.join(TEMPLATE_DIR, ".complete"), "w"):
            pass
    finally:
        desktop.close()


_desktop = None


def shared_desktop():
    """The one desktop of this process, made on first use and closed when the
    process ends."""
    global _desktop
    if _desktop is None:
        _desktop = Desktop(tray=None)
        atexit.register(_desktop.close)
    return _desktop


class VostTestCase(unittest.TestCase):
    """A case with a fresh home folder on this process's desktop; saves a
    screenshot and the program's output when it fails."""

    tray = True
    signed_in = True

    def setUp(self):
        self.desktop = shared_desktop()
        self.desktop.new_home()
        kind = self.tray if isinstance(self.tray, str) else "trayer"
        if self.tray and self.desktop.tray_kind != kind:
            self.desktop.start_tray(kind)
        elif not self.tray:
            self.desktop.stop_tray()
        self.vost = None

    def launch(self, signed_in=None, **kwargs):
        signed_in = self.signed_in if signed_in is None else signed_in
        template = signed_in_template() if signed_in else None
        self.vost = Vost(self.desktop, home_template=template, **kwargs)
        self.addCleanup(self._finish, self.vost)
        return self.vost.start()

    def _finish(self, vost):
        result = self._outcome.result
        if any(test is self for test, _ in result.errors + result.failures):
            os.makedirs(FAILURES_DIR, exist_ok=True)
            path = os.path.join(FAILURES_DIR, self.id().split(".", 1)[-1] + ".png")
            self.desktop.screenshot(path)
            sys.stderr.write(f"\nscreenshot: {path}\n--- vost's output\n{vost.output()}\n")
            sys.stderr.write("--- what vost shows\n" + vost.describe() + "\n")
            vost.quit()
            return
        vost.quit()
        errors = vost.script_errors()
        if errors:
            self.fail("vost printed script or memory errors:\n" + "\n".join(errors))

    def open_signed_in(self, **launch):
        vost = self.launch(**launch)
        vost.open_popover()
        vost.wait_for_chats()
        return vost

    def open_emma(self, **launch):
        """Signs in and opens Emma Wilson's chat at its newest message, once the
        transcript has come to rest; returns the program and the transcript."""
        vost = self.open_signed_in(**launch)
        messages = vost.open_transcript("Emma Wilson", EMMA_NEWEST)
        time.sleep(0.5)  # the list may still place itself at the end
        vost.wait_for_rest()
        return vost, messages


def main():
    unittest.main(module="__main__", verbosity=2, warnings="ignore")


if __name__ == "__main__" and sys.argv[1:] == ["make-template"]:
    _make_template()
