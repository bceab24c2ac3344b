"""Waiting for what the program will do, instead of sleeping and hoping."""

import os
import time

#: seconds; a busy machine takes long, and valgrind longer
PATIENCE = float(os.environ.get("CLIPVANE_TEST_PATIENCE", 20))


def wait_for(condition, what, patience=PATIENCE):
    """The first true answer of the condition; fails when it has none in time."""
    end = time.monotonic() + patience
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"waited {patience:g} s in vain for {what}")
        time.sleep(0.02)


def comes(condition, patience):
    """Whether the condition comes to hold in time."""
    end = time.monotonic() + patience
    while not condition():
        if time.monotonic() > end:
            return False
        time.sleep(0.02)
    return True


def wait_equal(actual, expected, what):
    """Waits until the actual value, which is asked for again and again, equals the expected one."""
    last = None

    def equal():
        nonlocal last
        last = actual()
        return last == expected

    try:
        wait_for(equal, what)
    except AssertionError:
        raise AssertionError(f"{what} is\n    {last!r}\ninstead of\n    {expected!r}") from None


def stays(condition, what, seconds=0.3):
    """Fails as soon as the condition does not hold during that time."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not condition():
            raise AssertionError(f"it did not stay so: {what}")
        time.sleep(0.02)
