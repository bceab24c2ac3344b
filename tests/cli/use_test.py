# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Options, outputs, standard files and statuses, whatever the command."""

import fcntl
import os
import signal
import subprocess

from program import (EVENT, FAILED, NAMED, OK, PROGRAM, WRONG_USE, ProgramTest, Row, main, run)


class Options(ProgramTest):
    def test_wrong_use(self):
        for arguments in ([], ["paint"], ["list"], ["list", "--fps", "x", "a.edl"],
                          ["list", "--fps", "0", "a.edl"], ["list", "--fps", "1001", "a.edl"],
                          ["list", "--fps", "-25", "a.edl"], ["list", "--fps", "25/0", "a.edl"],
                          ["list", "--fps", "25.", "a.edl"], ["list", "--fps", "1e2", "a.edl"],
                          ["list", "--fps", "nan", "a.edl"], ["list", "--fps", " 25", "a.edl"],
                          ["list", "--fps", "", "a.edl"], ["list", "--fps", "24.0/1", "a.edl"],
                          ["list", "--fps", "25", "--fps", "24", "a.edl"], ["list", "--to", "x", "a.edl"],
                          ["list", "-f", "pdf", "a.edl"], ["list", "--from", "pdf", "-"],
                          ["list", "-"], ["list", "/dev/fd/0"], ["list", "--from", "edl", "-", "-"],
                          ["list", "--from", "edl", "-", "/dev/stdin"], ["list", "--from", "edl", "a.edl"],
                          ["list", "--bold", "a.edl"], ["list", "-o", "", "a.edl"]):
            with self.subTest(arguments=arguments):
                self.put("a.edl", NAMED)
                done = self.run_program(*arguments)
                self.assertEqual((done.status, done.text), (WRONG_USE, ""), done.said)
                self.assertRegex(done.said, r"\Aclipvane-cli: [^\n]+\n\Z")

    def test_words_for_wrong_use(self):
        commands = "list, convert, check, stamp or diff; see clipvane-cli --help"
        for arguments, words in [
                ([], "a command is missing: say " + commands),
                (["paint", "a.edl"], '"paint" is no command: say ' + commands),
                (["list"], "TIMELINE is required; see clipvane-cli list --help"),
                (["list", "--fps", "24", "--fps", "25", "a.edl"],
                 "--fps is given more than once; see clipvane-cli list --help"),
                (["list", "a.edl", "-o"], "--output needs a value; see clipvane-cli list --help"),
                (["check", "--bold", "a.edl", "--thin"],
                 "there is no option --bold; see clipvane-cli check --help"),
                (["list", "-dash.edl"], "there is no option -dash.edl; see clipvane-cli list --help"),
                (["check", "--bold"], "there is no option --bold; see clipvane-cli check --help"),
                (["--bold", "check", "a.edl"], "there is no option --bold; see clipvane-cli check --help"),
                (["list", "--fps", "[25]", "a.edl"], '--fps: "[25]" is no rate: say 25, 23.976 or 24000/1001; '
                 "above 0 and at most 1000; see clipvane-cli list --help"),
                (["list", "-f=csv", "a.edl"], '-f,--format: "=csv" is none of table|csv|tsv|jsonl; '
                 "see clipvane-cli list --help"),
                (["list", "a.edl", ""], "a name is empty; see clipvane-cli list --help"),
                (["convert", "a.edl"], "say where the output goes: -o or -d"),
                (["stamp", "--fps", "25", "a.edl"], "say where the output goes: -o, -d or --in-place"),
                (["convert", "-o", "x", "-d", "y", "a.edl"], "-o and -d exclude each other"),
                (["stamp", "--fps", "25", "-o", "x", "--in-place", "a.edl"],
                 "-o, -d and --in-place exclude each other")]:
            with self.subTest(arguments=arguments):
                done = self.run_program(*arguments)
                self.assertEqual((done.status, done.said), (WRONG_USE, f"clipvane-cli: {words}\n"))

    def test_help_and_version_are_data(self):
        for arguments in (["--help"], ["-h"], ["list", "--help"]):
            done = self.run_program(*arguments)
            self.assertEqual((done.status, done.said), (OK, ""))
            self.assertIn("--fps 25 --to 24  converts afterwards", done.text)
        self.assertRegex(self.run_program("--version").text, r"\Aclipvane-cli \d+\.\d+\.\d+\n\Z")

    def test_the_help_of_a_command_speaks_of_its_own_options(self):
        for command, wanted, unwanted in [("list", "converts afterwards", "writes"),
                                          ("check", "reads at 25", "--to"),
                                          ("stamp", 'writes "* FPS: 25"', "Without --fps"),
                                          ("stamp", "the rate that the EDL was written at", "--to")]:
            with self.subTest(command=command):
                text = self.run_program(command, "--help").text
                self.assertIn(wanted, text)
                self.assertNotIn(unwanted, text)

    def test_the_rates_in_the_help_are_true(self):
        self.put("a.edl", "001 AX V C 00:00:10:24 00:00:10:24 00:00:10:24 00:00:10:24\n")
        self.assertIn('"sourceIn":"00:00:10:24"', self.jsonl("--fps", "25", "a.edl"))
        self.assertIn('"sourceInFrames":274,', self.jsonl("--fps", "25", "a.edl"))
        self.assertIn('"sourceIn":"00:00:10:23"', self.jsonl("--fps", "25", "--to", "24", "a.edl"))
        self.assertIn('"sourceInFrames":263,', self.jsonl("--fps", "25", "--to", "24", "a.edl"))

    def jsonl(self, *arguments):
        return self.run_program("list", "-f", "jsonl", *arguments).text


