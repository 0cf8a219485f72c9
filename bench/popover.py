#!/usr/bin/python3
"""From a click on the tray item to the popover's first frame on screen, measured:
the real program under Xvfb with trayer (the UI cases' harness), signed in on the
demo account, opened by a click and closed with Esc, again and again. The program
reports the time from the click's arrival to the first frame the render thread
swapped (QQuickWindow::frameSwapped) when its "vost.popover.timing" logging
category is on. Prints the first opening and the later ones (median, maximum).

    xvfb-run -a /usr/bin/python3 bench/popover.py [OPENINGS]      (default 20)

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
    desktop = Desktop()
    try:
        vost = Vost(desktop, home_template=signed_in_template(),
                    extra_env={"QT_LOGGING_RULES": "vost.popover.timing.debug=true"}).start()
        time.sleep(3)
        times = []
        for opening in range(openings):
            vost.click_tray()
            wait_until(vost.popover_shown, what="the popover")
            if opening == 0:
                vost.wait_for_chats()
            times = wait_until(lambda: len(FIRST_FRAME.findall(vost.output())) > opening
                               and [float(t) for t in FIRST_FRAME.findall(vost.output())],
                               what="the popover's first frame reported")
            vost.key("Escape")
            wait_until(lambda: not vost.popover_shown(), what="the popover closed")
            # Past the guard that keeps a closing click from reopening it.
            time.sleep(0.6)
        later = times[1:]
        print(f"click to first frame, first opening: {times[0]:.1f} ms")
        if later:
            print(f"click to first frame, {len(later)} later openings: median {statistics.median(later):.1f} ms, "
                  f"max {max(later):.1f} ms")
        vost.quit()
    finally:
        desktop.close()


if __name__ == "__main__":
    main()
