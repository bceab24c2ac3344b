# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Data that nobody would type: endless names, markup, line breaks, scripts written to the left,
file names that are no text."""

import os
import time
from pathlib import Path

from access import children_of, rectangle, role_of, walk
from desk import run_test
from hands import press, put_on_clipboard, type_text, xdotool
from waiting import PATIENCE, wait_equal, wait_for

FIXTURES = Path(__file__).resolve().parent.parent / "fixtures"

ENDLESS = "N" * 1_000_000
MARKUP = "<h1>&amp;<br>&lt;img src=x&gt;"
TWO_LINES = "first\nsecond"
TO_THE_LEFT = "\u05e8\u05e6\u05d9\u05e3 \U0001f6a2 12"
COMMENT = "a line of the script\n" * 150_000  # three million characters

SCREEN = tuple(map(int, xdotool("getdisplaygeometry").stdout.split()))


def escaped(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace("\n", "&#10;")


def timeline():
    clips = "".join(f'<clip name="{escaped(name)}" start="0" duration="10"/>\n'
                    for name in (ENDLESS, MARKUP, TWO_LINES, TO_THE_LEFT))
    commented = f'<clip name="commented"><comment>{COMMENT}</comment></clip>\n'
    return f'<?xml version="1.0"?>\n<list>\n{clips}{commented}</list>\n'


def promptly(action, what):
    """Without hanging; how long it takes is the benchmarks' business."""
    begun = time.monotonic()
    action()
    taken = time.monotonic() - begun
    assert taken < PATIENCE, f"{what} took {taken:.1f} s"


def check_on_screen(desk, node):
    left, top, width, height = rectangle(node)
    assert left >= 0 and top >= 0 and left + width <= SCREEN[0] and top + height <= SCREEN[1], \
        f"{role_of(node)} at {left}, {top} with {width} by {height} leaves the screen"


def open_awkward(desk, path):
    with desk.step("a path with markup and a name of 200 characters"):
        desk.button("Open Timeline")
        desk.choose_file("Open Timeline", path)
        desk.alert("Check Project Frame Rate")
        press("Return")
        desk.await_window("Clipvane")
        desk.await_status(f"Loaded 5 events from {path.name}. FPS: 24 (Default).")
        check_on_screen(desk, desk.app.getChildAtIndex(0))


def walk_the_list(desk):
    with desk.step("the list is walked promptly, past a name of a million characters"):
        desk.click_row(1)
        for key, row in (("Up", 0), ("Down", 1), ("Down", 2), ("Down", 3), ("Down", 4), ("Home", 0)):
            def step():
                press(key)
                desk.await_selection(row)
            promptly(step, f"{key} to row {row}")
    for row, name in ((1, MARKUP), (2, TWO_LINES), (3, TO_THE_LEFT)):
        with desk.step(f"shown as text: {name!r}"):
            desk.click_row(row)
            wait_equal(lambda: desk.details()[1]["Clip Name"], name, "the clip's name")
            left, top, width, height = rectangle(desk.cell(row, 1))
            assert (width, height) == (280, 48), (width, height)
            desk.picture("awkward")


def long_comment(desk):
    with desk.step("a comment of three million characters takes typing promptly"):
        desk.click_row(4)
        desk.click("text", "Comments")
        press("ctrl+Home")

        def type_and_look():
            type_text("now ")
            text = desk.find("text", "Comments").queryText()
            wait_equal(lambda: text.getText(0, 6), "now a ", "the comment's begin")

        promptly(type_and_look, "typing")


def long_alert(desk, path):
    with desk.step("an alert about a long name stays on the screen"):
        desk.button("Open Timeline")
        desk.choose_file("Open Timeline", path)
        information = desk.alert("Could not open timeline")[1]
        assert path.name in information, information
        dialog = desk.find("dialog", "Could not open timeline")
        for node in walk(dialog):
            if role_of(node) in ("dialog", "label", "push button"):
                check_on_screen(desk, node)
        desk.picture("long-alert")
        press("Return")
        desk.await_window("Clipvane")


def not_utf8(desk, folder):
    """A file whose name no text can hold: the panel does not offer it, so that no other file is
    taken for it; by a link it opens."""
    odd = os.fsencode(folder) + b"/odd\xff.edl"
    Path(os.fsdecode(odd)).write_bytes((FIXTURES / "harbour.edl").read_bytes())
    (folder / "link.edl").symlink_to(os.fsdecode(odd))
    status = desk.status()
    with desk.step("a name of invalid UTF-8 is not offered, nor found as it would be shown"):
        desk.button("Open Timeline")
        desk.await_window("Open Timeline")
        desk.await_focus("text", "File name:")
        put_on_clipboard(str(folder / "odd\ufffd.edl"))
        press("ctrl+a", "ctrl+v", "Return")
        message = desk.find("label", "odd\ufffd.edl\nFile not found.")
        check_on_screen(desk, message)
        press("Return")
        desk.await_focus("text", "File name:")
        files = desk.find("tree", "Files")
        wait_for(lambda: "link.edl" in [n.name for n in children_of(files)], "the link's name")
        assert not [n.name for n in children_of(files) if n.name.startswith("odd")], "offered"
        desk.button("Cancel")
        desk.await_window("Clipvane")
        desk.await_status(status)
    with desk.step("by a link it opens"):
        desk.button("Open Timeline")
        desk.choose_file("Open Timeline", folder / "link.edl")
        desk.alert("Check Project Frame Rate")
        press("Return")
        desk.await_window("Clipvane")
        desk.await_status("Loaded 6 events from link.edl. FPS: 24 (Default).")


def awkward(desk):
    folder = desk.output / "<i>folder & more"
    folder.mkdir()
    good, bad = folder / ("<b>" + "x" * 193 + ".xml"), folder / ("<b>" + "y" * 193 + ".edl")
    good.write_text(timeline())
    os.mkfifo(bad)
    desk.start()
    open_awkward(desk, good)
    walk_the_list(desk)
    long_comment(desk)
    long_alert(desk, bad)
    not_utf8(desk, folder)
    with desk.step("leave"):
        desk.close_window("Clipvane")
        desk.await_end()


run_test(awkward)
