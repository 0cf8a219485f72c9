"""Vost as a native Wayland client: headless sway with waybar's tray, run by an
unprivileged user the case makes."""

import os
import time
import unittest

from shortcut_portal import PORTAL, ShortcutsPortal
from wayland import BAR_HEIGHT, WaylandTestCase, have_tools, run_as_unprivileged_user, wait_until
from vostui import main


def light(pixel):
    return sum(pixel) / 3 > 160


def red(pixel):
    r, g, b = pixel
    return r > 190 and g < 90 and b < 90


@unittest.skipUnless(have_tools(), "needs sway, waybar, grim and wtype")
class Waybar(WaylandTestCase):
    tray = True

    def vost_window(self):
        return next((node for node in self.desktop.windows() if node.get("app_id") == "com.corvella.Vost"), None)

    def test_the_item_in_waybar_opens_the_popover_and_focus_loss_closes_it(self):
        vost = self.launch()
        box = wait_until(self.desktop.tray_item_box, timeout=20, what="the item in waybar")
        self.assertLessEqual(box[3], BAR_HEIGHT)

        def item_pixels():
            box = self.desktop.tray_item_box()
            return box and (box, self.desktop.pixels(box))
        # Light on the dark bar, with the badge's red in its corner once the chats are in.
        box, rows = wait_until(lambda: (found := item_pixels()) and any(
            red(pixel) for row in found[1] for pixel in row) and found, timeout=20, what="the red badge")
        pixels = [pixel for row in rows for pixel in row]
        self.assertGreater(sum(light(pixel) for pixel in pixels), len(pixels) // 10, "no light glyph")
        # The count in white within the red disc, tall enough to read at waybar's 22 px.
        digit_rows = [row for row in rows if (reds := [i for i, pixel in enumerate(row) if red(pixel)])
                      and any(min(pixel) > 200 for pixel in row[min(reds):max(reds) + 1])]
        self.assertGreaterEqual(len(digit_rows), 7, f"the badge's digits are {len(digit_rows)} pixels tall")
        x, y, w, h = box

        self.desktop.click((x + w // 2, y + h // 2))
        wait_until(vost.popover_shown, what="the popover opened by a click on the item")
        vost.wait_for_chats()
        # A window of the client's own name, of the popover's size, floated and placed
        # by the compositor (not tiled over the whole screen).
        window = wait_until(self.vost_window, what="the popover in sway's tree")
        self.assertEqual((window["rect"]["width"], window["rect"]["height"]), (860, 560))
        self.assertEqual(window["type"], "floating_con")
        self.assertTrue(window["focused"])

        # Another workspace takes the focus: the popover closes, as after a click elsewhere.
        self.desktop.sway("workspace", "2")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the focus going elsewhere")
        self.desktop.sway("workspace", "1")

        # A second launch hands over to the running one, which shows itself.
        self.assertEqual(self.second_launch(vost), 0)
        wait_until(vost.popover_shown, what="the popover shown by a second launch")
        wait_until(lambda: (self.vost_window() or {}).get("focused"), what="the popover focused")
        self.desktop.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by Esc")


@unittest.skipUnless(have_tools(), "needs sway, waybar, grim and wtype")
class LateWaybar(WaylandTestCase):
    tray = False

    def test_vost_moves_into_waybar_started_later_and_back_out_when_it_quits(self):
        vost = self.launch()
        wait_until(vost.popover_shown, what="the window")
        vost.wait_for_chats()
        time.sleep(5)
        self.desktop.start_tray("waybar")
        wait_until(self.desktop.tray_item_box, timeout=20, what="the item in the late waybar")
        wait_until(lambda: not vost.popover_shown(), what="the window gone into the tray")
        self.desktop.stop_tray()
        wait_until(vost.popover_shown, timeout=15, what="the window back when waybar quit")
        self.assertTrue(vost.running())


@unittest.skipUnless(have_tools() and os.access(PORTAL, os.X_OK), "needs sway, waybar and xdg-desktop-portal")
class PortalShortcut(WaylandTestCase):
    """The shortcut to open Vost, bound by the desktop through its GlobalShortcuts
    portal: Wayland gives programs no keys of their own."""
    tray = True

    def start_portal(self, refuse=False):
        portal = ShortcutsPortal(self.desktop, refuse=refuse)
        self.addCleanup(portal.stop)
        return portal

    def test_the_desktop_binds_it_and_its_keys_open_and_close_the_popover(self):
        portal = self.start_portal()
        vost = self.launch(settings={"globalShortcut": "Ctrl+Alt+K"})
        bound = wait_until(lambda: portal.bound, timeout=20, what="the shortcut bound through the portal")
        self.assertEqual(bound, [("open-vost", "CTRL+ALT+k")])
        wait_until(self.desktop.tray_item_box, timeout=20, what="the item in waybar")
        self.assertFalse(vost.popover_shown())
        portal.activate("open-vost")
        wait_until(vost.popover_shown, what="the popover opened by the desktop's shortcut")
        vost.wait_for_chats()
        # Preferences name the combination and say nothing against it.
        vost.find("push button", "Preferences").press()
        page = vost.find("panel", "Preferences")
        self.assertEqual(vost.find("push button", "Shortcut to open Vost", within=page).description, "Ctrl+Alt+K")
        vost.absent("paragraph", "Not allowed by the desktop", within=page, timeout=1)
        vost.absent("paragraph", "Not available on this desktop", within=page, timeout=1)
        portal.activate("open-vost")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the desktop's shortcut")

    def test_a_shortcut_the_desktop_refuses_is_said_to_be_refused(self):
        portal = self.start_portal(refuse=True)
        vost = self.launch(settings={"globalShortcut": "Ctrl+Alt+K"})
        wait_until(lambda: portal.sessions, timeout=20, what="a session asked of the portal")
        box = wait_until(self.desktop.tray_item_box, timeout=20, what="the item in waybar")
        self.desktop.click((box[0] + box[2] // 2, box[1] + box[3] // 2))
        wait_until(vost.popover_shown, what="the popover opened by a click on the item")
        vost.find("push button", "Preferences").press()
        page = vost.find("panel", "Preferences")
        vost.find("paragraph", "Not allowed by the desktop", within=page, timeout=20)


if __name__ == "__main__":
    run_as_unprivileged_user()
    main()