class Outputs(ProgramTest):
    def test_files(self):
        csv = run("list", "-f", "csv", self.put("judge.edl", NAMED)).text
        files = {"a.edl": NAMED}
        to_file = ["list", "-f", "csv", "-o", "a.csv"]
        self.try_rows([
            Row("new", [*to_file, "a.edl"], files=files, output="", after={"a.csv": csv}),
            Row("there already", [*to_file, "a.edl"], FAILED, files={"a.csv": "x", **files},
                said=["a.csv: is there already; --force replaces it"], after={"a.csv": "x"}),
            Row("forced", [*to_file, "--force", "a.edl"], files={"a.csv": "x", **files},
                after={"a.csv": csv}),
            Row("one fails", [*to_file, "b.edl", "a.edl"], FAILED, files=files, said=["b.edl: "],
                after={"a.csv": csv}),
            Row("all fail", [*to_file, "b.edl"], FAILED, files=files, said=["b.edl: "],
                after={"a.csv": None}),
            Row("own input", ["list", "-o", "a.edl", "--force", "a.edl"], FAILED, files=files,
                said=["a.edl: is one of the files that are read"], after={"a.edl": NAMED}),
            Row("no folder", ["list", "-o", "x/a.csv", "a.edl"], FAILED, files=files,
                said=["x/a.csv: could not be written: No such file or directory"]),
            Row("folder", ["list", "-o", "x", "--force", "a.edl"], FAILED,
                files={"x/y": "", **files}, said=["x: could not be written: Is a directory"]),
            Row("standard output", ["list", "-f", "csv", "-o", "-", "a.edl"], files=files, output=csv),
            Row("by its name", ["list", "-f", "csv", "-o", "/dev/stdout", "a.edl"], files=files,
                output=csv),
            Row("nowhere", ["list", "-o", "/dev/null", "a.edl"], files=files, output=""),
            Row("full", ["list", "-o", "/dev/full", "a.edl"], FAILED, files=files,
                said=["/dev/full: could not be written: it is not a regular file"])])

    def test_own_input_by_another_name(self):
        self.put("a.edl", NAMED)
        (self.folder / "link.edl").symlink_to("a.edl")
        os.link(self.folder / "a.edl", self.folder / "hard.edl")
        for output in ("link.edl", "hard.edl"):
            done = self.run_program("list", "-o", output, "--force", "a.edl")
            self.assertEqual((done.status, self.content("a.edl")), (FAILED, NAMED.encode()))
        with open(self.folder / "a.edl", "r+b") as own:
            done = subprocess.run([PROGRAM, "list", "--from", "edl", "-"], stdin=own, stdout=own,
                                  cwd=self.folder, stderr=subprocess.PIPE, check=False)
        self.assertEqual((done.returncode, self.content("a.edl")), (FAILED, NAMED.encode()))

    def test_link_is_followed_and_stays(self):
        self.put("a.edl", NAMED)
        (self.folder / "link.csv").symlink_to("real.csv")
        self.assertEqual(self.run_program("list", "-o", "link.csv", "a.edl").status, OK)
        self.assertTrue((self.folder / "link.csv").is_symlink())
        self.assertIsNotNone(self.content("real.csv"))

    def test_full_standard_output(self):
        self.put("a.edl", NAMED)
        for arguments in (["list", "a.edl"], ["--help"]):
            with open("/dev/full", "wb") as full:
                done = subprocess.run([PROGRAM, *arguments], cwd=self.folder, stdout=full,
                                      stderr=subprocess.PIPE, check=False)
            self.assertEqual((done.returncode, done.stderr.decode()), (
                FAILED, "clipvane-cli: standard output: could not be written: No space left on device\n"))

    def test_closed_pipe_ends_it_quietly(self):
        self.put("a.edl", NAMED + EVENT * 20000)
        for ignored in (False, True):
            def prepare():
                signal.signal(signal.SIGPIPE, signal.SIG_IGN if ignored else signal.SIG_DFL)
            reader, writer = os.pipe()
            os.close(reader)
            done = subprocess.run([PROGRAM, "list", "a.edl"], cwd=self.folder, stdout=writer,
                                  stderr=subprocess.PIPE, preexec_fn=prepare, restore_signals=False,
                                  check=False)
            os.close(writer)
            self.assertEqual((done.returncode, done.stderr), (-signal.SIGPIPE, b""))

    def test_closed_standard_files(self):
        self.put("a.edl", NAMED)
        for closed, command, status, said in [
                ("<&-", ["list", "a.edl"], OK, ""),
                ("<&-", ["list", "--from", "edl", "-"], FAILED,
                 "clipvane-cli: standard input: could not be read: Bad file descriptor\n"),
                (">&-", ["list", "a.edl"], FAILED,
                 "clipvane-cli: standard output: could not be written: Bad file descriptor\n"),
                (">&-", ["list", "-o", "a.csv", "a.edl"], OK, ""),
                ("2>&-", ["list", "a.edl", "gone.edl"], FAILED, ""),
                ("<&- >&- 2>&-", ["list", "-o", "b.csv", "a.edl"], OK, "")]:
            with self.subTest(closed=closed, command=command):
                done = subprocess.run(["bash", "-c", f'exec "$0" "$@" {closed}', PROGRAM, *command],
                                      cwd=self.folder, capture_output=True, check=False)
                self.assertEqual((done.returncode, done.stderr.decode()), (status, said))
        self.assertEqual(self.content("a.csv"), self.content("b.csv"))
        self.assertIn(b"a.edl: 1 event", self.content("b.csv"))

    def test_stream_that_does_not_wait(self):
        reader, writer = os.pipe()
        for end in (reader, writer):
            fcntl.fcntl(end, fcntl.F_SETFL, fcntl.fcntl(end, fcntl.F_GETFL) | os.O_NONBLOCK)
        self.put("a.edl", NAMED + EVENT * 2000)
        first = subprocess.Popen([PROGRAM, "list", "-f", "jsonl", "a.edl"], cwd=self.folder, stdout=writer)
        os.close(writer)
        second = subprocess.run([PROGRAM, "list", "-f", "csv", "--from", "jsonl", "-"], stdin=reader,
                                capture_output=True, check=True, timeout=60)
        os.close(reader)
        self.assertEqual(first.wait(), OK)
        self.assertEqual(second.stdout, run("list", "-f", "csv", self.folder / "a.edl").output)


if __name__ == "__main__":
    main()
