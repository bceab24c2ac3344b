# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The sizes of both windows, frames counted: at the start on this screen, and at their least."""

import subprocess

from desk import run_test
from hands import active_window, xdotool
from waiting import wait_equal

WIDTH, HEIGHT = map(int, xdotool("getdisplaygeometry").stdout.split())


def properties(window, name):
    answer = subprocess.run(["xprop", "-id", window, "-notype", name], capture_output=True,
                            text=True)
    return [int(part) for part in answer.stdout.partition("=")[2].split(",")]


def content_size(window):
    shell = xdotool("getwindowgeometry", "--shell", window).stdout.split()
    values = dict(line.split("=") for line in shell)
    return int(values["WIDTH"]), int(values["HEIGHT"])


def frame_size(window):
    left, right, top, bottom = properties(window, "_NET_FRAME_EXTENTS")
    width, height = content_size(window)
    return width + left + right, height + top + bottom


def expected_start_size(window):
    """1440 by 860 of content; on a smaller screen a frame that fits, not below 1180 by 720."""
    left, right, top, bottom = properties(window, "_NET_FRAME_EXTENTS")
    return (max(min(1440 + left + right, WIDTH), 1180), max(min(860 + top + bottom, HEIGHT), 720))


def sizes(desk):
    desk.start()
    main = active_window()
    with desk.step(f"the first window on a screen of {WIDTH} by {HEIGHT}"):
        wait_equal(lambda: frame_size(main), expected_start_size(main), "the frame's size")
        desk.picture("started")
    with desk.step("the main window's frame is never below 1180 by 720"):
        xdotool("windowsize", main, 300, 200)
        wait_equal(lambda: frame_size(main), (1180, 720), "the frame's size")
        desk.picture("least")
    with desk.step("the help window: 620 by 520, never below 520 by 420 with its frame"):
        desk.find("push button", "Help").queryAction().doAction(0)
        desk.await_window("Clipvane Help")
        text = active_window()
        wait_equal(lambda: content_size(text), (620, 520), "the help's size")
        xdotool("windowsize", text, 100, 100)
        wait_equal(lambda: frame_size(text), (520, 420), "the frame's size")
    with desk.step("leave"):
        desk.close_window("Clipvane Help")
        desk.close_window("Clipvane")
        desk.await_end()


run_test(sizes)
