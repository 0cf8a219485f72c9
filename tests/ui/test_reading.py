#!/usr/bin/python3
"""Reading a conversation: bubbles that keep their shape as they scroll, a chat
that is waiting rather than empty, quotes, the way back to the newest message,
choosing chats from the keyboard, and what the menu offers."""

import time

from vostui import EMMA_NEWEST as NEWEST, VostTestCase, main, wait_until, within_view

QUESTION = "Emma Wilson: Are we still on for tonight?"


class Scrolling(VostTestCase):
    def chip_offsets(self, vost, messages):
        """Where the question's reaction chips sit, relative to its row."""
        question = vost.find("list item", QUESTION, contains=True, within=messages)
        qx, qy, _, _ = question.extents()
        chips = [chip for chip in vost.all("push button", within=question) if chip.name.startswith("❤")]
        self.assertTrue(chips, "the question shows no ❤️ chip")
        x, y, w, h = chips[0].extents()
        return x - qx, y - qy, w

    def test_reaction_chips_stay_under_their_bubble_after_scrolling_back(self):
        vost, messages = self.open_emma()
        before = self.chip_offsets(vost, messages)
        # An incoming bubble's chips start at its left.
        self.assertLess(before[0], 60, "the chip is not under the incoming bubble")
        # Far enough up that every row is reused for other messages, then back.
        for _ in range(6):
            vost.wheel(messages, 10)
            vost.wait_for_rest()
        vost.find("push button", "Go to newest message", contains=True).press()
        vost.find("list item", QUESTION, contains=True, within=messages)
        vost.wait_for_rest()
        after = self.chip_offsets(vost, messages)
        for was, now in zip(before, after):
            self.assertLessEqual(abs(was - now), 2, f"the chip moved from {before} to {after}")

    def test_the_round_button_and_end_go_back_to_the_newest_message(self):
        vost, messages = self.open_emma()
        self.assertFalse(vost.all("push button", "Go to newest message", contains=True))
        vost.wheel(messages, 15)
        vost.wait_for_rest()
        button = vost.find("push button", "Go to newest message", contains=True)
        self.assertEqual(button.extents()[2:], (36, 36))
        button.press()
        newest = vost.find("list item", NEWEST, contains=True, within=messages)
        wait_until(lambda: within_view(newest, messages), what="the newest message in view")
        vost.absent("push button", "Go to newest message", contains=True)
        # End in the empty composer does the same.
        vost.wheel(messages, 15)
        vost.wait_for_rest()
        vost.find("push button", "Go to newest message", contains=True)
        vost.focus(vost.find("text", "Message"))
        vost.key("End")
        newest = vost.find("list item", NEWEST, contains=True, within=messages)
        wait_until(lambda: within_view(newest, messages), what="the newest message in view after End")

    def test_a_quote_shows_the_answered_message(self):
        vost, messages = self.open_emma()
        newest = vost.find("list item", NEWEST, contains=True, within=messages)
        vost.find("link", "Reply to Emma Wilson: Are we still on for tonight? 🙂", within=newest)


class FirstPage(VostTestCase):
    def test_a_slow_first_page_shows_a_spinner_and_never_the_empty_text(self):
        vost = self.open_signed_in(extra_env={"VOST_DEMO_PAGE_DELAY_MS": "2500"})
        vost.fill(vost.find("text", "Search"), "Running")
        vost.open_chat("Running Club")
        spinner_seen = False
        deadline = time.monotonic() + 15
        while time.monotonic() < deadline:
            self.assertFalse(vost.all("paragraph", "No messages here yet."),
                             "the empty text showed while the first page was on its way")
            spinner_seen = spinner_seen or bool(vost.all("progress bar", "Loading messages"))
            if vost.messages():
                break
            time.sleep(0.05)
        self.assertTrue(vost.messages(), "the first page never arrived")
        self.assertTrue(spinner_seen, "no spinner while the first page was on its way")
        vost.absent("progress bar", "Loading messages")


class Choosing(VostTestCase):
    def test_down_then_return_in_search_opens_the_highlighted_chat(self):
        vost = self.open_signed_in()
        vost.search_chats("Liam", ["Liam Chen"])
        vost.key("Down")
        vost.key("Return")
        vost.find("panel", "Conversation with Liam Chen")

    def test_return_forwards_to_the_only_match_and_a_forwarded_message_is_not_edited(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        vost.find("list item", NEWEST, contains=True).press()
        vost.find("menu item", "Edit")  # one's own text, as written here
        vost.find("menu item", "Forward").press()
        dialog = vost.find("dialog", "Forward to")
        vost.fill(vost.find("text", "Search chats", within=dialog), "Liam")
        wait_until(lambda: len(vost.all("list item", within=dialog)) == 1, what="one match")
        vost.key("Return")
        vost.find("panel", "Conversation with Liam Chen")
        forwarded = vost.find("list item", NEWEST, contains=True, timeout=10)
        forwarded.press()
        menu = vost.find("popup menu", "Message actions")
        items = [item.name for item in vost.all("menu item", within=menu)]
        self.assertIn("Forward", items)
        self.assertNotIn("Edit", items)

    def test_a_reply_to_a_deleted_message_says_it_is_not_found(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        vost.find("list item", "You: Hello bot", contains=True).press()
        vost.find("menu item", "Reply").press()
        vost.send("still there?")
        reply = vost.find("list item", "You: still there?", contains=True)
        vost.find("link", "Reply to You: Hello bot", contains=True, within=reply)
        vost.find("list item", "You: Hello bot", contains=True).press()
        vost.find("menu item", "Delete").press()
        vost.find("push button", "Delete", within=vost.find("dialog", "Delete this message for everyone?")).press()
        reply = vost.find("list item", "You: still there?", contains=True)
        vost.find("link", "Reply to a message: Message not found", within=reply)


if __name__ == "__main__":
    main()
