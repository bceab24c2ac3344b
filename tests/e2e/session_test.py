# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A person's whole session with the program, from its start to its end."""

import os
from pathlib import Path

import expected
from access import children_of, rectangle, role_of, text_of
from checks import (MARKED, PANEL, ROOT, SELECTED, SELECTED_ALTERNATE, SELECTED_MARKED, TABLE,
                    TABLE_ALTERNATE, check_content, check_log, check_pixel, check_row_colour,
                    files_below)
from desk import run_test
from hands import click_at, clipboard, press, put_on_clipboard, type_text, window_titles, xdotool
from waiting import stays, wait_equal, wait_for

TIMELINES = Path(__file__).resolve().parent / "timelines"
NOTHING_YET = "Open an EDL, XML, FCPXML, or XMEML timeline file."


def dismiss(desk, *texts):
    """The alert says this and goes at Return."""
    assert desk.alert(texts[0]) == list(texts), desk.alert(texts[0])
    desk.picture("alert")
    press("Return")
    wait_for(lambda: "dialog" not in [role_of(n) for n in children_of(desk.app)],
             "the alert to go")
    desk.await_window("Clipvane")


def open_timeline(desk, path, parsed_rate, count, status):
    desk.button("Open Timeline")
    desk.choose_file("Open Timeline", path)
    dismiss(desk, *expected.REMINDER)
    desk.await_status(status)
    check_log(desk, "Open Timeline clicked.",
              f"Parsed {count} events from {path} at {parsed_rate} fps.")


def start(desk):
    desk.log = []
    with desk.step("start: four log lines, an empty list, the default rate"):
        desk.start()
        check_log(desk, *expected.START_LINES)
        desk.await_status(NOTHING_YET)
        desk.find("label", "Open a timeline file to view events")
        assert desk.rows() == [], desk.rows()
        assert desk.details() == ("No event selected", expected.NO_DETAILS), desk.details()
        assert desk.rate() == "24 fps", desk.rate()
        assert window_titles() == ["Clipvane"], window_titles()
    with desk.step("the surfaces have their colours"):
        left, top, width, height = rectangle(desk.find("tool bar", "Toolbar"))
        check_pixel(left - 8, top - 8, ROOT, "the root view")
        left, top, _, _ = rectangle(desk.find("panel", "Event Viewer"))
        check_pixel(left + 20, top + 5, PANEL, "the left panel")
        left, top, width, height = rectangle(desk.find("panel", "Selected Event"))
        check_pixel(left + 20, top + height - 5, PANEL, "the right panel")
        desk.picture("started")


def commands_without_selection(desk):
    with desk.step("without an event, commands are silent"):
        put_on_clipboard("mine")
        desk.button("Copy Info")
        desk.button("Remove Event")
        stays(lambda: desk.status() == NOTHING_YET, "the status line")
        assert clipboard() == "mine", clipboard()
    with desk.step("a cancelled panel changes nothing"):
        desk.button("Open Timeline")
        desk.await_window("Open Timeline")
        press("Escape")
        desk.await_window("Clipvane")
        desk.await_status(NOTHING_YET)
        check_log(desk, "Open Timeline clicked.")


def open_edl(desk):
    with desk.step("open an EDL"):
        open_timeline(desk, TIMELINES / "pier.edl", "25.0", 5,
                      "Loaded 5 events from pier.edl. FPS: 25 (File).")
        desk.await_rows(expected.PIER)
        desk.await_selection(0)
        desk.await_detail_title("Event 001: PIER_WIDE")
        assert desk.rate() == "25 fps", desk.rate()
        assert not desk.has("label", "Open a timeline file to view events")
    with desk.step("the rows have their colours"):
        check_row_colour(desk, 0, SELECTED, "the selected row")
        check_row_colour(desk, 1, TABLE_ALTERNATE, "the second row")
        check_row_colour(desk, 2, TABLE, "the third row")
        check_row_colour(desk, 3, TABLE_ALTERNATE, "the fourth row")


def walk_the_list(desk):
    with desk.step("walk the list by keys"):
        desk.click_row(0)
        for key, row in (("Down", 1), ("Down", 2), ("Up", 1), ("End", 4), ("Down", 4), ("Home", 0),
                         ("Page_Down", 4), ("Page_Up", 0), ("Down", 1)):
            press(key)
            desk.await_selection(row)
            number, name = expected.PIER[row][:2]
            desk.await_detail_title(f"Event {number}: {name}")
        assert desk.details()[1] == expected.DETAILS_OF_002, desk.details()
        check_row_colour(desk, 1, SELECTED_ALTERNATE, "the selected second row")
        check_row_colour(desk, 0, TABLE, "the first row, no longer selected")


