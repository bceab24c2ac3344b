# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Runs of open_and_export with faults, and what became of the files."""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
from contextlib import contextmanager
from dataclasses import dataclass, field
from pathlib import Path

PATIENCE = 60  # seconds; a program that takes longer hangs

OPENED = "alert: Check Project Frame Rate | "
FAILED = "alert: Export failed | "


@dataclass
class Run:
    """What the program said, and the names of the calls that it made, in order."""

    status: int
    lines: list
    calls: list = field(default_factory=list)

    @property
    def alerts(self):
        """The failures that the user was told about, without the alert's title."""
        return [line.partition(" | ")[2] for line in self.lines
                if line.startswith("alert: ") and not line.startswith(OPENED)]

    @property
    def exported(self):
        return [line for line in self.lines if line.startswith("status: Exported ")]

    @property
    def was_killed(self):
        return self.status == -signal.SIGKILL


class Program:
    def __init__(self, program, injector=None, scratch=None):
        self.program = os.path.abspath(program)
        self.injector = injector and os.path.abspath(injector)
        self.trace = os.path.join(scratch, "trace") if scratch else None
        self.runs = 0

    def environment(self, faults, since):
        if not self.injector:
            return {"PATH": os.environ["PATH"]}
        return {"PATH": os.environ["PATH"], "LD_PRELOAD": self.injector,
                "CLIPVANE_FAULTS": ",".join(faults), "CLIPVANE_FAULTS_FROM": os.fsdecode(since),
                "CLIPVANE_FAULTS_TRACE": self.trace}

    def run(self, *arguments, faults=(), since="", **options):
        """Runs to the end. Faults count from the first call that names the path `since`."""
        self.runs += 1
        if self.trace and os.path.exists(self.trace):
            os.unlink(self.trace)
        done = subprocess.run([self.program, *arguments], env=self.environment(faults, since),
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, timeout=PATIENCE, **options)
        check(done.stderr == b"", f"the standard error says {done.stderr!r}")
        text = done.stdout.decode()  # which fails if a text that is shown is not valid
        return Run(done.returncode, text.splitlines(), self.calls())

    def calls(self):
        if not self.trace or not os.path.exists(self.trace):
            return []
        return Path(self.trace).read_text().split()


class Wrong(Exception):
    pass


def check(condition, what):
    if not condition:
        raise Wrong(what)


def content(path):
    """The bytes of the regular file there, or None."""
    try:
        return Path(os.fsdecode(path)).read_bytes()
    except FileNotFoundError:
        return None


def names(folder):
    return sorted(os.listdir(os.fsdecode(folder)))


def is_hidden(name):
    """Whether it is a temporary of the program's."""
    return name.startswith(".clipvane-")


def hidden(folder):
    return [name for name in names(folder) if is_hidden(name)]


def mode_of(path):
    return os.stat(path).st_mode & 0o7777


def timeline(path, events):
    """An EDL with that many events."""
    with open(path, "w", encoding="utf-8") as file:
        file.write("TITLE: TRUST\nFCM: NON-DROP FRAME\n\n")
        for number in range(1, events + 1):
            second = f"{number // 3600 % 24:02}:{number // 60 % 60:02}:{number % 60:02}"
            file.write(f"{number:03}  REEL{number % 97} V C        {second}:00 {second}:12 "
                       f"{second}:00 {second}:12\n* FROM CLIP NAME: SHOT {number}\n\n")
    return path


@contextmanager
def folder(above=None):
    """A folder of its own, gone afterwards. Everybody may enter it."""
    path = tempfile.mkdtemp(prefix="clipvane-trust-", dir=above)
    os.chmod(path, 0o755)
    try:
        yield path
    finally:
        shutil.rmtree(path, ignore_errors=True)


class Tally:
    """Counts the cases of a test, and gathers what was wrong."""

    def __init__(self):
        self.counts = {}
        self.wrong = []

    def count(self, what):
        self.counts[what] = self.counts.get(what, 0) + 1

    @contextmanager
    def case(self, name):
        try:
            yield
        except (Wrong, subprocess.TimeoutExpired, UnicodeDecodeError, OSError) as problem:
            self.wrong.append(f"{name}: {problem}")

    def report(self):
        for what, count in sorted(self.counts.items()):
            print(f"{count:6}  {what}")
        for line in self.wrong[:40]:
            print(f"WRONG: {line}")
        if self.wrong:
            sys.exit(f"FAILED: {len(self.wrong)} cases")
        check(self.counts, "no case was tried")
        print("passed")
