#!/usr/bin/python3
"""Makes the README's screenshots of the popover on the demo account, driven
through the accessibility tree like the UI cases:

    VOST_BINARY=build/bin/vost VOST_BUILD_DIR=build /usr/bin/python3 tests/ui/screenshots.py [OUT_DIR]

OUT_DIR defaults to docs/screenshots. Not a test: it checks nothing."""

import os
import sys
import time

from vostui import Desktop, Vost, signed_in_template, wait_until

OUT = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "..", "docs", "screenshots")


def shoot(desktop, vost, name):
    time.sleep(1.0)  # images decode and animations settle
    path = os.path.join(OUT, name)
    desktop.screenshot(path, crop=vost.window().extents())
    print(path)


def scroll_to(vost, messages, start, wheels=60):
    for _ in range(wheels):
        if any(m.name.startswith(start) for m in vost.messages()):
            return
        vost.wheel(messages, 1)
        time.sleep(0.15)


def session(desktop, mode, shots, language=None):
    desktop.new_home()
    settings = {"vostAppearanceMode": mode}
    if language:
        settings["vostLanguage"] = language
    vost = Vost(desktop, home_template=signed_in_template(), settings=settings).start()
    try:
        vost.open_popover()
        if not language:  # the chat list goes by another name in another language
            vost.wait_for_chats()
        shots(desktop, vost)
    finally:
        vost.quit()


def emma(desktop, vost, suffix):
    vost.open_chat("Emma Wilson")
    messages = vost.find("list", "Messages")
    vost.find("list item", "You: Of course! See you at 7", contains=True, within=messages)
    shoot(desktop, vost, f"messages-{suffix}.png")
    scroll_to(vost, messages, "Emma Wilson: Voice message")
    vost.wheel(messages, 2)
    shoot(desktop, vost, f"media-{suffix}.png")
    return messages


def light(desktop, vost):
    messages = emma(desktop, vost, "light")
    scroll_to(vost, messages, "Emma Wilson: Album")
    album = [m for m in vost.messages() if m.name.startswith("Emma Wilson: Album")][0]
    vost.find("image", "Photo", within=album).press()
    vost.find("dialog", "Photo viewer")
    shoot(desktop, vost, "photo-viewer.png")
    vost.key("Escape")
    vost.open_chat("Vost Helper")
    vost.find("push button", "Stickers").press()
    vost.find("push button", "Sticker", contains=True, within=vost.find("dialog", "Sticker picker"))
    shoot(desktop, vost, "sticker-picker.png")
    vost.key("Escape")
    vost.find("push button", "Emoji").press()
    vost.find("dialog", "Emoji picker")
    shoot(desktop, vost, "emoji-picker.png")
    vost.key("Escape")
    welcome = vost.find("list item", "Vost Helper: Welcome", contains=True)
    x, y, w, h = welcome.extents()
    vost.click((x + w - 60, y + h // 2), button=3)
    vost.find("popup menu", "Message actions")
    shoot(desktop, vost, "message-menu.png")
    vost.key("Escape")
    preferences(desktop, vost, "light")
    new_chat(desktop, vost, "light")


def new_chat(desktop, vost, suffix):
    vost.find("push button", "New chat").press()
    vost.find("list item", "Emma Wilson", contains=True, within=vost.find("list", "Contacts"))
    shoot(desktop, vost, f"new-chat-{suffix}.png")
    vost.key("Escape")


def preferences(desktop, vost, suffix):
    vost.find("push button", "Preferences").press()
    vost.find("panel", "Preferences")
    shoot(desktop, vost, f"preferences-{suffix}.png")
    vost.key("Escape")


def dark(desktop, vost):
    emma(desktop, vost, "dark")
    preferences(desktop, vost, "dark")
    new_chat(desktop, vost, "dark")


def reading(desktop, vost):
    """Formatted text from the helper and in Qt Developers, then a search in Emma's chat."""
    vost.open_chat("Vost Helper")
    vost.find("list item", "Vost Helper: Welcome", contains=True, within=vost.find("list", "Messages"))
    shoot(desktop, vost, "formatted-text.png")
    vost.open_chat("Qt Developers")
    vost.find("push button", "Copy", contains=True, within=vost.find("list", "Messages"))
    shoot(desktop, vost, "formatted-code.png")
    vost.open_chat("Emma Wilson")
    vost.find("push button", "Search in chat").press()
    vost.type("lighthouse")
    vost.find("label", "1 of 1")
    vost.find("list item", "lighthouse", contains=True, within=vost.find("list", "Messages"))
    shoot(desktop, vost, "search-in-chat.png")
    vost.key("Escape")


def translated(suffix, messages_name):
    """Emma Wilson's chat in another language: the messages list goes by its name there."""
    def shots(desktop, vost):
        vost.find("list item", "Emma Wilson", contains=True).press()
        messages = vost.find("list", messages_name)
        wait_until(lambda: len(vost.all("list item", within=messages)) >= 3, what="Emma's messages")
        shoot(desktop, vost, f"messages-{suffix}.png")
    return shots


def main():
    os.makedirs(OUT, exist_ok=True)
    desktop = Desktop()
    try:
        session(desktop, "light", light)
        session(desktop, "dark", dark)
        session(desktop, "light", reading)
        session(desktop, "light", translated("ru", "Сообщения"), language="ru")
        session(desktop, "light", translated("fa", "پیام‌ها"), language="fa")
    finally:
        desktop.close()


if __name__ == "__main__":
    main()