def write_comments(desk):
    with desk.step("write a comment of two lines"):
        desk.click_row(0)
        desk.click("text", "Comments")
        type_text("Keep the gulls")
        press("shift+Return")
        type_text("  and the wind.")
        wait_equal(desk.comments, "Keep the gulls\n  and the wind.", "the comment")
        desk.picture("comment")
    with desk.step("paste a comment with characters of many kinds"):
        desk.click_row(1)
        wait_equal(desk.comments, "", "the next event's comment")
        put_on_clipboard(expected.PASTED)
        desk.click("text", "Comments")
        press("ctrl+v")
        wait_for(lambda: desk.comments().startswith("say"), "the pasted comment")
    with desk.step("the first comment is still there, and undo does not reach it"):
        desk.click_row(0)
        wait_equal(desk.comments, "Keep the gulls\n  and the wind.", "the first comment")
        desk.click("text", "Comments")
        press("ctrl+z")
        stays(lambda: desk.comments() == "Keep the gulls\n  and the wind.", "the first comment")


def change_rate(desk):
    with desk.step("change the rate by keyboard"):
        desk.click_row(1)
        while desk.focused() != ("combo box", "Global FPS"):
            press("shift+Tab")
            assert desk.focused() != ("text", "Comments"), "Shift+Tab never reached the pop-up"
        press("Down")
        wait_equal(desk.open_list, expected.RATES, "the pop-up's list")
        desk.picture("rates")
        press("End", "Up", "Up", "Return")
        desk.await_status("Converted 20 timecodes from 25 fps to 50 fps.")
        desk.await_rows(expected.PIER_AT_50)
        desk.await_selection(1)
        assert desk.rate() == "50 fps", desk.rate()
        wait_equal(lambda: desk.details()[1]["FPS Source"], "Manual", "the rate's source")


def remove_events(desk):
    with desk.step("remove the third event, and the one that moved up"):
        desk.click_row(2)
        desk.button("Remove Event")
        desk.await_status("Removed event. 4 events remain for export.")
        desk.await_rows(expected.PIER_AT_50[:2] + expected.PIER_AT_50[3:])
        desk.await_selection(2)
        desk.await_detail_title("Event 004: Clip 004")
        desk.button("Remove Event")
        desk.await_status("Removed event. 3 events remain for export.")
        desk.await_rows(expected.PIER_AT_50[:2] + expected.PIER_AT_50[4:])
        desk.await_selection(2)


def copy_info(desk):
    with desk.step("copy an event's information"):
        desk.click_row(0)
        desk.button("Copy Info")
        desk.await_status("Copied selected event information.")
        wait_equal(clipboard, expected.COPIED, "the clipboard")
    with desk.step("Ctrl+C in the list leaves the clipboard alone"):
        desk.click_row(1)
        press("ctrl+c")
        stays(lambda: clipboard() == expected.COPIED, "the clipboard")


def export(desk, button, default_name, folder, path, content):
    desk.button(button)
    desk.await_window("Export")
    look_in = desk.find("combo box", "Look in:")
    wait_equal(lambda: text_of(look_in), str(folder), "the folder of the panel")
    wait_equal(lambda: text_of(desk.find("text", "File name:")), default_name, "the preset name")
    desk.choose_file("Export", path)
    desk.await_window("Clipvane")
    desk.await_status(f"Exported {path.name}.")
    check_content(path, content)


def export_both(desk):
    report = desk.output / "report.csv"
    with desk.step("a comment typed just before the export is in the report"):
        desk.click_row(2)
        desk.click("text", "Comments")
        type_text("last words")
        export(desk, "Export CSV", "timeline-events.csv", TIMELINES, report, expected.CSV)
    with desk.step("export an EDL into the folder used last, under a name without extension"):
        export(desk, "Export EDL", "edited-timeline.edl", desk.output, desk.output / "edited",
               expected.EDL)
    with desk.step("replacing a file asks first: No keeps it"):
        report.write_text("earlier")
        desk.button("Export CSV")
        desk.choose_file("Export", report)
        question = desk.question()
        assert "report.csv already exists" in question, question
        desk.picture("replace")
        desk.button("No")
        desk.await_window("Export")
        check_content(report, "earlier")
    with desk.step("replacing a file asks first: Yes replaces it"):
        desk.choose_file("Export", report)
        desk.question()
        desk.button("Yes")
        desk.await_window("Clipvane")
        desk.await_status("Exported report.csv.")
        check_content(report, expected.CSV)
    with desk.step("a cancelled export writes nothing"):
        before = files_below(desk.output)
        desk.button("Export EDL")
        desk.await_window("Export")
        press("Escape")
        desk.await_window("Clipvane")
        assert files_below(desk.output) == before
    with desk.step("an export that fails says so: a pipe is never replaced"):
        pipe = desk.output / "pipe.csv"
        os.mkfifo(pipe)
        desk.button("Export CSV")
        desk.choose_file("Export", pipe)
        desk.question()
        desk.button("Yes")
        texts = desk.alert("Export failed")
        assert len(texts) == 2 and "pipe.csv" in texts[1], texts
        desk.picture("export-failed")
        press("Return")
        desk.await_window("Clipvane")
        desk.await_status("Exported report.csv.")
        assert pipe.is_fifo()


