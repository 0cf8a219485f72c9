#!/usr/bin/python3
"""Vost in KDE Plasma's Wayland session: KWin, run by an unprivileged user the
case makes. KWin lets a program say where its window goes (Plasma's shell
surface), so the popover opens under the icon, at the place the tray host gives
with its click, as on X11, and not where KWin would put it (the screen's middle)."""

import subprocess
import unittest

from kwin import KWinDesktop, have_tools
from vostui import main, wait_until
from wayland import WaylandTestCase, run_as_unprivileged_user

APP_ID = "com.corvella.Vost"


@unittest.skipUnless(have_tools(), "needs kwin_wayland and waybar")
class PlasmaPlacement(WaylandTestCase):
    desktop_class = KWinDesktop
    tray = True

    def activate(self, service, x, y):
        """A click on the item, as Plasma's tray reports it: where on the screen."""
        subprocess.run(["dbus-send", "--session", "--print-reply", f"--dest={service}", "/StatusNotifierItem",
                        "org.kde.StatusNotifierItem.Activate", f"int32:{x}", f"int32:{y}"],
                       env=self.desktop.env, capture_output=True, check=True)

    def test_the_popover_opens_under_the_icon_the_host_names(self):
        vost = self.launch()
        item = wait_until(lambda: next((item for item in self.desktop.registered_items()
                                        if item.startswith(f"org.kde.StatusNotifierItem-{vost.process.pid}-")), None),
                          timeout=20, what="Vost's item registered with the host")
        service = item.split("/", 1)[0]

        # An icon in a panel along the bottom, Plasma's default: the popover stands
        # above it, centred on it, 4 px clear.
        self.activate(service, 700, 780)
        wait_until(vost.popover_shown, what="the popover opened by the host's click")
        frame = wait_until(lambda: self.desktop.window_frame(APP_ID), what="the popover in KWin")
        self.assertEqual(frame, (700 - 430, 780 - 4 - 560, 860, 560))

        self.activate(service, 700, 780)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by a second click")
        wait_until(lambda: self.desktop.window_frame(APP_ID) is None, what="the popover gone from KWin")

        # Shown again from a panel along the top, near the left edge: a new surface,
        # placed anew, kept on the screen.
        self.activate(service, 200, 20)
        wait_until(vost.popover_shown, what="the popover opened again")
        self.assertEqual(wait_until(lambda: self.desktop.window_frame(APP_ID), what="the popover in KWin"),
                         (0, 25, 860, 560))


if __name__ == "__main__":
    run_as_unprivileged_user()
    main()
