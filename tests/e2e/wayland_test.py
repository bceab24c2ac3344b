# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The program on a Wayland desktop: what the compositor knows of it, its least size, a timeline
opened through the dialog, and its end. There is no X server for the program here; the compositor's
own screen is on one, so that keyboard and mouse are real."""

import re
import subprocess
import time
from pathlib import Path

import access
import expected
from desk import Desk, run_test
from hands import active_title, click_at, press, xdotool
from waiting import comes, stays, wait_equal, wait_for

PIER = Path(__file__).resolve().parent / "timelines" / "pier.edl"

COMPOSITOR = "Weston Compositor - screen0"

# The toolkit draws the frames: a border of 3, a title bar of 30, its buttons on the right.
CONTENT, FRAME = (1440, 860), (6, 33)
CLOSE_BUTTON = 18, 16  # from the top right corner
MAXIMIZE_BUTTON = 41, 16


class WaylandDesk(Desk):
    """Windows are told apart by the accessibility tree: a compositor tells nobody."""

    def await_window(self, title):
        if self.app is None:
            self.app = access.application(self.process.pid)

        def active():
            return any(window.name == title and "active" in access.states_of(window)
                       for window in access.children_of(self.app))

        wait_for(active, f"the window {title!r} to be active")

    def choose_file(self, title, path):
        """As on any desktop: the path is typed once more where the dialog was not ready for it."""
        self.await_window(title)
        self.await_focus("text", "File name:")
        for _ in range(3):
            if self.types_name(path):
                press("Return")
                if comes(lambda: not self.has("dialog", title), patience=5):
                    return
        raise AssertionError(f"the dialog {title!r} does not take {path}")


def window_in_compositor(title):
    """Left, top, width and height of a window, frame included, as the compositor has it under its
    title and the program's app id."""
    graph = subprocess.run(["timeout", "10", "weston-debug", "scene-graph"],
                           capture_output=True, text=True).stdout
    found = re.search(rf"top-level window '{title}' of clipvane,.*\n"
                      r"\s*position: \((-?\d+), (-?\d+)\) -> \((-?\d+), (-?\d+)\)", graph)
    if found is None:
        return None
    left, top, right, bottom = map(int, found.groups())
    return left, top, right - left, bottom - top


def window(title="Clipvane"):
    return wait_for(lambda: window_in_compositor(title),
                    f"a window {title!r} with the app id 'clipvane'")


def on_screen(x, y):
    """Where on the X server's screen a point of the compositor's is."""

    def corner():
        facts = subprocess.run(["xwininfo", "-name", COMPOSITOR],
                               capture_output=True, text=True).stdout
        return re.findall(r"Absolute upper-left [XY]:\s*(-?\d+)", facts)

    left, top = wait_for(corner, "the compositor's window")
    return int(left) + x, int(top) + y


def enter_compositor():
    """A click on its empty screen: the X server's window manager may not have given it the keyboard,
    and it knows the pointer only once that has come in."""
    xdotool("mousemove", 0, 0)

    def active():
        click_at(*on_screen(5, 5))
        return comes(lambda: active_title() == COMPOSITOR, patience=2)

    wait_for(active, "the compositor to have the keyboard")


def drag(start, end):
    """With a hand's slowness: the compositor takes a drag over only while the button is held."""
    xdotool("mousemove", *start)
    time.sleep(0.1)
    xdotool("mousedown", 1)
    for step in range(1, 6):
        time.sleep(0.1)
        xdotool("mousemove", *(a + (b - a) * step // 5 for a, b in zip(start, end)))
    xdotool("mouseup", 1)


def shrink(title, least):
    """Drags the bottom right corner to the top left, again if the compositor missed it."""
    for _ in range(3):
        left, top, width, height = window(title)
        drag(on_screen(left + width - 2, top + height - 2), on_screen(left + 100, top + 100))
        if comes(lambda: window(title)[2:] != (width, height), patience=3):
            break
    wait_equal(lambda: window(title)[2:], least, "the window's size")


def press_frame_button(title, button):
    left, top, width, _ = window(title)
    click_at(*on_screen(left + width - button[0], top + button[1]))


def wayland(desk):
    enter_compositor()
    with desk.step("start: the compositor knows the window by the desktop entry's name"):
        desk.start(command=["env", "-u", "DISPLAY", desk.program])
        wait_equal(lambda: window()[2:], tuple(a + b for a, b in zip(CONTENT, FRAME)),
                   "the window's size")
        desk.picture("started")
    with desk.step("open a timeline through the dialog, by keys"):
        desk.await_focus("push button", "Open Timeline")
        press("space")
        desk.choose_file("Open Timeline", PIER)
        desk.await_window("Check Project Frame Rate")
        desk.picture("reminder")
        press("Return")
        desk.await_status("Loaded 5 events from pier.edl. FPS: 25 (File).")
        desk.await_rows(expected.PIER)
    with desk.step("walk the list by keys"):
        desk.await_window("Clipvane")
        while desk.focused() != ("table", "Event Viewer"):
            press("Tab")
        press("End")
        desk.await_selection(4)
    with desk.step("drag the window's corner: never below 1180 by 720 with its frame"):
        shrink("Clipvane", (1180, 720))
        desk.picture("least")
    with desk.step("maximized and back, it is at its least again"):
        press_frame_button("Clipvane", MAXIMIZE_BUTTON)
        wait_for(lambda: window()[2:] > (1180, 720), "the window to be maximized")
        desk.picture("maximized")
        press_frame_button("Clipvane", MAXIMIZE_BUTTON)
        wait_equal(lambda: window()[2:], (1180, 720), "the window's size")
    with desk.step("the help, closed at its least, comes back at its least"):
        desk.find("push button", "Help").queryAction().doAction(0)
        desk.await_window("Clipvane Help")
        shrink("Clipvane Help", (520, 420))
        press_frame_button("Clipvane Help", CLOSE_BUTTON)
        desk.await_window("Clipvane")
        desk.find("push button", "Help").queryAction().doAction(0)
        desk.await_window("Clipvane Help")
        wait_equal(lambda: window("Clipvane Help")[2:], (520, 420), "the help's size")
        stays(lambda: window("Clipvane Help")[2:] == (520, 420), "the help's size")
        press_frame_button("Clipvane Help", CLOSE_BUTTON)
        desk.await_window("Clipvane")
    with desk.step("its close button ends it, with status 0 and without a word"):
        press_frame_button("Clipvane", CLOSE_BUTTON)
        desk.await_end()


run_test(wayland, WaylandDesk)
