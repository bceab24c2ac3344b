# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A tour of the program: through a sample timeline, with a picture of each station."""

import sys
from pathlib import Path

from desk import Desk, run
from hands import active_window, clipboard, press, type_text
from screen import save_screen
from waiting import wait_equal

HARBOUR = Path(__file__).resolve().parents[2] / "examples" / "timelines" / "harbour.edl"


def picture_of_window(desk, name):
    save_screen(desk.output / f"{name}.png", active_window())


def look_around(desk):
    with desk.step("Start: an empty list"):
        desk.start()
        picture_of_window(desk, "1-empty")
    with desk.step("Open examples/timelines/harbour.edl, which names its rate: 25 fps"):
        desk.button("Open Timeline")
        desk.choose_file("Open Timeline", HARBOUR)
        desk.alert("Check Project Frame Rate")
        save_screen(desk.output / "2-reminder.png")
        press("Return")
        desk.await_window("Clipvane")
        desk.await_status("Loaded 8 events from harbour.edl. FPS: 25 (File).")


def work(desk):
    with desk.step("Walk down to the fourth event and comment it"):
        desk.click_row(0)
        press("Down", "Down", "Down")
        desk.await_selection(3)
        desk.click("text", "Comments")
        type_text("Hold on the gangway until the ferry's horn.")
        press("shift+Return")
        type_text("Ask the sound department for a cleaner take.")
        press("shift+Tab")
        desk.await_focus("table", "Event Viewer")
        picture_of_window(desk, "3-comment")
    with desk.step("Choose 24 fps in the Global FPS pop-up"):
        while desk.focused() != ("combo box", "Global FPS"):
            press("shift+Tab")
        press("Down")
        wait_equal(lambda: len(desk.open_list()), 10, "the number of rates")
        save_screen(desk.output / "4-rates.png")
        press("Up", "Return")
        desk.await_status("Converted 32 timecodes from 25 fps to 24 fps.")
        picture_of_window(desk, "5-converted")
    with desk.step("Remove the black event from the list"):
        desk.click_row(6)
        desk.await_detail_title("Event 006: Clip 006")
        desk.button("Remove Event")
        desk.await_status("Removed event. 7 events remain for export.")


def take_along(desk):
    with desk.step("Copy the commented event's information"):
        desk.click_row(3)
        desk.button("Copy Info")
        desk.await_status("Copied selected event information.")
        (desk.output / "copied.txt").write_text(clipboard())
    for button, name in (("Export CSV", "timeline-events.csv"),
                         ("Export EDL", "edited-timeline.edl")):
        with desk.step(f"{button}: {name}"):
            (desk.output / name).unlink(missing_ok=True)
            desk.button(button)
            desk.choose_file("Export", desk.output / name)
            desk.await_window("Clipvane")
            desk.await_status(f"Exported {name}.")
    picture_of_window(desk, "6-exported")


def leave(desk):
    with desk.step("Read the help"):
        desk.button("Help")
        desk.await_window("Clipvane Help")
        picture_of_window(desk, "7-help")
        press("alt+F4")
    with desk.step("Leave"):
        desk.close_window("Clipvane")
        desk.await_end()


def tour(desk):
    look_around(desk)
    work(desk)
    take_along(desk)
    leave(desk)


run(Desk(sys.argv[1], sys.argv[2]), tour)
print(f"Pictures, exports and the copied text are in {sys.argv[2]}")
