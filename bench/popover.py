#!/usr/bin/python3
"""From a click on the tray item to the popover's first frame on screen, measured:
the real program under Xvfb with trayer (the UI cases' harness), signed in on the
demo account, opened by a click and closed with Esc, again and again. The program
reports the time from the click's arrival to the first frame the render thread
swapped (QQuickWindow::frameSwapped) when its "vost.popover.timing" logging
category is on. Prints the first opening, the later ones soon after closing
(median, maximum), and RETURNS openings after the popover stayed closed long
enough to let its views go (7 s), which makes them again.

    xvfb-run -a /usr/bin/python3 bench/popover.py [OPENINGS [RETURNS]]      (default 20, 5)

VOST_BUILD_DIR or VOST_BINARY pick the build, as for the UI cases."""

import os
import re
import statistics
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "ui"))
from vostui import Desktop, Vost, signed_in_template, wait_until  # noqa: E402

FIRST_FRAME = re.compile(r"first frame ([\d.]+) ms after the popover was asked for")


def main():
    openings = int(sys.argv[1]) if len(sys.argv) > 1 else 20
    returns = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    desktop = Desktop()
    try:
        vost = Vost(desktop, home_template=signed_in_template(),
                    extra_env={"QT_LOGGING_RULES": "vost.popover.timing.debug=true"}).start()
        time.sleep(3)
        times = []
        for opening in range(openings + returns):
            vost.click_tray()
            wait_until(vost.popover_shown, what="the popover")
            if opening == 0:
                vost.wait_for_chats()
            times = wait_until(lambda: len(FIRST_FRAME.findall(vost.output())) > opening
                               and [float(t) for t in FIRST_FRAME.findall(vost.output())],
                               what="the popover's first frame reported")
            vost.key("Escape")
            wait_until(lambda: not vost.popover_shown(), what="the popover closed")
            # Past the guard that keeps a closing click from reopening it, and for
            # the last ones past the moment the closed popover lets its views go.
            time.sleep(0.6 if opening + 1 < openings else 7)
        print(f"click to first frame, first opening: {times[0]:.1f} ms")
        for label, group in (("later openings", times[1:openings]),
                             ("openings after the views were let go", times[openings:])):
            if group:
                print(f"click to first frame, {len(group)} {label}: median {statistics.median(group):.1f} ms, "
                      f"max {max(group):.1f} ms")
        vost.quit()
    finally:
        desktop.close()


if __name__ == "__main__":
    main()
