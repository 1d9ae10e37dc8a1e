# SPDX-License-Identifier: GPL-3.0-or-later
"""A desktop for one program under test: a session bus, a screen, a keyring, and a user's eyes and hand.

What a user sees is read over AT-SPI, as a screen reader does; what a user does goes through XTest.
"""
import fnmatch
import os
import shutil
import subprocess
import sys
import tempfile
import time

PROGRAMS = ("dbus-run-session", "Xvfb", "gnome-keyring-daemon", "secret-tool")
KEYRING_SCHEMA = "org.gnome.keyring.NetworkPassword"


def missing():
    """What this desktop needs and does not find; "" when it is all there."""
    for program in PROGRAMS:
        if not shutil.which(program):
            return f"{program} is not installed"
    try:
        import gi

        gi.require_version("Atspi", "2.0")
        import Xlib.ext.xtest  # noqa: F401
        from gi.repository import Atspi  # noqa: F401
    except (ImportError, ValueError) as error:
        return f"AT-SPI or Xlib for Python is not installed ({error})"
    return ""


def in_session():
    return "QUORVAN_TEST_SESSION" in os.environ


def run_in_session():
    """Runs this script again, in a session bus and an empty home folder of its own; its exit code."""
    with tempfile.TemporaryDirectory(prefix="quorvan-") as home:
        environment = {
            **os.environ,
            "QUORVAN_TEST_SESSION": "1",
            "HOME": home,
            "XDG_CONFIG_HOME": f"{home}/.config",
            "XDG_DATA_HOME": f"{home}/.local/share",
            "XDG_RUNTIME_DIR": home,
            "LC_ALL": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        command = ["dbus-run-session", "--", sys.executable, "-B", *sys.argv]
        return subprocess.call(command, env=environment)


def until(condition, what, seconds=20):
    """Waits for a condition and returns its value; what never comes is a failure."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"waited in vain for {what}")


class Screen:
    """An X server with its pointer."""

    def __init__(self, size="1280x1024"):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", size + "x24", "-nolisten", "tcp"],
            pass_fds=[writing],
            stderr=subprocess.DEVNULL,
        )
        os.close(writing)
        with open(reading, encoding="ascii") as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        from Xlib import display

        self.display = display.Display()

    def click(self, x, y):
        from Xlib import X
        from Xlib.ext import xtest

        xtest.fake_input(self.display, X.MotionNotify, x=x, y=y)
        xtest.fake_input(self.display, X.ButtonPress, 1)
        xtest.fake_input(self.display, X.ButtonRelease, 1)
        self.display.sync()

    def type(self, *keys):
        """Presses keys by their X names, in the window under the pointer."""
        from Xlib import X, XK
        from Xlib.ext import xtest

        for key in keys:
            code = self.display.keysym_to_keycode(XK.string_to_keysym(key))
            xtest.fake_input(self.display, X.KeyPress, code)
            xtest.fake_input(self.display, X.KeyRelease, code)
        self.display.sync()

    def window(self, title):
        return next((w for w in self.display.screen().root.query_tree().children if w.get_wm_name() == title), None)

    def close_window(self, title):
        """What the close button of a title bar does."""
        from Xlib import X
        from Xlib.protocol import event

        atom = self.display.intern_atom
        window = self.window(title)
        window.send_event(
            event.ClientMessage(
                window=window,
                client_type=atom("WM_PROTOCOLS"),
                data=(32, [atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]),
            )
        )
        self.display.sync()

    def windows(self):
        """What the windows on the screen look like, by their titles."""
        from Xlib import X

        seen = {}
        for window in self.display.screen().root.query_tree().children:
            if window.get_attributes().map_state == X.IsViewable:
                size = window.get_geometry()
                image = window.get_image(0, 0, size.width, size.height, X.ZPixmap, 0xFFFFFFFF)
                seen[window.get_wm_name()] = bytes(image.data)
        return seen

    def stop(self):
        self.display.close()
        self.server.terminate()
        self.server.wait()


class Keyring:
    def __init__(self):
        subprocess.run(
            ["gnome-keyring-daemon", "--unlock", "--components=secrets"],
            input=b"keyring",
            stdout=subprocess.DEVNULL,
            check=True,
        )

    def store(self, server, user, password):
        """The one account that is kept for the server from now on."""
        kept = ["xdg:schema", KEYRING_SCHEMA, "server", server, "protocol", "smb"]
        subprocess.run(["secret-tool", "clear", *kept], check=False)  # which fails where nothing is kept
        subprocess.run(
            ["secret-tool", "store", "--label=x", *kept, "user", user], input=password.encode(), check=True
        )


class View:
    """What one program shows."""

    def __init__(self, name, screen):
        self.name = name
        self.screen = screen

    def application(self):
        from gi.repository import Atspi

        desktop = Atspi.get_desktop(0)
        desktop.set_cache_mask(Atspi.Cache.NONE)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_name() == self.name:
                child.set_cache_mask(Atspi.Cache.NONE)
                return child
        return None

    def find(self, role, name=None):
        """The control of that role and name ("*" for any text in it) that is on the screen now, or None."""
        from gi.repository import Atspi, GLib

        def search(node):
            if node is None:
                return None
            found = node.get_role_name()
            if found == role and fnmatch.fnmatchcase(node.get_name(), name or "*") and on_screen(node):
                return node
            if found == "table":  # its cells are asked for one by one
                return None
            children = (node.get_child_at_index(index) for index in range(node.get_child_count()))
            return next((match for match in map(search, children) if match), None)

        def on_screen(node):
            return node.get_state_set().contains(Atspi.StateType.SHOWING)

        try:
            return search(self.application())
        except GLib.Error:  # a control went away while it was looked at
            return None

    def wait_for(self, role, name=None):
        return until(lambda: self.find(role, name), f"the {role} {name or ''}")

    def is_enabled(self, role, name):
        from gi.repository import Atspi

        control = self.find(role, name)
        return control is not None and control.get_state_set().contains(Atspi.StateType.ENABLED)

    def click(self, control):
        from gi.repository import Atspi

        box = control.get_extents(Atspi.CoordType.SCREEN)
        middle = 8 if control.get_role_name() == "check box" else box.width // 2
        self.screen.click(box.x + middle, box.y + box.height // 2)

    def answer(self, button):
        """Presses a button, wherever it is, that may be gone before the press arrives."""
        from gi.repository import GLib

        try:
            self.find("push button", button).get_action_iface().do_action(0)
        except (AttributeError, GLib.Error):
            pass
        time.sleep(0.2)  # for a tenth of a second the button is seen pressed; another press would begin it anew

    def announced_by(self, act):
        """What a screen reader reads out of itself within two seconds of `act`."""
        from gi.repository import Atspi, GLib

        said = []

        def notice(event):
            if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
                said.append(event.source.get_name())

        listener = Atspi.EventListener.new(notice)
        listener.register("object:state-changed:showing")
        act()
        end = time.monotonic() + 2
        while time.monotonic() < end:
            GLib.MainContext.default().iteration(False)
            time.sleep(0.01)
        listener.deregister("object:state-changed:showing")
        return said

    def cell(self, row, column):
        return self.wait_for("table").get_table_iface().get_accessible_at(row, column)

    def rows(self):
        """Of each row of the table on the screen, the first cell's text and whether the others are ticked."""
        from gi.repository import Atspi

        table = self.wait_for("table").get_table_iface()

        def ticked(row, column):
            return table.get_accessible_at(row, column).get_state_set().contains(Atspi.StateType.CHECKED)

        return [
            (table.get_accessible_at(row, 0).get_name(), [ticked(row, c) for c in range(1, table.get_n_columns())])
            for row in range(table.get_n_rows())
        ]
