#!/usr/bin/python3
"""Vost in KDE Plasma's Wayland session: KWin, run by an unprivileged user the
case makes. KWin lets a program say where its window goes (Plasma's shell
surface), so the popover opens under the icon, at the place the tray host gives
with its click, as on X11, and not where KWin would put it (the screen's middle)."""

import unittest

from kwin import KWinDesktop, have_tools
from vostui import main, wait_until
from wayland import WaylandTestCase, run_as_unprivileged_user

APP_ID = "com.corvella.Vost"


@unittest.skipUnless(have_tools(), "needs kwin_wayland and waybar")
class PlasmaPlacement(WaylandTestCase):
    desktop_class = KWinDesktop
    tray = True

    def test_the_popover_opens_under_the_icon_the_host_names(self):
        vost = self.launch()

        # An icon in a panel along the bottom, Plasma's default: the popover stands
        # above it, centred on it, 4 px clear.
        vost.activate_item(700, 780)
        wait_until(vost.popover_shown, what="the popover opened by the host's click")
        frame = wait_until(lambda: self.desktop.window_frame(APP_ID), what="the popover in KWin")
        self.assertEqual(frame, (700 - 430, 780 - 4 - 560, 860, 560))

        vost.activate_item(700, 780)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by a second click")
        wait_until(lambda: self.desktop.window_frame(APP_ID) is None, what="the popover gone from KWin")

        # Shown again from a panel along the top, near the left edge: a new surface,
        # placed anew, kept on the screen.
        vost.activate_item(200, 20)
        wait_until(vost.popover_shown, what="the popover opened again")
        self.assertEqual(wait_until(lambda: self.desktop.window_frame(APP_ID), what="the popover in KWin"),
                         (0, 25, 860, 560))


if __name__ == "__main__":
    run_as_unprivileged_user()
    main()
