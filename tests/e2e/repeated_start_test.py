# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Many starts and quits, each with status 0 and without a word."""

import sys

from desk import run_test

STARTS = int(sys.argv[3])


def repeatedly(desk):
    for count in range(STARTS):
        with desk.step(f"start and quit {count + 1} of {STARTS}"):
            desk.start(environment={"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "0"}, accessible=False)
            desk.close_window("Clipvane")
            desk.await_end()


run_test(repeatedly)
