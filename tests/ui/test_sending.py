#!/usr/bin/python3
"""Sending anything: files through the desktop's dialog and the clipboard, stickers,
emoji, and the message menu's reactions, forwarding and copying."""

import filecmp
import os
import subprocess
import time

from vostui import VostTestCase, dishonest_nodes, main, wait_until


def make_picture(path, colour, size="64x48"):
    subprocess.run(["convert", "-size", size, f"xc:{colour}", path], check=True)


class Files(VostTestCase):
    def make_files(self):
        folder = os.path.join(self.desktop.env["HOME"], "Pictures")
        os.makedirs(folder, exist_ok=True)
        for name, colour in (("red.png", "red"), ("green.jpg", "green"), ("blue.png", "blue")):
            make_picture(os.path.join(folder, name), colour)
        with open(os.path.join(folder, "itinerary.pdf"), "wb") as pdf:
            pdf.write(b"%PDF-1.4\n% a small document\n" + b"0" * 3000)
        with open(os.path.join(folder, "empty.txt"), "wb"):
            pass
        return folder

    def test_attached_photos_and_a_document_arrive_as_an_album_and_a_file(self):
        self.make_files()
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        vost.find("push button", "Attach").press()
        # The popover steps aside for the desktop's file dialog.
        wait_until(lambda: not vost.popover_shown(), what="the popover out of the dialog's way")
        dialog = vost.find("dialog", "Attach files", timeout=15)
        # Longer than a closed popover keeps its views: the composer the dialog
        # answers to must still be there.
        time.sleep(6)
        name = vost.find("text", within=dialog)
        vost.fill(name, '"red.png" "green.jpg" "blue.png" "itinerary.pdf" "empty.txt"')
        vost.key("Return")
        wait_until(vost.popover_shown, what="the popover back after the dialog")
        strip = vost.find("panel", "Files to send")
        for item in ("Photo red.png", "Photo green.jpg", "Photo blue.png"):
            vost.find("list item", item, within=strip)
        vost.find("list item", "Document itinerary.pdf", contains=True, within=strip)
        vost.find("alert", "empty.txt is empty and can’t be sent.")
        vost.find("check box", "Send as file", within=strip)
        self.assertEqual(dishonest_nodes(strip), [])
        vost.find("push button", "Remove green.jpg", within=strip).press()
        vost.absent("list item", "Photo green.jpg")
        vost.fill(vost.find("text", "Message"), "Colours")
        vost.find("push button", "Send").press()
        vost.absent("panel", "Files to send")
        # Two photos as one album with the caption, the document on its own.
        album = vost.find("list item", "You: Album, 2 photos, Colours", contains=True, timeout=15)
        self.assertEqual(len(vost.all("image", "Photo", within=album)), 2)
        vost.find("list item", "You: Document itinerary.pdf", contains=True, timeout=15)

    def attach(self, vost, names):
        """Picks names in the desktop's file dialog; the popover comes back after it."""
        vost.find("push button", "Attach").press()
        wait_until(lambda: not vost.popover_shown(), what="the popover out of the dialog's way")
        dialog = vost.find("dialog", "Attach files", timeout=15)
        vost.fill(vost.find("text", within=dialog), names)
        vost.key("Return")
        wait_until(vost.popover_shown, what="the popover back after the dialog")

    def test_an_unreadable_file_is_refused_and_a_text_named_png_goes_as_a_document(self):
        folder = self.make_files()
        # Nobody reads from a pipe that nothing writes to, not even root.
        os.mkfifo(os.path.join(folder, "locked.bin"))
        with open(os.path.join(folder, "fake.png"), "w") as fake:
            fake.write("Only text, whatever the name says.\n" * 20)
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        self.attach(vost, '"red.png" "locked.bin" "fake.png"')
        strip = vost.find("panel", "Files to send")
        vost.find("list item", "Photo red.png", within=strip)
        vost.find("list item", "Document fake.png", contains=True, within=strip)
        vost.find("alert", "locked.bin can’t be read.")
        self.assertEqual(dishonest_nodes(strip), [])
        vost.find("push button", "Remove red.png", within=strip).press()
        vost.find("push button", "Send").press()
        vost.absent("panel", "Files to send")
        # The bot thanks for a file; a photo would have been "Nice photo!".
        vost.find("list item", "Vost Helper: Got your file, thanks!", contains=True, timeout=15)

    def test_a_long_strip_shows_that_it_scrolls(self):
        folder = self.make_files()
        names = [f"p{i:02}.png" for i in range(12)]
        for name in names:
            make_picture(os.path.join(folder, name), "orange")
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        self.attach(vost, " ".join(f'"{name}"' for name in names))
        strip = vost.find("panel", "Files to send")
        bar = vost.find("scroll bar", "Scroll files to send", within=strip)
        check = vost.find("check box", "Send as file", within=strip)
        # The check box stays beside the row, inside the strip, whatever scrolls.
        x, _, width, _ = strip.extents()
        bar_x, _, bar_width, _ = bar.extents()
        check_x, _, check_width, _ = check.extents()
        self.assertLessEqual(check_x + check_width, x + width)
        self.assertLessEqual(bar_x + bar_width, check_x)
        self.assertEqual(dishonest_nodes(strip), [])

    def test_the_popover_comes_back_after_a_cancelled_dialog(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        vost.find("push button", "Attach").press()
        wait_until(lambda: not vost.popover_shown(), what="the popover out of the dialog's way")
        dialog = vost.find("dialog", "Attach files", timeout=15)
        vost.find("push button", "Cancel", within=dialog).press()
        wait_until(vost.popover_shown, what="the popover back after the dialog")
        # Still there, and working, a moment later.
        vost.fill(vost.find("text", "Message"), "Still here")
        vost.key("Return")
        vost.find("list item", "You: Still here", contains=True, timeout=15)
        self.assertTrue(vost.popover_shown())

    def test_a_pasted_picture_waits_to_be_sent(self):
        folder = self.make_files()
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        subprocess.run(["xclip", "-selection", "clipboard", "-t", "image/png", "-i", os.path.join(folder, "red.png")],
                       env=self.desktop.env, check=True, timeout=10)
        vost.focus(vost.find("text", "Message"))
        vost.key("ctrl+v")
        vost.find("list item", "Photo Pasted image", contains=True)
        self.assertEqual(vost.find("text", "Message").text(), "")
        # A sticker sent meanwhile leaves it waiting.
        vost.find("push button", "Stickers").press()
        picker = vost.find("dialog", "Sticker picker")
        vost.find("push button", "Sticker 😄", within=picker).press()
        vost.find("list item", "You: Sticker 😄", contains=True, timeout=15)
        vost.find("list item", "Photo Pasted image", contains=True, within=vost.find("panel", "Files to send"))
        vost.find("push button", "Send").press()
        vost.find("list item", "You: Photo, ", contains=True, timeout=15)


class DesktopChooser(VostTestCase):
    """Where the desktop lends its own file chooser (the XDG portal; here GNOME's),
    attaching and saving go through it instead of Qt's dialog."""

    def setUp(self):
        super().setUp()
        portal = self.desktop.start_file_portal()
        self.addCleanup(self.desktop.stop, portal)

    def chooser(self, vost, title):
        wait_until(lambda: not vost.popover_shown(), what="the popover out of the chooser's way")
        chooser = wait_until(lambda: (app := self.desktop.application("xdg-desktop-portal-gtk")) and vost.all(
            "file chooser", title, within=app), timeout=20, what=f"the desktop's chooser {title!r}")
        vost.absent("dialog", title)
        return chooser[0]

    def answer(self, text):
        """Types into the chooser's location field, as a person would, and confirms."""
        self.desktop.xdotool("search", "--sync", "--onlyvisible", "--name", "^(Attach files|Save)$", "windowfocus",
                             "--sync")
        self.desktop.xdotool("key", "--delay", "60", "ctrl+l")
        self.desktop.xdotool("key", "--delay", "60", "ctrl+a")
        self.desktop.xdotool("type", "--delay", "20", text)
        time.sleep(0.5)
        self.desktop.xdotool("key", "Return")

    def test_a_file_is_attached_and_saved_through_the_desktops_chooser(self):
        folder = Files.make_files(self)
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        vost.find("push button", "Attach").press()
        self.chooser(vost, "Attach files")
        self.answer(os.path.join(folder, "itinerary.pdf"))
        wait_until(vost.popover_shown, timeout=15, what="the popover back after the chooser")
        strip = vost.find("panel", "Files to send")
        vost.find("list item", "Document itinerary.pdf", contains=True, within=strip)
        vost.find("push button", "Send").press()
        vost.absent("panel", "Files to send")
        # The helper's answer comes after the document's: the list is settled then.
        vost.find("list item", "Vost Helper: Got your file", contains=True, timeout=15)
        document = vost.find("list item", "You: Document itinerary.pdf", contains=True)

        # A copy goes where the chooser says.
        vost.find("push button", "Save", within=document, timeout=15).press()
        self.chooser(vost, "Save")
        target = os.path.join(self.desktop.work, "copy.pdf")
        self.answer(target)
        wait_until(lambda: os.path.exists(target) and filecmp.cmp(target, os.path.join(folder, "itinerary.pdf"),
                                                                  shallow=False), what="the saved copy")
        wait_until(vost.popover_shown, timeout=15, what="the popover back after saving")

        # Cancelled: the popover comes back with nothing attached.
        vost.find("push button", "Attach").press()
        chooser = self.chooser(vost, "Attach files")
        # GTK names the action "click".
        vost.find("push button", "Cancel", within=chooser).do("click")
        wait_until(vost.popover_shown, timeout=15, what="the popover back after a cancelled chooser")
        vost.absent("panel", "Files to send")


class Pickers(VostTestCase):
    def test_stickers_load_search_and_send(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        vost.find("push button", "Stickers").press()
        picker = vost.find("dialog", "Sticker picker")
        vost.find("page tab", "Recent", within=picker)
        vost.find("push button", "Sticker 😄", within=picker)
        vost.find("page tab", "Installed", within=picker).press()
        vost.find("push button", "Sticker 🌧", within=picker)
        vost.fill(vost.find("text", "Search stickers"), "cat")
        vost.find("push button", "Sticker 🙀", within=picker)
        vost.absent("push button", "Sticker 🌧", within=picker)
        vost.fill(vost.find("text", "Search stickers"), "🌈")
        vost.find("push button", "Sticker 🌈", within=picker)
        vost.absent("push button", "Sticker 🙀", within=picker)
        self.assertEqual(dishonest_nodes(picker), [])
        vost.press("push button", "Sticker 🌈", within=picker)
        vost.absent("dialog", "Sticker picker")
        vost.find("list item", "You: Sticker 🌈", contains=True, timeout=15)

    def test_an_emoji_found_by_name_goes_in_at_the_cursor(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        composer = vost.find("text", "Message")
        vost.fill(composer, "Look ")
        vost.find("push button", "Emoji").press()
        picker = vost.find("dialog", "Emoji picker")
        vost.fill(vost.find("text", "Search emoji", within=picker), "grinning cat")
        vost.press("push button", "😺 grinning cat", within=picker)
        wait_until(lambda: composer.text() == "Look 😺", what="the emoji in the composer")
        self.assertEqual(dishonest_nodes(picker), [])
        # Esc closes the picker before anything else: the text stays.
        vost.key("Escape")
        vost.absent("dialog", "Emoji picker")
        self.assertEqual(composer.text(), "Look 😺")
        self.assertTrue(vost.popover_shown())
        # The emoji is recent now: first when the picker opens again.
        vost.find("push button", "Emoji").press()
        picker = vost.find("dialog", "Emoji picker")
        first = vost.all("push button", within=vost.find("list", "Emoji", within=picker))[0]
        self.assertEqual(first.name, "😺 grinning cat")


class MessageMenu(VostTestCase):
    def open_menu(self, vost, message):
        vost.find("list item", message, contains=True).press()
        return vost.find("popup menu", "Message actions")

    def test_reacting_from_the_palette_and_taking_it_back(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        question = "Emma Wilson: Are we still on for tonight?"
        menu = self.open_menu(vost, question)
        palette = [button.name for button in vost.all("push button", within=menu)]
        self.assertEqual(palette, ["😁", "👍", "❤️", "👎", "🔥", "🥰", "👏"])
        self.assertTrue(vost.find("push button", "❤️", within=menu).has_state("checked"))
        vost.find("push button", "🔥", within=menu).press()
        wait_until(lambda: "🔥 1, yours" in vost.find("list item", question, contains=True).name, timeout=10,
                   what="the fire reaction on the message")
        menu = self.open_menu(vost, question)
        self.assertTrue(vost.find("push button", "🔥", within=menu).has_state("checked"))
        vost.find("push button", "🔥", within=menu).press()
        wait_until(lambda: "🔥" not in vost.find("list item", question, contains=True).name, timeout=10,
                   what="the fire reaction taken back")

    def test_forwarding_opens_the_chat_it_went_to(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        self.open_menu(vost, "You: Of course! See you at 7")
        vost.find("menu item", "Forward").press()
        dialog = vost.find("dialog", "Forward to")
        vost.fill(vost.find("text", "Search chats", within=dialog), "Liam")
        rows = wait_until(lambda: [r for r in vost.all("list item", within=dialog)] or None, what="Liam's chat")
        self.assertEqual([r.name.split(",")[0] for r in rows], ["Liam Chen"])
        self.assertEqual(dishonest_nodes(dialog), [])
        rows[0].press()
        vost.find("panel", "Conversation with Liam Chen")
        vost.find("list item", "You: Of course! See you at 7 🍕", contains=True, timeout=10)

    def test_copy_puts_the_text_on_the_clipboard(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        self.open_menu(vost, "Emma Wilson: Are we still on for tonight?")
        vost.find("menu item", "Copy").press()

        def clipboard():
            return subprocess.run(["xclip", "-o", "-selection", "clipboard"], env=self.desktop.env,
                                  capture_output=True, text=True, timeout=5).stdout
        wait_until(lambda: clipboard() == "Are we still on for tonight? :)", what="the text on the clipboard")


if __name__ == "__main__":
    main()
