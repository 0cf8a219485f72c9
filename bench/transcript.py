#!/usr/bin/python3
"""Scrolling Emma Wilson's chat on the demo account, measured: the real program
under Xvfb with a tray host (the UI cases' harness), signed in, opens the chat,
scrolls with the wheel to the start of the conversation (every older page loads
on the way) and back to the newest message. Prints the frame times Qt Quick's
render loop reports (GUI thread polish plus the render thread's sync, render
and swap, per frame: median, p99, maximum, frames over 16 ms), the time from
starting the program to its tray item on screen, the process tree's memory (PSS)
and the CPU time it has taken at each step, and where the memory a look at the
popover left behind lies, by kind of mapping.

    xvfb-run -a /usr/bin/python3 bench/transcript.py      (after ./run.sh test or a build)

VOST_BUILD_DIR or VOST_BINARY pick the build, as for the UI cases."""

import os
import re
import statistics
import sys
import threading
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "ui"))
from vostui import Desktop, Vost, signed_in_template, wait_until  # noqa: E402

NEWEST = "You: Of course! See you at 7 🍕"


def child_processes(pid):
    """The processes pid started, as their identifiers."""
    children = []
    for task in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{task}/children") as listed:
            children += listed.read().split()
    return children


def cpu_seconds(pid):
    """The CPU time pid and every process below it have taken, ended ones
    included, in seconds."""
    try:
        with open(f"/proc/{pid}/stat") as stat:
            # The fields after the command's name, which may hold spaces.
            fields = stat.read().rsplit(")", 1)[1].split()
        ticks = sum(int(value) for value in fields[11:15])  # utime, stime, cutime, cstime
        return ticks / os.sysconf("SC_CLK_TCK") + sum(cpu_seconds(int(child)) for child in child_processes(pid))
    except OSError:
        return 0.0


def pss_kb(pid):
    """The PSS of pid and every process below it, in kB."""
    total = 0
    try:
        with open(f"/proc/{pid}/smaps_rollup") as rollup:
            total += next(int(line.split()[1]) for line in rollup if line.startswith("Pss:"))
        total += sum(pss_kb(int(child)) for child in child_processes(pid))
    except (OSError, StopIteration):
        pass
    return total


# glibc gives each thread's arena heaps of 64 MiB reserved address space, aligned to their size.
THREAD_HEAP_ALIGNMENT = 64 << 20


def memory_kind(start, name):
    """Where a mapping of the program belongs, for the memory breakdown."""
    if name == "[heap]":
        return "main heap (malloc)"
    if name in ("", "[anon]"):
        return "thread heaps (malloc)" if start % THREAD_HEAP_ALIGNMENT == 0 else "other anonymous memory"
    if "QtQml" in name:
        return "script engine (JS heap, stack, JIT code)"
    if name.startswith("/usr/share/fonts/"):
        return "fonts"
    if name.startswith(("/memfd:", "/SYSV", "/dev/shm/")):
        return "shared with the X server and audio"
    if name.startswith("/"):
        return "programs and libraries"
    return "other (stacks, vdso)"


def memory_by_kind(pid):
    """The PSS of pid's own mappings by kind, in kB, and of the processes below it."""
    kinds = {}
    kind = None
    try:
        with open(f"/proc/{pid}/smaps") as smaps:
            for line in smaps:
                fields = line.split()
                if "-" in fields[0] and not fields[0].endswith(":"):
                    kind = memory_kind(int(fields[0].split("-")[0], 16), fields[5] if len(fields) > 5 else "")
                elif fields[0] == "Pss:":
                    kinds[kind] = kinds.get(kind, 0) + int(fields[1])
    except OSError:
        pass
    own = sum(kinds.values())
    kinds["helper processes"] = pss_kb(pid) - own
    return kinds


