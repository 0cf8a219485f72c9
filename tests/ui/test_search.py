#!/usr/bin/python3
"""Searching in a chat: Ctrl+F or the header's button opens the search field, a
word found only in Emma Wilson's first message brings the transcript to that
message, the count and the buttons follow the results, and Esc returns to the
newest message."""

from vostui import EMMA_NEWEST as NEWEST, VostTestCase, inside, main, wait_until

FIRST = "So nice to meet you at the lighthouse museum yesterday!"


class Search(VostTestCase):
    def shown(self, vost, messages, text):
        """The bubble holding text, once it is in view in the transcript."""
        def look():
            for item in vost.all("list item", within=messages):
                if text in item.name and inside(item.extents(), messages.extents(), slack=20):
                    return item
            return None
        return wait_until(look, timeout=15, what=f"{text!r} in view")

    def test_a_word_of_the_first_message_brings_it_into_view_and_esc_returns_to_the_newest(self):
        vost, messages = self.open_emma()
        self.assertFalse(vost.all("list item", FIRST, contains=True, within=messages))
        vost.key("ctrl+f")
        field = vost.find("text", "Search in chat")
        wait_until(lambda: field.has_state("focused"), timeout=5, what="the search field focused")
        vost.type("LightHouse")
        vost.find("label", "1 of 1")
        bubble = self.shown(vost, messages, FIRST)
        self.assertTrue(bubble.showing)
        # The newest message is far away now.
        vost.absent("list item", NEWEST, contains=True, within=messages)
        # One result: neither way leads anywhere.
        vost.find("push button", "Older result").press()
        vost.find("push button", "Newer result").press()
        vost.find("label", "1 of 1")
        self.shown(vost, messages, FIRST)
        vost.key("Escape")
        vost.absent("text", "Search in chat")
        self.shown(vost, messages, NEWEST)
        self.assertFalse(vost.all("list item", FIRST, contains=True, within=messages))

    def test_the_header_button_opens_the_search_and_the_count_follows_the_steps(self):
        vost, messages = self.open_emma()
        vost.find("push button", "Search in chat").press()
        field = vost.find("text", "Search in chat")
        vost.fill(field, "pizza-that-nobody-wrote")
        vost.find("label", "No results")
        vost.fill(field, "coffee")
        count = vost.find("label", " of ", contains=True)
        total = int(count.name.split(" of ")[1])
        self.assertGreater(total, 1)
        self.assertEqual(count.name, f"1 of {total}")
        vost.key("Return")
        vost.find("label", f"2 of {total}")
        vost.find("push button", "Older result").press()
        vost.find("label", f"3 of {total}")
        vost.key("shift+Return")
        vost.find("label", f"2 of {total}")
        self.shown(vost, messages, "coffee")
        vost.find("push button", "Close search").press()
        vost.absent("text", "Search in chat")
        self.shown(vost, messages, NEWEST)


if __name__ == "__main__":
    main()
