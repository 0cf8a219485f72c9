#!/usr/bin/python3
"""Spelling in the composer: a right click on a misspelt word offers its
corrections, choosing one puts it in place (one step of undo), "Add to
dictionary" keeps the word from being offered again, and the "Check spelling"
preference turns it all off. Anywhere else the right click offers the editing
commands."""

import os
import time

from vostui import VostTestCase, dishonest_nodes, main, wait_until


class Spelling(VostTestCase):
    def compose(self, text):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        field = vost.find("text", "Message")
        vost.fill(field, text)
        wait_until(lambda: field.text() == text, what=f"{text!r} in the composer")
        return vost, field

    def word_point(self, field, word):
        """The middle of the word's middle letter on the screen. Qt's text fields
        may give no character extents: then it is reckoned from the field's
        padding (12) and an average letter of the 14-pixel font (7)."""
        import pyatspi
        middle = field.text().index(word) + len(word) // 2
        x, y, w, h = field.acc.queryText().getCharacterExtents(middle, pyatspi.DESKTOP_COORDS)
        if w > 0 and h > 0:
            return (x + w // 2, y + h // 2)
        left, top, width, height = field.extents()
        return (left + 12 + 7 * middle + 3, top + height // 2)

    def corrections(self, vost, field, word, timeout=15):
        """Right-clicks the word until its menu opens (the dictionary loads in the
        background the first time); the menu, or None if none opens."""
        deadline = time.monotonic() + timeout
        while time.monotonic() < deadline:
            vost.click(self.word_point(field, word), button=3)
            found = vost.all("popup menu", "Spelling")
            if found:
                return found[0]
            # The word is not known to be misspelt (yet): the editing commands.
            if vost.all("popup menu", "Edit"):
                vost.key("Escape")
            time.sleep(0.5)
        return None

    def test_a_correction_replaces_the_word_and_undo_brings_it_back(self):
        vost, field = self.compose("Helo wrld")
        menu = self.corrections(vost, field, "wrld")
        self.assertIsNotNone(menu, "no corrections offered for “wrld”")
        names = [item.name for item in vost.all("menu item", within=menu)]
        self.assertIn("world", names)
        self.assertIn("Add to dictionary", names)
        self.assertLessEqual(names.index("Add to dictionary"), 5)
        self.assertEqual(names[-1], "Select All")
        self.assertEqual(dishonest_nodes(menu), [])
        vost.find("menu item", "world", within=menu).press()
        vost.absent("popup menu", "Spelling")
        wait_until(lambda: field.text() == "Helo world", what="the correction in the composer")
        self.assertTrue(field.has_state("focused"))
        vost.key("ctrl+z")
        wait_until(lambda: field.text() == "Helo wrld", what="the word back after one undo")
        # The keyboard way: the cursor, just after the word, names it.
        vost.key("End", "shift+F10")
        menu = vost.find("popup menu", "Spelling")
        vost.find("menu item", "world", within=menu)
        vost.key("Escape")
        vost.absent("popup menu", "Spelling")

    def test_a_known_word_offers_the_editing_commands(self):
        vost, field = self.compose("Hello there")

        def menu_on(word):
            vost.click(self.word_point(field, word), button=3)
            return vost.find("popup menu", "Edit")

        menu = menu_on("Hello")
        # Nothing is selected: nothing to cut or copy.
        names = [item.name for item in vost.all("menu item", within=menu)]
        self.assertIn(names, (["Select All"], ["Paste", "Select All"]))
        self.assertEqual(vost.all("popup menu", "Spelling"), [])
        vost.find("menu item", "Select All", within=menu).press()
        vost.absent("popup menu", "Edit")
        menu = menu_on("there")
        names = [item.name for item in vost.all("menu item", within=menu)]
        self.assertEqual(names[:2], ["Cut", "Copy"])
        vost.find("menu item", "Cut", within=menu).press()
        wait_until(lambda: field.text() == "", what="the text cut")
        vost.click(field, button=3)
        vost.find("menu item", "Paste", within=vost.find("popup menu", "Edit")).press()
        wait_until(lambda: field.text() == "Hello there", what="the text pasted back")
        self.assertTrue(field.has_state("focused"))

    def test_an_added_word_is_offered_nothing_and_is_kept(self):
        vost, field = self.compose("Vostgram rocks")
        menu = self.corrections(vost, field, "Vostgram")
        self.assertIsNotNone(menu, "no menu for “Vostgram”")
        vost.find("menu item", "Add to dictionary", within=menu).press()
        vost.absent("popup menu", "Spelling")
        words = os.path.join(self.desktop.env["HOME"], ".local", "share", "Corvella", "Vost",
                             "personal-dictionary.txt")
        wait_until(lambda: os.path.exists(words), what="the personal word list")
        with open(words, encoding="utf-8") as file:
            self.assertEqual(file.read(), "Vostgram\n")
        vost.click(self.word_point(field, "Vostgram"), button=3)
        time.sleep(1)
        self.assertEqual(vost.all("popup menu", "Spelling"), [])

    def test_turning_the_check_off_removes_the_offer(self):
        vost, field = self.compose("Helo wrld")
        menu = self.corrections(vost, field, "wrld")
        self.assertIsNotNone(menu, "no corrections offered for “wrld”")
        vost.key("Escape")
        vost.absent("popup menu", "Spelling")
        vost.find("push button", "Preferences").press()
        page = vost.find("panel", "Preferences")
        check = vost.find("check box", "Check spelling", within=page)
        self.assertTrue(check.has_state("checked"))
        check.press()
        wait_until(lambda: not vost.find("check box", "Check spelling", within=page).has_state("checked"))
        vost.key("Escape")
        vost.absent("panel", "Preferences")
        field = vost.find("text", "Message")
        self.assertEqual(field.text(), "Helo wrld")
        self.assertIsNone(self.corrections(vost, field, "wrld", timeout=3))
        # The keyboard way to the menu offers no corrections either.
        vost.focus(field)
        vost.key("End", "shift+F10")
        menu = vost.find("popup menu", "Edit")
        self.assertEqual(vost.all("menu item", "world", within=menu), [])


if __name__ == "__main__":
    main()
