#!/usr/bin/python3
"""Vost in the StatusNotifierItem hosts every major desktop now has: Xfce's
panel and LXQt's.
The item shows with its badge, the badge follows the unread total, a click opens
the popover fully on screen next to the pointer (the host does not say where the
item is), and a right click offers "Open Vost" and "Quit Vost". Each host runs as
a panel along the top edge of the screen.
The item is Vost's own: it carries pictures in the sizes panels use, goes into a
panel that starts after Vost and back into a window when the panel quits, and
opens the popover at the place the host gives."""

import os
import re
import subprocess
import time

from gi.repository import Gio, GLib

from vostui import VostTestCase, main, wait_until

UNREAD = re.compile(r"Vost, (\d+) unread messages")
PANEL_HEIGHT = 26


def item_tooltip(desktop, item):
    """The tool tip the host shows for the item: its title and text."""
    return " ".join(re.findall(r'string "([^"]*)"', item_property(desktop, item, "ToolTip")))


def item_property(desktop, item, name):
    service, path = item.split("/", 1)
    return subprocess.run(["dbus-send", "--session", "--print-reply", f"--dest={service}", "/" + path,
                           "org.freedesktop.DBus.Properties.Get", "string:org.kde.StatusNotifierItem",
                           f"string:{name}"], env=desktop.env, capture_output=True, text=True).stdout


def exported_menu_labels(desktop, item):
    """The labels of the menu the item exports for the host to draw (dbusmenu)."""
    menu = re.search(r'object path "([^"]+)"', item_property(desktop, item, "Menu")).group(1)
    out = subprocess.run(["dbus-send", "--session", "--print-reply", f"--dest={item.split('/', 1)[0]}", menu,
                          "com.canonical.dbusmenu.GetLayout", "int32:0", "int32:-1", "array:string:label"],
                         env=desktop.env, capture_output=True, text=True).stdout
    labels = re.findall(r'string "label"\s+variant\s+string "([^"]*)"', out)
    return [label.replace("&", "") for label in labels if label]


def badge_box(desktop):
    """Where the red unread badge is drawn in the panel, from what a person sees."""
    rows = desktop.pixels((0, 0, 1280, PANEL_HEIGHT))
    red = [(x, y) for y, row in enumerate(rows) for x, (r, g, b) in enumerate(row) if r > 190 and g < 90 and b < 90]
    if len(red) < 12:
        return None
    xs, ys = [x for x, _ in red], [y for _, y in red]
    return min(xs), min(ys), max(xs) - min(xs) + 1, max(ys) - min(ys) + 1