def bad_files(desk):
    remaining = expected.PIER_AT_50[:2] + expected.PIER_AT_50[4:]
    pipe, notes = desk.output / "pipe.edl", desk.output / "notes.doc"
    os.mkfifo(pipe)
    notes.write_text("no timeline")
    for path in (pipe, notes):
        with desk.step(f"a file that is no timeline: {path.name}"):
            desk.button("Open Timeline")
            desk.choose_file("Open Timeline", path)
            texts = desk.alert("Could not open timeline")
            assert len(texts) == 2, texts
            if path is notes:
                assert texts[1] == "Unsupported file type. Open EDL, XML, FCPXML, or XMEML files."
            else:
                assert path.name in texts[1], texts
            desk.picture("not-opened")
            press("Return")
            desk.await_window("Clipvane")
            desk.await_status("Exported report.csv.")
            desk.await_rows(remaining)
            assert desk.rate() == "50 fps", desk.rate()
            check_log(desk, "Open Timeline clicked.", f"Open timeline failed: {texts[1]}")


def open_xml(desk):
    with desk.step("open an XMEML timeline"):
        open_timeline(desk, TIMELINES / "quay.xml", "30.0", 2,
                      "Loaded 2 events from quay.xml. FPS: 30 (File).")
        desk.await_rows(expected.QUAY)
        press("Tab")
        desk.click_row(1)
        wait_equal(desk.comments, "shot from the boat", "the imported comment")
    with desk.step("open an FCPXML timeline"):
        open_timeline(desk, TIMELINES / "mole.fcpxml", "23.976023976023978", 3,
                      "Loaded 3 events from mole.fcpxml. FPS: 23.976 (File).")
        desk.await_rows(expected.MOLE)
        assert desk.rate() == "23.976 fps", desk.rate()
    with desk.step("open a generic XML timeline with a marked event and a rate of its own"):
        open_timeline(desk, TIMELINES / "tide.xml", "12.5", 3,
                      "Loaded 3 events from tide.xml. FPS: 12.5 (File).")
        desk.await_rows(expected.TIDE)
        assert desk.rate() == "12.5 fps", desk.rate()
        check_row_colour(desk, 1, MARKED, "the marked row")
        desk.picture("marked")
        desk.click_row(1)
        check_row_colour(desk, 1, SELECTED_MARKED, "the selected marked row")
    with desk.step("a click below the last row clears the selection"):
        left, top, width, height = rectangle(desk.cell(2, 1))
        click_at(left + 20, top + 3 * height)
        desk.await_selection()
        desk.await_detail_title("No event selected")
        desk.await_status("Loaded 3 events from tide.xml. FPS: 12.5 (File).")


def window_frame():
    """Where the active window's content is."""
    shell = xdotool("getactivewindow", "getwindowgeometry", "--shell").stdout.split()
    return [line for line in shell if line.startswith(("X=", "Y=", "WIDTH=", "HEIGHT="))]


def read_help(desk):
    with desk.step("read the help"):
        desk.button("Help")
        desk.await_window("Clipvane Help")
        lines = text_of(desk.find("text", "Instructions")).split("\n")
        assert len(lines) == 22 and lines[0] == "Clipvane" and lines[2] == "Instructions", lines
        press("ctrl+a", "ctrl+c")
        wait_equal(lambda: (clipboard() or "").split("\n"), lines, "the copied help")
        desk.picture("help")
    with desk.step("a second Help brings the same window forward"):
        place = window_frame()
        xdotool("getactivewindow", "windowmove", 90, 420)
        wait_for(lambda: window_frame() != place, "the window's move")
        desk.click("label", "Clipvane")
        desk.await_window("Clipvane")
        desk.button("Help")
        desk.await_window("Clipvane Help")
        assert window_titles() == ["Clipvane", "Clipvane Help"], window_titles()
    with desk.step("closing the help alone does not end the program; it comes back where it was"):
        place = window_frame()
        desk.close_window("Clipvane Help")
        desk.await_window("Clipvane")
        stays(desk.is_running, "running")
        desk.button("Help")
        desk.await_window("Clipvane Help")
        wait_equal(window_frame, place, "the help window's place")


def leave(desk):
    with desk.step("closing the main window while the help is open does not end the program"):
        desk.click("label", "Clipvane")
        desk.close_window("Clipvane")
        wait_equal(window_titles, ["Clipvane Help"], "the windows left")
        stays(desk.is_running, "running")
    with desk.step("closing the last window ends it, with status 0 and without a word"):
        desk.close_window("Clipvane Help")
        desk.await_end()
        check_log(desk)


def session(desk):
    home = files_below(os.environ["HOME"])
    start(desk)
    commands_without_selection(desk)
    open_edl(desk)
    walk_the_list(desk)
    write_comments(desk)
    change_rate(desk)
    remove_events(desk)
    copy_info(desk)
    export_both(desk)
    bad_files(desk)
    open_xml(desk)
    read_help(desk)
    leave(desk)
    with desk.step("nothing is kept in the home folder"):
        assert files_below(os.environ["HOME"]) == home, files_below(os.environ["HOME"])


run_test(session)
