# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""An export to one place, in the several ways in which a file system lets it be written."""

import os
import shutil
from dataclasses import dataclass
from errno import ENOENT, EOPNOTSUPP, EPERM
from itertools import product

from program import check, content, hidden, mode_of, names

OLD = b"what was exported yesterday\n"
OLD_MODE = 0o640

# What the file system cannot do, as a fault that always happens.
WAYS = {
    "nameless": [],
    "without nameless files": [f"open_tmpfile:always:{EOPNOTSUPP}"],
    "without /proc": [f"access:always:{ENOENT}"],
    "without hard links": [f"linkat:always:{EPERM}"],
}

TARGETS = ("new", "old", "link")


def scenarios(is_short):
    """(target, way). The short form follows a link in one way only."""
    return [(target, way) for target, way in product(TARGETS, WAYS)
            if not is_short or target != "link" or way == "nameless"]


@dataclass
class Export:
    """A place in a folder of its own, before and after one export."""

    folder: str
    target: str
    way: str
    kind = "csv"

    @property
    def name(self):
        return f"chosen.{self.kind}"

    @property
    def path(self):
        """What the user chose."""
        return os.path.join(self.folder, self.name)

    @property
    def place(self):
        """Where the file is to be."""
        return os.path.join(self.folder, "far/real.csv") if self.target == "link" else self.path

    @property
    def is_new(self):
        return self.target == "new"

    def prepare(self):
        for name in names(self.folder):
            path = os.path.join(self.folder, name)
            shutil.rmtree(path) if os.path.isdir(path) else os.unlink(path)
        os.mkdir(os.path.join(self.folder, "far"))
        if self.target == "link":
            os.symlink("far/real.csv", self.path)
        if not self.is_new:
            with open(self.place, "wb") as file:
                file.write(OLD)
            os.chmod(self.place, OLD_MODE)

    def all_names(self):
        return names(self.folder) + names(os.path.join(self.folder, "far"))

    def leftovers(self):
        return hidden(self.folder) + hidden(os.path.join(self.folder, "far"))

    def check_old(self):
        """Everything is as it was."""
        check(content(self.place) == (None if self.is_new else OLD), "the old file is not whole")
        check(self.is_new or mode_of(self.place) == OLD_MODE, "the old file's permissions changed")

    def check_new(self, expected, keeps_mode=True):
        check(content(self.place) == expected, "the new file is not whole")
        mode = 0o644 if self.is_new else OLD_MODE
        check(not keeps_mode or mode_of(self.place) == mode, f"mode {mode_of(self.place):o}")
        check(mode_of(self.place) & ~mode == 0, f"more rights: {mode_of(self.place):o}")

    def check_old_or_new(self, expected):
        if content(self.place) == expected:
            self.check_new(expected, keeps_mode=False)
        else:
            self.check_old()

    def check_leftovers(self, most):
        left = self.leftovers()
        check(len(left) <= most, f"left over: {left}")
        for name in left:
            path = os.path.join(os.path.dirname(self.place), name)
            mode = 0o644 if self.is_new else OLD_MODE
            check(mode_of(path) & ~mode == 0, f"a leftover that everybody reads: {path}")