class StatusNotifierHost(VostTestCase):
    tray = "xfce4-panel"

    def item(self, vost):
        def ours():
            for item in self.desktop.registered_items():
                if UNREAD.search(item_tooltip(self.desktop, item)):
                    return item
            return None
        return wait_until(ours, timeout=20, what="Vost's item registered with the host")

    def click_item(self, vost, button=1):
        x, y, w, h = wait_until(lambda: badge_box(self.desktop), what="the badge in the panel")
        vost.click((x + w // 2, y + h // 2), button)

    def test_the_item_shows_its_badge_and_follows_the_unread_total(self):
        vost = self.launch()
        item = self.item(vost)
        wait_until(lambda: badge_box(self.desktop), what="the badge drawn by the panel")
        total = int(UNREAD.search(item_tooltip(self.desktop, item)).group(1))
        self.assertGreater(total, 3)
        self.click_item(vost)
        wait_until(vost.popover_shown, what="the popover opened from the panel")
        vost.wait_for_chats()
        vost.find("list item", "Family, pinned, 3 unread", contains=True).press()
        vost.find("panel", "Conversation with Family")
        wait_until(lambda: UNREAD.search(item_tooltip(self.desktop, item)).group(1) == str(total - 3),
                   timeout=15, what="the host's tool tip less Family's 3")

    def test_a_click_opens_the_popover_on_screen_next_to_the_pointer(self):
        vost = self.launch()
        self.item(vost)
        x, y, w, h = wait_until(lambda: badge_box(self.desktop), what="the badge in the panel")
        vost.click((x + w // 2, y + h // 2))
        wait_until(vost.popover_shown, what="the popover")
        px, py, pw, ph = wait_until(lambda: vost.window().extents()[2] > 100 and vost.window().extents(),
                                    what="the popover's place")
        self.assertGreaterEqual(px, 0)
        self.assertGreaterEqual(py, 0)
        self.assertLessEqual(px + pw, 1280)
        self.assertLessEqual(py + ph, 800)
        # Right under the panel, reaching to the pointer's column.
        self.assertLessEqual(py, PANEL_HEIGHT + 40)
        self.assertTrue(px - 40 <= x + w // 2 <= px + pw + 40, f"popover at {px}..{px + pw}, pointer at {x}")
        vost.click((x + w // 2, y + h // 2))
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by a second click")

    def test_the_right_click_menu_opens_vost_and_quits(self):
        # The panel draws the menu Vost exports (its labels are read from there)
        # with its own toolkit; the menu is driven by keyboard, the same way in both.
        vost = self.launch()
        item = self.item(vost)
        self.assertEqual(exported_menu_labels(self.desktop, item), ["Open Vost", "Quit Vost"])
        self.click_item(vost)
        wait_until(vost.popover_shown, what="the popover")
        self.click_item(vost, button=3)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the menu")
        vost.key("Down", "Return")
        wait_until(vost.popover_shown, what="the popover opened by Open Vost")
        self.click_item(vost, button=3)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the menu")
        vost.key("Up", "Return")
        self.assertEqual(vost.process.wait(10), 0)


def bus_call(service, path, interface, method, signature=None, *args):
    """A method call on the session bus; the answer unpacked, or the error."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    parameters = GLib.Variant(signature, args) if signature else None
    try:
        return bus.call_sync(service, path, interface, method, parameters, None, Gio.DBusCallFlags.NONE, 5000,
                             None).unpack()
    except GLib.Error as error:
        return error


def item_value(item, name):
    service, path = item.split("/", 1)
    return bus_call(service, "/" + path, "org.freedesktop.DBus.Properties", "Get", "(ss)",
                    "org.kde.StatusNotifierItem", name)[0]


def menu_ids(item):
    """The exported menu's entries, label to id."""
    service, path = item.split("/", 1)
    _, (_, _, children) = bus_call(service, item_value(item, "Menu"), "com.canonical.dbusmenu", "GetLayout",
                                   "(iias)", 0, -1, [])
    return {child[1]["label"]: child[0] for child in children if "label" in child[1]}


def click_menu_entry(item, label):
    service = item.split("/", 1)[0]
    menu = item_value(item, "Menu")
    bus_call(service, menu, "com.canonical.dbusmenu", "Event", "(isvu)", menu_ids(item)[label], "clicked",
             GLib.Variant("i", 0), 0)


class OwnItem(VostTestCase):
    """The item as any host reads it over the bus."""
    tray = "xfce4-panel"

    def test_the_item_carries_its_pictures_tool_tip_and_menu(self):
        vost = self.launch()
        item = vost.status_item()
        self.assertEqual(item_value(item, "Id"), "com.corvella.Vost")
        self.assertEqual(item_value(item, "Category"), "Communications")
        self.assertFalse(item_value(item, "ItemIsMenu"))
        def tool_tip_title():
            _, _, title, _ = item_value(item, "ToolTip")
            return UNREAD.search(title) and title
        title = wait_until(tool_tip_title, what="the unread total in the tool tip")
        self.assertGreater(int(UNREAD.search(title).group(1)), 0)
        pixmaps = item_value(item, "IconPixmap")
        self.assertEqual(sorted(height for _, height, _ in pixmaps), [22, 24, 32, 44, 48, 64])
        for width, height, data in pixmaps:
            self.assertEqual(len(data), width * height * 4)
        # Alpha first, then red, green, blue: the badge's red reads as opaque red.
        width, height, data = max(pixmaps, key=lambda p: p[1])
        argb = [data[i:i + 4] for i in range(0, len(data), 4)]
        self.assertTrue(any(a == 255 and r > 190 and g < 90 and b < 90 for a, r, g, b in argb), "no opaque red")

        self.assertEqual(exported_menu_labels(self.desktop, item), ["Open Vost", "Quit Vost"])
        click_menu_entry(item, "Open Vost")
        wait_until(vost.popover_shown, what="the popover opened by the menu")
        click_menu_entry(item, "Quit Vost")
        self.assertEqual(vost.process.wait(10), 0)

    def test_activate_opens_the_popover_next_to_the_point_the_host_gives(self):
        vost = self.launch()
        # The pointer far from that point: the place comes from the host.
        self.desktop.xdotool("mousemove", 100, 700)
        vost.activate_item(700, 30)
        wait_until(vost.popover_shown, what="the popover")
        px, py, pw, ph = wait_until(lambda: vost.window().extents()[2] > 100 and vost.window().extents(),
                                    what="the popover's place")
        self.assertTrue(abs(px + pw // 2 - 700) <= 40, f"popover at {px}..{px + pw}, asked for 700")
        self.assertTrue(30 <= py <= 60, f"popover's top at {py}, asked for under 30")
        vost.activate_item(700, 30)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the second activation")
        # A host that does not know sends 0, 0: the popover opens at the pointer.
        vost.activate_item(0, 0)
        wait_until(vost.popover_shown, what="the popover")
        px, py, pw, ph = wait_until(lambda: vost.window().extents()[2] > 100 and vost.window().extents(),
                                    what="the popover's place")
        self.assertTrue(px <= 100 <= px + pw, f"popover at {px}..{px + pw}, pointer at 100")
        self.assertGreater(py, 60)


class LatePanel(VostTestCase):
    """Vost started before the panel (autostart at login): a window until the panel
    comes, then in the panel, and a window again whenever the panel or tray goes."""
    tray = False

    def test_vost_moves_into_a_panel_started_later_and_back_out_when_it_quits(self):
        vost = self.launch()
        wait_until(vost.popover_shown, what="the window")
        vost.wait_for_chats()
        time.sleep(5)
        for _ in range(2):
            self.desktop.start_tray("xfce4-panel")
            wait_until(vost.registered_item, timeout=20, what="the item in the late panel")
            wait_until(lambda: not vost.popover_shown(), what="the window gone into the panel")
            self.desktop.stop_tray()
            wait_until(vost.popover_shown, timeout=15, what="the window back when the panel quit")
        # An XEmbed tray alone (stalonetray, trayer) that quits says so only on the X server.
        self.desktop.start_tray("trayer")
        wait_until(lambda: not vost.popover_shown(), what="the window gone into the XEmbed tray")
        self.desktop.stop_tray()
        wait_until(vost.popover_shown, timeout=15, what="the window back when the XEmbed tray quit")
        self.assertTrue(vost.running())


class LXQtPanelHost(StatusNotifierHost):
    # A Qt 5 program: it draws the exported menu with its own widgets.
    tray = "lxqt-panel"


if __name__ == "__main__":
    main()
