# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Exports to places of every kind: what may be replaced is replaced whole, anything else stays as
it is, and the alert names the file and the system's reason.

    targets_test.py OPEN_AND_EXPORT INJECTOR any|mounts|others

"any" needs nothing, "mounts" a name space for mounts of its own, "others" root: files of others,
ordinary users, devices. What a group needs and does not get skips it, and the reason is told. All
mounts and devices are made in a name space that ends with the test.
"""

import os
import shutil
import socket
import stat
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

import own_mounts
from places import OLD, Place, put
from program import Program, Tally, check, content, folder, hidden, timeline

NOBODY = 65534
SOMEBODY = own_mounts.SOMEBODY
NOT_REGULAR = "Not a regular file"


# Places that need nothing.

def names_of_all_kinds(place):
    for name in ("plain.csv", "plain.edl", "-rf.csv", "--help.edl", " .csv", "\t.csv",
                 "'\"`$(touch x);&|<>*?[]{}~!#\\.csv", "\u202egnp.csv", "x" * 251 + ".csv",
                 "\U0001f3ac" * 62 + ".edl", "C:\\x.csv", "%s%n%1.csv", "<b>.csv"):
        place.written(place / name)
        place.written(place / name)
    too_long = place / ("x" * 252 + ".csv")
    place.refused(too_long, "File name too long")


def names_with_line_breaks(place):
    for name in (b"a\nb.csv", b"\n.csv", b"a\r\nb.csv"):
        path = place / name
        for data in (None, OLD):
            if data:
                put(path, 0o600, data)
            run = place.program.run(place.cut, path)
            check(run.exported, run.lines)
            check(content(path) == place.expected(path), "the new file is not whole")
            place.tally.count("exports that were to succeed")
    os.mkdir(place / b"c\nd.csv")
    run = place.program.run(place.cut, place / b"c\nd.csv")
    check(any(line.startswith('alert: Export failed | The file "c') for line in run.lines)
          and run.lines[-1] == 'd.csv" could not be written: Is a directory.', run.lines)
    place.tally.count("exports that were to fail")


def names_of_invalid_utf8(place):
    for name in (b"cut\xff.csv", b"\xe2\x82.edl", b"\xed\xa0\x80.csv", b"\xc0\xaf.csv", b"\x80.edl"):
        place.written(place / name)
        check(name in os.listdir(os.fsencode(place.path)), "not the exact bytes")
        place.written(place / name)
        os.unlink(place / name)
        os.mkdir(place / name)
        place.refused(place / name, "Is a directory")


def own_permissions(place):
    for mode in (0o600, 0o444, 0o400, 0o640, 0o666, 0o777, 0o2644, 0o2755, 0o4755, 0o1644, 0o000):
        path = place / f"{mode:o}.csv"
        put(path, mode)
        place.written(path, mode=mode)


def links(place):
    os.mkdir(place / "far")
    put(place / "far/real.csv", 0o604)
    os.symlink("far/real.csv", place / "link.csv")
    place.written(place / "link.csv", place / "far/real.csv", mode=0o604)
    check(os.readlink(place / "link.csv") == b"far/real.csv", "the link changed")
    os.symlink(place / "far/absent.csv", place / "dangling.csv")
    place.written(place / "dangling.csv", place / "far/absent.csv")
    os.symlink("nowhere/absent.csv", place / "lost.csv")
    place.refused(place / "lost.csv", "No such file or directory")
    for number in range(40):
        os.symlink(f"chain{number - 1}.csv" if number else "far/real.csv",
                   place / f"chain{number}.csv")
    place.written(place / "chain39.csv", place / "far/real.csv", mode=0o604)
    os.symlink("chain39.csv", place / "chain40.csv")
    place.refused(place / "chain40.csv", "Too many levels of symbolic links")
    os.symlink("b.csv", place / "a.csv")
    os.symlink("a.csv", place / "b.csv")
    place.refused(place / "a.csv", "Too many levels of symbolic links")
    os.symlink("self.csv", place / "self.csv")
    place.refused(place / "self.csv", "Too many levels of symbolic links")
    os.symlink("far", place / "folder.csv")
    place.refused(place / "folder.csv", "Is a directory")
    os.symlink("far", place / "by")
    place.written(place / "by/new.csv", place / "far/new.csv")


def hard_link(place):
    put(place / "one.csv")
    os.link(place / "one.csv", place / "other.csv")
    place.written(place / "one.csv")
    check(content(place / "other.csv") == OLD, "the other name's content changed")


def what_is_no_file(place):
    os.mkfifo(place / "fifo.csv")
    place.refused(place / "fifo.csv", NOT_REGULAR)
    reader = os.open(place / "fifo.csv", os.O_RDONLY | os.O_NONBLOCK)
    place.refused(place / "fifo.csv", NOT_REGULAR)
    check(os.read(reader, 1) == b"", "something came through the FIFO")
    os.close(reader)
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(place / "socket.csv")
        place.refused(place / "socket.csv", NOT_REGULAR)
    os.symlink("fifo.csv", place / "tofifo.csv")
    place.refused(place / "tofifo.csv", NOT_REGULAR)
    os.mkdir(place / "folder.csv")
    place.refused(place / "folder.csv", "Is a directory")
    put(place / "file")
    place.refused(place / "file/new.csv", "Not a directory")
    place.refused(place / "nowhere/new.csv", "No such file or directory")


# Places that need mounts.

def mount(path, options):
    os.makedirs(path, exist_ok=True)
    subprocess.run(["mount", "-t", "tmpfs", "-o", options, "tmpfs", path], check=True)


def small_file_system(place):
    """Room for some of the export, down to none, by the page."""
    big = timeline(os.path.join(place.scratch, "big.edl"), 3000)
    good = os.path.join(place.scratch, "big.csv")
    place.program.run(big, good)
    expected = content(good)
    pages = len(expected) // 4096 + 1
    for room in (0, 1, 2, 3, pages // 2, pages - 2, pages - 1, pages, pages + 8):
        for is_new in (True, False):
            path = place / f"small{room}{is_new}"
            mount(path, f"size={(room + 1) * 4096}")
            target = os.path.join(path, b"out.csv")
            put(os.path.join(path, b"filler"), data=b"x" * (4096 if is_new else 1))
            if not is_new:
                os.unlink(os.path.join(path, b"filler"))
                put(target)
            run = place.program.run(big, target)
            check(run.status == 0, run.status)
            if room >= pages:
                check(run.exported and content(target) == expected, f"{room} pages: {run.lines}")
                place.tally.count("exports that were to succeed")
            else:
                check(run.alerts == ['The file "out.csv" could not be written: '
                                     "No space left on device."], f"{room} pages: {run.lines}")
                check(content(target) == (None if is_new else OLD), "the old file is not whole")
                place.tally.count("exports that were to fail")
            check(not hidden(path), "left over")


def no_more_files(place):
    """A file system with room, but for no other file."""
    path = place / "files"
    mount(path, "nr_inodes=3")
    put(os.path.join(path, b"old.csv"))
    put(os.path.join(path, b"last"))
    for name in (b"old.csv", b"new.csv"):
        place.refused(os.path.join(path, name), "No space left on device")


def read_only_mount(place):
    path = place / "mount"
    mount(path, "size=1M")
    put(os.path.join(path, b"old.csv"))
    os.symlink(b"old.csv", os.path.join(path, b"link.csv"))
    subprocess.run(["mount", "-o", "remount,bind,ro", path], check=True)
    for name in (b"old.csv", b"new.csv", b"link.csv"):
        place.refused(os.path.join(path, name), "Read-only file system")


def a_file_that_is_a_mount(place):
    put(place / "old.csv")
    put(place / "over.csv", data=b"mounted over it\n")
    subprocess.run(["mount", "--bind", place / "over.csv", place / "old.csv"], check=True)
    place.refused(place / "old.csv", "Device or resource busy")


def another_file_system_by_a_link(place):
    path = place / "another"
    mount(path, "size=1M")
    os.symlink("another/new.csv", place / "far.csv")
    place.written(place / "far.csv", os.path.join(path, b"new.csv"))
    place.written(place / "far.csv", os.path.join(path, b"new.csv"))


# Places that need root.

AS_NOBODY = {"user": NOBODY, "group": NOBODY, "extra_groups": []}


def give(path, owner, mode):
    os.chown(path, owner, owner)
    os.chmod(path, mode)


def read_only_folder(place):
    os.mkdir(place / "folder")
    put(place / "folder/old.csv")
    give(place / "folder/old.csv", NOBODY, 0o644)
    os.chmod(place / "folder", 0o555)
    for name in ("old.csv", "new.csv"):
        place.refused(place / f"folder/{name}", "Permission denied", **AS_NOBODY)
    os.chmod(place / "folder", 0o700)
    place.refused(place / "folder/old.csv", "Permission denied", **AS_NOBODY)


def file_of_another_owner(place):
    os.mkdir(place / "shared")
    os.chmod(place / "shared", 0o777)
    for mode in (0o644, 0o600, 0o666, 0o755):
        path = place / f"shared/{mode:o}.csv"
        put(path)
        give(path, SOMEBODY, mode)
        place.written(path, mode=mode, **AS_NOBODY)
    for mode, kept in ((0o4755, 0o755), (0o2755, 0o755), (0o6777, 0o777)):
        path = place / f"shared/{mode:o}.csv"
        put(path)
        give(path, SOMEBODY, mode)
        place.written(path, mode=kept, **AS_NOBODY)
        give(path, SOMEBODY, mode)
        place.written(path, mode=kept)


def sticky_folder(place):
    os.mkdir(place / "sticky")
    os.chmod(place / "sticky", 0o1777)
    put(place / "sticky/theirs.csv")
    give(place / "sticky/theirs.csv", SOMEBODY, 0o666)
    place.refused(place / "sticky/theirs.csv", "Operation not permitted", **AS_NOBODY)
    place.written(place / "sticky/new.csv", **AS_NOBODY)
    place.written(place / "sticky/new.csv", **AS_NOBODY)


def read_only_file(place):
    os.mkdir(place / "own")
    os.chmod(place / "own", 0o777)
    put(place / "own/file.csv")
    give(place / "own/file.csv", NOBODY, 0o444)
    place.written(place / "own/file.csv", mode=0o444, **AS_NOBODY)


def shared_group(place):
    """Who may read and write a shared file may do so afterwards."""
    os.mkdir(place / "team")
    os.chmod(place / "team", 0o777)
    put(place / "team/cut.csv")
    os.chown(place / "team/cut.csv", NOBODY, SOMEBODY)
    os.chmod(place / "team/cut.csv", 0o660)
    place.written(place / "team/cut.csv", mode=0o660, user=NOBODY, group=NOBODY,
                  extra_groups=[SOMEBODY])
    check(os.stat(place / "team/cut.csv").st_gid == SOMEBODY, "the group has changed")


def group_of_others(place):
    """Where the group cannot be kept, another one gets no more than everybody had."""
    os.mkdir(place / "theirs")
    os.chmod(place / "theirs", 0o777)
    for mode, kept in ((0o660, 0o600), (0o640, 0o600), (0o664, 0o644), (0o2755, 0o755)):
        path = place / f"theirs/{mode:o}.csv"
        put(path)
        os.chown(path, NOBODY, SOMEBODY)
        os.chmod(path, mode)
        place.written(path, mode=kept, **AS_NOBODY)


def device(place):
    """A device of the test's own, in its own file system: the one that takes all."""
    path = place / "devices"
    mount(path, "size=1M")
    node = os.path.join(path, b"null.csv")
    os.mknod(node, 0o666 | stat.S_IFCHR, os.makedev(1, 3))
    place.refused(node, NOT_REGULAR)
    os.symlink(b"null.csv", os.path.join(path, b"link.csv"))
    place.refused(os.path.join(path, b"link.csv"), NOT_REGULAR)