def report_memory(before, after):
    print("PSS by kind: in the tray before any opening, 10 s after closing, change (MB)")
    for kind in sorted(after, key=lambda k: -(after[k] - before.get(k, 0))):
        print(f"  {kind:44} {before.get(kind, 0) / 1024:6.1f} {after[kind] / 1024:6.1f} "
              f"{(after[kind] - before.get(kind, 0)) / 1024:+6.1f}")


def frame_times(log):
    """Per frame: the GUI thread's polish and the render thread's frame (OpenGL's
    threaded loop), or the whole frame (the software renderer's loop), in ms."""
    software = [int(m) for m in re.findall(r"Frame rendered with 'software' renderloop in (\d+)ms", log)]
    if software:
        return software
    polish = [int(m) for m in re.findall(r"Frame prepared, polish=(\d+) ms", log)]
    rendered = [int(m) for m in re.findall(r"frame rendered in (\d+)ms", log)]
    count = min(len(polish), len(rendered))
    return [polish[-count + i] + rendered[-count + i] for i in range(count)] if count else []


def report(label, times):
    if not times:
        print(f"{label}: no frames")
        return
    ordered = sorted(times)
    p99 = ordered[min(len(ordered) - 1, int(len(ordered) * 0.99))]
    print(f"{label}: {len(times)} frames, median {statistics.median(times):.0f} ms, p99 {p99} ms, "
          f"max {ordered[-1]} ms, {sum(t > 16 for t in times)} over 16 ms")


def main():
    desktop = Desktop()
    try:
        vost = Vost(desktop, home_template=signed_in_template(),
                    extra_env={"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop.debug=true"})
        # The tray item is the program's first window; it is watched for from the start.
        launched = time.monotonic()
        shown = []

        def watch_for_tray_item():
            while not shown and time.monotonic() - launched < 30:
                if vost.process is not None and vost.tray_icon_geometry():
                    shown.append(time.monotonic())
                time.sleep(0.005)
        threading.Thread(target=watch_for_tray_item, daemon=True).start()
        vost.start()
        pid = vost.process.pid
        wait_until(lambda: shown, what="the tray item")
        print(f"start to the tray item on screen: {shown[0] - launched:.2f} s")

        def step(label):
            print(f"{label}: PSS {pss_kb(pid) / 1024:.1f} MB, CPU so far {cpu_seconds(pid):.2f} s")
        time.sleep(3)
        # The sign-in sound's player lingers a few seconds; the tray is what lasts.
        wait_until(lambda: not child_processes(pid), timeout=15, what="the helpers gone")
        step("in the tray, popover never opened")
        in_tray = memory_by_kind(pid)
        vost.open_popover()
        vost.wait_for_chats()
        time.sleep(2)
        step("with the chat list")
        vost.open_chat("Emma Wilson")
        messages = vost.find("list", "Messages")
        vost.find("list item", NEWEST, contains=True, within=messages)
        time.sleep(2)
        step("with Emma Wilson's chat open")

        start = len(vost.output())
        started = time.monotonic()
        for turn in range(2000):
            vost.wheel(messages, 2)
            if turn % 10 == 9 and vost.all("paragraph", "Start of the conversation", within=messages):
                break
        up = frame_times(vost.output()[start:])
        print(f"to the start: {time.monotonic() - started:.1f} s, {len(vost.messages())} rows exposed")
        start = len(vost.output())
        for turn in range(2000):
            vost.wheel(messages, 2, down=True)
            if turn % 10 == 9 and vost.all("list item", NEWEST, contains=True, within=messages):
                break
        down = frame_times(vost.output()[start:])
        report("scrolling up (pages loading)", up)
        report("scrolling down", down)
        step("after scrolling")
        vost.key("Escape")
        vost.key("Escape")
        if vost.popover_shown():
            vost.click_tray()
        time.sleep(10)
        step("10 s after closing the popover")
        print("a video player was made on the way (GStreamer loaded): "
              + ("yes" if vost.media_player_loaded() else "no"))
        report_memory(in_tray, memory_by_kind(pid))
        vost.quit()
    finally:
        desktop.close()


if __name__ == "__main__":
    main()
