# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The file panel in a folder of ten thousand files and a pipe: it stands, names every kind, and
opens none of them, which strace watches. The time that it takes is printed."""

import os
import subprocess
import sys
import time

import access
from desk import run_test
from hands import active_title, press
from waiting import wait_for

KINDS = {"edl": "EDL timeline", "fcpxml": "FCPXML timeline", "xmeml": "XMEML timeline"}
FILES = 10_000


def can_trace():
    try:
        return subprocess.run(["strace", "-qq", "-o", os.devnull, "true"],
                              capture_output=True).returncode == 0
    except FileNotFoundError:
        return False


def fill(folder):
    """Timelines, and media of a kind that nobody knows."""
    folder.mkdir()
    for number in range(FILES // 2):
        for extension in ([*KINDS][number % 3], "zzmedia"):
            (folder / f"{number:05}.{extension}").write_text("neither a timeline nor media")
    os.mkfifo(folder / "pipe.edl")


def file_list(desk, count):
    """The panel's list of names and kinds, once it holds so many files."""

    def full():
        for node in access.find_all(desk.app, "tree"):
            table = node.queryTable()
            if table.nRows == count:
                return table
        return None

    return wait_for(full, f"a list of {count} files")


def opened(trace, folder):
    """What was opened below the folder."""
    return [line for line in trace.read_text(errors="replace").splitlines() if f"{folder}/" in line]


def file_panel(desk):
    folder = desk.scratch / "ten thousand"
    fill(folder)
    trace = desk.scratch / "trace"
    sanitized = {"ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"}
    desk.start(command=["strace", "-D", "-f", "-qq", "-e", "trace=open,openat,creat", "-o",
                        str(trace), desk.program], environment=sanitized, folder=folder)
    with desk.step("the panel starts in the working directory and lists its timelines"):
        desk.await_focus("push button", "Open Timeline")
        begun = time.monotonic()
        press("space")
        wait_for(lambda: active_title() == "Open Timeline", "the panel")
        print(f"      {time.monotonic() - begun:.2f} s until the panel stands")
        files = file_list(desk, FILES // 2)
        print(f"      {time.monotonic() - begun:.2f} s until it lists {files.nRows} timelines")
        desk.picture("panel")
    with desk.step("kinds are named by the extension"):
        for row, (extension, kind) in enumerate(KINDS.items()):
            shown = [files.getAccessibleAt(row, column).name for column in range(3)]
            assert (shown[0], shown[2]) == (f"{row:05}.{extension}", kind), shown
    with desk.step("no file of the folder is opened until one is chosen"):
        assert opened(trace, folder) == [], opened(trace, folder)[:5]
        desk.choose_file("Open Timeline", folder / "00000.edl")
        desk.alert("Check Project Frame Rate")
        press("Return")
        desk.await_status("Loaded 0 events from 00000.edl. FPS: 24 (Default).")
        assert [line for line in opened(trace, folder) if "/00000.edl" not in line] == []
        assert opened(trace, folder) != [], "strace saw nothing"
    with desk.step("the panel for an export, which lists every file, opens none either"):
        before = opened(trace, folder)
        desk.button("Export CSV")
        desk.await_window("Export")
        file_list(desk, FILES)
        desk.choose_file("Export", desk.scratch / "report.csv")
        desk.await_status("Exported report.csv.")
        assert opened(trace, folder) == before, opened(trace, folder)[:5]
    with desk.step("leave"):
        desk.close_window("Clipvane")
        desk.await_end()


if not can_trace():
    print("skipped: strace is missing, or may not trace here")
    sys.exit(77)
run_test(file_panel)
