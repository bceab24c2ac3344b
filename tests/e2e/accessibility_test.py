# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What assistive technology is told: a role and a name for each control, header, cell and field."""

from pathlib import Path

import pyatspi
from gi.repository import GLib

import expected
from access import children_of, name_of, rectangle, role_of, states_of, text_of
from desk import run_test
from hands import press
from waiting import stays, wait_equal, wait_for

# What a screen reader speaks of by itself: a notification that comes to show.
ANNOUNCEMENT = "object:state-changed:showing"

PIER = Path(__file__).resolve().parent / "timelines" / "pier.edl"

CONTROLS = [
    ("push button", "Open Timeline"), ("combo box", "Global FPS"), ("push button", "Remove Event"),
    ("push button", "Copy Info"), ("push button", "Export CSV"), ("push button", "Export EDL"),
    ("push button", "Help"), ("table", "Event Viewer"), ("text", "Comments"),
]

HEADERS = ["#", "Clip Name", "Reel ID", "Source In", "Source Out", "Record In", "Record Out",
           "Type"]

# As a reader meets them: the panel's title, the event's title, the keys, the editor.
DETAIL_KEYS = ["Clip Name", "Reel ID", "Track", "Source In", "Source Out", "Source Dur",
               "Record In", "Record Out", "Record Dur", "FPS Source", "Format"]


def everything(node):
    yield node
    for child in children_of(node):
        yield from everything(child)


def path_to(node):
    steps = []
    while node is not None and role_of(node) != "application":
        steps.append(f"{role_of(node)} {name_of(node)!r}")
        node = node.parent
    return " in ".join(steps)


def check_names(desk, where):
    """Nothing that can have the keyboard is without a name, hidden or not."""
    with desk.step(f"every focusable control has a name: {where}"):
        focusable = [node for node in everything(desk.app) if "focusable" in states_of(node)]
        assert len(focusable) >= len(CONTROLS), f"only {len(focusable)} focusable controls"
        unnamed = [path_to(node) for node in focusable if not name_of(node).strip()]
        assert not unnamed, "without a name: " + "; ".join(unnamed)


def selected_rates(popup):
    return [name_of(n) for n in everything(popup) if "selected" in states_of(n)]


def check_selected_rate(popup, rate):
    assert selected_rates(popup) == [rate], selected_rates(popup)


def check_controls(desk):
    with desk.step("roles and names of the toolbar, the list and the editor"):
        for role, name in CONTROLS:
            assert "focusable" in states_of(desk.find(role, name)), (role, name)
    with desk.step("the regions: roles that are announced, in reading order"):
        regions = [(role_of(n), name_of(n)) for n in everything(desk.app)
                   if role_of(n) in ("tool bar", "panel", "notification") and name_of(n)]
        assert regions == [("tool bar", "Toolbar"), ("panel", "Event Viewer"),
                           ("panel", "Selected Event"),
                           ("notification", desk.status())], regions
    with desk.step("the pop-up: its entry and its list"):
        popup = desk.find("combo box", "Global FPS")
        assert text_of(popup) == "25 fps", text_of(popup)
        assert popup.description == "", popup.description
        assert popup.queryValue().currentValue == 25, popup.queryValue().currentValue
        check_selected_rate(popup, "25 fps")
        items = [name_of(n) for n in everything(popup) if role_of(n) == "list item"]
        assert items == expected.RATES, items
    with desk.step("the list: headers and cells"):
        table = desk.table()
        headers = [name_of(n) for n in children_of(table) if role_of(n) == "table column header"]
        assert headers == HEADERS, headers
        view = table.queryTable()
        assert (view.nRows, view.nColumns) == (5, len(HEADERS)), (view.nRows, view.nColumns)
        assert [view.getColumnDescription(column) for column in range(len(HEADERS))] == HEADERS
        for row in range(5):
            for column in range(len(HEADERS)):
                cell = view.getAccessibleAt(row, column)
                assert role_of(cell) == "table cell", path_to(cell)
        desk.await_rows(expected.PIER)
    with desk.step("the details: values labelled by their keys, in order, then the editor"):
        panel = desk.find("panel", "Selected Event")
        labels = [n for n in everything(panel) if role_of(n) in ("label", "text")]
        labelled = [name_of(n) for n in labels if n.name != name_of(n)]
        assert labelled == DETAIL_KEYS, labelled
        last = labels[-1]
        assert (role_of(last), name_of(last)) == ("text", "Comments"), path_to(last)


def check_panel(desk):
    with desk.step("the open panel's pop-ups: their labels name them, the entry is their text"):
        for name, entry in (("Look in:", str(Path.cwd())), ("Files of type:", "EDL, TXT, XML")):
            popup = desk.find("combo box", name)
            assert popup.name == name.rstrip(":") + ":", popup.name
            assert entry in text_of(popup), text_of(popup)


