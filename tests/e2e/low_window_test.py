# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A laptop's screen, where the details are higher than their panel: what the keyboard works on is
on the screen, and all else can be reached without a mouse."""

from pathlib import Path

import access
from desk import run_test
from hands import active_window, click_at, press, type_text, xdotool
from waiting import stays, wait_for

PIER = Path(__file__).resolve().parent / "timelines" / "pier.edl"
SIZES = ((1180, 720), (1366, 768))


def panel_content(desk):
    """Top and bottom of what the detail panel can show, on the screen."""
    _, top, _, height = access.rectangle(desk.find("panel", "Selected Event"))
    return top + 14 + 24, top + height - 14


def is_inside(desk, rectangle):
    top, bottom = panel_content(desk)
    return rectangle[3] > 0 and top <= rectangle[1] and rectangle[1] + rectangle[3] <= bottom


def editor(desk):
    return access.rectangle(desk.find("text", "Comments"))


def first_row(desk):
    return access.rectangle(access.find_all(desk.app, "label", "Clip Name")[0])


def await_inside(desk, rectangle, what):
    wait_for(lambda: is_inside(desk, rectangle(desk)), f"{what} to be on the screen")


def to_comments(desk):
    while desk.focused() != ("text", "Comments"):
        press("Tab")


def low_window(desk):
    desk.start()
    main = active_window()
    with desk.step("open a timeline"):
        press("space")
        desk.choose_file("Open Timeline", PIER)
        desk.alert("Check Project Frame Rate")
        press("Return")
        desk.await_window("Clipvane")
    for width, height in SIZES:
        xdotool("windowsize", main, width - 2, height - 25)
        with desk.step(f"at {width} by {height} the details begin at their top"):
            press("alt+Page_Up")
            await_inside(desk, first_row, "the first row")
            assert not is_inside(desk, editor(desk)), "the panel shows all of its details"
        with desk.step("Alt with the Page keys shows the rest, from wherever the keyboard is"):
            press("alt+Page_Down")
            await_inside(desk, editor, "the editor")
            desk.picture("paged")
            press("alt+Page_Up")
            await_inside(desk, first_row, "the first row")
        with desk.step("Tab brings the comments onto the screen"):
            to_comments(desk)
            await_inside(desk, editor, "the editor")
            desk.picture("comments")
        with desk.step("typing brings them back"):
            press("alt+Page_Up")
            await_inside(desk, first_row, "the first row")
            stays(lambda: is_inside(desk, first_row(desk)), "the details, where the keys took them")
            type_text("l")
            await_inside(desk, editor, "the editor")
            desk.picture("typed")
        with desk.step("another event in the list leaves the details where they are"):
            desk.click_row(1)
            press("alt+Page_Up")
            await_inside(desk, first_row, "the first row")
            desk.click_row(2)
            stays(lambda: is_inside(desk, first_row(desk)), "the details at their top")
            press("alt+Page_Down")
            await_inside(desk, editor, "the editor")
            press("Down", "Up")
            stays(lambda: is_inside(desk, editor(desk)), "the details at their end")
            desk.click_row(0)
    with desk.step("a window that becomes low while a comment is typed keeps the comments in view"):
        xdotool("windowsize", main, 1364, 743)
        to_comments(desk)
        press("ctrl+End")
        await_inside(desk, editor, "the editor")
        xdotool("windowsize", main, 1178, 695)
        wait_for(lambda: panel_content(desk)[1] < 720 - 60, "the smaller panel")
        await_inside(desk, editor, "the editor")
        desk.picture("became-low")
    with desk.step("leave"):
        desk.close_window("Clipvane")
        desk.await_end()


run_test(low_window)
