# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The batch program where disks, limits, files and terminals are against it."""

import os
import pathlib
import pty
import random
import resource
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

from program import (EVENT, FAILED, NAMED, OK, PROGRAM, ProgramTest, main, run)

NOBODY = 65534


class Disks(ProgramTest):
    def test_file_size_limit_is_an_error_and_leaves_nothing(self):
        self.put("a.edl", NAMED + EVENT * 2000)
        for command in (["list", "-f", "csv", "-o", "out", "a.edl"], ["convert", "-o", "out", "a.edl"],
                        ["stamp", "--fps", "24", "--restamp", "-o", "out", "a.edl"]):
            with self.subTest(command=command):
                done = self.run_program(*command, preexec_fn=lambda: resource.setrlimit(
                    resource.RLIMIT_FSIZE, (10000, 10000)))
                self.assertEqual((done.status, done.said), (
                    FAILED, "clipvane-cli: out: could not be written: File too large\n"))
                self.assertEqual(os.listdir(self.folder), ["a.edl"])

    def test_full_disk_is_an_error_and_leaves_nothing(self):
        """On a file system of its own, which is gone with the shell that made it."""
        self.put("a.edl", NAMED + EVENT * 2000)
        (self.folder / "disk").mkdir()
        script = ("mount -t tmpfs -o size=64k tmpfs disk || exit 77; echo old >disk/old.edl; "
                  '"$0" "$@"; status=$?; ls -A disk; cat disk/old.edl; exit $status')
        for command in (["list", "-f", "csv", "-o", "disk/out"], ["convert", "-d", "disk"],
                        ["convert", "--force", "-o", "disk/old.edl"],
                        ["stamp", "--fps", "24", "--restamp", "-d", "disk"]):
            with self.subTest(command=command):
                done = subprocess.run(["unshare", "--mount", "--map-root-user", "bash", "-c", script,
                                       PROGRAM, *command, "a.edl"], cwd=self.folder,
                                      capture_output=True, text=True, check=False)
                if done.returncode == 77 or done.stderr.startswith("unshare"):
                    self.skipTest("no name space for mounts of its own here: " + done.stderr)
                place = command[-1] if "-o" in command else command[-1] + "/a.edl"
                self.assertEqual((done.returncode, done.stderr, done.stdout), (
                    FAILED, f"clipvane-cli: {place}: could not be written: No space left on device\n",
                    "old.edl\nold\n"))

    def program_for_all(self):
        """A copy of the program that others may start, wherever it was built."""
        folder = tempfile.TemporaryDirectory(prefix="clipvane-cli-")
        self.addCleanup(folder.cleanup)
        os.chmod(folder.name, 0o755)
        return shutil.copy(PROGRAM, pathlib.Path(folder.name, PROGRAM.name))

    @unittest.skipIf(os.geteuid() != 0, "only root can become somebody else")
    def test_no_permission(self):
        program = self.program_for_all()
        os.chmod(self.folder, 0o755)
        os.chmod(self.put("secret.edl", NAMED), 0o600)
        self.put("a.edl", NAMED)
        done = self.run_program("list", "secret.edl", "a.edl", program=program, user=NOBODY,
                                group=NOBODY, extra_groups=[])
        self.assertEqual((done.status, done.said), (
            FAILED, "clipvane-cli: secret.edl: could not be read: Permission denied\n"))
        for command in (["list", "-o", "out", "a.edl"], ["convert", "-o", "out", "a.edl"],
                        ["stamp", "--fps", "24", "--restamp", "--in-place", "a.edl"],
                        ["convert", "-d", "folder", "a.edl"]):
            with self.subTest(command=command):
                done = self.run_program(*command, program=program, user=NOBODY, group=NOBODY,
                                        extra_groups=[])
                self.assertEqual(done.status, FAILED)
                self.assertRegex(done.said, r"could not be (written|made): Permission denied\n$")
                self.assertEqual(sorted(os.listdir(self.folder)), ["a.edl", "secret.edl"])
        self.assertEqual(self.content("a.edl"), NAMED.encode())

    def test_killed_while_writing_leaves_the_old_or_the_new(self):
        self.put("a.edl", NAMED + EVENT * 3000)
        new = run("convert", "-o", "-", self.folder / "a.edl").output
        chance = random.Random(3)
        kinds = set()
        for _ in range(40):
            self.put("out.edl", "old")
            program = subprocess.Popen([PROGRAM, "convert", "-q", "--force", "-o", "out.edl", "a.edl"],
                                       cwd=self.folder, stderr=subprocess.DEVNULL)
            time.sleep(chance.random() * 0.15)
            program.kill()
            kinds.add(program.wait())
            self.assertIn(self.content("out.edl"), (b"old", new))
            hidden = [name for name in os.listdir(self.folder) if name.startswith(".clipvane-")]
            self.assertLessEqual(len(hidden), 1)
            for name in hidden:
                (self.folder / name).unlink()
        self.assertIn(-signal.SIGKILL, kinds)