def check_popup_while_open(desk):
    popup = desk.find("combo box", "Global FPS")
    with desk.step("the open list: the entry under the keyboard is the selected one"):
        popup.queryAction().doAction(0)
        wait_equal(desk.open_list, expected.RATES, "the open list")
        check_selected_rate(popup, "25 fps")
        press("Down")
        wait_equal(lambda: selected_rates(popup), ["29.97 fps"], "the selected entry")
        assert text_of(popup) == "25 fps", text_of(popup)
    with desk.step("closed without a choice: the shown entry is, again"):
        press("Escape")
        wait_equal(lambda: selected_rates(popup), ["25 fps"], "the selected entry")


def check_choice_while_listened(desk):
    popup = desk.find("combo box", "Global FPS")
    kinds = (pyatspi.KEY_PRESSED_EVENT, pyatspi.KEY_RELEASED_EVENT)

    def let_pass(_event):
        return False

    def status():
        while GLib.MainContext.default().iteration(False):
            pass
        return desk.status()

    with desk.step("Return chooses once, although a screen reader listens to all keys"):
        pyatspi.Registry.registerKeystrokeListener(let_pass, mask=0, kind=kinds)
        for key, change in (("Down", "25 fps to 29.97"), ("Up", "29.97 fps to 25")):
            popup.queryAction().doAction(0)
            wait_equal(desk.open_list, expected.RATES, "the open list")
            press(key, "Return")
            converted = f"Converted 20 timecodes from {change} fps."
            wait_equal(status, converted, "the status line")
            stays(lambda: status() == converted, "the only conversion")
        pyatspi.Registry.deregisterKeystrokeListener(let_pass, mask=0, kind=kinds)


def check_lines_of_comment(desk):
    with desk.step("each character of a comment has its place, line by line"):
        desk.click("text", "Comments")
        press("a", "b", "Return", "c", "Return", "Return", "d")
        editor = desk.find("text", "Comments")
        wait_equal(desk.comments, "ab\nc\n\nd", "the comment")
        text = editor.queryText()
        places = [text.getCharacterExtents(i, pyatspi.DESKTOP_COORDS) for i in (0, 1, 3, 6, 7)]
        left, top, width, height = rectangle(editor)
        for x, y, wide, high in places:
            assert left < x and x + wide < left + width, (x, wide)
            assert top < y and y + high < top + height, (y, high)
        a, b, c, d, end = places
        line = a[3]
        assert (b[0], b[1]) == (a[0] + a[2], a[1]), (a, b)
        assert (c[0], c[1]) == (a[0], a[1] + line), (a, c)
        assert (d[0], d[1]) == (a[0], a[1] + 3 * line), (a, d)
        assert (end[0], end[1]) == (d[0] + d[2], d[1]), (d, end)
        assert text.getOffsetAtPoint(d[0] + 1, d[1] + 1, pyatspi.DESKTOP_COORDS) == 6
        assert text.caretOffset == 7, text.caretOffset
        assert text.getTextAtOffset(3, pyatspi.TEXT_BOUNDARY_LINE_START)[0].strip() == "c"


def check_changes(desk):
    with desk.step("a changed status line is told at once, as a notification that shows"):
        told = []

        def listen(event):
            if event.source == desk.status_line:
                told.append(event.source.name)

        pyatspi.Registry.registerEventListener(listen, ANNOUNCEMENT)
        desk.find("push button", "Copy Info").queryAction().doAction(0)

        def is_told():
            while GLib.MainContext.default().iteration(False):
                pass
            return "Copied selected event information." in told

        wait_for(is_told, "an event about the status line")
        pyatspi.Registry.deregisterEventListener(listen, ANNOUNCEMENT)
    with desk.step("a button can be pressed without mouse and keys"):
        desk.find("push button", "Remove Event").queryAction().doAction(0)
        desk.await_status("Removed event. 4 events remain for export.")


def accessibility(desk):
    desk.start()
    check_names(desk, "at the start")
    desk.button("Open Timeline")
    desk.await_window("Open Timeline")
    check_names(desk, "the open panel")
    check_panel(desk)
    desk.choose_file("Open Timeline", PIER)
    texts = desk.alert("Check Project Frame Rate")
    with desk.step("the alert is a dialog named by its message, and tells what it says"):
        assert texts == expected.REMINDER, texts
    check_names(desk, "the alert")
    press("Return")
    desk.await_window("Clipvane")
    check_controls(desk)
    check_names(desk, "a timeline")
    check_popup_while_open(desk)
    check_choice_while_listened(desk)
    check_lines_of_comment(desk)
    check_changes(desk)
    desk.button("Help")
    desk.await_window("Clipvane Help")
    check_names(desk, "the help")
    with desk.step("leave"):
        press("Escape")
        desk.await_window("Clipvane")
        desk.close_window("Clipvane")
        desk.await_end()


run_test(accessibility)
