#!/usr/bin/python3
"""A closed popover does nothing: no frame is drawn and the program sleeps, on the
sign-in screen as with the chats, animations in view included. And what the
program maps stays small: neither the web engine nor an OpenGL driver is loaded
for a chat with photos, a GIF and animated stickers."""

import glob
import os
import time

from vostui import PHONE_FIELD, VostTestCase, main, wait_until


def wakeups(pid, thread_prefix):
    """How often the program's threads whose names start so have woken up so far."""
    total = 0
    for task in glob.glob(f"/proc/{pid}/task/*"):
        with open(os.path.join(task, "comm")) as comm:
            if not comm.read().startswith(thread_prefix):
                continue
        with open(os.path.join(task, "status")) as status:
            for line in status:
                if line.startswith(("voluntary_ctxt_switches", "nonvoluntary_ctxt_switches")):
                    total += int(line.split()[1])
    return total


class ClosedPopover(VostTestCase):
    signed_in = False

    def assert_quiet_while_closed(self, vost):
        # Once what was under way (downloads, read receipts) has ended, the main
        # thread (which draws, with the software renderer) and any render thread
        # sleep; TDLib's receive loop wakes once a second on a thread of its own.
        pid = vost.process.pid

        def quiet_for_three_seconds():
            frames, main_thread = wakeups(pid, "QSGRenderThread"), wakeups(pid, "vost")
            time.sleep(3)
            return wakeups(pid, "QSGRenderThread") == frames and wakeups(pid, "vost") == main_thread
        wait_until(quiet_for_three_seconds, timeout=20, interval=0, what="a closed popover at rest")

    def test_the_sign_in_screen_is_quiet_while_closed(self):
        vost = self.launch()
        vost.open_popover()
        field = vost.find("text", PHONE_FIELD, timeout=20)
        wait_until(lambda: field.has_state("focused"), what="the phone field focused")
        vost.type("+1 555")
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")
        self.assert_quiet_while_closed(vost)
        vost.open_popover()
        self.assertEqual(vost.find("text", PHONE_FIELD).text(), "+1 555")

    def open_chat_with_animations(self, vost):
        vost.open_popover()
        vost.wait_for_chats()
        vost.open_chat("Emma Wilson")
        # Up to a looping GIF, past animated stickers.
        messages = vost.find("list", "Messages")
        stickers_seen = False
        for _ in range(60):
            stickers_seen = stickers_seen or bool(vost.all("image", "Sticker", contains=True, within=messages))
            if stickers_seen and any(m.name.startswith("Emma Wilson: GIF") for m in vost.messages()):
                break
            vost.wheel(messages, 1)
            time.sleep(0.1)
        self.assertTrue(stickers_seen, "no sticker on the way")
        vost.find("image", "GIF", within=messages)

    def test_the_chats_are_quiet_while_closed(self):
        vost = self.launch(signed_in=True)
        self.open_chat_with_animations(vost)
        vost.focus(vost.find("text", "Message"))
        vost.click_tray()
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")
        self.assert_quiet_while_closed(vost)

    def test_no_web_engine_or_opengl_driver_without_video_stickers(self):
        vost = self.launch(signed_in=True)
        self.open_chat_with_animations(vost)
        mapped = vost.loaded_libraries()
        self.assertFalse({name for name in mapped if "WebEngine" in name}, "QtWebEngine is loaded")
        drivers = {name for name in mapped if name.startswith(("libGLX_", "libEGL_", "libLLVM")) or "_dri" in name}
        self.assertFalse(drivers, "an OpenGL driver is loaded")


if __name__ == "__main__":
    main()
