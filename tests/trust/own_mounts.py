# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A name space for mounts and devices of a test's own, which ends with it."""

import os
import stat
import subprocess
import sys

SKIPPED = 77  # the exit status of a test that cannot be done here
SOMEBODY = 65533  # neither root nor NOBODY
INSIDE = "CLIPVANE_INSIDE_A_NAME_SPACE"


def skip(reason):
    print(f"SKIPPED: {reason}")
    sys.exit(SKIPPED)


def enter(as_root=False):
    """Runs the test again where its mounts are nobody else's, /mnt is an empty file system of its
    own, and, if asked for, it may make devices and files of other users. Skips it where that is
    not to be had."""
    if as_root and os.geteuid() != 0:
        skip("only root can make files of other users and devices")
    if not os.environ.get(INSIDE):
        for way in (["unshare", "--mount"], ["unshare", "--mount", "--user", "--map-root-user"]):
            tried = run([*way, "mount", "-t", "tmpfs", "tmpfs", "/mnt"])
            if tried.returncode == 0:
                os.environ[INSIDE] = "1"
                os.execvp(way[0], [*way, sys.executable, *sys.argv])
        skip("no name space for mounts of its own here: " + tried.stderr.decode().strip())
    subprocess.run(["mount", "-t", "tmpfs", "-o", "mode=755", "tmpfs", "/mnt"], check=True)
    if as_root:
        check_rights()


def run(command):
    return subprocess.run(command, capture_output=True)


def check_rights():
    """Root in a container is not always root."""
    try:
        os.mknod("/mnt/probe", 0o600 | stat.S_IFCHR, os.makedev(1, 3))
        os.chown("/mnt/probe", SOMEBODY, SOMEBODY)
        os.unlink("/mnt/probe")
    except OSError as problem:
        skip(f"this root may not make devices and files of other users: {problem}")
