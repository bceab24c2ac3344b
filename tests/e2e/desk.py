# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""One run of the program, as a person at the desk sees and works it."""

import os
import shutil
import subprocess
import sys
import time
import traceback
from contextlib import contextmanager
from pathlib import Path

import access
from hands import active_title, active_window, click_at, press, type_text
from screen import save_screen
from waiting import comes, wait_equal, wait_for

LOG = Path("/tmp/clipvane-native.log")
HAS_OWN_LOG = os.environ.get("CLIPVANE_PRIVATE_TMP") == "1"


class Desk:
    """One run of the program. Its pictures and its output go to a folder."""

    def __init__(self, program, output):
        self.program = str(Path(program).resolve())
        self.output = Path(output).resolve()
        self.output.mkdir(parents=True, exist_ok=True)
        self.scratch = Path(os.environ["TMPDIR"])
        self.process = None
        self.app = None
        self.step_name = "start"
        self.pictures = 0

    # Runs.

    def start(self, arguments=(), environment=None, command=None, accessible=True, folder=None):
        with open(self.scratch / "stdout", "wb") as out, open(self.scratch / "stderr", "wb") as err:
            self.process = subprocess.Popen(
                [*(command or [self.program]), *arguments], stdin=subprocess.DEVNULL, stdout=out,
                stderr=err, cwd=folder or self.scratch, env={**os.environ, **(environment or {})})
        self.await_window("Clipvane")
        if not accessible:
            return
        self.app = access.application(self.process.pid)
        self.known = {}
        self.status_line = self.find("notification", "Open an EDL, XML, FCPXML, or XMEML timeline file.")

    def is_running(self):
        return self.process.poll() is None

    def await_end(self):
        """The program has ended by itself, with status 0 and without a word."""
        wait_for(lambda: not self.is_running(), "the program's end")
        assert self.process.returncode == 0, f"exit status {self.process.returncode}"
        for name in ("stdout", "stderr"):
            written = (self.scratch / name).read_bytes()
            assert written == b"", f"the program wrote to its {name}: {written!r}"

    def end(self):
        """Ends the program if a failure left it running."""
        if self.process is not None and self.is_running():
            self.process.kill()
            self.process.wait()

    # Windows.

    def await_window(self, title):
        def active():
            if self.process.poll() is not None:
                err = (self.scratch / "stderr").read_text(errors="replace")
                raise AssertionError(f"the program ended: {self.process.returncode} {err}")
            return active_title() == title

        wait_for(active, f"the window {title!r} to be active; it is {active_title()!r}")

    def close_window(self, title):
        self.await_window(title)
        press("alt+F4")

    # Controls.

    def find(self, role, name):
        """The only such control; one that was found before is not looked for again."""
        known = self.known.get((role, name))
        if known is None or not access.is_alive(known, role, name):
            known = self.known[role, name] = access.find(self.app, role, name)
        return known

    def has(self, role, name):
        return bool(access.find_all(self.app, role, name))

    def click(self, role, name):
        click_at(*access.centre(self.find(role, name)))

    def button(self, name):
        self.click("push button", name)

    def table(self):
        return self.find("table", "Event Viewer")

    def cell(self, row, column):
        return self.table().queryTable().getAccessibleAt(row, column)

    def rows(self):
        """The texts of all cells, row by row."""
        table = self.table().queryTable()
        return [[table.getAccessibleAt(row, column).name for column in range(table.nColumns)]
                for row in range(table.nRows)]

    def await_rows(self, expected):
        wait_equal(self.rows, [list(row) for row in expected], "the list")

    def selected_rows(self):
        table = self.table().queryTable()
        return [row for row in range(table.nRows) if table.isRowSelected(row)]

    def await_selection(self, *rows):
        wait_equal(self.selected_rows, list(rows), "the selected rows")

    def click_row(self, row, column=1):
        click_at(*access.centre(self.cell(row, column)))
        self.await_selection(row)

    def focused(self):
        """Role and name of what has the keyboard in the active window."""
        for window in access.children_of(self.app):
            if "active" in access.states_of(window):
                return access.focused_in(window)
        return None

    def await_focus(self, role, name):
        wait_equal(self.focused, (role, name), "the control with the keyboard")

    def rate(self):
        """What the pop-up shows."""
        return access.text_of(self.find("combo box", "Global FPS"))

    def comments(self):
        return access.text_of(self.find("text", "Comments"))

    def details(self):
        """The title and the eleven rows of the detail panel, as (key, value) pairs."""
        panel = self.find("panel", "Selected Event")
        labels = [n.name for n in access.walk(panel) if access.role_of(n) == "label"]
        return labels[1], dict(zip(labels[2:24:2], labels[3:24:2]))

    def await_detail_title(self, title):
        wait_equal(lambda: self.details()[0], title, "the title of the details")

    def status(self):
        return self.status_line.name

    def await_status(self, text):
        wait_equal(self.status, text, "the status line")

    # Dialogs.

    def choose_file(self, title, path):
        """Types a path into the file dialog, whose name field has the keyboard. The dialog reads
        folders as it goes, and on a busy machine its list of completions may come late and take
        Return for itself: then the path is typed again, as a person would. While that list shows,
        the tree names nothing that has the keyboard, yet the keys reach the name field."""
        self.await_window(title)
        self.await_focus("text", "File name:")
        dialog = active_window()
        for _ in range(3):
            if self.types_name(path):
                press("Return")
                if comes(lambda: active_window() != dialog, patience=5):
                    return
        raise AssertionError(f"the dialog {title!r} does not take {path}")

    def types_name(self, path):
        """Types a path into the file dialog's name field, and tells whether it is there then."""
        press("ctrl+a")
        type_text(str(path))
        return comes(lambda: access.text_of(self.find("text", "File name:")) == str(path), patience=5)

    def alert(self, message):
        """The showing alert: its texts, after its message."""
        self.await_window("Clipvane")
        dialog = self.find("dialog", message)
        return [n.name for n in access.walk(dialog) if access.role_of(n) == "label"]

    def question(self):
        """The text of the question about replacing a file, once it has the keyboard."""
        yes = self.find("push button", "Yes")
        dialog = yes
        while access.role_of(dialog) not in ("dialog", "alert"):
            dialog = dialog.parent
        return " ".join(n.name for n in access.walk(dialog) if access.role_of(n) == "label")

    def open_list(self):
        """The items of the pop-up's list, if it is open."""
        popup = self.find("combo box", "Global FPS")
        return [node.name for node in access.walk_showing(popup)
                if access.role_of(node) == "list item"]

    # Reports.

    def picture(self, name):
        self.pictures += 1
        save_screen(self.output / f"{self.pictures:02}-{name}.png")

    @contextmanager
    def step(self, name):
        self.step_name = name
        begun = time.monotonic()
        yield
        print(f"{time.monotonic() - begun:5.1f} s  {name}", flush=True)

    def log_lines(self):
        return LOG.read_text().splitlines() if LOG.exists() else []


def run(desk, session):
    """Runs a session; a failure names its step and leaves a picture."""
    if not HAS_OWN_LOG:
        print("no /tmp of its own here (neither root nor user namespaces): the log is not checked")
    try:
        session(desk)
    except BaseException:
        traceback.print_exc()
        picture = desk.output / "failure.png"
        save_screen(picture)
        print(f"\nFAILED in step: {desk.step_name}\nThe screen is in {picture}", file=sys.stderr)
        sys.exit(1)
    finally:
        desk.end()


def run_test(session, kind=Desk):
    """Runs a test of the program and in the folder that the command line names."""
    program, output = sys.argv[1:3]
    shutil.rmtree(output, ignore_errors=True)
    run(kind(program, output), session)
    print("passed")
