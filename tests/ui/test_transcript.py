#!/usr/bin/python3
"""Emma Wilson's long chat: opening at the newest message, paging back through its
history, what a bubble shows, and the keyboard."""

import re
import time

from vostui import EMMA_NEWEST as NEWEST, VostTestCase, dishonest_nodes, inside, main, wait_until


def intersects(inner, outer):
    x, y, w, h = inner
    ox, oy, ow, oh = outer
    return x < ox + ow and ox < x + w and y < oy + oh and oy < y + h


class Transcript(VostTestCase):
    def test_a_chat_opens_at_its_newest_message_and_stays_there(self):
        vost, messages = self.open_emma()
        newest = vost.find("list item", NEWEST, contains=True, within=messages)
        self.assertTrue(inside(newest.extents(), messages.extents()), f"{newest.extents()} in {messages.extents()}")
        for reaction in ("👍 1", "🔥 1"):
            badge = vost.find("push button", reaction, within=newest)
            self.assertTrue(inside(badge.extents(), messages.extents()), f"{reaction} below the visible area")
        # A wheel turn down at the bottom moves nothing.
        before = newest.extents()
        vost.wheel(messages, 1, down=True)
        time.sleep(0.3)
        self.assertEqual(vost.find("list item", NEWEST, contains=True, within=messages).extents(), before)

    def test_scrolling_up_pages_back_to_the_start(self):
        vost, messages = self.open_emma()
        seen = set()
        for _ in range(400):
            seen.update(m.name for m in vost.messages())
            if vost.all("paragraph", "Start of the conversation", within=messages):
                break
            vost.wheel(messages, 1)
        else:
            self.fail(f"the start was not reached; {len(seen)} messages seen")
        self.assertGreater(len(seen), 200)
        # Only what is inside the transcript is exposed.
        for item in vost.messages():
            self.assertTrue(intersects(item.extents(), messages.extents()), f"{item} is off screen")

    def test_a_page_arriving_moves_nothing_on_screen_and_shows_a_spinner_meanwhile(self):
        # Pages take 3 s, time enough to look at the screen while one is on its way.
        vost, messages = self.open_emma(extra_env={"VOST_DEMO_PAGE_DELAY_MS": "3000"})
        pages = 0
        for _ in range(30):
            if pages == 3:
                break
            # A quick turn of the wheel reaches the top while the next page is on its way.
            vost.wheel(messages, 25)
            if not vost.all("progress bar", "Loading older messages", within=messages):
                continue
            # Bottom edges: a message whose older neighbour arrives may lose the
            # space above it that starts a sender's group, but its bubble stays.
            def bottoms():
                return {m.name: sum(m.extents()[1::2]) for m in vost.messages()}
            vost.wait_for_rest()
            if not vost.all("progress bar", "Loading older messages", within=messages):
                continue
            before = bottoms()
            vost.absent("progress bar", "Loading older messages", within=messages)
            after = bottoms()
            common = set(before) & set(after)
            self.assertTrue(common, "nothing stayed on screen")
            for name in common:
                self.assertEqual(before[name], after[name], f"{name} moved when a page arrived")
            pages += 1
        self.assertEqual(pages, 3, "the spinner did not show at the top while pages were on their way")

    def test_scrolling_past_stickers_and_gifs_loads_no_media_player(self):
        # Bubbles are reused as they scroll: one that showed a sticker and now
        # shows a GIF must not hand the sticker to a media player on the way,
        # which would bring GStreamer into the process for good.
        vost, messages = self.open_emma()
        for _ in range(30):
            vost.wheel(messages, 2)
        for _ in range(100):
            if vost.all("list item", NEWEST, contains=True, within=messages):
                break
            vost.wheel(messages, 2, down=True)
        time.sleep(0.3)
        self.assertFalse(vost.media_player_loaded())

    def test_bubbles_show_captions_images_and_stickers(self):
        vost, messages = self.open_emma()
        # The WebP sticker renders as an image, not as its fallback text. The wheel
        # stops at its message: its picture may still be on its way.
        vost.wheel_until(messages, lambda: any("Sticker 😀" in m.name for m in vost.messages()))
        vost.find("image", "Sticker 😀", within=messages)
        # Media without a caption shows no line of text; a caption does.
        def uncaptioned_photos():
            return [m for m in vost.messages() if re.fullmatch(r"Emma Wilson: Photo, \d+:\d\d", m.name)]
        # One click a turn: a tall picture can carry the next rows past between two looks.
        photos = vost.wheel_until(messages, uncaptioned_photos, clicks=1)
        self.assertTrue(photos, "no photo without a caption on the way up")
        vost.find("image", "Photo", within=photos[0])
        self.assertEqual(vost.all("paragraph", within=photos[0]), [])
        def captioned_photos():
            return [m for m in vost.messages() if m.name.startswith("Emma Wilson: Photo, Sunset at the lake")]
        captioned = vost.wheel_until(messages, captioned_photos, clicks=1)
        self.assertTrue(captioned, "no captioned photo on the way up")
        # Its caption is the bubble's last line: a bubble cut off by the bottom
        # edge comes up into view first.
        _, top, _, height = messages.extents()
        for _ in range(10):
            x, y, w, h = captioned[0].extents()
            if y + h <= top + height:
                break
            vost.wheel(messages, 1, down=True)
            vost.wait_for_rest()
            captioned = captioned_photos() or captioned
        vost.find("paragraph", "Sunset at the lake 🌅", within=captioned[0], timeout=5)


