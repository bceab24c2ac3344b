# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The program by keyboard alone, and the keys and wheel turns that must do nothing."""

from pathlib import Path

import expected
from access import centre, rectangle
from desk import run_test
from hands import click_at, press, type_text
from screen import Screenshot
from waiting import stays, wait_equal, wait_for

PIER = Path(__file__).resolve().parent / "timelines" / "pier.edl"
LOADED = "Loaded 5 events from pier.edl. FPS: 25 (File)."

TAB_ORDER = [
    ("push button", "Open Timeline"), ("combo box", "Global FPS"), ("push button", "Remove Event"),
    ("push button", "Copy Info"), ("push button", "Export CSV"), ("push button", "Export EDL"),
    ("push button", "Help"), ("table", "Event Viewer"), ("text", "Comments"),
]

FOCUS_RING = 0x6c, 0xb1, 0xff

OPENING_KEYS = ["Down", "Up", "Left", "Right", "space", "Return", "F4"]
KEYS_WITHOUT_EFFECT = ["Home", "End", "Page_Up", "Page_Down", "5", "6", "b", "BackSpace", "Delete"]


def go_to(desk, control):
    """By Tab, from wherever the keyboard is."""
    for _ in TAB_ORDER:
        if desk.focused() == control:
            return
        press("Tab")
    desk.await_focus(*control)


def is_ringed(desk, control):
    """At the middle of its left edge."""
    left, top, _, height = rectangle(desk.find(*control))
    return Screenshot().pixel(left, top + height // 2) == FOCUS_RING


def first_moment(desk):
    with desk.step("the ring shows where the keyboard is before anything was used"):
        wait_for(lambda: is_ringed(desk, TAB_ORDER[0]), "the ring")
        desk.picture("first-moment")
    with desk.step("a click hides the ring, a key shows it again"):
        click_at(*centre(desk.find("label", "Global FPS")))
        wait_for(lambda: not is_ringed(desk, TAB_ORDER[0]), "the ring to go")
        press("Escape")
        wait_for(lambda: is_ringed(desk, TAB_ORDER[0]), "the ring")


def open_by_keys(desk):
    with desk.step("open a timeline by keys"):
        desk.await_focus(*TAB_ORDER[0])
        press("space")
        desk.choose_file("Open Timeline", PIER)
        desk.alert("Check Project Frame Rate")
        press("Escape")
        desk.await_window("Clipvane")
        wait_equal(desk.status, LOADED, "the status line")


def tab_order(desk):
    with desk.step("Tab goes from the toolbar to the list, the comments and back"):
        for control in TAB_ORDER + TAB_ORDER[:1]:
            desk.await_focus(*control)
            press("Tab")
    with desk.step("Shift+Tab goes the other way"):
        desk.await_focus(*TAB_ORDER[1])
        for control in [TAB_ORDER[1], TAB_ORDER[0], *reversed(TAB_ORDER)]:
            desk.await_focus(*control)
            press("shift+Tab")
    with desk.step("Tab typed nothing"):
        assert desk.comments() == "", desk.comments()


def list_keys(desk):
    with desk.step("the list by arrows, Home, End and the Page keys"):
        go_to(desk, ("table", "Event Viewer"))
        for key, row in (("End", 4), ("Home", 0), ("Down", 1), ("Down", 2), ("Up", 1),
                         ("Page_Down", 4), ("Page_Up", 0), ("Up", 0), ("Right", 0), ("Left", 0)):
            press(key)
            desk.await_selection(row)
    with desk.step("typing in the list does nothing"):
        press("Home")
        type_text("005 wind")
        press("Return", "Delete", "F2", "Escape")
        stays(lambda: desk.selected_rows() == [0], "the first row to be the selected one")
        wait_equal(desk.status, LOADED, "the status line")
        desk.await_rows(expected.PIER)


def closed_popup(desk):
    popup = desk.find("combo box", "Global FPS")
    with desk.step("keys that must not change the rate"):
        go_to(desk, ("combo box", "Global FPS"))
        for key in KEYS_WITHOUT_EFFECT:
            press(key)
            desk.await_focus("combo box", "Global FPS")
        stays(lambda: desk.rate() == "25 fps" and desk.status() == LOADED, "the rate")
    with desk.step("the wheel over the pop-up changes nothing"):
        for wheel in (4, 5, 5):
            click_at(*centre(popup), button=wheel)
        stays(lambda: desk.rate() == "25 fps" and desk.status() == LOADED, "the rate")
    for key in OPENING_KEYS:
        with desk.step(f"{key} opens the list, Escape leaves the rate alone"):
            press(key)
            wait_equal(desk.open_list, expected.RATES, "the open list")
            press("Down", "Escape")
            wait_equal(desk.open_list, [], "the closed list")
            assert desk.rate() == "25 fps" and desk.status() == LOADED, (desk.rate(), desk.status())


def choose_current_rate(desk):
    with desk.step("choosing the current rate again counts"):
        press("space")
        wait_equal(desk.open_list, expected.RATES, "the open list")
        press("Return")
        desk.await_status("Converted 0 timecodes from 25 fps to 25 fps.")
        wait_equal(lambda: desk.details()[1]["FPS Source"], "Manual", "the rate's source")


def buttons(desk):
    for key in ("space", "Return"):
        with desk.step(f"a button by {key}"):
            go_to(desk, ("push button", "Remove Event"))
            left = len(desk.rows()) - 1
            press(key)
            desk.await_status(f"Removed event. {left} events remain for export.")
    with desk.step("help by keys, and out of it"):
        go_to(desk, ("push button", "Help"))
        press("Return")
        desk.await_window("Clipvane Help")
        desk.await_focus("text", "Instructions")
        press("Escape")
        desk.await_window("Clipvane")


def comments(desk):
    with desk.step("the comments by keys"):
        go_to(desk, ("table", "Event Viewer"))
        press("Home", "Tab")
        desk.await_focus("text", "Comments")
        type_text("by key")
        press("shift+Tab", "Down", "Up")
        wait_equal(desk.comments, "by key", "the comment")
    with desk.step("without an event the comments take no text"):
        for left in (2, 1, 0):
            desk.button("Remove Event")
            desk.await_status(f"Removed event. {left} events remain for export.")
        desk.find("label", "Open a timeline file to view events")
        desk.click("text", "Comments")
        type_text("nowhere")
        stays(lambda: desk.comments() == "", "empty comments")
    with desk.step("and Tab passes them by"):
        go_to(desk, ("table", "Event Viewer"))
        press("Tab")
        desk.await_focus(*TAB_ORDER[0])


def keyboard(desk):
    desk.start()
    first_moment(desk)
    open_by_keys(desk)
    tab_order(desk)
    list_keys(desk)
    closed_popup(desk)
    choose_current_rate(desk)
    buttons(desk)
    comments(desk)
    with desk.step("leave"):
        desk.close_window("Clipvane")
        desk.await_end()


run_test(keyboard)
