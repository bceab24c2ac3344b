#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Opens hostile documents and exports what they hold, each in a process of its own.

    hostile_documents.py PROGRAM FOLDER [--bytes N] [--functions-only] [--case NAME]

PROGRAM is open_and_export. Each document must give exactly the events, the alert or the deliberate stop that the tables
say. Documents that grow are tried at N bytes and at twice as many: time may do no worse than double, and for each one the
peak of memory stays within 10 times its size, 200 MB, and 1 KB an event. A smaller form runs under strace, which must
see no file opened but the timeline, the exports and what every run opens, and no network.

--functions-only leaves out time, memory and strace, which mean nothing under a sanitizer. Where strace is missing or may
not trace, everything else is tried, and the exit status is 77 if nothing failed.
"""

import argparse
import os
import re
import resource
import shutil
import signal
import subprocess
import sys
import threading

from case import Loaded, Refused, Stopped
import edl_cases
import encoding_cases
import xml_cases

SECRET = "SECRET CONTENT"
SMALL = 2000  # bytes of a document in its small form
NOT_ALL_TRIED = 77  # the exit status of a test that is skipped
PATIENCE = 60  # seconds by the clock, besides three for each of the processor's: the machine may be busy


class Result:
    """What a run of the program did."""

    def __init__(self, status, usage, output, errors):
        self.output, self.errors, self.hung = output, errors, False
        self.signal = os.WTERMSIG(status) if os.WIFSIGNALED(status) else 0
        self.exit = os.WEXITSTATUS(status) if os.WIFEXITED(status) else None
        self.seconds = usage.ru_utime + usage.ru_stime
        self.own_seconds = usage.ru_utime  # without the kernel's, whose memory is not always at hand
        self.memory = usage.ru_maxrss * 1024

    def events(self):
        loaded = re.search(r"^status: Loaded (\d+) events from ", self.output, re.MULTILINE)
        return int(loaded.group(1)) if loaded else None


class Place:
    """The files of a case, in a folder of its own."""

    def __init__(self, folder, case):
        self.folder, self.case = folder, case
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(folder)
        with open(f"{folder}/secret.xml", "w") as secret:
            secret.write(f"<gap name='{SECRET}'/>")
        os.mkfifo(f"{folder}/fifo")
        self.timeline = f"{folder}/{case.file}"
        self.exports = [f"{folder}/out.csv", f"{folder}/out.edl"]

    def write(self, size):
        with open(self.timeline, "wb") as file:
            for piece in self.case.content(size, self.folder):
                file.write(piece)
        return os.path.getsize(self.timeline)

    def run(self, program, seconds, *before):
        """Opens the timeline and exports it, within so many seconds of the processor's time. What waits is killed."""
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 5))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        with open(f"{self.folder}/stdout", "w+b") as out, open(f"{self.folder}/stderr", "w+b") as err:
            child = subprocess.Popen([*before, program, self.timeline, *self.exports], stdin=subprocess.DEVNULL,
                                     stdout=out, stderr=err, preexec_fn=limit, start_new_session=True)
            hung = threading.Event()
            # With strace, it has two processes.
            clock = threading.Timer(PATIENCE + 3 * seconds, lambda: (hung.set(), os.killpg(child.pid, signal.SIGKILL)))
            clock.start()
            os.waitid(os.P_PID, child.pid, os.WEXITED | os.WNOWAIT)
            clock.cancel()
            clock.join()
            _, status, usage = os.wait4(child.pid, 0)
            child.returncode = 0
            out.seek(0), err.seek(0)
            result = Result(status, usage, out.read().decode(errors="replace"), err.read(4000).decode(errors="replace"))
            result.hung = hung.is_set()
            return result

    def leaks_secret(self):
        return any(os.path.exists(path) and SECRET.encode() in open(path, "rb").read(1 << 20) for path in self.exports)


def fault(case, size, result, place):
    """What is not as the table says, or nothing."""
    if result.hung:
        return "waited, and was killed"
    if isinstance(case.expected, Stopped):
        said = f"clipvane: {case.expected.reason}\n"
        if result.signal != signal.SIGABRT or said not in result.errors:
            return f"did not stop with \"{case.expected.reason}\""
        return None
    if result.signal or result.exit != 0:
        return f"ended by signal {result.signal}, status {result.exit}"
    if isinstance(case.expected, Refused):
        if f"alert: Could not open timeline | {case.expected.reason}\n" not in result.output:
            return "was not refused"
        return None
    if result.events() != case.expected.count(size):
        return f"gave {result.events()} events, not {case.expected.count(size)}"
    if result.output.count("status: Exported ") != 2:
        return "was not exported twice"
    return "tells what another file holds" if place.leaks_secret() else None


def opened_files(trace):
    """The paths that were opened, or other calls that reach outside."""
    for line in open(trace, errors="replace"):
        call = re.search(r"(\w+)\((?:AT_FDCWD, )?(.*)", line)
        if not call or "ENOENT" in line and "openat" not in line:
            continue
        path = re.match(r'"([^"]*)"', call.group(2))
        yield call.group(1), unescaped(path.group(1)) if path else call.group(2)


def unescaped(path):
    """strace writes bytes beyond ASCII in octal."""
    return os.fsdecode(path.encode().decode("unicode_escape").encode("latin-1"))


