#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs quorvan as its user does: hand-over and keyring in place, a real window, a real SMB server.

    process_test.py QUORVAN KELP_SERVER

Exit code 77: something is missing that a test cannot do without; the line printed says what.
"""
import os
import pathlib
import plistlib
import re
import socket
import subprocess
import sys
import tempfile
import unittest
import unittest.mock

import desktop
from desktop import until

FRONT = pathlib.Path(__file__).resolve().parents[2] / "Simulator" / "smb_front.py"
sys.path.append(str(FRONT.parent))
try:
    from smb_front import KelpConnection
except ImportError as error:
    print("SKIPPED: python3-impacket is not installed:", error)
    sys.exit(77)

ADDRESS = f"127.{200 + os.getpid() // 62500 % 50}.{os.getpid() // 250 % 250}.{2 + os.getpid() % 250}"
LINK_TARGET = "127.0.0.1"  # what "localhost" resolves to
USER = "ingrid.holm"
PASSWORD = "pl3nty-0f-s3crets"
PATH = "VOL1:\\Projects\\Aurora"
RIGHTS = (0x0100, 0x0001, 0x0002, 0x0010, 0x0008, 0x0080, 0x0040, 0x0020)  # S R W E C M F A
PREFIX = re.compile(r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{6}[+-]\d{4} quorvan\w*\[\d+:\d+\] ")

NO_DIRECTORY = "Could not find a Active Directory on the server"  # once for each trustee; kept once
OPEN_PIPE = [
    f"Getting ip of mapped server - {ADDRESS}",
    f"Resolved {ADDRESS} to {ADDRESS}",
    "Checking for exisitng pipes mapped",
]
MOUNT = [f"Mounting pipe for smb://{ADDRESS}/IPC$"]
MOUNTED = [
    f"Adding new mount point to dictionary - key : {ADDRESS}/IPC$ value : /IPC$",
    "Mounted virtual volume successfully",
]
REUSED = [f"{ADDRESS}/IPC$ is already mounted. Stat status 0", f"{ADDRESS} is mounted at /IPC$"]
USER_TYPE = [
    "Get userType Request : <zelSmbGetInfo><userType/></zelSmbGetInfo>",
    "response.deinitialize",
    "Get userType Response: <zelSmbGetInfo>…",
    "pipe closed",
]
GET_TRUSTEES = [
    'Get trustee list Request : <adminRequest><virtualIO><datastream name="command"/></virtualIO><fileRequest>'
    f"<fileInfo><getFileInfo><adOnly/><fileName>{PATH}</fileName><symLink/><nameSpace>LONG</nameSpace>"
    "<typeOfInfo><rightsInfo/></typeOfInfo></getFileInfo></fileInfo></fileRequest></adminRequest>",
    "response.deinitialize getTrusteeList",
    "Get trustee list Response: <adminReply>…",
    NO_DIRECTORY,
    "pipe closed",
    "pipe closed",
]
ALERT_FAILED = (
    "The server did not complete the operation. Check the connection to the server, and that your keyring "
    "holds its password; then try again. "
    "The log file has the details."
)
ALERT_NO_PASSWORD = (
    "The server's password was not found in the keyring. Mount the share with “Remember password”, "
    "then open Quorvan again."
)


def opened(pipe):
    path = f"/Volumes/IPC$/{pipe}"
    return [
        f"Opened pipe {path} with expected error on server {ADDRESS} and error id is 0",
        f"Registered as managed device on {ADDRESS} server",
    ]


def end(process):
    process.terminate()
    process.communicate()


class Server:
    """kelp-server behind an SMB server on a loopback address."""

    def __init__(self, address, data, clean_up, *more):
        kelp_server = subprocess.Popen([KELP_SERVER, "--data", data], stdout=subprocess.PIPE, text=True)
        clean_up(end, kelp_server)
        port = kelp_server.stdout.readline().split()[1]
        self.kelp = KelpConnection(int(port))
        clean_up(self.kelp.close)
        self.front = subprocess.Popen(
            [sys.executable, str(FRONT), "--address", address, "--kelp-port", port]
            + ["--password", PASSWORD, *more],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            text=True,
        )
        clean_up(end, self.front)
        assert self.front.stdout.readline() == "ready\n"

    def ask(self, line):
        self.front.stdin.write(line + "\n")
        self.front.stdin.flush()
        return self.front.stdout.readline().strip()

    def sessions(self):
        return self.ask("sessions")

    def rows(self, path):
        """SID, mask and name of the Active Directory trustees, in the server's order."""
        rows = (line.split("\t") for line in self.kelp.ask("trustees", path).decode().splitlines())
        return [row for row in rows if row[0].startswith("S-1-")]

    def trustees(self, path):
        return [(name, int(mask, 16)) for _, mask, name in self.rows(path)]


