#!/usr/bin/python3
"""New messages on a desktop with a real notification server (dunst, driven by
dunstctl): the notification names the chat and says the text, and its default
action opens that chat in the popover."""

import json

from vostui import VostTestCase, main, wait_until


def history(desktop):
    """The notifications dunst has shown and closed, newest first, as (title, body)."""
    data = json.loads(desktop.dunstctl("history") or '{"data": [[]]}')
    return [(entry["summary"]["data"], entry["body"]["data"]) for entry in data["data"][0]]


class Notifications(VostTestCase):
    def setUp(self):
        super().setUp()
        server = self.desktop.start_notification_server()
        self.addCleanup(self.desktop._end, server)

    def test_a_new_message_is_shown_with_its_chat_and_opens_it(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        vost.send("Ring the bell")
        vost.find("list item", "Vost Helper: You said: “Ring the bell”", contains=True, timeout=10)
        wait_until(lambda: self.desktop.dunstctl("count", "displayed").strip() == "1",
                   what="the notification on screen")
        # Somewhere else when the notification is clicked.
        vost.open_chat("Emma Wilson")
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")
        self.desktop.dunstctl("action", "0")
        wait_until(vost.popover_shown, what="the popover shown by the notification")
        vost.find("panel", "Conversation with Vost Helper")
        wait_until(lambda: self.desktop.dunstctl("count", "displayed").strip() == "0",
                   what="the notification gone once used")
        title, body = history(self.desktop)[0]
        self.assertEqual(title, "Vost Helper")
        self.assertEqual(body, "You said: “Ring the bell”. Ask me for a photo or a sticker 🙂")

    def test_own_messages_and_opening_chats_show_nothing(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        vost.send("Nothing to announce")
        vost.find("list item", "You: Nothing to announce", contains=True, timeout=10)
        self.assertEqual(self.desktop.dunstctl("count", "displayed").strip(), "0")
        self.assertEqual(self.desktop.dunstctl("count", "history").strip(), "0")


if __name__ == "__main__":
    main()
