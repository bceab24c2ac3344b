# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The program is killed (SIGKILL) before and after every system call of an export, and at random
moments of exports of a large timeline.

    killed_test.py OPEN_AND_EXPORT INJECTOR RANDOM_KILLS [short]

The target always holds the old or the new file whole. A kill while replacing may leave one hidden
temporary; creating leaves none, where the file system has files without a name. The random kills
meet exports with and without such files in turn; a third of them at least must fall between the
first and the last call. On a busy machine that takes more kills, up to four times as many.
"""

import os
import random
import subprocess
import sys
import time
from itertools import product

from exports import WAYS, Export, scenarios
from failing_calls import occurrences
from program import OPENED, Program, Tally, check, content, folder, timeline

EVENTS = 3000        # which make several writes
MANY_EVENTS = 60000  # so that the random moments spread over the writing
SEED = 20261121


def most_left(export):
    return 0 if export.is_new and export.way == "nameless" else 1


def check_killed(export, run, expected):
    check(run.was_killed, f"exit status {run.status}")
    export.check_old_or_new(expected)
    check(not run.exported or content(export.place) == expected, "'Exported' but it is not")
    export.check_leftovers(most_left(export))


def kill_at_every_call(program, export, cut, expected, tally):
    export.prepare()
    calls = program.run(cut, export.path, faults=WAYS[export.way], since=export.path).calls
    placing = {"linkat", "rename"}
    for (call, which, _), moment in product(occurrences(calls), ("before", "after")):
        with tally.case(f"{export.target}, {export.way}, killed {moment} {call} {which}"):
            export.prepare()
            faults = [f"{call}:{which}:kill-{moment}", *WAYS[export.way]]
            run = program.run(cut, export.path, faults=faults, since=export.path)
            check_killed(export, run, expected)
            if call in placing and calls[-1:] == [call]:
                check((content(export.place) == expected) == (moment == "after"), "the moment")
            tally.count("kills before and after each call")


def kill_at_random(program, targets, cut, expected, moments, tally):
    """Kills while each target is exported to in turn. Where it fell tells the trace of calls: the
    result is whether that was between the first and the last."""
    for target in targets:
        target.prepare()
    running = subprocess.Popen([program.program, cut, *(target.path for target in targets)],
                               env=program.environment(WAYS[targets[0].way], targets[0].path),
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE)
    opened = running.stdout.readline() + running.stdout.readline()
    assert OPENED.encode() in opened, opened
    time.sleep(moments.random() * program.export_time)
    running.kill()
    said = running.stdout.read().decode().splitlines()
    running.stdout.close()
    running.wait()
    calls = program.calls()
    if os.path.exists(program.trace):
        os.unlink(program.trace)
    for target, rank in zip(targets, range(len(targets))):
        target.check_old_or_new(expected)
        check(len(said) <= rank or content(target.place) == expected, f"{said} but it is not")
    left = sum(len(target.leftovers()) for target in targets)
    check(left <= 1, f"{left} hidden temporaries")
    for target in targets:
        target.check_leftovers(most_left(target))
    tally.count("random kills")
    if not calls:
        moment = "before the first call"
    elif len(said) == len(targets):
        moment = "after the last call"
    else:
        moment = f"in or after {calls[-1]}"
    tally.count(f"random kills that fell {moment}")
    tally.count(f"random kills, {targets[0].way}, that left {left} hidden temporaries")
    for target in targets:
        is_new = content(target.place) == expected
        tally.count(f"random kills after which the {'new' if is_new else 'old'} file was there, "
                    + ("creating" if target.is_new else "replacing"))
    return bool(calls) and len(said) < len(targets)


def random_kills(program, scratch, place, count, tally):
    cut = timeline(os.path.join(scratch, "long.edl"), MANY_EVENTS)
    good = os.path.join(scratch, "good.csv")
    program.run(cut, good)
    expected = content(good)
    targets = []
    for target in ("new", "old"):
        os.makedirs(os.path.join(place, target))
        targets.append(Export(os.path.join(place, target), target, "nameless"))
    program.export_time = sorted(time_of_exports(program, targets, cut) for _ in range(5))[2]
    print(f"{program.export_time * 1000:6.0f}  ms for the exports among which the random kills fall")
    moments = random.Random(SEED)
    number = within = 0
    while number < count or within * 3 < count and number < 4 * count:
        with tally.case(f"random kill {number}"):
            for target in targets:
                target.way = ("nameless", "without nameless files")[number % 2]
            within += kill_at_random(program, targets, cut, expected, moments, tally)
        number += 1
    with tally.case("random kills"):
        check(within * 3 >= count, f"{within} of {number} fell between the first and the last call")


def time_of_exports(program, targets, cut):
    """Seconds that the exports take here and now."""
    for target in targets:
        target.prepare()
    running = subprocess.Popen([program.program, cut, *(target.path for target in targets)],
                               env=program.environment([], targets[0].path),
                               stdin=subprocess.DEVNULL, stdout=subprocess.PIPE)
    running.stdout.readline()
    running.stdout.readline()
    begun = time.monotonic()
    assert len(running.stdout.read().splitlines()) == len(targets)
    taken = time.monotonic() - begun
    running.wait()
    running.stdout.close()
    os.unlink(program.trace)
    return taken


def main():
    os.umask(0o022)
    tally = Tally()
    with folder() as scratch, folder() as place:
        program = Program(*sys.argv[1:3], scratch)
        cut = timeline(os.path.join(scratch, "cut.edl"), EVENTS)
        good = os.path.join(scratch, "good.csv")
        program.run(cut, good)
        expected = content(good)
        for target, way in scenarios("short" in sys.argv):
            kill_at_every_call(program, Export(place, target, way), cut, expected, tally)
    with folder() as scratch, folder() as place:
        program = Program(*sys.argv[1:3], scratch)
        random_kills(program, scratch, place, int(sys.argv[3]), tally)
    tally.report()


main()