class WindowTest(unittest.TestCase):
    """The program on a screen, with a keyring, in front of a server."""

    @classmethod
    def setUpClass(cls):
        cls.screen = desktop.Screen()
        cls.addClassCleanup(cls.screen.stop)
        cls.keyring = desktop.Keyring()
        cls.server = Server(ADDRESS, "demo", cls.addClassCleanup)

    def setUp(self):
        self.home = pathlib.Path(os.environ["HOME"])
        self.log = self.home / "Library/Logs/tarnix/Quorvan.log"
        self.log.unlink(missing_ok=True)
        self.view = desktop.View(pathlib.Path(QUORVAN).name, self.screen)

    def start(self, server, *before, **more):
        """Hands a selection over, of the whole volume unless told otherwise, and starts the program, with words
        before its name where there are any."""
        hand_over = {"serverIP": server, "selectedPath": "/Volumes/VOL1/Projects/Aurora", "mappedPath": "VOL1:\\"}
        file = self.home / ".config/group.tarnix.common.plist"
        file.parent.mkdir(exist_ok=True)
        file.write_bytes(plistlib.dumps({**hand_over, **more}))
        self.quorvan = subprocess.Popen([*before, QUORVAN])
        self.addCleanup(end, self.quorvan)

    def close(self, title="Rights Management"):
        self.view.wait_for("frame", title)
        self.screen.close_window(title)
        self.assertEqual(self.quorvan.wait(20), 0)

    def press(self, name):
        self.view.click(self.view.wait_for("push button", name))

    def apply(self):
        until(lambda: self.view.is_enabled("push button", "Apply"), "Apply to be enabled")
        self.press("Apply")
        until(lambda: not self.view.is_enabled("push button", "Apply"), "Apply to be done")

    def answer_alert(self, text):
        self.view.wait_for("label", text)
        self.press("OK")
        until(lambda: self.view.find("label", text) is None, "the alert to go")

    def open_tab(self, name):
        self.view.click(self.view.wait_for("page tab", name))

    def limits_on_server(self):
        """SID and limit of the users of Active Directory that have one."""
        rows = (line.split("\t")[:2] for line in self.server.kelp.ask("user-quotas", "VOL1").decode().splitlines())
        return [row for row in rows if row[0].startswith("S-1-") and row[1] != str(2**63 - 1)]

    def trustees_on_server(self):
        return self.server.trustees(PATH)

    def sid_of(self, trustee):
        return next(sid for sid, _, name in self.server.rows(PATH) if name == trustee)

    def trustees_on_screen(self):
        return [
            (name, sum(bit for bit, ticked in zip(RIGHTS, boxes) if ticked)) for name, boxes in self.view.rows()
        ]

    def log_texts(self):
        """The lines of the log without their prefix."""
        content = self.log.read_text()
        self.assertNotIn(PASSWORD, content)
        texts = []
        for line in content.splitlines():
            self.assertRegex(line, PREFIX)
            text = PREFIX.sub("", line, count=1)
            if text != NO_DIRECTORY or texts[-1] != text:
                texts.append(text)
        return texts

    def assert_log(self, expected):
        """Compares the whole log; an expected line that ends in "…" is the beginning of one."""
        texts = self.log_texts()
        for index, line in enumerate(expected):
            if line.endswith("…") and index < len(texts) and texts[index].startswith(line[:-1]):
                texts[index] = line
        self.maxDiff = None
        self.assertEqual(texts, expected)