class Menu(VostTestCase):
    def test_a_right_click_anywhere_on_a_message_row_opens_its_named_menu(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        messages = vost.find("list", "Messages")
        welcome = vost.find("list item", "Vost Helper: Welcome", contains=True, within=messages)
        x, y, w, h = welcome.extents()
        # An incoming bubble sits on the left: the right end of its row is empty.
        vost.click((x + w - 60, y + h // 2), button=3)
        menu = vost.find("popup menu", "Message actions")
        self.assertEqual([item.name for item in vost.all("menu item", within=menu)],
                         ["Reply", "Forward", "Copy", "Delete"])
        reactions = vost.find("panel", "Reactions", within=menu)
        self.assertEqual(len(vost.all("push button", within=reactions)), 7)
        self.assertEqual(dishonest_nodes(vost.app()), [])
        vost.find("menu item", "Reply", within=menu).press()
        vost.find("panel", "Reply to Vost Helper", contains=True)
        self.assertEqual(dishonest_nodes(vost.app()), [])


class MoreButton(VostTestCase):
    def test_the_more_button_shows_on_hover_and_focus_only_and_is_never_cut(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        messages = vost.find("list", "Messages")
        # A bubble at its widest leaves the least room beside it.
        vost.send("A long line that fills the bubble to its widest, " + "word " * 40 + "end")
        mine = vost.find("list item", "You: A long line", contains=True, within=messages)
        # The helper answers with the same words: a wide incoming bubble.
        echo = vost.find("list item", "Vost Helper: You said: “A long line", contains=True, within=messages,
                         timeout=15)
        chats = vost.find("list", "Chat list")

        def park():
            """The pointer over the chat list, away from every message."""
            vost.desktop.xdotool("mousemove", *chats.center())
            time.sleep(0.3)

        def shown_buttons():
            return vost.all("push button", "More", within=messages)

        park()
        self.assertEqual(shown_buttons(), [])
        for row in (mine, echo):
            vost.desktop.xdotool("mousemove", *row.center())
            more = vost.find("push button", "More", within=row)
            self.assertEqual(len(shown_buttons()), 1)
            self.assertTrue(inside(more.extents(), messages.extents()), (more.extents(), messages.extents()))
            self.assertTrue(inside(more.extents(), row.extents()), (more.extents(), row.extents()))
            park()
            vost.absent("push button", "More", within=messages)

        # The keyboard's current message shows its button wherever the pointer is.
        vost.focus(messages)
        current = wait_until(lambda: [m for m in vost.messages() if m.has_state("selected")],
                             what="a current message")[0]
        more = vost.find("push button", "More", within=current)
        self.assertEqual(len(shown_buttons()), 1)
        self.assertTrue(inside(more.extents(), messages.extents()), (more.extents(), messages.extents()))
        vost.key("Up")
        older = wait_until(lambda: [m for m in vost.messages() if m.has_state("selected") and m.name != current.name],
                           what="the message above current")[0]
        vost.find("push button", "More", within=older)
        self.assertEqual(len(shown_buttons()), 1)
        vost.find("push button", "More", within=older).press()
        vost.find("popup menu", "Message actions")


class LargeEmoji(VostTestCase):
    def test_one_to_three_emoji_alone_are_shown_larger_than_text(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        messages = vost.find("list", "Messages")
        sizes = {}
        for text in ("ok", "👍", "🍕🍕🍕", "🍕🍕🍕🍕", "ok 👍"):
            vost.send(text)
            row = vost.find("list item", f"You: {text}, ", contains=True, within=messages)
            # The line of text itself, whatever surrounds it.
            sizes[text] = vost.find("paragraph", text, within=row).extents()[2:]
        text_height = sizes["ok"][1]
        self.assertGreater(text_height, 0)
        for large in ("👍", "🍕🍕🍕"):
            self.assertGreaterEqual(sizes[large][1], 2 * text_height, sizes)
        # Four emoji, or emoji among words, are text.
        for plain in ("🍕🍕🍕🍕", "ok 👍"):
            self.assertLess(sizes[plain][1], 1.5 * text_height, sizes)


class Keyboard(VostTestCase):
    def test_up_edits_the_last_own_message_and_escape_unwinds_step_by_step(self):
        vost = self.open_signed_in()
        vost.fill(vost.find("text", "Search"), "Emma")
        vost.open_chat("Emma Wilson")
        vost.find("list item", NEWEST, contains=True)
        composer = vost.find("text", "Message")
        vost.focus(composer)
        vost.key("Up")
        wait_until(lambda: composer.text() == "Of course! See you at 7 🍕", what="the last own message to edit")
        vost.find("panel", "Edit message", contains=True)
        vost.find("push button", "Save")
        vost.key("Escape")
        vost.absent("panel", "Edit message", contains=True)
        self.assertEqual(composer.text(), "")
        self.assertEqual([r.name.split(",")[0] for r in vost.chat_rows()], ["Emma Wilson"])
        vost.key("Escape")
        wait_until(lambda: len(vost.chat_rows()) > 1, what="the search cleared")
        self.assertTrue(vost.popover_shown())
        vost.key("Escape")
        wait_until(lambda: not vost.popover_shown(), what="the popover closed")

    def test_a_message_is_deleted_only_after_confirming(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        mine = vost.find("list item", "You: Hello bot", contains=True)
        mine.press()
        vost.find("menu item", "Reply")
        vost.find("menu item", "Delete").press()
        dialog = vost.find("dialog", "Delete this message for everyone?")
        vost.find("push button", "Cancel", within=dialog).press()
        vost.absent("dialog")
        vost.find("list item", "You: Hello bot", contains=True).press()
        vost.find("menu item", "Delete").press()
        dialog = vost.find("dialog", "Delete this message for everyone?")
        vost.find("push button", "Delete", within=dialog).press()
        vost.absent("list item", "You: Hello bot", contains=True)
        vost.find("list item", "Vost Helper: Hello! Try sending", contains=True)


if __name__ == "__main__":
    main()
