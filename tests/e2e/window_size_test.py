# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The sizes of both windows, frames counted: at the start on this screen, at their least, and after
the window was away. The help comes back where it was left."""

import re
import subprocess

from desk import run_test
from hands import active_window, click_at, xdotool
from waiting import comes, stays, wait_equal, wait_for

WIDTH, HEIGHT = map(int, xdotool("getdisplaygeometry").stdout.split())


def properties(window, name):
    answer = subprocess.run(["xprop", "-id", window, "-notype", name], capture_output=True,
                            text=True)
    return [int(part) for part in answer.stdout.partition("=")[2].split(",")]


def content(window):
    """Left, top, width and height without the frame."""
    facts = subprocess.run(["xwininfo", "-id", window], capture_output=True, text=True).stdout
    return tuple(int(re.search(name + r":\s*(-?\d+)", facts)[1]) for name in
                 ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))


def content_size(window):
    return content(window)[2:]


def frame_size(window):
    left, right, top, bottom = properties(window, "_NET_FRAME_EXTENTS")
    width, height = content_size(window)
    return width + left + right, height + top + bottom


def expected_start_size(window):
    """1440 by 860 of content; on a smaller screen a frame that fits, not below 1180 by 720."""
    left, right, top, bottom = properties(window, "_NET_FRAME_EXTENTS")
    return (max(min(1440 + left + right, WIDTH), 1180), max(min(860 + top + bottom, HEIGHT), 720))


def open_help(desk):
    desk.find("push button", "Help").queryAction().doAction(0)
    desk.await_window("Clipvane Help")
    return active_window()


def toggle_maximized(window):
    """A double click on the title bar."""
    left, top, width, _ = content(window)
    click_at(left + width // 2, top - 8)
    click_at(left + width // 2, top - 8)


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
    with desk.step("the help window: 620 by 520, in the middle, never below 520 by 420 with its frame"):
        text = open_help(desk)
        wait_equal(lambda: content_size(text), (620, 520), "the help's size")
        left, right, top, bottom = properties(text, "_NET_FRAME_EXTENTS")
        middle = ((WIDTH - 620 - left - right) // 2 + left, (HEIGHT - 520 - top - bottom) // 2 + top)
        wait_equal(lambda: content(text)[:2], middle, "the help's place")
        xdotool("windowsize", text, 100, 100)
        wait_equal(lambda: frame_size(text), (520, 420), "the frame's size")
    leave_and_come_back(desk, main, text)
    with desk.step("leave"):
        desk.close_window("Clipvane")
        desk.await_end()


def leave_and_come_back(desk, main, text):
    for change in ("at its least", "larger"):
        with desk.step(f"the help {change}: moved and closed, it comes back as it was left"):
            if change == "larger":
                xdotool("windowsize", text, 560, 470)
                wait_equal(lambda: content_size(text), (560, 470), "the help's size")
            xdotool("windowmove", text, 123, 87)
            wait_for(lambda: content(text)[0] in range(123, 140), "the help to be moved")
            place = content(text)
            desk.close_window("Clipvane Help")
            desk.await_window("Clipvane")
            text = open_help(desk)
            wait_equal(lambda: content(text), place, "the help's place")
            stays(lambda: content(text) == place, "the help's place")
            desk.picture("help-again")
    desk.close_window("Clipvane Help")
    desk.await_window("Clipvane")
    with desk.step("the main window iconified and restored, maximized and back, is as before"):
        place = content(main)
        xdotool("windowminimize", main)
        wait_for(lambda: active_window() != main, "the window to be iconified")
        xdotool("windowactivate", main)
        desk.await_window("Clipvane")
        # The manager may still be at it.
        wait_equal(lambda: content(main), place, "the window's place")
        stays(lambda: content(main) == place, "the window's place")
        # On a screen smaller than the window there is nothing to maximize.
        toggle_maximized(main)
        comes(lambda: content(main) != place, patience=2)
        if WIDTH > 1200:
            assert content_size(main) > place[2:], content_size(main)
        toggle_maximized(main)
        wait_equal(lambda: content(main), place, "the window's place")
        xdotool("windowsize", main, 300, 200)
        stays(lambda: frame_size(main) == (1180, 720), "the least size")


run_test(sizes)
