#!/usr/bin/python3
"""Vost in the user's language: the system's language chosen at start (Russian,
Persian), Persian's mirrored layout, dates and digits in the language's own
form, a switch in Preferences that changes what is already shown, and text
written right to left laid out right to left in an English popover, in a
message and in the composer as it is typed."""

import os
import re
import subprocess
import tempfile
import time

from vostui import VostTestCase, main, wait_until

PERSIAN_MESSAGE = "سلام! عکس‌های سفر"
CYRILLIC = re.compile(r"[А-Яа-яЁё]")
PERSIAN_TIME = re.compile(r"[۰-۹]{1,2}:[۰-۹]{2}")
PERSIAN_DIGIT = re.compile(r"[۰-۹]")

_locales = None


def locale_folder():
    """ru_RU.UTF-8 and fa_IR.UTF-8 compiled into a folder of this run (LOCPATH),
    so that the C library knows them without the machine's locales being set up."""
    global _locales
    if _locales is None:
        _locales = tempfile.mkdtemp(prefix="vost-locales.")
        for name in ("ru_RU", "fa_IR"):
            subprocess.run(["localedef", "-i", name, "-f", "UTF-8", os.path.join(_locales, name + ".UTF-8")],
                           check=True, capture_output=True)
    return _locales


def language_env(lang, language=None):
    env = {"LOCPATH": locale_folder(), "LANG": lang}
    if language:
        env["LANGUAGE"] = language
    return env


def scroll_to_a_day(vost, messages):
    """Up to a day's separator (vostui's own scrolling knows the list by its English name)."""
    for _ in range(40):
        if vost.all("heading", within=messages):
            return
        vost.wheel(messages, 2)
        time.sleep(0.3)


class SystemLanguage(VostTestCase):
    def open_in(self, lang, language=None):
        vost = self.launch(extra_env=language_env(lang, language))
        vost.open_popover()
        return vost

    def open_emma(self, vost, messages_name):
        row = vost.find("list item", "Emma Wilson", contains=True)
        row.press()
        messages = vost.find("list", messages_name)
        wait_until(lambda: len(vost.all("list item", within=messages)) >= 3, what="Emma's messages")
        return messages

    def test_russian_names_controls_and_dates_in_russian(self):
        vost = self.open_in("ru_RU.UTF-8", "ru")
        vost.find("list", "Список чатов")
        vost.find("text", "Поиск")
        messages = self.open_emma(vost, "Сообщения")
        vost.find("panel", "Переписка с Emma Wilson")
        vost.find("push button", "Отправить")
        vost.find("text", "Сообщение")
        scroll_to_a_day(vost, messages)
        headings = [h.name for h in vost.all("heading", within=messages)]
        self.assertTrue(any(CYRILLIC.search(name) for name in headings), f"the day separators read {headings}")
        # The header's presence, made by the session.
        vost.find("heading", "Emma Wilson, В сети", contains=True)

    def test_persian_mirrors_the_popover_and_writes_persian_digits(self):
        vost = self.open_in("fa_IR.UTF-8")
        chats = vost.find("list", "فهرست گفتگوها")
        messages = self.open_emma(vost, "پیام‌ها")
        send = vost.find("push button", "ارسال")
        field = vost.find("text", "پیام")
        sx, _, sw, _ = send.extents()
        fx, _, fw, _ = field.extents()
        self.assertLessEqual(sx + sw, fx, f"Send at {send.extents()} is not left of the field at {field.extents()}")
        cx, _, _, _ = chats.extents()
        mx, _, mw, _ = messages.extents()
        self.assertGreaterEqual(cx, mx + mw - 2, "the chat list is not right of the conversation")
        scroll_to_a_day(vost, messages)
        headings = [h.name for h in vost.all("heading", within=messages)]
        self.assertTrue(any(PERSIAN_DIGIT.search(name) for name in headings), f"the day separators read {headings}")
        names = [m.name for m in vost.all("list item", within=messages)]
        self.assertTrue(any(PERSIAN_TIME.search(name) for name in names), f"the messages read {names}")


