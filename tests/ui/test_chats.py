#!/usr/bin/python3
"""The chat list, sending and the errors the session reports after sign-in."""

from vostui import VostTestCase, dishonest_nodes, inside, main, wait_until


class ChatList(VostTestCase):
    def test_rows_say_their_state_in_their_names_and_only_shown_rows_are_exposed(self):
        vost = self.open_signed_in()
        chat_list = vost.find("list", "Chat list")
        rows = vost.chat_rows()
        names = [row.name for row in rows]
        self.assertIn("Family, pinned, 3 unread, Grandma loved the photos! ❤️", names)
        # Typed smileys show as emoji in previews, as they do in bubbles.
        self.assertIn("Liam Chen, Thanks 🙂", names)
        # The marks are part of the names, never labels of their own.
        self.assertEqual([n for n in vost.all("label") if n.name in ("Pinned", "Muted", "Archived")], [])
        for row in rows:
            self.assertTrue(row.extents()[1] < chat_list.extents()[1] + chat_list.extents()[3], row)
            self.assertIn("Press", row.actions())
        self.assertEqual(dishonest_nodes(vost.app()), [])
        # Scrolled to the end, the first rows leave the tree.
        vost.wheel(chat_list, 25, down=True)
        wait_until(lambda: "Vost Helper" not in " ".join(r.name for r in vost.chat_rows()),
                   what="the first row out of the tree")
        for row in vost.chat_rows():
            x, y, w, h = row.extents()
            lx, ly, lw, lh = chat_list.extents()
            self.assertTrue(y + h > ly and y < ly + lh, f"{row} at {row.extents()} outside {chat_list.extents()}")

    def test_search_filters_the_list_and_escape_clears_it(self):
        vost = self.open_signed_in()
        vost.search_chats("hik", ["Weekend Hikers"])
        vost.key("Escape")
        wait_until(lambda: len(vost.chat_rows()) >= 6, what="the whole list again")
        self.assertTrue(vost.popover_shown())
        vost.fill(vost.find("text", "Search"), "zzzz")
        vost.find("paragraph", "No results")

    def test_a_secret_chat_is_marked_as_one(self):
        vost = self.open_signed_in()
        vost.fill(vost.find("text", "Search"), "mia")
        rows = wait_until(lambda: len(vost.chat_rows()) == 2 and vost.chat_rows(), what="Mia Taylor's two chats")
        self.assertEqual([row.name.split(",")[0] for row in rows], ["Mia Taylor", "Mia Taylor"])
        self.assertEqual(sorted(row.name.split(", ")[1] == "secret chat" for row in rows), [False, True])
        secret = next(row for row in rows if "secret chat" in row.name)
        secret.press()
        vost.find("panel", "Conversation with Mia Taylor")

    def test_a_row_opens_its_chat_by_its_press_action(self):
        vost = self.open_signed_in()
        vost.find("list item", "Olivia Martinez", contains=True).press()
        vost.find("panel", "Conversation with Olivia Martinez")
        vost.find("list item", "Olivia Martinez: Listen to this 😃", contains=True)


class Archive(VostTestCase):
    def test_archived_chats_live_behind_their_own_row_and_search_finds_them(self):
        vost = self.open_signed_in()
        chat_list = vost.find("list", "Chat list")
        self.assertFalse([row for row in vost.chat_rows() if "archived" in row.name])
        archive = vost.find("list item", "Archived chats", contains=True, within=chat_list)
        self.assertRegex(archive.name, r"^Archived chats, \d+ unread$")
        archive.press()
        vost.find("push button", "Back to chats", within=chat_list)
        vost.find("list item", "Tech News", contains=True, within=chat_list)
        self.assertTrue(all("archived" in row.name for row in vost.chat_rows()), [r.name for r in vost.chat_rows()])
        vost.find("push button", "Back to chats", within=chat_list).press()
        vost.find("list item", "Archived chats", contains=True, within=chat_list)
        vost.absent("list item", "Tech News", contains=True, within=chat_list)
        # A search looks everywhere.
        vost.fill(vost.find("text", "Search"), "Tech")
        vost.find("list item", "Tech News", contains=True, within=chat_list)


class ChatMenu(VostTestCase):
    def open_menu(self, vost, title):
        row = vost.find("list item", title, contains=True, within=vost.find("list", "Chat list"))
        vost.click(row, button=3)
        return vost.find("popup menu", "Chat actions")

    def test_a_chat_is_deleted_after_confirming_and_leaves_the_list(self):
        vost = self.open_signed_in()
        menu = self.open_menu(vost, "Liam Chen")
        self.assertEqual([item.name for item in vost.all("menu item", within=menu)],
                         ["Delete chat", "Delete chat and contact"])
        self.assertEqual(dishonest_nodes(menu), [])
        vost.find("menu item", "Delete chat", within=menu).press()
        dialog = vost.find("dialog", "Delete the chat “Liam Chen”?")
        vost.find("push button", "Cancel", within=dialog).press()
        vost.absent("dialog")
        vost.find("list item", "Liam Chen", contains=True)
        menu = self.open_menu(vost, "Liam Chen")
        vost.find("menu item", "Delete chat", within=menu).press()
        dialog = vost.find("dialog", "Delete the chat “Liam Chen”?")
        vost.find("push button", "Delete", within=dialog).press()
        vost.absent("list item", "Liam Chen", contains=True, timeout=15)

    def test_a_group_offers_no_contact_to_delete(self):
        vost = self.open_signed_in()
        menu = self.open_menu(vost, "Family")
        self.assertEqual([item.name for item in vost.all("menu item", within=menu)], ["Delete chat"])
        vost.key("Escape")
        vost.absent("popup menu", "Chat actions")


class Sending(VostTestCase):
    def test_the_send_button_sends_and_the_bots_answer_stays_in_view(self):
        vost = self.open_signed_in()
        vost.open_chat("Vost Helper")
        vost.fill(vost.find("text", "Message"), "Hello from a screen reader")
        vost.find("push button", "Send").press()
        messages = vost.find("list", "Messages")
        vost.find("list item", "You: Hello from a screen reader", contains=True, timeout=10)

        def answer_below_the_message():
            shown = vost.messages()
            sent = [m for m in shown if m.name.startswith("You: Hello from a screen reader")]
            answers = [m for m in shown if m.name.startswith("Vost Helper: You said")]
            if sent and answers and answers[0].extents()[1] > sent[0].extents()[1]:
                return answers[0]
            return None
        answer = wait_until(answer_below_the_message, timeout=10, what="the bot's answer below the sent message")
        self.assertTrue(inside(answer.extents(), messages.extents()), f"{answer} not fully in view")
        self.assertEqual(vost.find("text", "Message").text(), "")

    def test_an_error_after_sign_in_shows_in_a_banner_that_can_be_dismissed(self):
        vost = self.open_signed_in()
        vost.fill(vost.find("text", "Search"), "Tech")
        vost.open_chat("Tech News")
        vost.fill(vost.find("text", "Message"), "Hello channel")
        vost.key("Return")
        banner = vost.find("alert", "Have no rights to send a message", timeout=10)
        self.assertTrue(banner.showing)
        vost.find("push button", "Dismiss").press()
        vost.absent("alert")


if __name__ == "__main__":
    main()
