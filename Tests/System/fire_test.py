#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Uses the real window in front of a server, a network and a resolver that fail in every way.

    fire_test.py QUORVAN_SHORT_LIMITS KELP_SERVER

Exit code 77: something is missing that a test cannot do without; the line printed says what.
"""
import itertools
import os
import re
import resource
import signal
import socket
import subprocess
import time

import process_test
from desktop import until
from process_test import ADDRESS, ALERT_FAILED, PASSWORD, USER

SILENCE, COMPUTING, PAUSE, RESOLVING = 2, 6, 3, 2  # the limits of this program, in seconds
SLACK = 2  # for what the window, the screen reader and a busy machine need
LOST = "The connection to * was lost.*"
PAGES = (
    ("Trustee Rights",),
    ("User Quota",),
    ("Information",),
    ("Trustee Rights", "Effective Rights"),
    ("Trustee Rights", "Trustee Directories"),
)


class FireTest(process_test.WindowTest):
    def setUp(self):
        super().setUp()
        self.keyring.store(ADDRESS, USER, PASSWORD)
        self.addCleanup(self.server.ask, "mend")
        self.addCleanup(self.server.kelp.ask, "behave")
        self.silent_since = 0

    def press(self, name):
        """Not at a place on the screen: between two pages the window is about to change its size."""
        self.view.wait_for("push button", name)
        self.view.answer(name)

    def spoil(self, how, place):
        self.server.ask(f"fail {how} {place}")

    def mend(self):
        """The server is well again, and may be asked again."""
        self.server.ask("mend")
        until(lambda: time.monotonic() > self.silent_since + PAUSE, "the pause after a silence to end")

    def assert_fails(self, act, seconds):
        """Something leads to the alert of a failed operation, within so many seconds."""
        begin = time.monotonic()
        act()
        until(lambda: self.view.find("label", ALERT_FAILED), "the alert", 30)
        took = time.monotonic() - begin
        self.assertLess(took, seconds + SLACK)
        self.silent_since = time.monotonic()

    def answer_alerts(self):
        """Until none comes any more: each question of a page has its own."""
        quiet = time.monotonic() + 0.5
        while time.monotonic() < quiet:
            if self.view.find("label", ALERT_FAILED):
                self.view.answer("OK")
                quiet = time.monotonic() + 0.5

    def back_to_menu(self):
        if self.view.find("push button", "Close"):
            self.press("Close")
            self.answer_alerts()  # the menu asks anew who is logged in
        until(lambda: self.view.is_enabled("push button", "Trustee Rights"), "the menu")

    def test_every_page_takes_a_loss_for_a_loss(self):
        places = itertools.cycle(("before", "within", "after"))
        self.start(ADDRESS)
        for page in PAGES:
            for how in ("close", "reset", "silence"):
                place = next(places)
                with self.subTest(page=page, how=how, place=place):
                    self.back_to_menu()
                    if len(page) > 1:
                        self.press(page[0])
                        self.view.wait_for("table")
                    self.spoil(how, place)
                    act = self.open_tab if len(page) > 1 else self.press
                    self.assert_fails(lambda: act(page[-1]), SILENCE if how == "silence" else 0)
                    self.mend()
                    self.answer_alerts()
                    self.view.wait_for("label", LOST)
            next(places)  # so that each page meets another combination
        self.back_to_menu()
        self.press("Trustee Rights")
        self.view.wait_for("table")
        self.assertEqual(self.trustees_on_screen(), self.trustees_on_server())
        self.assertIn("Failed with err - 110", self.log_texts())
        self.close("Trustee Rights")

    def test_a_loss_in_apply_keeps_what_is_pending(self):
        self.start(ADDRESS)
        self.press("Trustee Rights")
        for row, how in enumerate(("close", "reset", "silence")):
            with self.subTest(how=how):
                self.view.wait_for("table")
                self.view.click(self.view.cell(row, 5))
                self.view.wait_for("push button", "1 change waits for Apply")
                self.spoil(how, "before")
                self.assert_fails(lambda: self.press("Apply"), SILENCE if how == "silence" else 0)
                self.mend()
                self.answer_alerts()
                self.view.wait_for("label", LOST)
                self.view.wait_for("push button", "1 change waits for Apply")
                self.apply()
                self.assertEqual(sorted(self.trustees_on_screen()), sorted(self.trustees_on_server()))
        self.close("Trustee Rights")

    def test_the_start_meets_what_the_pages_meet(self):
        for how, place in (("close", "after"), ("silence", "before"), ("drip", "before"), ("endless", "before")):
            with self.subTest(how=how):
                self.mend()
                self.spoil(how, place)
                self.assert_fails(lambda: self.start(ADDRESS), 2 * SILENCE)
                self.mend()
                self.answer_alerts()
                self.press("Try Again")
                self.back_to_menu()
                self.close()

    def test_drips_and_endless_replies_end(self):
        self.start(ADDRESS)
        for how, place in (("drip", "within"), ("drip", "before"), ("endless", "before")):
            with self.subTest(how=how, place=place):
                self.back_to_menu()
                self.spoil(how, place)
                self.assert_fails(lambda: self.press("Trustee Rights"), 2 * SILENCE)
                self.mend()
                self.answer_alerts()
                self.view.wait_for("label", LOST)
        self.close()

    def test_a_server_that_computes_is_waited_for_and_the_window_says_so(self):
        self.start(ADDRESS)
        self.view.wait_for("push button", "Trustee Rights")
        for delay, ends in ((2 * SILENCE, True), (2 * COMPUTING, False)):
            self.server.kelp.ask("misbehave", "delay", 1000 * delay)
            begin = time.monotonic()
            self.press("Trustee Rights")
            pictures = set()
            while time.monotonic() < begin + 2 * SILENCE - 0.5:
                pictures.update(self.screen.windows().values())
                time.sleep(0.2)
            self.assertGreaterEqual(len(pictures), 3, "the seconds count in the window")
            if ends:
                self.view.wait_for("table")
            else:
                self.assert_fails(lambda: None, COMPUTING - 2 * SILENCE)
            self.server.kelp.ask("behave")
            self.answer_alerts()
            self.back_to_menu()
        self.close()

    def test_signals_end_a_waiting_program_within_a_second(self):
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            with self.subTest(number):
                self.start(ADDRESS)
                self.view.wait_for("push button", "Trustee Rights")
                self.spoil("silence", "before")
                self.press("Trustee Rights")
                time.sleep(0.5)  # it waits now, and shows nothing of it
                begin = time.monotonic()
                self.quorvan.send_signal(number)
                self.quorvan.wait(10)
                self.assertLess(time.monotonic() - begin, 1)
                self.server.ask("mend")

    def test_a_refused_login_is_not_repeated(self):
        for how, secret in (("guest", PASSWORD), ("-", "not " + PASSWORD)):
            with self.subTest(how=how):
                self.keyring.store(ADDRESS, USER, secret)
                self.spoil(how, "-")
                self.assert_fails(lambda: self.start(ADDRESS, loggedUserType="ActiveDirectory"), SILENCE)
                self.answer_alerts()
                before = self.server.ask("logins")
                self.assert_fails(lambda: self.press("Trustee Rights"), 0)
                self.answer_alerts()
                self.assertEqual(self.server.ask("logins"), before)
                self.assertIn("Error mounting virtual volume due to error code 13\n", self.log.read_text())
                self.close()

    def test_a_silent_resolver_is_asked_once_behind_a_window(self):
        if subprocess.run(["unshare", "-m", "true"], check=False).returncode != 0:
            self.skipTest("no file can be hidden from a program here")
        resolver = socket.socket(type=socket.SOCK_DGRAM)  # where nobody answers
        self.addCleanup(resolver.close)
        resolver.bind((ADDRESS, 53))
        settings = self.home / "resolv.conf"
        settings.write_text(f"nameserver {ADDRESS}\n")
        hide = f'mount --bind {settings} /etc/resolv.conf && exec "$0"'
        self.keyring.store("files.example", USER, PASSWORD)
        begin = time.monotonic()
        self.start("files.example", "unshare", "-m", "sh", "-c", hide, loggedUserType="ActiveDirectory")
        shown = until(lambda: [w for w in self.screen.windows().values() if len(set(w)) > 2], "a window", 5)
        self.assertLess(time.monotonic() - begin, 1, len(shown))
        self.assert_fails(lambda: None, RESOLVING)
        self.answer_alerts()
        self.assert_fails(lambda: self.press("Information"), 0)  # is remembered
        self.answer_alerts()
        self.back_to_menu()
        self.close()

    def test_the_password_is_in_one_place_of_ours_and_in_no_core_dump(self):
        resource.setrlimit(resource.RLIMIT_CORE, (resource.RLIM_INFINITY,) * 2)
        self.start(ADDRESS)
        self.press("Trustee Rights")
        self.view.wait_for("table")
        places = self.places_of_password()
        self.assertEqual([place[2:] for place in places if place[3]], [(1, True, True)], places)
        self.quorvan.send_signal(signal.SIGQUIT)
        _, status = os.waitpid(self.quorvan.pid, 0)
        self.quorvan.returncode = -signal.SIGQUIT
        self.assertFalse(os.WCOREDUMP(status), status)

    def places_of_password(self):
        """Where the password is in the memory of the program: the mappings' names and flags."""
        found = []
        with open(f"/proc/{self.quorvan.pid}/smaps", encoding="ascii") as maps, open(
            f"/proc/{self.quorvan.pid}/mem", "rb"
        ) as memory:
            for text in re.split(r"\n(?=[0-9a-f]+-[0-9a-f]+ )", maps.read()):
                begin, end = (int(word, 16) for word in text.split(" ")[0].split("-"))
                if " rw" not in text.splitlines()[0]:
                    continue
                memory.seek(begin)
                content = memory.read(end - begin)
                flags = re.search("VmFlags: (.*)", text)[1].split()
                for encoding in ("utf-8", "utf-16le"):
                    count = content.count(PASSWORD.encode(encoding))
                    if count:
                        found.append((text.split("\n")[0].split()[5:], encoding, count, "lo" in flags, "dd" in flags))
        return found


if __name__ == "__main__":
    process_test.main()
