# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The calls of an export, and the faults that can be made of them."""

from errno import EACCES, EDQUOT, EINTR, EIO, ENOSPC, EROFS
from itertools import product

ERRORS = (EIO, ENOSPC, EDQUOT, EINTR, EACCES, EROFS)

# Calls without which an export is none; where another fails, there is another way or no harm.
NEEDED = {"lstat", "readlink", "open", "write", "fsync", "fstat", "lseek", "read", "rename"}


def occurrences(calls):
    """(kind, which of its kind, whether it is needed) of each call that was made."""
    counts = {}
    for index, call in enumerate(calls):
        counts[call] = counts.get(call, 0) + 1
        following = calls[index + 1] if index + 1 < len(calls) else ""
        # A file that is replaced by one that was not closed well may lack what was written.
        is_needed = call in NEEDED or call == "close" and following == "rename"
        yield call, counts[call], is_needed


def single_faults(calls):
    """(fault, the error to be told, whether the export fails)."""
    found = list(occurrences(calls))
    for call, which, is_needed in found:
        for error in ERRORS:
            # Interrupted calls are made again. Closing one has closed it nevertheless.
            yield f"{call}:{which}:{error}", error, is_needed and error != EINTR
        if call == "write":
            yield f"{call}:{which}:short", None, False
            yield f"{call}:{which}:zero", EIO, True
    needed = {}
    for call, _, is_needed in found:
        needed[call] = needed.get(call, False) or is_needed
    for call, error in product(needed, ERRORS):
        if error == EINTR:
            yield f"{call}:1-100:{error}", error, False
        else:
            yield f"{call}:always:{error}", error, needed[call]
    yield "write:always:short", None, False
