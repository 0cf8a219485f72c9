#!/usr/bin/python3
"""A day in the tray, shortened: the real program under Xvfb with a tray host,
signed in on the demo account, which receives a message every 2 s across its
chats (VOST_DEMO_MESSAGE_EVERY_MS), while the popover is opened on the chat list
and closed again once a minute. Prints the process tree's PSS with the popover
closed, each minute, and how far it moved after the first five minutes (taken
once the sound player, which plays the messages' sounds and ends 3 s after the
last one, has gone: it adds about 3 MB while it runs, and its libraries shared
with the program lower the program's share); beside
it the anonymous memory (heap and other memory not backed by a file), where a
leak would show: unlike PSS it does not move when other programs start or stop
sharing the program's libraries.

    xvfb-run -a /usr/bin/python3 bench/soak.py [MINUTES]      (default 30)

VOST_BUILD_DIR or VOST_BINARY pick the build, as for the UI cases: a build with
AddressSanitizer (./run.sh test --sanitize makes build-sanitize) reports leaks
when the program quits, in the program's output."""

import os
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "ui"))
from transcript import child_processes, pss_kb  # noqa: E402
from vostui import Desktop, Vost, signed_in_template, wait_until  # noqa: E402

SETTLE_MINUTES = 5


def anonymous_kb(pid):
    """The anonymous memory of pid, in kB."""
    with open(f"/proc/{pid}/smaps_rollup") as rollup:
        return next(int(line.split()[1]) for line in rollup if line.startswith("Anonymous:"))


def spread(label, samples):
    low, high = min(samples), max(samples)
    return f"{label} from {low:.1f} to {high:.1f} MB ({(high - low) / low * 100:.1f} % apart), last {samples[-1]:.1f} MB"


def main():
    minutes = int(sys.argv[1]) if len(sys.argv) > 1 else 30
    desktop = Desktop()
    try:
        vost = Vost(desktop, home_template=signed_in_template(),
                    extra_env={"VOST_DEMO_DETERMINISTIC": "0", "VOST_DEMO_MESSAGE_EVERY_MS": "2000"}).start()
        pid = vost.process.pid
        started = time.monotonic()
        samples = []
        anonymous = []
        for minute in range(1, minutes + 1):
            vost.click_tray()
            wait_until(vost.popover_shown, what="the popover")
            vost.wait_for_chats()
            time.sleep(2)
            vost.key("Escape")
            wait_until(lambda: not vost.popover_shown(), what="the popover closed")
            time.sleep(max(0.0, started + minute * 60 - time.monotonic()))
            try:
                wait_until(lambda: not child_processes(pid), timeout=10, what="the helper processes gone")
                helper_running = False
            except TimeoutError:
                helper_running = True
            samples.append(pss_kb(pid) / 1024)
            anonymous.append(anonymous_kb(pid) / 1024)
            print(f"minute {minute}: PSS {samples[-1]:.1f} MB, anonymous {anonymous[-1]:.1f} MB"
                  + (" (a helper process was still running)" if helper_running else ""), flush=True)
        if len(samples) > SETTLE_MINUTES:
            print(f"after minute {SETTLE_MINUTES}: " + spread("PSS", samples[SETTLE_MINUTES - 1:]) + "; "
                  + spread("anonymous", anonymous[SETTLE_MINUTES - 1:]))
        vost.quit()
        # Each leak with the frame that allocated it, so that runs can be compared.
        lines = vost.output().splitlines()
        leaks = [line if "leak of" not in line else line + " " + (lines[i + 2].strip() if i + 2 < len(lines) else "")
                 for i, line in enumerate(lines)
                 if "LeakSanitizer" in line or "SUMMARY:" in line or "leak of" in line]
        print("\n".join(leaks) if leaks else "no leak report in the program's output")
    finally:
        desktop.close()


if __name__ == "__main__":
    main()
