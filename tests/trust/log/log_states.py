"""What can lie in the log's place, each made in a /tmp that nobody else uses.

A state is a function that makes it for the given user and returns what is to hold afterwards: a
function of the lines that were logged. Only root can make them all.
"""

import os
import socket
import stat
import subprocess
from pathlib import Path

from own_mounts import SOMEBODY

LOG = Path("/tmp/clipvane-native.log")
REAL = Path("/tmp/real.log")
OLD = "of an earlier run\n"
SIZE_LIMIT = 100  # bytes


def put(path, owner, mode=0o644, text=OLD):
    path.write_text(text)
    os.chown(path, owner, owner)
    os.chmod(path, mode)


def link(path, target, owner):
    os.symlink(target, path)
    os.lchown(path, owner, owner)


def expect(condition, what):
    if not condition:
        raise AssertionError(what)


def messages(path):
    """The messages of the log's lines."""
    return [line.partition("] ")[2] for line in path.read_text().splitlines()]


def appended(path):
    def check(lines):
        text = path.read_text()
        expect(text.startswith(OLD), f"what was there is gone: {text!r}")
        expect(messages(path)[1:] == lines, f"{text!r} instead of {lines}")
    return check


def created(path):
    def check(lines):
        expect(stat.S_ISREG(os.lstat(path).st_mode), "not a file")
        expect(messages(path) == lines, f"{path.read_text()!r} instead of {lines}")
    return check


def untouched(path):
    """The file there, and what it is called by, are as they are now."""
    def state():
        status = os.lstat(path)
        is_file = stat.S_ISREG(status.st_mode)
        return (status.st_ino, status.st_mode, status.st_uid, status.st_size,
                path.read_bytes() if is_file else None)

    before = state()
    return lambda lines: expect(state() == before, f"{path} changed: {state()[:4]}")


def all_of(*checks):
    def check(lines):
        for one in checks:
            one(lines)
    return check


# The states.

def absent(user):
    return created(LOG)


def regular(user):
    put(LOG, user)
    return appended(LOG)


def link_to_own_file(user):
    put(REAL, user)
    link(LOG, REAL, user)
    return all_of(appended(REAL), untouched(LOG))


def chain_of_own_links(user):
    put(REAL, user)
    link(Path("/tmp/second"), REAL, user)
    link(LOG, "second", user)
    return all_of(appended(REAL), untouched(LOG))


def dangling_link(user):
    link(LOG, REAL, user)
    return all_of(lambda lines: created(REAL)(lines), untouched(LOG))


def link_of_another_to_own_file(user):
    put(REAL, user)
    link(LOG, REAL, SOMEBODY)
    return all_of(untouched(REAL), untouched(LOG))


def dangling_link_of_another(user):
    link(LOG, REAL, SOMEBODY)
    return lambda lines: expect(not REAL.exists(), "made by somebody else's link")


def own_link_to_a_file_of_another(user):
    put(REAL, SOMEBODY, 0o666)
    link(LOG, REAL, user)
    return untouched(REAL)


def loop(user):
    link(LOG, "second", user)
    link(Path("/tmp/second"), LOG.name, user)
    return untouched(LOG)


def fifo_without_reader(user):
    os.mkfifo(LOG)
    os.chown(LOG, user, user)
    return untouched(LOG)


def fifo_with_reader(user):
    os.mkfifo(LOG)
    os.chown(LOG, user, user)
    reader = os.open(LOG, os.O_RDONLY | os.O_NONBLOCK)

    def check(lines):
        expect(os.read(reader, 100) == b"", "something came through the FIFO")
        os.close(reader)
    return check


def fifo_of_another(user):
    os.mkfifo(LOG)
    os.chown(LOG, SOMEBODY, SOMEBODY)
    os.chmod(LOG, 0o666)
    return untouched(LOG)


