#!/usr/bin/python3
"""A long look around, as a newcomer takes it: every chat opened, the pickers,
files attached and pasted, the viewer with its saves, a document saved, quick
switching between chats, then the popover closed long enough to let its
views go and opened again. It runs in the sanitized build too (./run.sh test
--sanitize), where a fault in the lifetime of what it touches is reported."""

import os
import subprocess
import time

import test_messages
from test_sending import make_picture
from vostui import VostTestCase, main, wait_until


class Walk(VostTestCase):
    def open_every_chat(self, vost):
        chats = vost.find("list", "Chat list")
        opened = []
        for _ in range(20):
            fresh = [row for row in vost.chat_rows() if row.name not in opened]
            for row in fresh:
                title = row.name.split(",")[0]
                row.press()
                vost.find("panel", "Conversation with " + title, contains=True)
                opened.append(row.name)
            before = [row.name for row in vost.chat_rows()]
            vost.wheel(chats, 3, down=True)
            time.sleep(0.3)
            if [row.name for row in vost.chat_rows()] == before:
                break
        # The demo account has more chats than the list shows at once.
        self.assertGreater(len(opened), 12, opened)
        vost.wheel(chats, 40)
        time.sleep(0.3)

    def pickers(self, vost):
        vost.find("push button", "Emoji").press()
        vost.find("dialog", "Emoji picker")
        vost.key("Escape")
        vost.absent("dialog", "Emoji picker")
        vost.find("push button", "Stickers").press()
        picker = vost.find("dialog", "Sticker picker")
        vost.find("page tab", "Installed", within=picker).press()
        vost.find("push button", "Sticker 🌧", within=picker)
        vost.key("Escape")
        vost.absent("dialog", "Sticker picker")

    def media_of_emma(self, vost, cases):
        messages = vost.open_transcript("Emma Wilson", test_messages.NEWEST)
        self.pickers(vost)
        # From the newest back: the document, the GIF, the album.
        document = cases.scroll_to(vost, messages, test_messages.KINDS["document"])
        vost.save_through_dialog(vost.find("push button", "Save", within=document, timeout=15),
                                 os.path.join(self.desktop.work, "walk.pdf"))
        viewer = cases.view_gif(vost, messages)
        cases.save_from(vost, viewer, os.path.join(self.desktop.work, "walk.gif"))
        vost.key("Right")
        vost.key("Left")
        cases.save_from(vost, viewer)
        vost.key("Escape")
        vost.absent("dialog", "Photo viewer")
        album = cases.scroll_to(vost, messages, test_messages.KINDS["album"])
        photos = wait_until(lambda: len(vost.all("image", "Photo", within=album)) == 3 and
                                    vost.all("image", "Photo", within=album), what="three photos in the album")
        photos[0].press()
        viewer = vost.find("dialog", "Photo viewer")
        for _ in range(3):
            vost.key("Right")
        cases.save_from(vost, viewer, os.path.join(self.desktop.work, "walk.jpg"))
        vost.key("Escape")
        vost.absent("dialog", "Photo viewer")

    def files_to_helper(self, vost):
        folder = os.path.join(self.desktop.env["HOME"], "Pictures")
        os.makedirs(folder, exist_ok=True)
        make_picture(os.path.join(folder, "walk.png"), "orange")
        vost.open_chat("Vost Helper")
        vost.find("push button", "Attach").press()
        wait_until(lambda: not vost.popover_shown(), what="the popover out of the dialog's way")
        dialog = vost.find("dialog", "Attach files", timeout=15)
        vost.fill(vost.find("text", within=dialog), os.path.join(folder, "walk.png"))
        vost.key("Return")
        wait_until(vost.popover_shown, what="the popover back after the dialog")
        subprocess.run(["xclip", "-selection", "clipboard", "-t", "image/png", "-i", os.path.join(folder, "walk.png")],
                       env=self.desktop.env, check=True, timeout=10)
        vost.focus(vost.find("text", "Message"))
        vost.key("ctrl+v")
        strip = vost.find("panel", "Files to send")
        vost.find("list item", "Photo Pasted image", contains=True, within=strip)
        vost.find("push button", "Send").press()
        vost.find("list item", "You: Album, 2 photos", contains=True, timeout=15)

    def switch_quickly(self, vost):
        rows = vost.chat_rows()[:6]
        titles = [row.name.split(",")[0] for row in rows]
        for _ in range(3):
            for row in rows:
                row.press()
        vost.find("panel", "Conversation with " + titles[-1], contains=True)

    def test_a_long_look_around_leaves_vost_running(self):
        vost = self.open_signed_in()
        cases = test_messages.Messages()
        self.open_every_chat(vost)
        self.media_of_emma(vost, cases)
        self.files_to_helper(vost)
        self.switch_quickly(vost)
        # Closed long enough for the views to go, then back.
        for _ in range(4):
            if not vost.popover_shown():
                break
            vost.key("Escape")
            time.sleep(0.3)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")
        time.sleep(7)
        vost.open_popover()
        vost.wait_for_chats()
        vost.open_chat("Emma Wilson")
        vost.find("list item", test_messages.NEWEST, contains=True)
        self.assertTrue(vost.running())


if __name__ == "__main__":
    main()
