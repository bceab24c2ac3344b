# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The real window with trouble in the log's place: it starts, opens a timeline, says what an export
came to, and ends as ever.

    window_log_test.py CLIPVANE OUTPUT [all]

Runs on a desktop of its own. The short form tries one state for each way in which a log can do
harm: opening waits, the file is not the user's to write, writing fails, writing kills. "all" tries
every state of log_states.
"""

import os
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE.parent), str(HERE.parent.parent / "e2e")]

import expected
import log_states
from desk import HAS_OWN_LOG, run_test
from hands import press
from own_mounts import SOMEBODY, skip

SHORT = (log_states.fifo_without_reader, log_states.file_of_another, log_states.full_disk,
         log_states.size_limit_by_signal)
TIMELINE = HERE.parent.parent / "fixtures" / "harbour.edl"


def check_rights():
    if not HAS_OWN_LOG:
        skip("no /tmp of its own here (neither root nor user namespaces)")
    probe = Path(os.environ["TMPDIR"]) / "probe"
    probe.touch()
    try:
        os.chown(probe, SOMEBODY, SOMEBODY)
    except OSError as problem:
        skip(f"only root can make files of other users: {problem}")
    probe.unlink()


def open_timeline(desk):
    desk.button("Open Timeline")
    desk.choose_file("Open Timeline", TIMELINE)
    desk.alert("Check Project Frame Rate")
    press("Return")
    desk.await_window("Clipvane")
    desk.await_status("Loaded 6 events from harbour.edl. FPS: 24 (Default).")


def export(desk, path, is_limited):
    path.unlink(missing_ok=True)
    desk.button("Export CSV")
    desk.choose_file("Export", path)
    if not is_limited:
        desk.await_status(f"Exported {path.name}.")
        assert path.read_text().startswith("Event,Clip Name,"), path.read_text()
        return
    information = desk.alert("Export failed")[1]
    assert information == f'The file "{path.name}" could not be written: File too large.', \
        information
    press("Return")
    assert not path.exists(), "half an export"


def run_in(desk, state):
    is_limited = state is log_states.size_limit_by_signal
    with desk.step(state.__name__.replace("_", " ")):
        check = state(os.geteuid())
        limit = ["prlimit", f"--fsize={log_states.SIZE_LIMIT}", desk.program]
        desk.start(command=limit if is_limited else None)
        open_timeline(desk)
        export(desk, desk.output / "report.csv", is_limited)
        desk.close_window("Clipvane")
        desk.await_end()
        check([*expected.START_LINES, "Open Timeline clicked.",
               f"Parsed 6 events from {TIMELINE} at 24.0 fps."])
        log_states.clear()


def trouble(desk):
    for state in log_states.STATES if "all" in sys.argv else SHORT:
        # Nothing is read-only to root, whom this desktop belongs to.
        if state is not log_states.read_only_file:
            run_in(desk, state)


check_rights()
run_test(trouble)
