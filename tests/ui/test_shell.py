#!/usr/bin/python3
"""The tray item, the popover and the program's life: with and without a tray."""

import os
import re
import shutil
import subprocess

from vostui import VOST, VostTestCase, main, wait_until, walk

UNREAD = re.compile(r"Vost, (\d+) unread messages")
FULL_SIZE = (860, 560)


def unread_total(vost):
    return int(UNREAD.fullmatch(vost.tooltip()).group(1))


def red_and_white(desktop, box):
    """The bounding boxes (x, y, w, h, relative to box) of the badge's red and of
    the white inside it, as the screen shows them."""
    x, y, w, h = box
    path = desktop.screenshot(os.path.join(desktop.work, "slot.png"), crop=box)
    data = subprocess.run(["convert", path, "-depth", "8", "ppm:-"], capture_output=True, check=True).stdout
    pixels = data.split(b"\n", 3)[3]
    red, white = [], []
    for i in range(0, w * h * 3, 3):
        r, g, b = pixels[i], pixels[i + 1], pixels[i + 2]
        point = (i // 3 % w, i // 3 // w)
        if r > 190 and g < 90 and b < 90:
            red.append(point)
        elif r > 240 and g > 200 and b > 200:
            white.append(point)

    def bounds(points):
        if not points:
            return None
        xs, ys = [p[0] for p in points], [p[1] for p in points]
        return min(xs), min(ys), max(xs) - min(xs) + 1, max(ys) - min(ys) + 1
    red_box = bounds(red)
    inside = [p for p in white if red_box and red_box[0] <= p[0] < red_box[0] + red_box[2]
              and red_box[1] <= p[1] < red_box[1] + red_box[3]]
    return red_box, bounds(inside)


def launcher_updates(path):
    """The Unity launcher Update signals dbus-monitor saw: (app_uri, count, visible)."""
    with open(path, errors="replace") as file:
        text = file.read()
    updates = []
    for block in text.split("\nsignal ")[1:]:
        if "interface=com.canonical.Unity.LauncherEntry; member=Update" not in block:
            continue
        uri = re.search(r'string "([^"]*)"', block)
        count = re.search(r'string "count"\s+variant\s+int64 (-?\d+)', block)
        visible = re.search(r'string "count-visible"\s+variant\s+boolean (true|false)', block)
        if uri and count and visible:
            updates.append((uri.group(1), int(count.group(1)), visible.group(1) == "true"))
    return updates


class Tray(VostTestCase):
    def test_the_badge_counts_unread_messages_and_reading_a_chat_lowers_it(self):
        vost = self.open_signed_in()
        total = wait_until(lambda: UNREAD.fullmatch(vost.tooltip()), timeout=20, what="an unread total").group(1)
        self.assertGreater(int(total), 3)
        family = vost.find("list item", "Family, pinned, 3 unread", contains=True)
        family.press()
        vost.find("panel", "Conversation with Family")
        wait_until(lambda: unread_total(vost) == int(total) - 3, timeout=15, what="the total less Family's 3")
        vost.find("list item", "Family, pinned, Grandma loved the photos! ❤️")

    def test_clicks_escape_and_the_keyboard_open_and_close_the_popover(self):
        vost = self.launch()
        wait_until(vost.tray_icon_geometry, what="the tray item")
        self.assertFalse(vost.popover_shown())
        vost.click_tray()
        wait_until(vost.popover_shown, what="the popover")
        vost.wait_for_chats()
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by Esc")
        vost.click_tray()
        wait_until(vost.popover_shown, what="the popover again")
        vost.click_tray()
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by a second click")
        vost.click_tray()
        wait_until(vost.popover_shown, what="the popover a third time")
        vost.key("ctrl+q")
        self.assertEqual(vost.process.wait(10), 0)

    def test_views_let_go_while_closed_come_back_as_they_were(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        vost.fill(vost.find("text", "Message"), "Half a thought")
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")

        def chat_lists():
            # Hidden nodes too: a closed popover shows nothing either way.
            return [node for node in walk(vost.window(), showing_only=False)
                    if node.role == "list" and node.name == "Chat list"]
        wait_until(lambda: not chat_lists(), timeout=20, what="the closed popover's views let go")
        if os.environ.get("QT_QUICK_BACKEND", "software") == "software":
            # The software renderer's picture of the window goes as well: the hidden
            # window takes a token size, and its full size back as it shows.
            wait_until(lambda: vost.window().extents()[2:] != FULL_SIZE, what="the closed popover's picture let go")

        vost.click_tray()
        wait_until(vost.popover_shown, what="the popover again")
        self.assertEqual(vost.window().extents()[2:], FULL_SIZE)
        vost.find("panel", "Conversation with Emma Wilson")
        self.assertEqual(vost.find("text", "Message").text(), "Half a thought")
        vost.find("list item", "Of course! See you at 7", contains=True, within=vost.find("list", "Messages"))
        vost.wait_for_chats()
        # Made at its full height this time: the list still opens at its top.
        vost.find("list item", "Archived chats", contains=True, within=vost.find("list", "Chat list"))
        # The menus and pickers are made as they are first needed, in the views
        # made again as well.
        message = vost.find("list item", "Of course! See you at 7", contains=True, within=vost.find("list", "Messages"))
        x, y, w, h = message.extents()
        vost.click((x + w // 2, y + h // 2), button=3)
        menu = vost.find("popup menu", "Message actions")
        self.assertEqual(len(vost.all("push button", within=vost.find("panel", "Reactions", within=menu))), 7)
        vost.key("Escape")
        vost.absent("popup menu", "Message actions")
        vost.find("push button", "Emoji").press()
        vost.find("dialog", "Emoji picker")
        self.assertNotIn("Binding loop", vost.output())

    def test_the_tray_menu_opens_the_popover_and_quits(self):
        # The menu is a popup: screen readers follow it by its focus, not in the
        # tree, so it is driven by keyboard here.
        vost = self.launch()
        vost.open_popover()
        vost.click_tray(button=3)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the right click")
        vost.key("Down", "Return")
        wait_until(vost.popover_shown, what="the popover opened by Open Vost")
        vost.click_tray(button=3)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the right click")
        vost.key("Up", "Return")
        self.assertEqual(vost.process.wait(10), 0)

    def test_a_second_launch_shows_the_running_one(self):
        vost = self.launch()
        wait_until(vost.tray_icon_geometry, what="the tray item")
        self.assertFalse(vost.popover_shown())
        second = subprocess.run([VOST, "--demo"], env=vost.env, timeout=15, capture_output=True)
        self.assertEqual(second.returncode, 0, second.stderr)
        wait_until(vost.popover_shown, what="the first one's popover")
        self.assertTrue(vost.running())


class TrayPicture(VostTestCase):
    def test_the_square_slot_shows_the_badge_at_a_readable_size(self):
        # trayer gives the item a square slot: the badge fills its top-right corner
        # at over half the slot's height, with the count in white inside it.
        vost = self.launch()
        slot = wait_until(vost.tray_icon_geometry, what="the tray item")
        self.assertLessEqual(abs(slot[2] - slot[3]), 2, f"slot {slot}")
        red, white = wait_until(lambda: red_and_white(self.desktop, slot)[0] and red_and_white(self.desktop, slot),
                                timeout=20, what="the badge in the slot")
        x, y, w, h = red
        self.assertGreater(h, slot[3] / 2, f"badge {red} in slot {slot}")
        self.assertLessEqual(y, 1)
        self.assertGreaterEqual(x + w, slot[2] - 1)
        self.assertIsNotNone(white, "no white count in the badge")
        self.assertGreaterEqual(white[3], 7, f"count {white} in badge {red}")


class LauncherCount(VostTestCase):
    def test_the_launcher_count_is_the_unread_total_and_follows_it(self):
        log = os.path.join(self.desktop.work, f"launcher-{self.desktop.homes}.log")
        with open(log, "wb") as out:
            monitor = subprocess.Popen(["dbus-monitor", "--session",
                                        "type='signal',interface='com.canonical.Unity.LauncherEntry'"],
                                       env=self.desktop.env, stdout=out, stderr=subprocess.DEVNULL)
        self.addCleanup(monitor.wait, 5)
        self.addCleanup(monitor.terminate)
        # dbus-monitor prints the name the bus gave it once it is listening.
        wait_until(lambda: "NameAcquired" in open(log, errors="replace").read(), what="dbus-monitor listening")
        vost = self.launch()
        uri = "application://com.corvella.Vost.desktop"
        # At start-up a stale count is cleared; then the total arrives.
        first = wait_until(lambda: launcher_updates(log), what="a launcher update")[0]
        self.assertEqual(first, (uri, 0, False))
        wait_until(lambda: launcher_updates(log)[-1][1] > 3, timeout=20, what="the unread total on the launcher")
        total = unread_total(vost)
        wait_until(lambda: launcher_updates(log)[-1] == (uri, total, True), what=f"the launcher count at {total}")
        vost.open_popover()
        vost.wait_for_chats()
        vost.find("list item", "Family, pinned, 3 unread", contains=True).press()
        vost.find("panel", "Conversation with Family")
        wait_until(lambda: launcher_updates(log)[-1] == (uri, total - 3, True), timeout=15,
                   what="the launcher count less Family's 3")


class WithoutTray(VostTestCase):
    tray = False

    def test_a_remembered_account_lists_its_chats_in_a_window(self):
        vost = self.launch()
        wait_until(vost.popover_shown, what="the window")
        rows = vost.wait_for_chats()
        self.assertTrue(rows[0].name.startswith("Vost Helper"))
        # A tray that appears takes the client in, badge included.
        self.desktop.start_tray()
        wait_until(lambda: not vost.popover_shown(), timeout=10, what="the window gone into the tray")
        self.assertGreater(unread_total(vost), 0)

    def test_signing_in_in_a_window_lists_the_chats(self):
        vost = self.launch(signed_in=False)
        wait_until(vost.popover_shown, what="the window")
        vost.sign_in()
        vost.wait_for_chats()
        self.assertEqual(vost.all("alert"), [])


class Configuration(VostTestCase):
    signed_in = False

    def test_a_copy_without_credentials_asks_to_be_reinstalled(self):
        # A copy of the program in a bundle with neither credentials nor the demo.
        bundle = os.path.join(self.desktop.env["HOME"], "bundle")
        os.makedirs(os.path.join(bundle, "bin"))
        os.makedirs(os.path.join(bundle, "share", "vost"))
        shutil.copy(VOST, os.path.join(bundle, "bin", "vost"))
        with open(os.path.join(bundle, "share", "vost", "Info.json"), "w") as info:
            info.write('{"CFBundleShortVersionString": "0.1.0"}')
        vost = self.launch(binary=os.path.join(bundle, "bin", "vost"), args=())
        vost.open_popover()
        vost.find("heading", "Vost needs to be reinstalled")
        vost.find("paragraph", "This copy of Vost is missing its application configuration.", contains=True)
        self.assertEqual(vost.all("text"), [])


if __name__ == "__main__":
    main()
