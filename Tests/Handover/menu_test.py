#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The entry in the menus of file managers: for exactly one thing on an SMB share. Stands in for their libraries."""
import importlib.util
import pathlib
import sys
import tempfile
import types
import unittest
from unittest import mock


class MenuItem:
    def __init__(self, **properties):
        self.properties = properties

    def connect(self, signal, call):
        assert signal == "activate"
        self.activate = call


class File:
    def __init__(self, uri):
        self.get_uri = lambda: uri


def load(path, module):
    gi = types.ModuleType("gi")
    gi.require_version = lambda *_: None
    gi.repository = types.ModuleType("gi.repository")
    gi.repository.GObject = types.SimpleNamespace(GObject=type("GObject", (), {}))
    setattr(gi.repository, module, types.SimpleNamespace(MenuProvider=type("MenuProvider", (), {}), MenuItem=MenuItem))
    with mock.patch.dict(sys.modules, {"gi": gi, "gi.repository": gi.repository}):
        spec = importlib.util.spec_from_file_location("quorvan_menu", path)
        loaded = importlib.util.module_from_spec(spec)
        spec.loader.exec_module(loaded)
    return loaded


class MenuTest(unittest.TestCase):
    def test_one_thing_on_a_share_has_the_entry_and_nothing_else(self):
        for module, folder in (("Nautilus", "nautilus-python"), ("Caja", "caja-python"), ("Thunarx", "thunarx-python")):
            menu = load(pathlib.Path(sys.argv[1]) / folder / "quorvan_menu.py", module)
            provider = menu.ManageRights()
            share = File("smb://files/vol1/a%20b")
            (item,) = provider.get_file_menu_items("window", [share])
            self.assertTrue(item.properties["label"].endswith("…"))
            with mock.patch.object(menu.subprocess, "Popen") as start:
                item.activate(item)
            start.assert_called_once_with(["quorvan-handover", "smb://files/vol1/a%20b"])
            local = "file:///run/user/1/gvfs/smb-share:server=files,share=vol1/x"
            self.assertEqual(len(provider.get_file_items([File(local)])), 1)
            for files in ([], [share, share], [File("smb://files/")], [File("file:///etc")], [File("sftp://files/x")]):
                self.assertEqual(provider.get_file_items(files), [])
            with tempfile.NamedTemporaryFile("w", suffix="mounts") as table:
                table.write("1 0 8:1 / / rw - ext4 /dev/sda rw\n2 1 0:4 / /mnt/m\\040ü rw shared:1 - cifs //f/v rw\n")
                table.flush()
                self.assertEqual(menu.kind_of_file_system("/mnt/m ü/x", table.name), "cifs")
                self.assertEqual(menu.kind_of_file_system("/mnt/m üx", table.name), "ext4")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
