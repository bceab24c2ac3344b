# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A folder with places to export to, and what is to hold there before and after."""

import os
import stat

from program import check, content, hidden, is_hidden, mode_of, names, timeline

OLD = b"what was exported yesterday\n"
EVENTS = 20


def put(path, mode=0o644, data=OLD):
    with open(path, "wb") as file:
        file.write(data)
    os.chmod(path, mode)


class Place:
    """A folder with what is to be exported to, and the program that does it."""

    def __init__(self, program, scratch, path, tally):
        self.program, self.scratch, self.path, self.tally = program, scratch, path, tally
        self.cut = timeline(os.path.join(scratch, "cut.edl"), EVENTS)
        self.good = {}
        for kind in ("csv", "edl"):
            good = os.path.join(scratch, "good." + kind)
            program.run(self.cut, good)
            self.good[kind] = content(good)
        check(all(self.good.values()), "the exports without faults")

    def __truediv__(self, name):
        return os.path.join(os.fsencode(self.path), os.fsencode(name))

    def expected(self, path):
        return self.good["csv" if path.endswith(b".csv") else "edl"]

    def export(self, path, **options):
        run = self.program.run(self.cut, path, **options)
        check(run.status == 0, f"exit status {run.status}")
        check(len(run.exported) + len(run.alerts) == 1, f"said: {run.lines}")
        return run

    def written(self, path, place=None, mode=None, **options):
        """Exporting there writes the whole file to the place, and says so."""
        run = self.export(path, **options)
        check(run.exported == [f"status: Exported {shown(path)}."], run.lines)
        place = place or path
        check(stat.S_ISREG(os.lstat(place).st_mode), "not a file")
        check(mode is None or mode_of(place) == mode, f"mode {mode_of(place):o}")
        if mode is not None and not mode & stat.S_IRUSR:
            os.chmod(place, 0o600)  # so that its owner may look at it
        check(content(place) == self.expected(path), "the new file is not whole")
        check(not hidden(os.path.dirname(place)), "left over")
        self.tally.count("exports that were to succeed")

    def refused(self, path, reason, leftovers=0, **options):
        """Exporting there fails for that reason, and leaves the folder as it was."""
        before = self.state(os.path.dirname(path))
        run = self.export(path, **options)
        check(run.alerts == [f'The file "{shown(path)}" could not be written: {reason}.'],
              f"{run.lines} instead of {reason}")
        left = [name for name in self.state(os.path.dirname(path)) if is_hidden(name)]
        check(len(left) <= leftovers, f"left over: {left}")
        after = {name: what for name, what in self.state(os.path.dirname(path)).items()
                 if name not in left}
        check(before == after, f"{before} became {after}")
        self.tally.count("exports that were to fail")

    @staticmethod
    def state(path):
        """What lies in the folder: identity, permissions and content of each."""
        found = {}
        if not os.path.isdir(path):
            return found
        for name in names(path):
            entry = os.path.join(os.fsdecode(path), name)
            status = os.lstat(entry)
            is_file = stat.S_ISREG(status.st_mode)
            found[name] = (status.st_ino, status.st_mode, status.st_uid, status.st_rdev,
                           content(entry) if is_file else None)
        return found


def shown(path):
    """As the user sees the file's name."""
    return os.path.basename(os.fsencode(path)).decode("utf-8", "replace")
