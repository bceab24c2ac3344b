# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Every script refuses what it does not know, before it does anything; the verdict on the tests counts them."""

import os
import pathlib
import shutil
import subprocess
import tempfile
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


#: a report as ctest writes it, each attribute of the first element on a line of its own
REPORT = """<?xml version="1.0" encoding="UTF-8"?>
<testsuite name="(empty)"
\ttests="{tests}"
\tfailures="{failures}"
\tdisabled="0"
\tskipped="{skipped}"
\t>
\t<testcase name="a" tests="99" failures="99"/>
</testsuite>
"""


class Verdict(unittest.TestCase):
    """Runs scripts/test on a tree of its own, in which nothing is built."""

    def verdict(self, report):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "scripts").mkdir()
            shutil.copy(TREE / "scripts/test", folder / "scripts")
            (folder / "build/debug").mkdir(parents=True)
            (folder / "report").write_text(report, encoding="utf-8")
            for tool, does in (("scripts/setup", ""), ("tools/cmake", ""),
                               ("tools/ctest", f'cp {folder}/report "${{@: -1}}"')):
                stub = folder / tool
                stub.parent.mkdir(exist_ok=True)
                stub.write_text(f"#!/bin/bash\n{does}\n", encoding="utf-8")
                stub.chmod(0o755)
            done = subprocess.run([folder / "scripts/test", "debug"], capture_output=True, text=True,
                                  timeout=20, env={**os.environ, "PATH": f"{folder}/tools:{os.environ['PATH']}"})
            return done.returncode, done.stdout.splitlines()[-1]

    def test_tests_that_passed_are_counted(self):
        self.assertEqual(self.verdict(REPORT.format(tests=7, failures=0, skipped=2)),
                         (0, "5 passed, 0 failed"))

    def test_a_test_that_failed_fails_the_run(self):
        status, last = self.verdict(REPORT.format(tests=7, failures=3, skipped=0))
        self.assertEqual((status, last.split(";")[0]), (1, "4 passed, 3 failed"))

    def test_a_run_without_tests_fails(self):
        for report in ("", REPORT.format(tests=0, failures=0, skipped=0), "<testsuite/>"):
            with self.subTest(report=report):
                status, last = self.verdict(report)
                self.assertEqual((status, last.split(";")[0]), (1, "0 passed, 1 failed"))


if __name__ == "__main__":
    unittest.main()