class Files(ProgramTest):
    def test_ten_thousand_files_stay_flat_in_memory(self):
        for number in range(10000):  # no links, since check takes no file twice
            self.put(f"{number}.edl", NAMED + EVENT * 10)
        names = [f"{number}.edl" for number in range(10000)]
        for command in (["list", "-f", "jsonl", "-o", "/dev/null"], ["check", "-f", "jsonl"]):
            with self.subTest(command=command):
                for_few = self.least_memory(*command, *names[:100])
                # The names themselves, and what the options' library makes of them.
                done = self.within(for_few + (8 << 20), *command, *names)
                self.assertEqual((done.status, done.said), (OK, ""))
        self.assertEqual(done.output.count(b'"events":11,'), 10000)

    def least_memory(self, *arguments):
        return next(limit for limit in range(8 << 20, 1 << 30, 1 << 20)
                    if self.within(limit, *arguments).status == OK)

    def test_little_memory_is_an_error(self):
        text = NAMED + (EVENT + "* FROM CLIP NAME: a clip with a name\n") * 6000
        self.put("a.edl", text)
        self.put("a.jsonl", run("list", "-f", "jsonl", self.folder / "a.edl").output)
        least = self.least_memory("--version")
        reasons = set()
        for command in (["list", "-f", "csv", "a.edl"], ["list", "-f", "jsonl", "a.edl"], ["list", "a.edl"],
                        ["check", "a.edl"], ["convert", "-o", "-", "a.edl"],
                        ["stamp", "--fps", "24", "--restamp", "-o", "-", "a.edl"],
                        ["list", "-f", "csv", "--from", "jsonl", "a.jsonl"]):
            whole = self.run_program(*command).output
            for more in (0, 1, 2, 4, 8):
                with self.subTest(command=command, more=more):
                    done = self.within(least + (more << 20), *command)
                    self.assertIn(done.status, (OK, FAILED), done.said)
                    if done.status == FAILED:
                        self.assertRegex(done.said, r"\Aclipvane-cli: [^\n]+\n\Z")
                        reasons.add(done.said.split(": ", 2)[-1])
                        self.assertIn(done.output, (b"", whole))
        self.assertIn("there is not enough memory for it\n", reasons)

    def within(self, memory, *arguments):
        """A run that may have so many bytes of addresses."""
        return self.run_program(*arguments, preexec_fn=lambda: resource.setrlimit(
            resource.RLIMIT_AS, (memory, memory)))

    def test_hostile_content_fails_its_file_alone(self):
        bomb = "<!DOCTYPE a [<!ENTITY e0 'ha'>" + "".join(
            f"<!ENTITY e{i} '{f'&e{i - 1};' * 10}'>" for i in range(1, 12)) + "]><a>&e11;</a>"
        files = {"bomb.xml": bomb, "good.edl": NAMED,
                 "rate.edl": "* FPS: 99999999999999999999\n" + EVENT,
                 "time.xml": '<a timebase="25"><clip start="1e30s"/></a>',
                 "sum.xml": '<a timebase="25"><clip start="9000000000000000000" duration="9000000000000000000"/></a>',
                 "long.edl": "* FPS: 25\n001 AX V C " + "00:00:00:00 " * 4 + "\n* FROM CLIP NAME: " + "x" * 3000000}
        names = list(files)
        for command in (["list"], ["list", "-f", "csv"], ["list", "-f", "jsonl"], ["list", "-f", "tsv"],
                        ["convert", "-d", "out"], ["check"]):
            with self.subTest(command=command):
                self.clear()
                for name, content in files.items():
                    self.put(name, content)
                done = self.run_program(*command, *names)
                self.assertEqual(done.status, FAILED)
                failed = {line.split(": ")[1] for line in done.said.splitlines()
                          if "impossible number" in line}
                self.assertEqual(failed, {"rate.edl", "time.xml", "sum.xml"})
                if command[0] == "convert":
                    self.assertIsNotNone(self.content("out/good.edl"))
                else:
                    self.assertIn("01:00:05:00" if command[0] == "list" else "good.edl", done.text)

    def test_impossible_durations_and_conversions(self):
        far = "9000000000:00:00:00"
        self.put("far.xml", f'<a timebase="1000000"><event><source in="-{far}" out="{far}"/></event></a>')
        for arguments in (["-f", "csv"], ["-f", "jsonl"], ["-f", "tsv"], ["--fps", "1000", "--to", "999"]):
            done = self.run_program("list", *arguments, "far.xml")
            if done.status != OK:
                self.assertIn("far.xml: it holds an impossible number: a frame count exceeds", done.said)
                self.assertEqual(done.text, "")
        self.assertEqual(self.run_program("list", "-f", "csv", "far.xml").status, FAILED)


