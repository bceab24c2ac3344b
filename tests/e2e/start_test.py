# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Starting: nothing on the command line counts, and no trouble with the log is in the way."""

import os

import expected
from access import rectangle
from desk import HAS_OWN_LOG, LOG, run_test
from screen import Screenshot
from waiting import wait_for

OPTIONS = ["-style", "Windows", "-stylesheet", "/no/such.qss", "-platform", "offscreen",
           "-geometry", "300x200+0+0", "-reverse", "-qwindowtitle", "Other", "-fontsize", "40",
           "--help", "timeline.edl"]
ENVIRONMENT = {"QT_STYLE_OVERRIDE": "Windows", "TZ": "Asia/Kolkata", "LC_ALL": "de_DE.UTF-8"}


def leave(desk):
    desk.close_window("Clipvane")
    desk.await_end()


def ignores_options(desk):
    with desk.step("arguments and toolkit options are ignored"):
        desk.start(arguments=OPTIONS, environment=ENVIRONMENT)
        assert rectangle(desk.app.getChildAtIndex(0))[2:] == (1440, 860), "not the usual size"
        left, top, width, _ = rectangle(desk.find("tool bar", "Toolbar"))
        assert rectangle(desk.find("label", "Clipvane"))[0] == left, "the name is not on the left"
        wait_for(lambda: Screenshot().pixel(left - 8, top - 8) == (18, 20, 23), "the usual colours")
        assert desk.rows() == [], "a file was opened"
        leave(desk)


def without_writable_tmp(desk):
    with desk.step("a /tmp that cannot be written"):
        desk.start(command=["unshare", "--mount", "sh", "-c",
                            'mount -o remount,bind,ro /tmp && exec "$0"', desk.program])
        leave(desk)
        assert not LOG.exists(), "the log was written after all"


def with_pipe_as_log(desk):
    with desk.step("a pipe in the log's place: nobody reads it, and nothing hangs"):
        os.mkfifo(LOG)
        desk.start()
        leave(desk)
        assert LOG.is_fifo(), "the pipe was replaced"
        LOG.unlink()


def with_folder_as_log(desk):
    with desk.step("a log that is a folder"):
        LOG.mkdir()
        desk.start()
        leave(desk)
        LOG.rmdir()


def appends_to_log(desk):
    with desk.step("a second run appends to the log of the first"):
        for _ in range(2):
            desk.start()
            leave(desk)
        messages = [line[28:] for line in desk.log_lines()]
        assert messages == 2 * expected.START_LINES, messages


def starting(desk):
    ignores_options(desk)
    if not HAS_OWN_LOG:
        return
    LOG.unlink()
    without_writable_tmp(desk)
    with_pipe_as_log(desk)
    with_folder_as_log(desk)
    appends_to_log(desk)


run_test(starting)
