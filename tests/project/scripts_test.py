# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Every script refuses what it does not know, before it does anything."""

import pathlib
import subprocess
import unittest

TREE = pathlib.Path(__file__).resolve().parents[2]
SCRIPTS = sorted(file for file in TREE.glob("scripts/*") if file.is_file())

#: scripts that take as many words as they are given
WITHOUT_END = {"survey"}


class Scripts(unittest.TestCase):
    def assert_refused(self, script, *words):
        with self.subTest(script=script.name, words=words):
            done = subprocess.run([script, *words], capture_output=True, text=True, timeout=20)
            self.assertEqual(done.returncode, 2, done)
            self.assertIn(f"scripts/{script.name}", done.stderr)
            self.assertEqual(done.stdout, "")

    def test_there_are_about_a_dozen(self):
        self.assertIn("test", [script.name for script in SCRIPTS])
        self.assertLessEqual(len(SCRIPTS), 14)

    def test_an_unknown_option_is_refused(self):
        for script in SCRIPTS:
            self.assert_refused(script, "--no-such-option")

    def test_words_beyond_the_last_are_refused(self):
        for script in SCRIPTS:
            if script.name not in WITHOUT_END:
                self.assert_refused(script, "one", "two", "three", "four")


if __name__ == "__main__":
    unittest.main()