class Switching(VostTestCase):
    def test_choosing_deutsch_changes_what_is_shown_at_once(self):
        vost = self.open_signed_in()
        # A chat whose preview the session makes ("Message" for a location).
        vost.fill(vost.find("text", "Search"), "Hikers")
        hikers = vost.find("list item", "Weekend Hikers", contains=True)
        self.assertTrue(hikers.name.endswith("Message"), hikers.name)
        vost.fill(vost.find("text", "Search"), "Emma")
        vost.open_chat("Emma Wilson")
        vost.find("heading", "Emma Wilson, Online", contains=True)
        vost.find("push button", "Preferences").press()
        page = vost.find("panel", "Preferences")
        choice = vost.find("push button", "Language", within=page)
        choice.press()
        menu = vost.find("popup menu", "Language")
        names = [item.name for item in vost.all("menu item", within=menu)]
        self.assertEqual(names, ["System", "English", "Русский", "Deutsch", "Español", "Português (Brasil)", "فارسی"])
        vost.find("menu item", "Deutsch", within=menu).press()
        vost.find("heading", "Einstellungen")
        self.assertEqual(vost.find("push button", "Sprache").description, "Deutsch")
        vost.key("Escape")
        vost.find("list", "Chatliste")
        # Texts the session had already made speak German too.
        vost.fill(vost.find("text", "Suche"), "Hikers")
        wait_until(lambda: vost.find("list item", "Weekend Hikers", contains=True).name.endswith("Nachricht"),
                   what="the preview in German")
        vost.fill(vost.find("text", "Suche"), "Emma")
        vost.find("heading", "Emma Wilson, online", contains=True)
        vost.find("push button", "Senden")


class RightToLeftText(VostTestCase):
    def ink(self, vost, box):
        """Where the text's ink lies inside box (x, y, w, h): its leftmost and rightmost
        columns darker than the bubble behind it."""
        path = self.desktop.screenshot(os.path.join(self.desktop.work, "ink.png"), crop=box)
        out = subprocess.run(["convert", path, "-colorspace", "gray", "-scale", f"{box[2]}x1!", "-depth", "8",
                              "txt:-"], capture_output=True, text=True, check=True).stdout
        shades = [int(line.split("(")[1].split(")")[0].split(",")[0]) for line in out.splitlines()[1:]]
        background = max(shades)
        inked = [i for i, shade in enumerate(shades) if shade < background - 12]
        return inked[0], inked[-1] + 1

    def test_a_persian_message_runs_right_to_left_in_an_english_popover(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        messages = vost.find("list", "Messages")
        paragraph = vost.find("paragraph", PERSIAN_MESSAGE, contains=True, within=messages)
        vost.wait_for_rest()
        x, y, w, h = paragraph.extents()
        self.assertGreater(h, 30, "the message should take several lines")
        # The last line is shorter than the others: right to left, it ends away from
        # the left edge and starts at the right one.
        left, right = self.ink(vost, (x, y + h - 17, w, 15))
        self.assertGreater(left, 20, f"the last line starts at the left edge ({left}, {right} of {w})")
        self.assertGreater(right, w - 6, f"the last line does not reach the right edge ({left}, {right} of {w})")

    def test_the_composer_follows_the_direction_of_what_is_typed(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        field = vost.find("text", "Message")
        x, y, w, h = field.extents()
        # The field's middle band: its placeholder and border stay out of it.
        band = (x + 8, y + h // 2 - 6, w - 16, 12)
        vost.fill(field, "سلام")
        vost.wait_for_rest()
        left, right = self.ink(vost, band)
        self.assertGreater(left, band[2] // 2, f"Persian should start at the right ({left}, {right} of {band[2]})")
        vost.fill(field, "Hello")
        vost.wait_for_rest()
        left, right = self.ink(vost, band)
        self.assertLess(right, band[2] // 2, f"English should start at the left ({left}, {right} of {band[2]})")


if __name__ == "__main__":
    main()
