#!/usr/bin/python3
"""Starting and ending: the signals a service manager, a terminal or the desktop
send end Vost the ordinary way, a second launch meets the first, and many starts
and quits in a row leave an intact account and no process behind.

VOST_CYCLES sets how many starts and quits the cycle case makes (default 10;
100 for a soak)."""

import os
import signal
import subprocess

from vostui import VOST, Vost, VostTestCase, main, wait_until


def processes_of(home):
    """Our processes (Vost and any helper it started) living in that home folder."""
    found = []
    for entry in os.listdir("/proc"):
        if not entry.isdigit() or int(entry) == os.getpid():
            continue
        try:
            with open(f"/proc/{entry}/environ", "rb") as file:
                environment = file.read().split(b"\0")
            with open(f"/proc/{entry}/cmdline", "rb") as file:
                command = file.read().replace(b"\0", b" ").decode(errors="replace")
        except OSError:
            continue
        if f"HOME={home}".encode() in environment and ("vost" in command or "QtWebEngine" in command):
            found.append(f"{entry}: {command}")
    return found


class Lifecycle(VostTestCase):
    def start_again(self, **kwargs):
        """Vost on the account the case's first launch left in this home folder."""
        vost = Vost(self.desktop, **kwargs)
        self.addCleanup(vost.quit)
        return vost.start()

    def assert_signed_in(self, vost):
        vost.open_popover()
        vost.wait_for_chats()

    def start_again_in_emmas_chat(self):
        """Vost started again on the same account, with Emma Wilson's chat open."""
        vost = self.start_again()
        self.assert_signed_in(vost)
        vost.open_chat("Emma Wilson")
        return vost

    def test_termination_signals_end_vost_cleanly_and_keep_the_account(self):
        vost = self.open_signed_in()
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            vost.process.send_signal(number)
            try:
                code = vost.process.wait(10)
            except subprocess.TimeoutExpired:
                self.fail(f"{number.name} did not end Vost within 10 s")
            self.assertEqual(code, 0, f"{number.name} ended Vost with {code}:\n{vost.output()}")
            vost = self.start_again()
            self.assert_signed_in(vost)

    def test_a_second_launch_shows_the_first_and_ends(self):
        first = self.open_signed_in()
        first.key("Escape")
        wait_until(lambda: not first.popover_shown(), what="the popover closed")
        second = subprocess.run([VOST, "--demo"], env=first.env, capture_output=True, timeout=20)
        self.assertEqual(second.returncode, 0, second.stderr.decode())
        wait_until(first.popover_shown, what="the first Vost's popover shown")

    def test_a_launch_while_vost_closes_waits_and_then_runs(self):
        first = self.open_signed_in()
        # Ending Vost and starting it again at once, as a restart does.
        first.process.send_signal(signal.SIGTERM)
        second = self.start_again()
        self.assertEqual(first.process.wait(10), 0)
        self.assert_signed_in(second)

    def test_typed_text_outlives_a_quit_from_the_tray_menu_and_a_crash(self):
        vost = self.open_signed_in()
        vost.open_chat("Emma Wilson")
        vost.fill(vost.find("text", "Message"), "Half a thought")
        vost.click_tray(button=3)
        wait_until(lambda: not vost.popover_shown(), what="the popover closed by the right click")
        vost.key("Up", "Return")  # "Quit Vost"
        self.assertEqual(vost.process.wait(10), 0)

        vost = self.start_again_in_emmas_chat()
        self.assertEqual(vost.find("text", "Message").text(), "Half a thought")
        vost.fill(vost.find("text", "Message"), "Written before a crash")
        # Kept once the typing pauses, so that a crash right after loses nothing.
        typed = os.path.join(self.desktop.env["HOME"], ".local", "share", "Corvella", "Vost", "typed-texts.json")
        wait_until(lambda: os.path.exists(typed) and "Written before a crash" in open(typed).read(),
                   what="the typed text kept")
        vost.process.kill()
        vost.process.wait()

        vost = self.start_again_in_emmas_chat()
        self.assertEqual(vost.find("text", "Message").text(), "Written before a crash")
        # Sent text is gone from the composer, and stays gone after a restart.
        vost.focus(vost.find("text", "Message"))
        vost.key("Return")
        vost.find("list item", "Written before a crash", contains=True, within=vost.find("list", "Messages"))
        self.assertEqual(vost.find("text", "Message").text(), "")
        vost.key("ctrl+q")
        self.assertEqual(vost.process.wait(10), 0)
        vost = self.start_again_in_emmas_chat()
        self.assertEqual(vost.find("text", "Message").text(), "")

    def test_many_starts_and_quits_leave_an_intact_account_and_nothing_running(self):
        cycles = int(os.environ.get("VOST_CYCLES", "10"))
        home = self.desktop.env["HOME"]
        crashes, hangs = [], []
        for cycle in range(cycles):
            vost = self.launch() if cycle == 0 else self.start_again()
            self.assert_signed_in(vost)
            # Alternately the way a person quits and the way a session manager does.
            if cycle % 2:
                vost.process.send_signal(signal.SIGTERM)
            else:
                vost.key("ctrl+q")
            try:
                code = vost.process.wait(15)
            except subprocess.TimeoutExpired:
                hangs.append(cycle)
                vost.process.kill()
                vost.process.wait()
                continue
            if code != 0:
                crashes.append((cycle, code))
            wait_until(lambda: not processes_of(home), timeout=5, what=f"no process left after cycle {cycle}")
        print(f"\n{cycles} cycles: {len(crashes)} crashes, {len(hangs)} hangs", flush=True)
        self.assertEqual(crashes, [])
        self.assertEqual(hangs, [])
        self.assertEqual(processes_of(home), [])
        self.assert_signed_in(self.start_again())


if __name__ == "__main__":
    main()
