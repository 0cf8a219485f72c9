#!/usr/bin/python3
"""Starting a conversation: "New chat" from the sidebar's toolbar or Ctrl+N, a
contact found by name, a contact added by phone number and a username opened,
with the session's own words when that fails."""

import time

from vostui import VostTestCase, dishonest_nodes, main, wait_until

NO_ACCOUNT = ("No Telegram account could be found for that number. Check the country code or try their "
              "username; Telegram privacy settings can prevent phone-number lookup.")
BAD_USERNAME = "Enter a Telegram username, such as @username, using letters, numbers and underscores."
NO_USERNAME = "Nobody on Telegram has that username."


class NewChat(VostTestCase):
    def open_new_chat(self, vost):
        vost.find("push button", "New chat").press()
        return vost.find("panel", "New chat")

    def search_contacts(self):
        """The signed-in new-chat view; returns Vost, the view, its contact list and
        a function that types into its search field."""
        vost = self.open_signed_in()
        view = self.open_new_chat(vost)
        contacts = vost.find("list", "Contacts", within=view)
        return vost, view, contacts, lambda text: vost.fill(vost.find("text", "Search contacts", within=view), text)

    def test_a_contact_found_by_name_opens_its_chat(self):
        vost, view, contacts, search = self.search_contacts()
        vost.find("list item", "Emma Wilson", contains=True, within=contacts)
        self.assertEqual(dishonest_nodes(view), [])
        search("liam")
        vost.absent("list item", "Emma Wilson", contains=True, within=contacts)
        vost.press("list item", "Liam Chen", contains=True, within=contacts)
        vost.absent("panel", "New chat")
        vost.find("panel", "Conversation with Liam Chen")

    def test_telegram_finds_contacts_by_username_and_a_contact_can_be_removed(self):
        vost, view, contacts, search = self.search_contacts()
        search("emma_w")
        vost.absent("list item", "Emma Wilson", contains=True, within=contacts)
        found = vost.find("list", "Found by Telegram", within=view, timeout=15)
        vost.find("list item", "Emma Wilson", contains=True, within=found)
        search("")
        liam = vost.find("list item", "Liam Chen", contains=True, within=contacts)
        vost.click(liam, button=3)
        menu = vost.find("popup menu", "Contact actions")
        self.assertEqual([item.name for item in vost.all("menu item", within=menu)], ["Message", "Delete contact"])
        vost.find("menu item", "Delete contact", within=menu).press()
        dialog = vost.find("dialog", "Remove Liam Chen from your contacts?")
        vost.find("push button", "Delete contact", within=dialog).press()
        vost.absent("list item", "Liam Chen", contains=True, within=contacts, timeout=15)

    def test_contacts_the_filter_lists_are_not_found_again(self):
        vost, view, contacts, search = self.search_contacts()
        search("wilson")
        vost.absent("list item", "Liam Chen", contains=True, within=contacts)
        listed = [row.name.split(",")[0] for row in vost.all("list item", within=contacts)]
        self.assertEqual(sorted(listed), ["Emma Wilson", "James Wilson"])
        # Telegram finds the same two by name: nothing new to show under them. A
        # search that finds someone the filter does not list still shows.
        # Telegram is asked once the typing pauses and the demo account answers at
        # once: after a second and a half its answer is in.
        time.sleep(1.5)
        self.assertEqual(vost.all("list", "Found by Telegram", within=view), [])
        search("emma_w")
        vost.find("list item", "Emma Wilson", contains=True, within=vost.find("list", "Found by Telegram",
                                                                                 within=view, timeout=15))

    def test_adding_a_contact_by_phone_number(self):
        vost = self.open_signed_in()
        view = self.open_new_chat(vost)
        vost.fill(vost.find("text", "First name", within=view), "Nobody")
        vost.fill(vost.find("text", "Phone number", within=view), "+1 555 9999")
        vost.find("push button", "Add contact", within=view).press()
        vost.find("alert", NO_ACCOUNT, within=view, timeout=15)
        # Chloe Hall is on Telegram but not among the contacts.
        vost.fill(vost.find("text", "First name", within=view), "Chloe")
        vost.fill(vost.find("text", "Last name", within=view), "Hall")
        vost.fill(vost.find("text", "Phone number", within=view), "+1 555 0123")
        vost.find("push button", "Add contact", within=view).press()
        vost.absent("panel", "New chat", timeout=15)
        vost.find("panel", "Conversation with Chloe Hall")

    def test_opening_a_username(self):
        vost = self.open_signed_in()
        vost.key("ctrl+n")
        view = vost.find("panel", "New chat")
        vost.fill(vost.find("text", "Username", within=view), "a b")
        vost.find("push button", "Open", within=view).press()
        vost.find("alert", BAD_USERNAME, within=view)
        vost.fill(vost.find("text", "Username", within=view), "@nobody_here_at_all")
        vost.find("push button", "Open", within=view).press()
        wait_until(lambda: [a for a in vost.all("alert", within=view) if a.name and a.name != BAD_USERNAME],
                   timeout=15, what="the unknown username's error")
        vost.find("alert", NO_USERNAME, within=view)
        vost.fill(vost.find("text", "Username", within=view), "@oliver_king")
        vost.key("Return")
        vost.absent("panel", "New chat", timeout=15)
        vost.find("panel", "Conversation with Oliver King")

    def test_escape_returns_to_the_chats(self):
        vost = self.open_signed_in()
        self.open_new_chat(vost)
        vost.key("Escape")
        vost.absent("panel", "New chat")
        self.assertTrue(vost.popover_shown())


if __name__ == "__main__":
    main()
