# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Every system call of an export fails in turn: the first of its kind, every later one, always.

    failing_calls_test.py OPEN_AND_EXPORT INJECTOR [short] [csv|edl] [pairs]

Whatever fails, the target holds the old or the new file whole; "Exported" is said only of a new
file in its place; after a reported failure nothing is left over; and the alert names the file and
the system's own reason. The short form lets every call fail, but not in every way each time. With
"pairs", two kinds of calls fail in every combination as well.
"""

import os
import sys
from errno import EACCES, EINTR, EIO, ENOSPC, EROFS
from itertools import product

from exports import WAYS, Export, scenarios
from failing_calls import ERRORS, single_faults
from program import Program, Tally, check, content, folder, timeline

EVENTS = 3000  # which make several writes
STRIDE = 5     # of the short form: less than the errors of each call, and coprime to their number


def is_short():
    return "short" in sys.argv


def check_run(export, run, expected, reasons, fails, most_left=0, keeps_mode=True):
    check(run.status == 0, f"exit status {run.status}")
    check(len(run.exported) + len(run.alerts) == 1, f"said: {run.lines}")
    if run.exported:
        check(fails is not True, "'Exported' despite the fault")
        check(run.exported == [f"status: Exported {export.name}."], run.exported)
        export.check_new(expected, keeps_mode)
    else:
        check(fails is not False, f"a failure for nothing: {run.alerts}")
        texts = [f'The file "{export.name}" could not be written: {os.strerror(reason)}.'
                 for reason in reasons]
        check(run.alerts[0] in texts, f"{run.alerts[0]} instead of {texts}")
        export.check_old()
    export.check_leftovers(most_left)
    beside = {export.name, "far", "real.csv"}
    check(set(export.all_names()) - set(export.leftovers()) <= beside, export.all_names())


def every_single_fault(program, export, cut, expected, tally):
    calls = trace(program, export, cut, expected)
    faults = list(single_faults(calls))
    if is_short():
        faults = faults[tally.scenario % STRIDE::STRIDE]
    for fault, reason, fails in faults:
        with tally.case(f"{export.target}, {export.way}, {fault}"):
            export.prepare()
            run = program.run(cut, export.path, faults=[*WAYS[export.way], fault],
                              since=export.path)
            check_run(export, run, expected, [reason], fails,
                      keeps_mode=not fault.startswith("fchmod"))
            tally.count("single faults, " + ("told" if run.alerts else "survived"))
    for fault in (f"rename:always:{EIO}", f"write:2:{EIO}"):
        for which, error in product(("1", "always"), ERRORS):
            if error == EINTR:
                which = "1-100"
            if is_short() and which == "1":
                continue
            with tally.case(f"{export.target}, {export.way}, {fault}, then unlink {error}"):
                export.prepare()
                faults = [*WAYS[export.way], fault, f"unlink:{which}:{error}"]
                run = program.run(cut, export.path, faults=faults, since=export.path)
                # What may not be removed stays, hidden.
                check_run(export, run, expected, [EIO], None, most_left=int(error != EINTR))
                tally.count("failures with a failing removal")


def every_pair(program, export, cut, expected, tally):
    kinds = sorted({call for call in trace(program, export, cut, expected)} | {"unlink"})
    for (one, error), (other, second) in product(product(kinds, (EIO, EACCES)),
                                                 product(kinds, (ENOSPC, EROFS))):
        if one == other:
            continue
        with tally.case(f"{export.target}, {export.way}, {one} {error} and {other} {second}"):
            export.prepare()
            faults = [*WAYS[export.way], f"{one}:always:{error}", f"{other}:1:{second}"]
            run = program.run(cut, export.path, faults=faults, since=export.path)
            check_run(export, run, expected, [error, second], None, keeps_mode=False,
                      most_left=int("unlink" in (one, other)))
            tally.count("pairs of faults")


def trace(program, export, cut, expected):
    """The calls of an export that goes well: all that the writer makes must be among them."""
    export.prepare()
    run = program.run(cut, export.path, faults=WAYS[export.way], since=export.path)
    check_run(export, run, expected, [], False)
    needed = {"lstat", "open_tmpfile", "access", "write", "fsync", "close", "open_folder",
              "fsync_folder"}
    needed |= {"fchmod", "fchown", "rename"} if not export.is_new else {}.keys()
    needed |= {"readlink"} if export.target == "link" else {}.keys()
    needed |= {"nameless": {"linkat"}, "without nameless files": {"open", "rename"},
               "without /proc": {"open", "rename"},
               "without hard links": {"linkat", "open", "read", "rename"}}[export.way]
    if export.way == "without nameless files":
        needed.remove("access")
    check(needed <= set(run.calls), f"not seen: {needed - set(run.calls)} in {run.calls}")
    check(run.calls.count("write") >= 2, "a single write")
    return run.calls


def main():
    os.umask(0o022)
    if "edl" in sys.argv:
        Export.kind = "edl"
    tally = Tally()
    with folder() as scratch, folder() as place:
        program = Program(*sys.argv[1:3], scratch)
        cut = timeline(os.path.join(scratch, "cut.edl"), EVENTS)
        good = os.path.join(scratch, "good." + Export.kind)
        program.run(cut, good)
        expected = content(good)
        check(expected and expected.count(b"\n") > EVENTS, "the export without faults")
        for tally.scenario, (target, way) in enumerate(scenarios(is_short())):
            export = Export(place, target, way)
            every_single_fault(program, export, cut, expected, tally)
            if "pairs" in sys.argv:
                every_pair(program, export, cut, expected, tally)
    tally.report()


main()
