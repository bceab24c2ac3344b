# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A timeline that cannot be read: every system call of opening one fails in turn, the file changes
while it is read, or is no file at all. The alert names it and the system's reason, at once.

    opening_test.py OPEN_AND_EXPORT INJECTOR
"""

import os
import shutil
import socket
import sys
from errno import EACCES, EAGAIN, EINTR, EIO, EISDIR, ELOOP, ENFILE, ENOENT, ENOMEM, ESTALE

from program import OPENED, Program, Tally, check, folder, timeline

ERRORS = (EIO, EACCES, EINTR, EISDIR, ENOMEM, ESTALE, ENFILE, EAGAIN)
NEEDED = {"stat", "open", "fstat", "read"}
EVENTS = 3000
NOT_REGULAR = "Not a regular file"


def opened(run, events=None):
    check(run.status == 0, f"exit status {run.status}")
    check(any(line.startswith(OPENED) for line in run.lines) and not run.alerts, run.lines)
    check(events is None or run.lines[0].startswith(f"status: Loaded {events} events from "),
          run.lines[0])


def refused(run, path, reason):
    check(run.status == 0, f"exit status {run.status}")
    name = os.path.basename(os.fsencode(path)).decode("utf-8", "replace")
    expected = f'alert: Could not open timeline | The file "{name}" could not be read: {reason}.'
    check(run.lines == [expected], f"{run.lines} instead of {reason}")


def every_fault(program, cut, tally):
    calls = program.run(cut, since=cut).calls
    check(NEEDED | {"close"} <= set(calls), f"not seen: {calls}")
    counts = {}
    for call in calls:
        counts[call] = counts.get(call, 0) + 1
    for call, which in [(call, n + 1) for call, count in counts.items() for n in range(count)]:
        for error in ERRORS:
            with tally.case(f"{call} {which} {error}"):
                run = program.run(cut, faults=[f"{call}:{which}:{error}"], since=cut)
                if call in NEEDED and error != EINTR:
                    refused(run, cut, os.strerror(error))
                else:
                    opened(run, EVENTS)
                tally.count("faults of opening")


def short_reads(program, cut, tally):
    for which in ("1", "2", "always"):
        with tally.case(f"short reads: {which}"):
            opened(program.run(cut, faults=[f"read:{which}:short"], since=cut), EVENTS)
            tally.count("short reads")


def changing(program, scratch, tally):
    """The file is cut to a third, or grows to three times its size, before each of the calls."""
    for change in ("shrink", "grow"):
        for call, which in (("stat", 1), ("open", 1), ("fstat", 1), ("read", 1), ("read", 2),
                            ("close", 1)):
            with tally.case(f"{change} before {call} {which}"):
                path = timeline(os.path.join(scratch, "changing.edl"), EVENTS)
                faults = [f"{call}:{which}:{change}", "read:1:short"]
                run = program.run(path, faults=faults, since=path)
                opened(run)
                told = int(run.lines[0].split()[2])
                check(0 < told <= EVENTS, told)
                check(told == EVENTS or change == "shrink", told)
                tally.count("files that change meanwhile")


def no_files(program, scratch, tally):
    def case(name, reason, make=None, **options):
        path = os.path.join(os.fsencode(scratch), name)
        with tally.case(name):
            kept = make(path) if make else None
            refused(program.run(path, **options), path, reason)
            del kept
            tally.count("places that are no file to read")

    case(b"absent.edl", os.strerror(ENOENT))
    case(b"fifo.edl", NOT_REGULAR, os.mkfifo)
    fifo = os.open(os.path.join(scratch, "fifo.edl"), os.O_RDWR)
    os.write(fifo, b"TITLE: A WRITER\n")
    case(b"fifo.edl", NOT_REGULAR)
    check(os.read(fifo, 100) == b"TITLE: A WRITER\n", "somebody read from the FIFO")
    os.close(fifo)
    case(b"folder.edl", os.strerror(EISDIR), os.mkdir)
    listener = socket.socket(socket.AF_UNIX)
    case(b"socket.edl", NOT_REGULAR, listener.bind)
    case(b"dangling.xml", os.strerror(ENOENT), lambda path: os.symlink("nowhere", path))
    case(b"loop.xml", os.strerror(ELOOP), lambda path: os.symlink("loop.xml", path))
    case(b"tofifo.xml", NOT_REGULAR, lambda path: os.symlink("fifo.edl", path))
    case(b"invalid\xff.edl", os.strerror(EISDIR), os.mkdir)
    case(b"absent\xe2\x82.edl", os.strerror(ENOENT))


def names_of_invalid_utf8(program, scratch, tally):
    for name in (b"cut\xff.edl", b"\xe2\x82.edl", b"\xed\xa0\x80.EDL"):
        with tally.case(name):
            path = os.path.join(os.fsencode(scratch), name)
            timeline(path, EVENTS)
            opened(program.run(path), EVENTS)
            tally.count("names of invalid UTF-8 that open")


def without_permission(program, scratch, tally):
    path = timeline(os.path.join(scratch, "theirs.edl"), 3)
    os.chmod(path, 0)
    options = {}
    if os.geteuid() == 0:
        options = {"user": 65534, "group": 65534, "extra_groups": []}
    with tally.case("without permission"):
        refused(program.run(path, **options), path, os.strerror(EACCES))
        tally.count("places that are no file to read")


def main():
    tally = Tally()
    with folder() as scratch, folder() as programs:
        program = Program(*sys.argv[1:3], scratch)
        cut = timeline(os.path.join(scratch, "cut.edl"), EVENTS)
        every_fault(program, cut, tally)
        short_reads(program, cut, tally)
        changing(program, scratch, tally)
        plain = Program(shutil.copy(sys.argv[1], programs))  # where everybody can start it
        no_files(plain, scratch, tally)
        names_of_invalid_utf8(plain, scratch, tally)
        without_permission(plain, scratch, tally)
    tally.report()


main()
