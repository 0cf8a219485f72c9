#!/usr/bin/python3
"""The unread line: a chat opens at its "Unread messages" divider when the unread
messages do not fit on the screen, at the newest message when they do."""

from vostui import VostTestCase, main, wait_until

DIVIDER = "Unread messages"


def within_view(item, view):
    x, y, w, h = item.extents()
    vx, vy, vw, vh = view.extents()
    return y >= vy - 2 and y + h <= vy + vh + 2


class UnreadLine(VostTestCase):
    def test_a_long_unread_run_opens_at_the_divider(self):
        vost = self.open_signed_in()
        # Twelve unread messages: more than a screen.
        vost.open_chat("Qt Developers")
        messages = vost.find("list", "Messages")
        divider = vost.find("paragraph", DIVIDER, within=messages)
        vost.wait_for_rest()
        self.assertTrue(within_view(divider, messages), f"{divider.extents()} outside {messages.extents()}")
        # The divider is at the top, the newest message below the screen.
        self.assertLess(divider.extents()[1], messages.extents()[1] + messages.extents()[3] / 3)
        vost.find("push button", "Go to newest message", contains=True)

    def test_a_short_unread_run_opens_at_the_newest_message_under_the_divider(self):
        vost = self.open_signed_in()
        # Three unread messages fit under the divider.
        vost.open_chat("Family")
        messages = vost.find("list", "Messages")
        divider = vost.find("paragraph", DIVIDER, within=messages)
        vost.wait_for_rest()
        self.assertTrue(within_view(divider, messages))
        self.assertFalse(vost.all("push button", "Go to newest message", contains=True))


if __name__ == "__main__":
    main()
