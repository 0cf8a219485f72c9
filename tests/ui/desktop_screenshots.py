#!/usr/bin/python3
"""Makes the README's pictures of Vost on each desktop the UI cases run: the
popover opened from the tray item on X11 with Xfce's panel, LXQt's and trayer;
on Wayland in sway and in KWin, each with waybar's tray; the window where no tray
runs. Each desktop runs in a process of its own (a process reaches one
accessibility bus only), as an unprivileged user where started as root (sway
refuses root):

    VOST_BINARY=build/bin/vost VOST_BUILD_DIR=build /usr/bin/python3 tests/ui/desktop_screenshots.py [OUT_DIR]

OUT_DIR defaults to docs/screenshots. Not a test: it checks nothing."""

import os
import subprocess
import sys
import tempfile
import time

from kwin import KWinDesktop
from test_trayhosts import badge_box
from vostui import Desktop, Vost, wait_until
from wayland import BAR_HEIGHT, SwayDesktop, account_template, run_as_unprivileged_user

OUT = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "..", "docs", "screenshots")
DESKTOPS = ["xfce", "lxqt", "trayer", "sway", "kwin", "none"]


def shoot(name, staging):
    wayland = name in ("sway", "kwin")
    desktop = {"sway": SwayDesktop, "kwin": KWinDesktop}.get(name, Desktop)(tray=None)
    try:
        tray = {"xfce": "xfce4-panel", "lxqt": "lxqt-panel", "trayer": "trayer", "sway": "waybar",
                "kwin": "waybar"}.get(name)
        if tray:
            desktop.start_tray(tray)
        vost = Vost(desktop, home_template=account_template(),
                    extra_env={"QT_QPA_PLATFORM": "wayland"} if wayland else None).start()
        if name == "trayer":
            vost.open_popover()
        elif name in ("xfce", "lxqt"):
            x, y, w, h = wait_until(lambda: badge_box(desktop), timeout=20, what="the badge in the panel")
            vost.click((x + w // 2, y + h // 2))
        elif name == "sway":
            x, y, w, h = wait_until(desktop.tray_item_box, timeout=20, what="the item in waybar")
            desktop.click((x + w // 2, y + h // 2))
        elif name == "kwin":
            x, y, w, h = wait_until(desktop.tray_item_box, timeout=20, what="the item in waybar")
            # Where Plasma's tray says a click was: at the panel's edge under the icon.
            vost.activate_item(x + w // 2, BAR_HEIGHT)
        wait_until(vost.popover_shown, what="the popover")
        vost.wait_for_chats()
        wait_until(vost.messages, timeout=20, what="the chat's messages")
        time.sleep(1.5)  # pictures decode, the panel redraws
        desktop.screenshot(os.path.join(staging, f"desktop-{name}.png"))
        vost.quit()
    finally:
        desktop.close()


def main():
    staging = tempfile.mkdtemp(prefix="vost-desktops.")
    os.chmod(staging, 0o1777)
    for name in DESKTOPS:
        subprocess.run([sys.executable, os.path.abspath(__file__), "--one", name, staging], check=True)
        # Half size: enough to see where the popover stands against the panel.
        target = os.path.join(OUT, f"desktop-{name}.png")
        subprocess.run(["convert", os.path.join(staging, f"desktop-{name}.png"), "-resize", "50%", target], check=True)
        print(target)


if __name__ == "__main__":
    if sys.argv[1:2] == ["--one"]:
        run_as_unprivileged_user()
        shoot(sys.argv[2], sys.argv[3])
    else:
        main()