def link_to_a_fifo(user):
    os.mkfifo(REAL)
    os.chown(REAL, user, user)
    link(LOG, REAL, user)
    return untouched(REAL)


def folder(user):
    LOG.mkdir()
    os.chown(LOG, user, user)
    return lambda lines: expect(not any(LOG.iterdir()), "something lies in the folder")


def read_only_file(user):
    put(LOG, user, 0o444)
    return untouched(LOG)


def file_of_another(user):
    put(LOG, SOMEBODY, 0o666)
    return untouched(LOG)


def hard_link_to_own_file(user):
    put(REAL, user)
    os.link(REAL, LOG)
    return appended(REAL)


def hard_link_to_a_file_of_another(user):
    put(REAL, SOMEBODY, 0o666)
    os.link(REAL, LOG)
    return untouched(REAL)


def device(user):
    """The one that takes everything, as a node of the test's own."""
    os.mknod(LOG, 0o666 | stat.S_IFCHR, os.makedev(1, 3))
    os.chown(LOG, user, user)
    return untouched(LOG)


def listening_socket(user):
    listener = socket.socket(socket.AF_UNIX)
    listener.bind(str(LOG))
    os.chown(LOG, user, user)
    listener.listen()
    listener.settimeout(0)

    def check(lines):
        try:
            listener.accept()
            raise AssertionError("somebody came to the socket")
        except BlockingIOError:
            pass
        finally:
            listener.close()
    return check


def fill_the_disk():
    """Leaves no room below /tmp, which is of memory."""
    used = os.statvfs("/tmp")
    size = (used.f_blocks - used.f_bfree + 16) * used.f_frsize
    subprocess.run(["mount", "-o", f"remount,size={size}", "/tmp"], check=True)
    with open("/tmp/filler", "wb", buffering=0) as filler:
        try:
            while filler.write(b"x" * 4096):
                pass
        except OSError:
            pass


def full_disk(user):
    """Without room for another page: what fits into the log's last one is written."""
    put(LOG, user, text="x" * 4096)
    fill_the_disk()
    return untouched(LOG)


def full_disk_and_no_log(user):
    fill_the_disk()
    return lambda lines: expect(not LOG.exists() or LOG.stat().st_size == 0, "written nowhere?")


def read_only_mount(user):
    put(LOG, user)
    subprocess.run(["mount", "-o", "remount,ro", "/tmp"], check=True)
    return untouched(LOG)


def size_limit_by_signal(user):
    """The log may grow no further; the system would end the program for trying."""
    put(LOG, user, text="x" * (SIZE_LIMIT - 1))

    def check(lines):
        expect(LOG.read_text() == "x" * (SIZE_LIMIT - 1) + "[", LOG.read_text())
    return check


STATES = (absent, regular, link_to_own_file, chain_of_own_links, dangling_link,
          link_of_another_to_own_file, dangling_link_of_another, own_link_to_a_file_of_another,
          loop, fifo_without_reader, fifo_with_reader, fifo_of_another, link_to_a_fifo, folder,
          read_only_file, file_of_another, hard_link_to_own_file, hard_link_to_a_file_of_another,
          device, listening_socket, full_disk, full_disk_and_no_log, read_only_mount,
          size_limit_by_signal)

# What is not for the log is not even opened: a device may act on that alone.
NEVER_OPENED = (link_of_another_to_own_file, dangling_link_of_another,
                own_link_to_a_file_of_another, loop, fifo_without_reader, fifo_with_reader,
                fifo_of_another, link_to_a_fifo, folder, file_of_another,
                hard_link_to_a_file_of_another, device, listening_socket)


def clear():
    """Takes away what a state made."""
    subprocess.run(["mount", "-o", "remount,rw,size=50%", "/tmp"], check=True)
    for name in (LOG, REAL, Path("/tmp/second"), Path("/tmp/filler")):
        if name.is_dir() and not name.is_symlink():
            name.rmdir()
        else:
            name.unlink(missing_ok=True)
