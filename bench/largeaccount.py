#!/usr/bin/python3
"""A large account against the demo's usual one: the real program under Xvfb with
a tray host signs in to the demo account made with VOST_DEMO_CHATS chats (25,
the demo as it is, then 5,000 by default), and this prints the time from
submitting the code to a settled chat list and badge, the process tree's PSS
then, and the frame times of scrolling the whole chat list with the wheel
(Qt Quick's render loop figures: polish plus sync, render and swap).

    xvfb-run -a /usr/bin/python3 bench/largeaccount.py [CHATS]

VOST_BUILD_DIR or VOST_BINARY pick the build, as for the UI cases."""

import os
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "ui"))
from transcript import frame_times, pss_kb, report  # noqa: E402
from vostui import CODE_FIELD, DEMO_CODE, DEMO_PHONE, PHONE_FIELD, Desktop, Vost  # noqa: E402


def measure(desktop, chats):
    desktop.new_home()
    env = {"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop.debug=true"}
    if chats:
        env["VOST_DEMO_CHATS"] = str(chats)
    vost = Vost(desktop, extra_env=env).start()
    try:
        vost.open_popover()
        vost.fill(vost.find("text", PHONE_FIELD, timeout=20), DEMO_PHONE)
        vost.key("Return")
        vost.fill(vost.find("text", CODE_FIELD, timeout=15), DEMO_CODE)
        submitted = time.monotonic()
        vost.key("Return")
        chat_list = vost.find("list", "Chat list", timeout=60)
        # Settled: the tray's tooltip (the unread count) unchanged for a second.
        last, since = None, time.monotonic()
        while time.monotonic() - since < 1.0:
            tip = vost.tooltip()
            if tip != last:
                last, since = tip, time.monotonic()
            time.sleep(0.1)
        settled = since - submitted
        time.sleep(2)
        pss = pss_kb(vost.process.pid)
        print(f"{chats or 'the usual'} chats: list and badge settled {settled:.2f} s after the code "
              f"({last!r}), PSS {pss / 1024:.0f} MB")
        start = len(vost.output())
        x, y = chat_list.center()
        desktop.xdotool("mousemove", x, y)
        turns = max(20, (chats or 25) * 2)
        desktop.xdotool("click", "--repeat", turns, "--delay", 8, 5)
        report(f"  scrolling the chat list down ({turns} wheel steps)", frame_times(vost.output()[start:]))
        return pss
    finally:
        vost.quit()


def main():
    chats = int(sys.argv[1]) if len(sys.argv) > 1 else 5000
    desktop = Desktop()
    try:
        small = measure(desktop, 0)
        large = measure(desktop, chats)
        print(f"memory growth from the usual account to {chats} chats: {(large - small) / 1024:.0f} MB")
    finally:
        desktop.close()


if __name__ == "__main__":
    main()
