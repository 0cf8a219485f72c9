#!/usr/bin/python3
"""The connection's state: while the demo account's network is pulled, the chat
list's header and the tray item's tool tip say so; once it is back they stop."""

import os

from vostui import VostTestCase, main, wait_until

WAITING = "Waiting for network…"
PROGRESS = (WAITING, "Connecting…", "Updating…")


class Connection(VostTestCase):
    def launch_with_network_switch(self):
        switch = os.path.join(self.desktop.env["HOME"], "network-off")
        vost = self.open_signed_in(extra_env={"VOST_DEMO_NETWORK_SWITCH": switch})
        return vost, switch

    def progress_lines(self, vost, within):
        return [node.name for node in vost.all("paragraph", within=within) if node.name in PROGRESS]

    def test_the_header_and_the_tool_tip_follow_the_network_away_and_back(self):
        vost, switch = self.launch_with_network_switch()
        sidebar = vost.find("panel", "Sidebar")
        self.assertEqual(self.progress_lines(vost, sidebar), [])

        with open(switch, "w"):
            pass
        line = vost.find("paragraph", WAITING, within=sidebar)
        # Between the search field and the chats, the list moved down for it.
        search = vost.find("text", "Search", within=sidebar)
        chat_list = vost.find("list", "Chat list", within=sidebar)
        self.assertGreaterEqual(line.extents()[1], search.extents()[1] + search.extents()[3])
        self.assertLessEqual(line.extents()[1] + line.extents()[3], chat_list.extents()[1])
        # The chats stay where they were.
        self.assertGreaterEqual(len(vost.chat_rows()), 6)
        self.assertEqual(vost.tooltip().splitlines()[-1], WAITING)

        os.remove(switch)
        vost.absent("paragraph", WAITING, within=sidebar)
        wait_until(lambda: self.progress_lines(vost, sidebar) == [], timeout=10, what="the header without a state")
        self.assertTrue(vost.tooltip().startswith("Vost"))
        self.assertEqual(len(vost.tooltip().splitlines()), 1)

    def test_a_start_without_network_says_so_at_once(self):
        switch = os.path.join(self.desktop.env["HOME"], "network-off")
        with open(switch, "w"):
            pass
        vost = self.launch(extra_env={"VOST_DEMO_NETWORK_SWITCH": switch})
        vost.open_popover()
        sidebar = vost.find("panel", "Sidebar", timeout=20)
        vost.find("paragraph", WAITING, within=sidebar)
        os.remove(switch)
        vost.absent("paragraph", WAITING, within=sidebar)
        wait_until(lambda: self.progress_lines(vost, sidebar) == [], what="the header without a state")


if __name__ == "__main__":
    main()
