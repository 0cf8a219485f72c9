#!/usr/bin/python3
"""The preferences page: reached from the sidebar's toolbar or Ctrl+, and left with
Esc; appearance applied at once, sounds, notifications and starting at login
stored where the program reads them, "Change account" back to sign-in, and the
global shortcut recorded on the page and grabbed on the X server."""

import configparser
import os
import subprocess
import time

from vostui import CODE_FIELD, DEMO_CODE, DEMO_PHONE, PHONE_FIELD, VostTestCase, dishonest_nodes, main, wait_until


def stored(vost, key):
    settings = configparser.ConfigParser(interpolation=None)
    settings.optionxform = str
    settings.read(vost.settings_path)
    return settings.get("General", key, fallback=None)


def brightness(path):
    out = subprocess.run(["convert", path, "-colorspace", "gray", "-format", "%[fx:mean]", "info:"],
                         capture_output=True, text=True, check=True).stdout
    return float(out)


class Preferences(VostTestCase):
    def open_preferences(self):
        vost = self.open_signed_in()
        vost.find("push button", "Preferences").press()
        return vost, vost.find("panel", "Preferences")

    def test_the_page_shows_every_preference_and_esc_returns_to_the_chats(self):
        vost, page = self.open_preferences()
        for name in ("System", "Light", "Dark", "Crystal", "Gentle", "Classic", "Playful"):
            vost.find("radio button", name, within=page)
        for name in ("Play sounds", "Show notifications", "Start Vost when I sign in to my computer"):
            vost.find("check box", name, within=page)
        vost.find("push button", "Change account", within=page)
        vost.find("paragraph", "Demo account: nothing leaves this computer", within=page)
        vost.find("paragraph", "Vost 0.1", contains=True, within=page)
        self.assertEqual(dishonest_nodes(page), [])
        vost.key("Escape")
        vost.absent("panel", "Preferences")
        vost.find("list", "Chat list")
        self.assertTrue(vost.popover_shown())
        # The keyboard way in.
        vost.key("ctrl+comma")
        vost.find("panel", "Preferences")
        vost.find("push button", "Back").press()
        vost.absent("panel", "Preferences")

    def test_the_number_reads_in_international_form_and_the_version_line_can_be_seen(self):
        vost, page = self.open_preferences()
        vost.find("paragraph", "+1 555 0100", within=page)
        version = vost.find("paragraph", "Vost 0.1", contains=True, within=page)
        left, top, width, height = vost.window().extents()

        def in_view():
            x, y, w, h = version.extents()
            return h > 0 and y >= top and y + h <= top + height and x >= left and x + w <= left + width
        # The whole page fits the popover as it opens, down to its last line.
        self.assertTrue(in_view(), f"the version line at {version.extents()} inside {vost.window().extents()}")

    def test_dark_applies_at_once_and_is_remembered(self):
        vost, page = self.open_preferences()
        light = brightness(self.desktop.screenshot(os.path.join(self.desktop.work, "light.png"),
                                                   crop=vost.window().extents()))
        vost.find("radio button", "Dark", within=page).press()
        wait_until(lambda: vost.find("radio button", "Dark", within=page).has_state("checked"))
        dark = brightness(self.desktop.screenshot(os.path.join(self.desktop.work, "dark.png"),
                                                  crop=vost.window().extents()))
        self.assertLess(dark, light - 0.3)
        wait_until(lambda: stored(vost, "vostAppearanceMode") == "dark", what="the mode stored")
        vost.find("radio button", "Light", within=page).press()
        wait_until(lambda: stored(vost, "vostAppearanceMode") == "light", what="the mode stored")

    def test_sounds_pack_and_notifications_are_stored(self):
        vost, page = self.open_preferences()
        sounds = vost.find("check box", "Play sounds", within=page)
        self.assertTrue(sounds.has_state("checked"))
        sounds.press()
        wait_until(lambda: stored(vost, "soundsEnabled") == "false", what="sounds off stored")
        wait_until(lambda: not vost.find("check box", "Play sounds", within=page).has_state("checked"))
        self.assertTrue(vost.find("radio button", "Crystal", within=page).has_state("checked"))
        vost.find("radio button", "Playful", within=page).press()
        wait_until(lambda: stored(vost, "soundPack") == "playful", what="the pack stored")
        self.assertFalse(vost.find("radio button", "Crystal", within=page).has_state("checked"))
        vost.find("check box", "Show notifications", within=page).press()
        wait_until(lambda: stored(vost, "showNotifications") == "false", what="notifications off stored")

    def test_starting_at_login_writes_and_removes_the_autostart_entry(self):
        vost, page = self.open_preferences()
        entry = os.path.join(self.desktop.env["HOME"], ".config", "autostart", "com.corvella.Vost.desktop")
        self.assertFalse(os.path.exists(entry))
        vost.find("check box", "Start Vost when I sign in to my computer", within=page).press()
        wait_until(lambda: os.path.exists(entry), what="the autostart entry")
        with open(entry) as file:
            text = file.read()
        self.assertIn("[Desktop Entry]", text)
        self.assertIn("Exec=", text)
        vost.find("check box", "Start Vost when I sign in to my computer", within=page).press()
        wait_until(lambda: not os.path.exists(entry), what="the autostart entry gone")

    def test_change_account_signs_out_to_the_sign_in_screen(self):
        vost, page = self.open_preferences()
        vost.find("push button", "Change account", within=page).press()
        dialog = vost.find("dialog", "Sign out of this account and sign in to another?")
        vost.find("push button", "Change account", within=dialog).press()
        phone = vost.find("text", PHONE_FIELD, timeout=20)
        vost.absent("list", "Chat list")
        vost.fill(phone, DEMO_PHONE)
        vost.key("Return")
        vost.fill(vost.find("text", CODE_FIELD, timeout=15), DEMO_CODE)
        vost.key("Return")
        vost.wait_for_chats()


