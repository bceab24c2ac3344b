# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""A test that is run by tests/support/own-tmp finds an empty /tmp and leaves the real one as it was."""

import pathlib
import subprocess
import sys
import tempfile

OWN_TMP = pathlib.Path(__file__).resolve().parents[1] / "support" / "own-tmp"
SKIPPED = 77



def allows_mounts():
    ways = (["unshare", "--mount"], ["unshare", "--mount", "--user", "--map-root-user"])
    return any(subprocess.run([*way, "mount", "-t", "tmpfs", "tmpfs", "/mnt"],
                              capture_output=True).returncode == 0 for way in ways)


if not allows_mounts():
    print("SKIPPED: no name space for mounts here")
    sys.exit(SKIPPED)
with tempfile.NamedTemporaryFile(dir="/tmp", prefix="clipvane-outside-") as outside:
    mark = pathlib.Path(outside.name + "-inside")
    done = subprocess.run([OWN_TMP, "sh", "-c", 'ls -A /tmp; id -u; touch "$1"; exit 3', "sh", mark],
                          capture_output=True, text=True, cwd="/")
    try:
        assert done.returncode == 3, done
        user = subprocess.run(["id", "-u"], capture_output=True, text=True, check=True).stdout
        assert done.stdout == user, done
        assert not mark.exists(), mark
    finally:
        mark.unlink(missing_ok=True)
