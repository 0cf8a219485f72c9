#!/usr/bin/python3
"""New messages on a desktop with a real notification server (dunst, driven by
dunstctl): the notification names the chat and says the text, its default action
opens that chat in the popover, "Reply" opens it replying to the message and
"Mark as read" reads the chat where it is."""

import json
import os
import re

from vostui import VostTestCase, main, wait_until

UNREAD = re.compile(r"Vost, (\d+) unread messages?")


def unread_total(vost):
    """The total the tray's tool tip says; None while it says none."""
    found = UNREAD.fullmatch(vost.tooltip())
    return int(found.group(1)) if found else None


def history(desktop):
    """The notifications dunst has shown and closed, newest first, as (title, body)."""
    data = json.loads(desktop.dunstctl("history") or '{"data": [[]]}')
    return [(entry["summary"]["data"], entry["body"]["data"]) for entry in data["data"][0]]


class Notifications(VostTestCase):
    def setUp(self):
        super().setUp()
        # dunst's action menu: this script picks the entry named in the choice file,
        # as a person picks it in dmenu, and notes what it was offered.
        self.choice = os.path.join(self.desktop.work, "menu-choice")
        self.offered = os.path.join(self.desktop.work, "menu-offered")
        menu = os.path.join(self.desktop.work, "pick-action")
        with open(menu, "w") as file:
            file.write(f'#!/bin/sh\ntee "{self.offered}" | grep -m1 -F -- "$(cat "{self.choice}")"\n')
        os.chmod(menu, 0o755)
        server = self.desktop.start_notification_server(menu=menu)
        self.addCleanup(self.desktop._end, server)

    def incoming(self, chat, text):
        """Launches signed in with the demo's message drop; returns Vost and a
        function that makes chat receive text."""
        drop = os.path.join(self.desktop.env["HOME"], "incoming")
        vost = self.launch(extra_env={"VOST_DEMO_INCOMING": drop})

        def receive():
            with open(drop + ".part", "w") as file:
                file.write(f"{chat}\n{text}")
            os.rename(drop + ".part", drop)
        return vost, receive

    def choose_action(self, label):
        with open(self.choice, "w") as file:
            file.write(label)
        self.desktop.dunstctl("context")
        wait_until(lambda: self.desktop.dunstctl("count", "displayed").strip() == "0",
                   what=f"the notification gone after “{label}”")
        with open(self.offered) as file:
            offered = file.read()
        self.assertIn("Reply", offered)
        self.assertIn("Mark as read", offered)

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

    def test_mark_as_read_reads_the_chat_without_opening_it(self):
        vost, receive = self.incoming("Emma Wilson", "Did you get the tickets?")
        vost.open_popover()
        vost.wait_for_chats()
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")
        before = wait_until(lambda: unread_total(vost), timeout=20, what="an unread total")
        receive()
        wait_until(lambda: self.desktop.dunstctl("count", "displayed").strip() == "1", what="the notification")
        wait_until(lambda: unread_total(vost) == before + 1, what="the new message counted")

        self.choose_action("Mark as read")
        wait_until(lambda: unread_total(vost) == before, timeout=15, what="the total without Emma's message")
        self.assertFalse(vost.popover_shown())
        vost.open_popover()
        vost.find("list item", "Emma Wilson, pinned, Did you get the tickets?")

    def test_reply_opens_the_chat_replying_to_the_message(self):
        vost, receive = self.incoming("Emma Wilson", "Shall I bring the map?")
        vost.open_popover()
        vost.wait_for_chats()
        vost.open_chat("Vost Helper")
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")
        receive()
        wait_until(lambda: self.desktop.dunstctl("count", "displayed").strip() == "1", what="the notification")

        self.choose_action("Reply")
        wait_until(vost.popover_shown, what="the popover shown by “Reply”")
        vost.find("panel", "Conversation with Emma Wilson")
        vost.find("panel", "Reply to Emma Wilson: Shall I bring the map?", contains=True)
        # The cursor waits in the composer.
        wait_until(lambda: vost.find("text", "Message").has_state("focused"), what="the composer focused")
        vost.type("Yes please")
        vost.key("Return")
        vost.find("link", "Reply to Emma Wilson: Shall I bring the map?", contains=True,
                  within=vost.find("list item", "You: Yes please", contains=True, timeout=10))

    def test_own_messages_and_opening_chats_show_nothing(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        vost.send("Nothing to announce")
        vost.find("list item", "You: Nothing to announce", contains=True, timeout=10)
        self.assertEqual(self.desktop.dunstctl("count", "displayed").strip(), "0")
        self.assertEqual(self.desktop.dunstctl("count", "history").strip(), "0")


if __name__ == "__main__":
    main()
