# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Runs of the batch program, and tables of what they must do.

A test file is run as `NAME_test.py PROGRAM JUDGE`: the built program, and open_and_export, which
exports as the window does.
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
from dataclasses import dataclass, field

PROGRAM, JUDGE = (pathlib.Path(path).absolute() for path in sys.argv[1:3])
TREE = pathlib.Path(__file__).absolute().parent.parent.parent
FIXTURES = TREE / "tests" / "fixtures"
EXTENSIONS = {".edl", ".txt", ".xml", ".fcpxml", ".xmeml"}
PATIENCE = 60  # seconds; a run that takes longer hangs

EVENT = "001  AX  V  C  00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00\n"
NAMED = "* FPS: 25\n" + EVENT

OK, FAILED, WRONG_USE, SUSPICIOUS = range(4)


def fixtures():
    """The timelines of this project, and those of CLIPVANE_TIMELINES if it is set."""
    places = [FIXTURES, TREE / "examples" / "timelines"]
    if os.environ.get("CLIPVANE_TIMELINES"):
        places.append(pathlib.Path(os.environ["CLIPVANE_TIMELINES"]))
    found = sorted(path for place in places for path in place.rglob("*")
                   if path.suffix.lower() in EXTENSIONS and path.is_file())
    assert found
    return found


@dataclass
class Done:
    status: int  # negative for a signal
    output: bytes
    said: str  # on standard error

    @property
    def text(self):
        return self.output.decode()


@dataclass
class Row:
    """A command, and what it must do."""

    name: str
    arguments: list
    status: int = OK
    stdin: bytes = b""
    files: dict = field(default_factory=dict)  # that are there before, by name
    output: str = None  # the whole of it; None for any
    holds: list = field(default_factory=list)  # texts somewhere in the output
    said: list = field(default_factory=list)  # texts in standard error, one for each line there
    after: dict = field(default_factory=dict)  # files that are there then; None for one that is not


def run(*arguments, cwd=None, stdin=b"", environment=None, program=PROGRAM, **options):
    done = subprocess.run([program, *arguments], cwd=cwd, input=stdin, capture_output=True,
                          env={"PATH": os.environ["PATH"], **(environment or {})},
                          timeout=PATIENCE, check=False, **options)
    return Done(done.returncode, done.stdout, done.stderr.decode())


class ProgramTest(unittest.TestCase):
    """Each test has a folder of its own, in which the program runs."""

    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="clipvane-cli-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def put(self, name, content):
        path = pathlib.Path(os.fsdecode(self.folder)) / os.fsdecode(name)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content.encode() if isinstance(content, str) else content)
        return path

    def content(self, name):
        """The bytes of the file there, or None."""
        path = self.folder / name
        return path.read_bytes() if path.is_file() else None

    def clear(self):
        for path in sorted(self.folder.rglob("*"), reverse=True):
            if path.is_dir() and not path.is_symlink():
                path.rmdir()
            else:
                path.unlink()

    def run_program(self, *arguments, **options):
        return run(*arguments, cwd=self.folder, **options)

    def try_rows(self, rows):
        for row in rows:
            with self.subTest(row.name):
                self.clear()
                for name, content in row.files.items():
                    self.put(name, content)
                self.try_row(row)

    def try_row(self, row):
        done = self.run_program(*row.arguments, stdin=row.stdin)
        self.assertEqual(done.status, row.status, done.said)
        if row.output is not None:
            self.assertEqual(done.text, row.output)
        for text in row.holds:
            self.assertIn(text, done.text)
        lines = done.said.splitlines()
        self.assertEqual(len(lines), len(row.said), done.said)
        for line, text in zip(lines, row.said):
            self.assertIn(text, line)
            self.assertTrue(line.startswith("clipvane-cli: "), line)
        for name, content in row.after.items():
            expected = content.encode() if isinstance(content, str) else content
            self.assertEqual(self.content(name), expected, name)
        self.assertEqual([path.name for path in self.folder.rglob(".clipvane-*")], [])

    def judged(self, timeline, suffix, folder=None):
        """What the window exports of the timeline."""
        export = (folder or self.folder) / ("judged" + suffix)
        done = run(timeline, export, program=JUDGE)
        self.assertIn("Exported", done.text)
        return export.read_bytes()


def main():
    assert PROGRAM.is_file() and JUDGE.is_file()
    unittest.main(argv=sys.argv[:1])