class ProcessTest(WindowTest):
    def test_a_right_ticked_in_the_window_arrives_at_the_server(self):
        self.keyring.store(ADDRESS, USER, PASSWORD)
        self.start(ADDRESS)
        self.press("Trustee Rights")
        self.view.wait_for("table")
        before = self.trustees_on_server()
        self.assertEqual(self.trustees_on_screen(), before)
        self.assertEqual(self.server.sessions(), "1 0")
        self.assertFalse(self.view.is_enabled("push button", "Apply"))

        row = [name for name, _ in before].index("Finance")
        self.assertEqual(before[row][1], 0x0041)
        self.view.click(self.view.cell(row, 3))  # W
        ticked = ("Finance, changed, waits for Apply", 0x0043)
        until(lambda: self.trustees_on_screen()[row] == ticked, "the tick")
        self.view.wait_for("push button", "1 change waits for Apply")
        self.assertEqual(self.trustees_on_server(), before, "nothing is sent before Apply")
        self.apply()
        until(lambda: self.view.find("label", "Applied *"), "the outcome")
        after = before[:row] + [("Finance", 0x0043)] + before[row + 1 :]
        self.assertEqual(sorted(self.trustees_on_server()), sorted(after))
        self.assertEqual(self.trustees_on_screen(), self.trustees_on_server())

        self.close("Trustee Rights")
        until(lambda: self.server.sessions() == "0 0", "the session to end")
        reload = OPEN_PIPE + REUSED + opened("FilesCmdPipe") + GET_TRUSTEES
        self.assert_log(
            [
                f"file://{self.log}",
                f"Path selected is {PATH}",
                f"Path mapped and selected is {PATH}",
                f"Volume mapping with username {USER}",
                *(["init"] + OPEN_PIPE + MOUNT + MOUNTED + opened("ZelSmbPipe") + USER_TYPE),
                *(["init"] + reload + ["response.deallocate"]),
                *(["init", "response.deallocate"] + OPEN_PIPE + REUSED + opened("FilesCmdPipe")),
                'Add Remove trustee list Request : <adminRequest><virtualIO><datastream name="command"/></virtualIO>'
                '<fileRequest><trustees><addTrustee type="adID"><adUser/><userID>' + self.sid_of("Finance") + "</userID>"
                f"<rights><read/><write/><fileScan/></rights><fileName>{PATH}</fileName><nameSpace>LONG</nameSpace>"
                "<symLink/></addTrustee></trustees></fileRequest></adminRequest>",
                "response.deinitialize setTrustee",
                "Add or Remove trustee Response: <adminReply>…",
                "pipe closed",
                *(["init", "response.deallocate"] + reload),
                "Closing Rights Management …",
                f"unmount {ADDRESS}/IPC$'s - /IPC$ : 0",
                "response.deallocate",
            ]
        )
        mode = self.log.stat().st_mode & 0o777
        self.assertEqual(mode, 0o600, "the log holds requests and replies of the server's management")

    def test_the_first_window_fits_a_small_screen_with_large_text(self):
        self.keyring.store(ADDRESS, USER, PASSWORD)
        with unittest.mock.patch.dict(os.environ):
            small = desktop.Screen("1366x768")
            self.addCleanup(small.stop)
            self.start(ADDRESS, "env", "QT_FONT_DPI=192")
        self.view.wait_for("push button", "Trustee Rights")
        window = small.window("Rights Management").get_geometry()
        self.assertGreater(window.width, 800, "the text is large")
        self.assertLessEqual(window.width, 1366)
        self.assertLessEqual(window.height, 768 - 40, "a title bar is above it")

    def test_what_the_server_does_not_take_is_named(self):
        self.keyring.store(ADDRESS, "tomas.beran", PASSWORD)  # Access Control, and no Supervisor
        self.start(ADDRESS)
        self.press("Trustee Rights")
        self.view.wait_for("table")
        names = [name for name, _ in self.trustees_on_screen()]
        for name in ("Ticketing", "Finance"):
            self.view.click(self.view.cell(names.index(name), 3))  # W
        until(lambda: self.view.find("push button", "2 changes wait for Apply"), "both changes")
        self.server.kelp.ask("set-trustee", PATH, self.sid_of("Finance"), str(0x0141))  # meanwhile a Supervisor
        outcome = "The server did not take 1 of 2 changes: Finance"
        self.assertEqual(self.view.announced_by(self.apply), [outcome])
        self.assertTrue(self.view.find("label", outcome), "which is on the screen, too")
        on_screen = dict(self.trustees_on_screen())
        self.assertEqual((on_screen["Ticketing"], on_screen["Finance"]), (0x0043, 0x0141))
        self.close("Trustee Rights")

    def test_filter_directories_and_quotas_have_pipes_of_their_own(self):
        self.keyring.store(ADDRESS, USER, PASSWORD)
        self.start(ADDRESS)
        self.press("Trustee Rights")
        self.open_tab("Effective Rights")
        until(lambda: ("lea.fournier", 0x0041) in self.trustees_on_screen(), "her rights")
        self.open_tab("Inherited Rights Filter")
        self.view.click(self.view.wait_for("check box", "Read"))
        self.apply()
        self.assertNotIn(b"read", self.server.kelp.ask("filter", PATH))
        self.open_tab("Effective Rights")
        until(lambda: ("lea.fournier", 0x0040) in self.trustees_on_screen(), "what the filter leaves")
        self.open_tab("Trustee Directories")
        until(lambda: self.view.find("table") and self.view.cell(0, 1).get_name() == PATH, "the directories")
        names = [name for name, _ in self.view.rows()]
        self.assertEqual(names[: len(self.trustees_on_server())], [name for name, _ in self.trustees_on_server()])
        self.press("Close")

        self.press("User Quota")
        limits = self.limits_on_server()
        until(lambda: len(self.view.rows()) == len(limits), "the users")
        self.view.click(self.view.cell(1, 0))
        self.press("Edit…")
        self.view.click(self.view.wait_for("text", "Limit for each of them:"))
        self.screen.type(*["BackSpace"] * 9, "7")
        self.press("OK")
        until(lambda: self.view.cell(0, 1).get_name() == "7 GB", "the new limit, in front")
        self.view.click(self.view.cell(4, 0))
        self.press("Remove")
        self.assertEqual(self.limits_on_server(), limits, "nothing is sent before Apply")
        self.apply()
        limits[1][1] = str(7 << 30)
        del limits[4]
        self.assertEqual(self.limits_on_server(), limits)
        until(lambda: len(self.view.rows()) == len(limits), "the list without the one removed")
        self.close("User Quota")
        until(lambda: self.server.sessions() == "0 0", "the sessions to end")
        self.log_texts()

    def test_a_link_leads_to_another_server(self):
        if not can_serve(LINK_TARGET):
            self.skipTest(f"port 445 of {LINK_TARGET} is taken")
        target = Server(LINK_TARGET, "second", self.addCleanup)
        link, target_path = "VOL1:\\Partners", "DATA:\\Festival Partners\\Contracts"
        self.server.kelp.ask("set-link", link, "localhost", "DATA", "Festival Partners")
        self.keyring.store(ADDRESS, USER, PASSWORD)  # and nothing for the other server
        self.start(ADDRESS, selectedPath="/Volumes/Partners/Contracts", mappedPath=link)
        self.press("Trustee Rights")
        self.view.wait_for("table")
        before = target.trustees(target_path)
        self.assertIn(("Finance", 0x00DB), before)
        self.assertEqual(self.trustees_on_screen(), before)
        self.assertEqual((self.server.sessions(), target.sessions()), ("1 0", "1 0"))

        asked = self.server.kelp.ask("requests")
        row = [name for name, _ in before].index("External Partners")
        self.view.click(self.view.cell(row, 2))  # R
        self.apply()
        until(lambda: ("External Partners", 0x0041) in target.trustees(target_path), "the change")
        until(lambda: sorted(self.trustees_on_screen()) == sorted(target.trustees(target_path)), "the new table")
        self.assertEqual(self.server.kelp.ask("requests"), asked, "from now on the target is asked directly")

        self.close("Trustee Rights")
        until(lambda: (self.server.sessions(), target.sessions()) == ("0 0", "0 0"), "the sessions to end")
        about_links = [line for line in self.log_texts() if re.match("Get DFS Path Request|get|target|Mount", line)]
        self.assertEqual(
            about_links,
            [
                f"Mounting pipe for smb://{ADDRESS}/IPC$",
                "Mounted virtual volume successfully",
                f"Get DFS Path Request : <zelSmbGetInfo><readLink><pathName>{link}</pathName></readLink></zelSmbGetInfo>",
                "targetServer : localhost, targetPath : DATA:\\Festival Partners",
                "getDFPathInfo returned: 0",
                "Mounting pipe for smb://localhost/IPC$",
                "Mounted virtual volume successfully",
            ],
        )

    def test_a_wrong_password_is_reported_and_the_menu_stays(self):
        self.keyring.store(ADDRESS, USER, "not " + PASSWORD)
        self.start(ADDRESS)
        self.answer_alert(ALERT_FAILED)
        self.close()
        self.assertEqual(self.server.sessions(), "0 0")
        self.assert_log(
            [
                f"file://{self.log}",
                f"Path selected is {PATH}",
                f"Path mapped and selected is {PATH}",
                f"Volume mapping with username {USER}",
                *(["init"] + OPEN_PIPE + MOUNT),
                "Error mounting virtual volume due to error code 13",
                "Failed with err - 13",
                "Closing Rights Management …",
                "response.deallocate",
            ]
        )

    def test_a_keyring_without_the_password_is_named_when_a_page_needs_it(self):
        self.start("localhost", loggedUserType="ActiveDirectory")
        self.answer_alert(ALERT_FAILED)
        self.press("Trustee Rights")
        self.answer_alert(ALERT_NO_PASSWORD)
        self.answer_alert(ALERT_FAILED)  # the main menu asks once more who is logged in
        self.close()
        texts = self.log_texts()
        self.assertIn("Username not found in Keychain", texts)
        self.assertEqual(texts.count("Mounting pipe for smb://localhost/IPC$"), 3)
        self.assertEqual(texts.count("Keychain item not found, error returned: -25300"), 3)
        self.assertEqual(texts.count("Failed with err - -25300"), 2)


def can_serve(address):
    with socket.socket() as probe:
        probe.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
        try:
            probe.bind((address, 445))
        except OSError:
            return False
    return True


def obstacle():
    return desktop.missing() or ("" if can_serve(ADDRESS) else f"port 445 of {ADDRESS} cannot be opened")


def main():
    global QUORVAN, KELP_SERVER
    if not desktop.in_session():
        reason = obstacle()
        if reason:
            print("SKIPPED:", reason)
            sys.exit(77)
        sys.exit(desktop.run_in_session())
    QUORVAN, KELP_SERVER = sys.argv[1:3]
    result = unittest.main(argv=sys.argv[:1] + sys.argv[3:], warnings="ignore", exit=False).result
    for _, reason in result.skipped:
        print("SKIPPED:", reason)
    sys.exit(1 if not result.wasSuccessful() else 77 if result.skipped else 0)


if __name__ == "__main__":
    main()
