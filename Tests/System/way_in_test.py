#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Goes the way in as a user does: mounts a share in the desktop, chooses a folder on it, and finds Quorvan open on it.

    way_in_test.py QUORVAN_HANDOVER KELP_SERVER

Exit code 77: something is missing that a test cannot do without; the line printed says what.
"""
import os
import pathlib
import plistlib
import shutil
import subprocess
import sys
import unittest

import desktop
import process_test
from desktop import until
from process_test import ADDRESS, PASSWORD, USER

GVFSD = "/usr/libexec/gvfsd"
FOLDER = "Projects/Aurora"


def mount(uri):
    """Mounts a share as the file manager does for somebody who wants the password to be remembered."""
    from gi.repository import Gio, GLib

    loop = GLib.MainLoop()
    operation = Gio.MountOperation()
    outcome = []

    def answer(operation, *_):
        operation.set_username(USER)
        operation.set_domain("KELP")
        operation.set_password(PASSWORD)
        operation.set_password_save(Gio.PasswordSave.PERMANENTLY)
        operation.reply(Gio.MountOperationResult.HANDLED)

    def finish(file, result):
        try:
            outcome.append(file.mount_enclosing_volume_finish(result))
        except GLib.Error as error:
            outcome.append(error.message)
        loop.quit()

    operation.connect("ask-password", answer)
    share = Gio.File.new_for_uri(uri)
    share.mount_enclosing_volume(Gio.MountMountFlags.NONE, operation, None, finish)
    GLib.timeout_add_seconds(20, loop.quit)
    loop.run()
    return outcome


class WayIn(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        home = pathlib.Path(os.environ["HOME"])
        cls.screen = desktop.Screen()
        cls.addClassCleanup(cls.screen.stop)
        desktop.Keyring()
        (home / "volume" / FOLDER / "a b # % ü").mkdir(parents=True)
        cls.server = process_test.Server(
            ADDRESS, "demo", cls.addClassCleanup, "--folder", f"VOL1={home / 'volume'}"
        )
        mounts = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "gvfs")
        mounts.mkdir()
        cls.addClassCleanup(process_test.end, subprocess.Popen([GVFSD]))  # starts gvfsd-fuse, too
        until(lambda: os.path.ismount(mounts), "the desktop's mounts")
        cls.addClassCleanup(subprocess.run, ["fusermount3", "-u", "-z", mounts])
        outcome = mount(f"smb://{ADDRESS}/VOL1/")
        assert outcome == [True], outcome
        cls.share = mounts / f"smb-share:server={ADDRESS},share=vol1"
        cls.hand_over = home / ".config/group.tarnix.common.plist"
        cls.log = home / "Library/Logs/tarnix/Quorvan.log"

    def setUp(self):
        self.view = desktop.View("quorvan", self.screen)

    def see_application(self, path):
        """Finds the application open on a path, logged in with the item that mounting has stored; closes it."""
        self.view.wait_for("push button", "Trustee Rights")
        log = self.log.read_text()
        for line in (
            f"Path mapped and selected is {path}",
            f"Volume mapping with username {USER}",
            process_test.opened("ZelSmbPipe")[0],
        ):
            self.assertIn(f" {line}\n", log)
        self.screen.close_window("Rights Management")
        until(lambda: self.view.application() is None, "the application to end")
        self.log.unlink()

    def test_opens_what_is_named_by_path_or_address(self):
        for argument, path in (
            (self.share / FOLDER, "VOL1:\\Projects\\Aurora"),
            (f"smb://{ADDRESS}/vol1/{FOLDER}", "VOL1:\\Projects\\Aurora"),
        ):
            self.assertEqual(subprocess.run([HANDOVER, argument]).returncode, 0)
            self.see_application(path)
        self.assertEqual(subprocess.run([HANDOVER, self.share / FOLDER / "a b # % ü"]).returncode, 0)
        written = plistlib.loads(self.hand_over.read_bytes())
        self.assertEqual(written["selectedPath"], "/Volumes/VOL1/Projects/Aurora/a b # % ü")
        self.see_application("VOL1:\\Projects\\Aurora\\a b # % ü")


if __name__ == "__main__":
    if not desktop.in_session():
        reason = (
            process_test.obstacle()
            or ("" if shutil.which(GVFSD) else "gvfs is not installed")
            or ("" if os.access("/dev/fuse", os.R_OK | os.W_OK) else "file systems cannot be mounted here")
        )
        if reason:
            print("SKIPPED:", reason)
            sys.exit(77)
        os.environ["GIO_USE_VFS"] = "gvfs"
        sys.exit(desktop.run_in_session())
    HANDOVER, process_test.KELP_SERVER = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], warnings="ignore")
