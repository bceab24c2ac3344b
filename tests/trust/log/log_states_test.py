"""The log in every state that its place can be in, and with every failing call: never a hang, never
a byte in somebody else's file, never an end of the program.

    log_states_test.py WRITE_LOG INJECTOR

Runs the program's log without its window, in a /tmp of its own, as an ordinary user and as root.
"""

import os
import resource
import shutil
import subprocess
import sys
from errno import EACCES, EDQUOT, EINTR, EIO, ENOSPC, EROFS
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))

import log_states
import own_mounts
from log_states import LOG, OLD, SIZE_LIMIT, STATES, clear, expect, messages

NOBODY = 65534
PATIENCE = 20  # seconds; a program that takes longer hangs
TOOLS = Path("/mnt")
LINES = ["Process started.", "Open Timeline clicked.", "Zürich 🎬"]
ERRORS = (EIO, ENOSPC, EDQUOT, EINTR, EACCES, EROFS)


def take_own_tmp():
    """Where /tmp is nobody else's; the programs are out of its way."""
    own_mounts.enter(as_root=True)
    programs = [shutil.copy(path, TOOLS) for path in sys.argv[1:3]]
    (TOOLS / "trace").touch()
    (TOOLS / "trace").chmod(0o666)
    os.chdir("/")
    subprocess.run(["mount", "-t", "tmpfs", "-o", "mode=1777", "tmpfs", "/tmp"], check=True)
    return programs


def limit_size():
    resource.setrlimit(resource.RLIMIT_FSIZE, (SIZE_LIMIT, SIZE_LIMIT))


def write_log(programs, user, faults="", limited=False):
    """The calls that logging the lines made."""
    program, injector = programs
    trace = TOOLS / "trace"
    trace.write_text("")
    done = subprocess.run(
        [program, *LINES], stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE,
        user=user, group=user, extra_groups=[], preexec_fn=limit_size if limited else None,
        env={"LD_PRELOAD": injector, "CLIPVANE_FAULTS": faults,
             "CLIPVANE_FAULTS_FROM": str(LOG), "CLIPVANE_FAULTS_TRACE": "" if limited else str(trace)})
    expect(done.returncode == 0, f"exit status {done.returncode}")
    expect(done.stdout == b"still here\n" and done.stderr == b"", f"said {done}")
    return trace.read_text().split()


def check_state(programs, state, user):
    """Only root may write to a read-only file."""
    check = state(user)
    if state is log_states.read_only_file and user == 0:
        check = log_states.appended(LOG)
    calls = write_log(programs, user, limited=state is log_states.size_limit_by_signal)
    check(LINES)
    if state in log_states.NEVER_OPENED:
        expect("open" not in calls, "opened")


def check_faults(programs):
    """Each call of the log fails, at each of its turns: at most the lines are missing."""
    calls = write_log(programs, NOBODY)
    counts = {call: calls.count(call) for call in calls}
    expect({"lstat", "open", "fstat", "write", "close"} <= set(calls), f"not seen: {calls}")
    cases = 0
    for call, count in counts.items():
        for which in [*range(1, count + 1), "always"]:
            for error in ERRORS:
                log_states.put(LOG, NOBODY)
                name = "1-100" if which == "always" and error == EINTR else which
                write_log(programs, NOBODY, f"{call}:{name}:{error}")
                written = messages(LOG)[1:]
                expect(LOG.read_text().startswith(OLD), "what was there is gone")
                expect(written == [line for line in LINES if line in written], written)
                if error == EINTR or call == "close":
                    expect(written == LINES, f"{call} {which} {error}: {written}")
                elif which == "always":
                    expect(not written, f"{call} {which} {error}: {written}")
                cases += 1
    for what in ("short", "zero"):
        log_states.put(LOG, NOBODY)
        write_log(programs, NOBODY, f"write:1:{what}")
        expect(messages(LOG)[1:] == (LINES if what == "short" else LINES[1:]), LOG.read_text())
        cases += 1
    clear()
    return cases


def main():
    programs = take_own_tmp()
    wrong = []
    tried = 0
    for user in (NOBODY, 0):
        for state in STATES:
            name = f"{state.__name__} as {'root' if user == 0 else 'an ordinary user'}"
            try:
                check_state(programs, state, user)
            except (AssertionError, OSError, subprocess.TimeoutExpired) as problem:
                wrong.append(f"{name}: {problem}")
            clear()
            tried += 1
    faults = check_faults(programs)
    print(f"{tried:6}  states of the log\n{faults:6}  failing calls of the log")
    for line in wrong:
        print(f"WRONG: {line}")
    sys.exit(f"FAILED: {len(wrong)} states" if wrong else None)


main()
