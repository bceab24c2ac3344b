# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A comment that an input method is still composing when the user does something else."""

from pathlib import Path

import expected
from access import text_of
from desk import run_test
from hands import clipboard, press
from input_method import ENVIRONMENT, InputMethod
from waiting import stays, wait_equal, wait_for

PIER = Path(__file__).resolve().parent / "timelines" / "pier.edl"


def composing(desk):
    method = InputMethod()

    def compose(letters):
        """Into the comments of the event that is shown."""
        desk.click("text", "Comments")
        desk.await_focus("text", "Comments")
        before = desk.comments()
        press(*letters)
        wait_equal(lambda: method.composed, letters, "what is composed")
        stays(lambda: desk.comments() == before, "the comment while composing")

    desk.start(environment=ENVIRONMENT)
    with desk.step("open a timeline"):
        desk.button("Open Timeline")
        desk.choose_file("Open Timeline", PIER)
        desk.alert("Check Project Frame Rate")
        press("Return")
        desk.await_window("Clipvane")
        desk.await_rows(expected.PIER)
    with desk.step("switch the input method on, and decide a first word"):
        desk.click("text", "Comments")
        press("ctrl+space")
        wait_for(lambda: method.is_on, "the input method")
        compose("sea")
        press("Return")
        wait_equal(desk.comments, "sea", "the comment")
    with desk.step("a button: what is composed counts as typed"):
        compose("rain")
        desk.picture("composing")
        desk.button("Copy Info")
        desk.await_status("Copied selected event information.")
        wait_equal(desk.comments, "searain", "the comment")
        assert clipboard().endswith("Comments: searain"), clipboard()
    with desk.step("another event clicked: it stays with its own"):
        compose("wind")
        desk.click_row(2)
        wait_equal(desk.comments, "", "the other event's comment")
        desk.click_row(0)
        wait_equal(desk.comments, "searainwind", "the comment")
    with desk.step("another event chosen by assistive technology"):
        compose("fog")
        desk.table().queryTable().addRowSelection(3)
        desk.await_selection(3)
        wait_equal(desk.comments, "", "the other event's comment")
        desk.table().queryTable().addRowSelection(0)
        desk.await_selection(0)
        wait_equal(desk.comments, "searainwindfog", "the comment")
    with desk.step("the event removed: nothing comes to the next one"):
        compose("hail")
        desk.button("Remove Event")
        desk.await_status("Removed event. 4 events remain for export.")
        stays(lambda: text_of(desk.find("text", "Comments")) == "", "the next event's comment")
    with desk.step("leave"):
        desk.close_window("Clipvane")
        desk.await_end()


run_test(composing)
