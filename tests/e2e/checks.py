# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Comparing what the program left behind: its log, its files, the colours on the screen."""

import re
from pathlib import Path

from access import rectangle
from desk import HAS_OWN_LOG
from screen import Screenshot
from waiting import wait_equal, wait_for

LOG_LINE = re.compile(r"\[\d{4}-\d{2}-\d{2} \d{2}:\d{2}:\d{2} \+0000\] (.*)")

ROOT = (18, 20, 23)
PANEL = (27, 29, 33)
TABLE = (19, 22, 26)
TABLE_ALTERNATE = (25, 28, 32)
# 95 percent of (43.35, 84.15, 127.5), on what lies below.
SELECTED = (42, 81, 122)
SELECTED_ALTERNATE = (42, 81, 123)
SELECTED_MARKED = (45, 83, 122)
# 80 percent of (86.7, 68.85, 20.4), on the table's colour.
MARKED = (73, 59, 22)

INSET = 4  # from a cell's corner to where no text is


def check_log(desk, *messages):
    """The log holds the messages so far and then these, each behind its time."""
    if not HAS_OWN_LOG:
        return
    desk.log += messages
    wait_equal(lambda: len(desk.log_lines()), len(desk.log), "the number of the log's lines")
    lines = [LOG_LINE.fullmatch(line) for line in desk.log_lines()]
    assert all(lines), f"a line of the log is not '[time] text': {desk.log_lines()}"
    assert [line[1] for line in lines] == desk.log, (desk.log_lines(), desk.log)


def files_below(folder):
    return sorted(str(path) for path in Path(folder).rglob("*"))


def check_content(path, content):
    written = path.read_bytes().decode()
    assert written == content, f"{path.name} holds\n{written}\ninstead of\n{content}"


def check_pixel(x, y, colour, what):
    """The colour as painted: a component may be off by the rounding of two blends."""

    def seen():
        return Screenshot().pixel(x, y)

    wait_for(lambda: all(abs(a - b) <= 1 for a, b in zip(seen(), colour)),
             f"{what} at {x}, {y} to be {colour}; it is {seen()}")


def check_row_colour(desk, row, colour, what):
    left, top, _, _ = rectangle(desk.cell(row, 0))
    check_pixel(left + INSET, top + INSET, colour, what)