class Runner:
    def __init__(self, arguments):
        self.program, self.folder = os.path.abspath(arguments.program), os.path.abspath(arguments.folder)
        self.bytes, self.functions_only = arguments.bytes, arguments.functions_only
        self.failures, self.runs, self.peak, self.slowest, self.largest = 0, 0, (0, ""), (0, ""), 0
        self.not_tried = None
        self.ordinary = None if self.functions_only else self.traced_of_good_documents()

    def complain(self, case, text, result):
        self.failures += 1
        print(f"FAILED {case.name}: {text}")
        for line in (result.output + result.errors).splitlines()[:6]:
            print("    " + line[:200])
        sys.stdout.flush()

    def run(self, case):
        if not case.grows:
            self.check_one(case, 0)
        elif self.functions_only:
            self.check_one(case, self.bytes)
        else:
            self.check_growth(case)
        if self.ordinary is not None:
            self.check_files(case)

    def check_one(self, case, size):
        place = Place(self.folder, case)
        bytes_written = place.write(size)
        events = case.expected.count(size) if isinstance(case.expected, Loaded) else 0
        # Two seconds, and in proportion to what the machine does at the very least; a sanitizer takes its time.
        seconds = (2 + bytes_written // 5_000_000 + events // 250_000) * (30 if self.functions_only else 1)
        result = place.run(self.program, seconds)
        self.runs += 1
        self.largest = max(self.largest, bytes_written)
        if text := fault(case, size, result, place):
            self.complain(case, f"{bytes_written} bytes: {text}", result)
            return None
        if not self.functions_only:
            allowed = 10 * bytes_written + (200 << 20) + 1024 * (result.events() or 0)
            self.peak = max(self.peak, (result.memory / allowed, case.name))
            self.slowest = max(self.slowest, (result.seconds / seconds, case.name))
            if result.memory > allowed:
                self.complain(case, f"{bytes_written} bytes took {result.memory >> 20} MB of {allowed >> 20}", result)
        return result

    def check_growth(self, case):
        """Measured again if it seems to be worse than linear: a busy machine is not always equally fast."""
        least = [float("inf"), float("inf")]
        for _ in range(4):
            for i in (0, 1):
                result = self.check_one(case, self.bytes << i)
                if result is None:
                    return
                least[i] = min(least[i], result.own_seconds)
            if least[1] <= 3 * least[0] + 0.2:
                return
        self.complain(case, f"{least[0]:.2f} s, twice the size {least[1]:.2f} s", result)

    def trace(self, case):
        """The outcome of the small form, and what it opened: nothing is known of that where strace could not trace."""
        place = Place(self.folder, case)
        place.write(SMALL)
        trace = f"{self.folder}/trace"
        result = place.run(self.program, 60, "strace", "-f", "-qq", "-o", trace, "-e",
                           "trace=open,openat,openat2,creat,execve,%network", "-e", "signal=none")
        if not os.path.exists(trace) or "execve(" not in open(trace, errors="replace").read():
            return fault(case, SMALL, result, place), result, None
        opened = {(call, path) for call, path in opened_files(trace) if path != place.timeline}
        return fault(case, SMALL, result, place), result, opened

    def traced_of_good_documents(self):
        """What is opened whatever the document: libraries and the like."""
        if not shutil.which("strace"):
            self.not_tried = "which files are opened: strace is missing (apt-get install strace)"
            return None
        files = set()
        for content, file in [("edl", "good.edl"), ("xmeml", "good.xml"), ("fcpxml", "good.fcpxml")]:
            case = encoding_cases.named(file, content, 1)
            text, result, opened = self.trace(case)
            if opened is None:
                self.not_tried = "which files are opened: strace may not trace here"
                return None
            if text:
                self.complain(case, f"traced: {text}", result)
            files |= opened
        return files

    def check_files(self, case):
        text, result, opened = self.trace(case)
        self.runs += 1
        if text or opened is None:
            self.complain(case, f"traced: {text or 'there is no trace'}", result)
        elif foreign := {f"{call} {path}" for call, path in opened - self.ordinary}:
            self.complain(case, "reached outside: " + ", ".join(sorted(foreign)), result)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("folder")
    parser.add_argument("--bytes", type=int, default=4_000_000)
    parser.add_argument("--functions-only", action="store_true")
    parser.add_argument("--case")
    arguments = parser.parse_args()

    cases = edl_cases.CASES + xml_cases.CASES + encoding_cases.CASES
    assert len({case.name for case in cases}) == len(cases), "two cases share a name"
    runner = Runner(arguments)
    chosen = [case for case in cases if arguments.case in (None, case.name)]
    for case in chosen:
        runner.run(case)
    shutil.rmtree(arguments.folder, ignore_errors=True)
    print(f"{len(chosen)} documents, {runner.runs} runs, largest {runner.largest} bytes, {runner.failures} failures")
    if not arguments.functions_only:
        print(f"most memory of what is allowed: {runner.peak[0]:.0%}, {runner.peak[1]}; "
              f"most time: {runner.slowest[0]:.0%}, {runner.slowest[1]}")
    if runner.failures:
        return 1
    if runner.not_tried:
        print(f"SKIPPED: {runner.not_tried}")
        return NOT_ALL_TRIED
    return 0


if __name__ == "__main__":
    sys.exit(main())