class Sounds(VostTestCase):
    """What comes out of the speakers: the sound server's null sink, recorded."""

    AUDIBLE = 0.01

    def wait_for_quiet(self):
        """Past the sound of signing in: a second of silence."""
        for _ in range(10):
            with self.desktop.listening() as heard:
                time.sleep(1.0)
            if heard[0] < self.AUDIBLE:
                return
        self.fail("the speakers never went quiet")

    def test_a_new_message_is_heard_until_sounds_are_turned_off(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        self.wait_for_quiet()

        def bot_answers(prompt):
            vost.send(prompt)
            vost.find("list item", f"Vost Helper: You said: “{prompt}”", contains=True, timeout=10)
            # The sound follows the message onto the screen.
            time.sleep(1.0)

        with self.desktop.listening() as heard:
            bot_answers("first")
        self.assertGreater(heard[0], self.AUDIBLE, "the new message was not heard")
        vost.find("push button", "Preferences").press()
        vost.find("check box", "Play sounds", within=vost.find("panel", "Preferences")).press()
        wait_until(lambda: stored(vost, "soundsEnabled") == "false", what="sounds off stored")
        vost.key("Escape")
        vost.absent("panel", "Preferences")
        with self.desktop.listening() as heard:
            bot_answers("second")
        self.assertLess(heard[0], self.AUDIBLE, "a sound played with sounds off")

    def test_choosing_a_pack_plays_its_preview_even_with_sounds_off(self):
        vost = self.open_signed_in()
        vost.find("push button", "Preferences").press()
        page = vost.find("panel", "Preferences")
        vost.find("check box", "Play sounds", within=page).press()
        wait_until(lambda: stored(vost, "soundsEnabled") == "false", what="sounds off stored")
        self.wait_for_quiet()
        with self.desktop.listening() as heard:
            vost.find("radio button", "Classic", within=page).press()
            time.sleep(1.5)
        self.assertGreater(heard[0], self.AUDIBLE, "the pack's preview was not heard")


# Another X client holding Ctrl+Alt+K (Xlib through ctypes) until it is ended.
KEY_HOLDER = """
import ctypes, sys, time
x = ctypes.cdll.LoadLibrary("libX11.so.6")
x.XOpenDisplay.restype = ctypes.c_void_p
x.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
x.XDefaultRootWindow.restype = ctypes.c_ulong
x.XKeysymToKeycode.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
x.XGrabKey.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_uint, ctypes.c_ulong, ctypes.c_int, ctypes.c_int,
                       ctypes.c_int]
x.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
display = x.XOpenDisplay(None)
keycode = x.XKeysymToKeycode(display, ord("k"))
x.XGrabKey(display, keycode, 4 | 8, x.XDefaultRootWindow(display), 1, 1, 1)
x.XSync(display, 0)
print("held", flush=True)
time.sleep(600)
"""


class Shortcut(VostTestCase):
    """The global shortcut, recorded on the page and grabbed on the X server."""

    def shortcut_button(self, vost):
        vost.find("push button", "Preferences").press()
        return vost.find("push button", "Shortcut to open Vost", within=vost.find("panel", "Preferences"))

    def leave_popover(self, vost):
        vost.key("Escape")
        vost.absent("panel", "Preferences")
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")

    def test_a_recorded_shortcut_opens_and_closes_the_popover_until_cleared(self):
        vost = self.open_signed_in()
        button = self.shortcut_button(vost)
        self.assertEqual(button.description, "None")
        # A key without Ctrl, Alt or Meta is not a shortcut; Esc gives up recording.
        button.press()
        wait_until(lambda: button.description == "Press keys…", what="recording")
        vost.key("k")
        self.assertEqual(button.description, "Press keys…")
        vost.key("Escape")
        wait_until(lambda: button.description == "None", what="recording given up")
        vost.find("panel", "Preferences")

        button.press()
        wait_until(lambda: button.description == "Press keys…", what="recording")
        vost.key("ctrl+alt+k")
        wait_until(lambda: stored(vost, "globalShortcut") == "Ctrl+Alt+K", what="the shortcut stored")
        wait_until(lambda: button.description == "Ctrl+Alt+K", what="the shortcut shown")
        vost.absent("paragraph", "Taken by another program", timeout=1)
        # While recording, the combination is the page's: the popover stays.
        button.press()
        wait_until(lambda: button.description == "Press keys…", what="recording")
        vost.key("ctrl+alt+k")
        wait_until(lambda: button.description == "Ctrl+Alt+K", what="the same shortcut recorded")
        self.assertTrue(vost.popover_shown())

        self.leave_popover(vost)
        vost.key("ctrl+alt+k")
        wait_until(vost.popover_shown, what="the popover opened by the shortcut")
        vost.key("ctrl+alt+k")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the shortcut")

        # Backspace clears it, and the combination is the desktop's again.
        vost.key("ctrl+alt+k")
        wait_until(vost.popover_shown, what="the popover")
        vost.find("list", "Chat list")
        button = self.shortcut_button(vost)
        button.press()
        wait_until(lambda: button.description == "Press keys…", what="recording")
        vost.key("BackSpace")
        wait_until(lambda: stored(vost, "globalShortcut") == "", what="the shortcut cleared")
        self.assertEqual(button.description, "None")
        self.leave_popover(vost)
        vost.key("ctrl+alt+k")
        time.sleep(1.0)
        self.assertFalse(vost.popover_shown())

    def test_a_shortcut_another_program_holds_is_said_to_be_taken(self):
        holder = subprocess.Popen(["/usr/bin/python3", "-c", KEY_HOLDER], env=self.desktop.env,
                                  stdout=subprocess.PIPE, text=True)
        self.addCleanup(holder.wait)
        self.addCleanup(holder.kill)
        self.assertEqual(holder.stdout.readline().strip(), "held")
        vost = self.open_signed_in(settings={"globalShortcut": "Ctrl+Alt+K"})
        button = self.shortcut_button(vost)
        self.assertEqual(button.description, "Ctrl+Alt+K")
        page = vost.find("panel", "Preferences")
        vost.find("paragraph", "Taken by another program", within=page)
        # A combination nobody holds is ours, and the note goes.
        button.press()
        wait_until(lambda: button.description == "Press keys…", what="recording")
        vost.key("ctrl+alt+j")
        wait_until(lambda: button.description == "Ctrl+Alt+J", what="the new shortcut shown")
        vost.absent("paragraph", "Taken by another program", within=page)


if __name__ == "__main__":
    main()