def immutable(place):
    """What may not be changed by anybody, in a file system of the test's own."""
    path = place / "fixed"
    mount(path, "size=1M")
    inner = os.path.join(path, b"folder")
    os.mkdir(inner)
    put(os.path.join(inner, b"old.csv"))
    put(os.path.join(path, b"old.csv"))

    def attribute(change, what):
        if not shutil.which("chattr"):
            print("left out: chattr is missing")
            return False
        done = subprocess.run(["chattr", change, what], stderr=subprocess.PIPE)
        if done.returncode != 0:
            print(f"left out: chattr {change}: {done.stderr.decode().strip()}")
        return done.returncode == 0

    if attribute("+i", os.path.join(path, b"old.csv")):
        place.refused(os.path.join(path, b"old.csv"), "Operation not permitted")
    if attribute("+i", inner):
        for name in (b"old.csv", b"new.csv"):
            place.refused(os.path.join(inner, name), "Operation not permitted")
        attribute("-i", inner)
    if attribute("+a", inner):
        # Where names can be added but never removed, the hidden one stays.
        place.refused(os.path.join(inner, b"old.csv"), "Operation not permitted", leftovers=1)
        run = place.export(os.path.join(inner, b"new.csv"))
        check(run.exported, run.lines)
        attribute("-a", inner)


GROUPS = {
    "any": (names_of_all_kinds, names_with_line_breaks, names_of_invalid_utf8, own_permissions,
            links, hard_link, what_is_no_file),
    "mounts": (small_file_system, no_more_files, read_only_mount, a_file_that_is_a_mount,
               another_file_system_by_a_link),
    "others": (read_only_folder, file_of_another_owner, sticky_folder, read_only_file, shared_group,
               group_of_others, device, immutable),
}


def main():
    group = sys.argv[3]
    os.umask(0o022)
    above = None
    if group != "any":
        own_mounts.enter(as_root=group == "others")
        above = "/mnt"  # which is gone with all that is mounted below
    tally = Tally()
    with folder(above) as programs:
        # Where everybody can start it.
        program = Program(shutil.copy(sys.argv[1], programs))
        for scene in GROUPS[group]:
            with folder(above) as scratch, folder(above) as path, tally.case(scene.__name__):
                scene(Place(program, scratch, path, tally))
                tally.count("scenes")
    tally.report()


main()
