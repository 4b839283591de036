#!/usr/bin/env python3
"""Checks scripts/symbols itself: symbols_test.py ROOT BUILD-FOLDER. What is built in the folder is
compared with lists that were changed on purpose."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT, BUILD = Path(sys.argv[1]), Path(sys.argv[2])


class Symbols(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.lists = Path(folder.name)
        self.assertEqual(self.run_symbols("--update").returncode, 0)
        self.list, = self.lists.glob("libcore.*.symbols")

    def run_symbols(self, *options):
        command = [ROOT / "scripts" / "symbols", "--lists", self.lists, *options, BUILD]
        return subprocess.run(command, capture_output=True, text=True)

    def change_list(self, change):
        lines = self.list.read_text(encoding="utf-8").splitlines(keepends=True)
        self.list.write_text("".join(change(lines)), encoding="utf-8")

    def expect_difference(self, *texts):
        result = self.run_symbols()
        self.assertEqual(result.returncode, 1, result.stdout)
        for text in (f"{self.list.name}: ", "1 differ from the list", *texts, "scripts/symbols --update"):
            self.assertIn(text, result.stdout)

    def test_accepts_the_lists_it_has_written(self):
        self.assertEqual(len(list(self.lists.iterdir())), 4)
        self.assertEqual(self.run_symbols().returncode, 0)

    def test_names_what_is_new(self):
        last = self.list.read_text(encoding="utf-8").splitlines()[-1]
        self.change_list(lambda lines: lines[:-1])
        self.expect_difference("    new   " + last.split("\t")[1])

    def test_names_what_is_gone(self):
        self.change_list(lambda lines: lines + ["_ZN7Tessark2UI4goneEv\tTessark::UI::gone()\n"])
        self.expect_difference("    gone  Tessark::UI::gone()  (_ZN7Tessark2UI4goneEv)")

    def test_misses_a_list_that_is_not_there(self):
        self.list.unlink()
        result = self.run_symbols()
        self.assertEqual(result.returncode, 1)
        self.assertIn("    new   Tessark::UI::", result.stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
