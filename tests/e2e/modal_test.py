# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""While a file panel or an alert is up, nothing behind it takes a click, the wheel, a key or a wish
to close."""

from pathlib import Path

import expected
from access import centre
from desk import run_test
from hands import active_window, click_at, press, window_titles, xdotool
from waiting import stays, wait_for

PIER = Path(__file__).resolve().parent / "timelines" / "pier.edl"
LOADED = "Loaded 5 events from pier.edl. FPS: 25 (File)."


def work_behind(places, main, text):
    """All that a hand can do to the windows behind, whose controls' places are given."""
    for place in places:
        click_at(*place)
        click_at(*place, button=5)
    press("x", "Delete")  # the last place is in the comments
    for window in (main, text):
        xdotool("windowquit", window)


def check_blocked(desk, dialog, places, main, text):
    """And closes the dialog."""
    wait_for(lambda: len(window_titles()) == 3, "two windows and the dialog")
    titles = window_titles()
    work_behind(places, main, text)
    stays(lambda: window_titles() == titles, "the windows")
    desk.picture("blocked")
    xdotool("windowactivate", dialog)
    wait_for(lambda: active_window() == dialog, "the dialog to have the keyboard")
    press("Escape")
    wait_for(lambda: len(window_titles()) == 2, "the dialog to go")


def check_unchanged(desk):
    assert desk.status() == LOADED, desk.status()
    desk.await_rows(expected.PIER)
    desk.await_selection(0)
    assert desk.rate() == "25 fps", desk.rate()
    assert desk.comments() == "", desk.comments()


def modal(desk):
    desk.start()
    main = active_window()
    desk.button("Help")
    desk.await_window("Clipvane Help")
    text = active_window()
    xdotool("windowmove", text, 950, 560)
    xdotool("windowactivate", main)
    desk.await_window("Clipvane")
    with desk.step("behind the reminder"):
        desk.button("Open Timeline")
        desk.choose_file("Open Timeline", PIER)
        desk.alert("Check Project Frame Rate")
        places = [centre(desk.find("push button", name))
                  for name in ("Remove Event", "Copy Info", "Export CSV", "Help")]
        places += [centre(desk.find("combo box", "Global FPS")), centre(desk.cell(3, 0)),
                   centre(desk.find("text", "Comments"))]
        check_blocked(desk, active_window(), places, main, text)
        check_unchanged(desk)
    for button, title in (("Open Timeline", "Open Timeline"), ("Export CSV", "Export")):
        with desk.step(f"behind the panel of {button}"):
            xdotool("windowactivate", main)
            desk.await_window("Clipvane")
            desk.button(button)
            desk.await_window(title)
            check_blocked(desk, active_window(), places, main, text)
            check_unchanged(desk)
    with desk.step("afterwards they work again"):
        xdotool("windowactivate", text)
        desk.close_window("Clipvane Help")
        desk.await_window("Clipvane")
        desk.click_row(3, column=0)
        desk.button("Remove Event")
        desk.await_status("Removed event. 4 events remain for export.")
        desk.close_window("Clipvane")
        desk.await_end()


run_test(modal)
