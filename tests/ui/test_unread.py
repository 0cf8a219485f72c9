#!/usr/bin/python3
"""What is new in a chat: one with more unread messages than fit opens at its
"Unread messages" line, one whose unread messages fit opens at the newest; a
message that arrives while the reader is further up waits under "↓ 1 new"."""

import os

from vostui import VostTestCase, main, wait_until, within_view

DIVIDER = "Unread messages"
NEWEST = "You: Of course! See you at 7 🍕"
ARRIVING = "Did you see the sunset tonight?"


def top_within_view(item, view):
    y = item.extents()[1]
    vy, vh = view.extents()[1], view.extents()[3]
    return vy - 2 <= y <= vy + vh


class OpeningAtTheLine(VostTestCase):
    def open_hikers(self, vost):
        # Further down the chat list than a screen.
        vost.fill(vost.find("text", "Search"), "Weekend")
        vost.open_chat("Weekend Hikers")

    def test_more_unread_than_fit_opens_at_the_line_with_the_first_unread_message(self):
        vost = self.open_signed_in()
        # Eight unread messages, a poll and a location among them.
        self.open_hikers(vost)
        messages = vost.find("list", "Messages")
        divider = vost.find("paragraph", DIVIDER, within=messages)
        vost.wait_for_rest()
        self.assertTrue(within_view(divider, messages), f"{divider.extents()} outside {messages.extents()}")
        # The line is part of the first unread message's row, whose top shows.
        first = [m for m in vost.messages() if vost.all("paragraph", DIVIDER, within=m)]
        self.assertEqual(len(first), 1)
        self.assertTrue(top_within_view(first[0], messages), f"{first[0]} starts outside the view")
        # The newest is further down, where the round button leads.
        vost.find("push button", "Go to newest message").press()
        wait_until(lambda: not vost.all("push button", "Go to newest message"), what="the newest message in view")

    def test_unread_messages_that_fit_open_at_the_newest_under_the_line(self):
        vost = self.open_signed_in()
        vost.open_chat("Family")
        messages = vost.find("list", "Messages")
        divider = vost.find("paragraph", DIVIDER, within=messages)
        newest = vost.find("list item", "Grandma loved the photos", contains=True, within=messages)
        vost.wait_for_rest()
        self.assertTrue(within_view(divider, messages))
        self.assertTrue(within_view(newest, messages))
        self.assertFalse(vost.all("push button", "Go to newest message"))

    def test_a_chat_opens_at_its_line_once_and_at_the_newest_afterwards(self):
        vost = self.open_signed_in()
        self.open_hikers(vost)
        messages = vost.find("list", "Messages")
        vost.find("paragraph", DIVIDER, within=messages)
        vost.find("push button", "Go to newest message")
        vost.fill(vost.find("text", "Search"), "Family")
        vost.open_chat("Family")
        vost.find("list item", "Grandma loved the photos", contains=True)
        self.open_hikers(vost)
        vost.find("list", "Messages")
        vost.wait_for_rest()
        vost.absent("push button", "Go to newest message")


class ArrivingWhileAway(VostTestCase):
    def read_further_up(self):
        """Emma Wilson's chat, scrolled up from the newest message; then a message
        arrives from her."""
        drop = os.path.join(self.desktop.env["HOME"], "incoming")
        vost = self.open_signed_in(extra_env={"VOST_DEMO_INCOMING": drop})
        messages = vost.open_transcript("Emma Wilson", NEWEST)
        vost.wheel(messages, 15)
        vost.wait_for_rest()
        vost.find("push button", "Go to newest message")
        with open(drop + ".part", "w", encoding="utf-8") as request:
            request.write(f"Emma Wilson\n{ARRIVING}\n")
        os.rename(drop + ".part", drop)
        return vost, messages

    def test_a_message_arriving_above_the_newest_waits_under_a_button_that_shows_it(self):
        vost, messages = self.read_further_up()
        button = vost.find("push button", "1 new")
        self.assertGreater(button.extents()[2], 36, "the button does not say how many are new")
        # The reader stays where they were.
        self.assertFalse(vost.all("list item", ARRIVING, contains=True, within=messages))
        button.press()
        arrived = vost.find("list item", f"Emma Wilson: {ARRIVING}", contains=True, within=messages)
        wait_until(lambda: within_view(arrived, messages), what="the new message in view")
        # Marked as where the unread messages begin.
        vost.find("paragraph", DIVIDER, within=arrived)
        vost.absent("push button", "1 new")

    def test_scrolling_down_to_it_takes_the_count_away(self):
        vost, messages = self.read_further_up()
        vost.find("push button", "1 new")
        for _ in range(40):
            if not vost.all("push button", "1 new"):
                break
            vost.wheel(messages, 2, down=True)
            vost.wait_for_rest()
        vost.absent("push button", "1 new")
        vost.find("list item", f"Emma Wilson: {ARRIVING}", contains=True, within=messages)


if __name__ == "__main__":
    main()
