"""What assistive technology is told: a role and a name for each control, header, cell and field."""

from pathlib import Path

import pyatspi
from gi.repository import GLib

import expected
from access import children_of, is_showing, name_of, role_of, states_of
from desk import run_test
from hands import press
from waiting import wait_for

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


def check_controls(desk):
    with desk.step("roles and names of the toolbar, the list and the editor"):
        for role, name in CONTROLS:
            assert "focusable" in states_of(desk.find(role, name)), (role, name)
        toolbar = [n for n in everything(desk.app) if name_of(n) == "Toolbar" and is_showing(n)]
        assert len(toolbar) == 1, [path_to(n) for n in toolbar]
    with desk.step("the pop-up: its entry and its list"):
        popup = desk.find("combo box", "Global FPS")
        assert popup.description == "25 fps", popup.description
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
        panel = desk.find("filler", "Selected Event")
        labels = [n for n in everything(panel) if role_of(n) in ("label", "text")]
        labelled = [name_of(n) for n in labels if n.name != name_of(n)]
        assert labelled == DETAIL_KEYS, labelled
        last = labels[-1]
        assert (role_of(last), name_of(last)) == ("text", "Comments"), path_to(last)


def check_changes(desk):
    with desk.step("a changed status line is told at once"):
        told = []

        def listen(event):
            if event.source == desk.status_line:
                told.append(event.source.name)

        pyatspi.Registry.registerEventListener(listen, "object:property-change:accessible-name")
        desk.find("push button", "Copy Info").queryAction().doAction(0)

        def is_told():
            while GLib.MainContext.default().iteration(False):
                pass
            return "Copied selected event information." in told

        wait_for(is_told, "an event about the status line")
        pyatspi.Registry.deregisterEventListener(listen, "object:property-change:accessible-name")
    with desk.step("a button can be pressed without mouse and keys"):
        desk.find("push button", "Remove Event").queryAction().doAction(0)
        desk.await_status("Removed event. 4 events remain for export.")


def accessibility(desk):
    desk.start()
    check_names(desk, "at the start")
    desk.button("Open Timeline")
    desk.await_window("Open Timeline")
    check_names(desk, "the open panel")
    desk.choose_file("Open Timeline", PIER)
    texts = desk.alert("Check Project Frame Rate")
    with desk.step("the alert is a dialog named by its message, and tells what it says"):
        assert texts == expected.REMINDER, texts
    check_names(desk, "the alert")
    press("Return")
    desk.await_window("Clipvane")
    check_controls(desk)
    check_names(desk, "a timeline")
    check_changes(desk)
    desk.button("Help")
    desk.await_window("Clipvane Help")
    check_names(desk, "the help")
    with desk.step("leave"):
        desk.close_window("Clipvane Help")
        desk.close_window("Clipvane")
        desk.await_end()


run_test(accessibility)