class Terminals(ProgramTest):
    def said_on_terminal(self, *arguments, environment=None, late=b""):
        """What comes on a terminal as standard error, standard input coming late."""
        ours, terminal = pty.openpty()
        program = subprocess.Popen([PROGRAM, *arguments], cwd=self.folder, stderr=terminal,
                                   stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                   env={"TERM": "xterm", **(environment or {})})
        os.close(terminal)
        if late:
            time.sleep(0.7)
        program.stdin.write(late)
        program.stdin.close()
        said = b""
        while True:
            try:
                piece = os.read(ours, 65536)
            except OSError:
                break
            if not piece:
                break
            said += piece
        program.wait(60)
        os.close(ours)
        return said.decode()

    def test_progress_comes_after_half_a_second_and_goes(self):
        self.put("a.edl", NAMED)
        slow = ["list", "--from", "edl", "-", "a.edl"]
        self.assertEqual(self.said_on_terminal(*slow, late=NAMED.encode()),
                         "\r\x1b[K2 of 2: a.edl\r\x1b[K")
        self.assertEqual(self.said_on_terminal(*slow), "clipvane-cli: standard input names no rate: read"
                         " at 24 fps; say --fps if it was written at another\r\n")
        for quiet in ({"environment": {"NO_COLOR": "1"}}, {"environment": {"TERM": "dumb"}}):
            self.assertEqual(self.said_on_terminal(*slow, late=NAMED.encode(), **quiet), "")
        self.assertEqual(self.said_on_terminal("list", "-q", *slow[1:], late=NAMED.encode()), "")

    def test_errors_are_coloured_on_a_terminal_alone(self):
        sentence = "clipvane-cli: gone.edl: could not be read: No such file or directory"
        self.assertEqual(self.said_on_terminal("list", "gone.edl"),
                         f"\x1b[31m{sentence}\x1b[0m\r\n")
        for environment in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertEqual(self.said_on_terminal("list", "gone.edl", environment=environment),
                             sentence + "\r\n")
        self.assertEqual(self.said_on_terminal("list", "-q", "gone.edl"), sentence + "\r\n")
        self.assertEqual(self.run_program("list", "gone.edl").said, sentence + "\n")


if __name__ == "__main__":
    main()
