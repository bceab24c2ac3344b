# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What `clipvane-cli convert` writes."""

import json
import subprocess

from generated import timelines
from program import (EVENT, FAILED, NAMED, OK, PROGRAM, WRONG_USE, ProgramTest, Row, fixtures, main,
                     run)

HEAD = "TITLE: Clipvane Export\nFCM: NON-DROP FRAME\n"
WRITTEN = (HEAD + "\n001  AX V C        00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00\n"
           "* FROM CLIP NAME: Clip 001\n")


class Files(ProgramTest):
    def test_it_is_the_window_s_export(self):
        for timeline in fixtures():
            with self.subTest(timeline=timeline.name):
                done = run("convert", "-q", "-o", "-", timeline)
                self.assertEqual(done.output, self.judged(timeline, ".edl"))

    def test_where_it_goes(self):
        files = {"a.edl": NAMED, "b.xml": '<a timebase="25"/>', "in/a.txt": NAMED}
        meet = "would be written to out/a.edl, and so would another of these files: nothing is written"
        self.try_rows([
            Row("file", ["convert", "-o", "x.edl", "a.edl"], files=files, after={"x.edl": WRITTEN}),
            Row("folder", ["convert", "-d", "out/deep", "a.edl", "b.xml"], files=files,
                after={"out/deep/a.edl": WRITTEN, "out/deep/b.edl": HEAD}),
            Row("standard output", ["convert", "-o", "-", "a.edl"], files=files, output=WRITTEN),
            Row("there already", ["convert", "-d", "out", "a.edl", "b.xml"], FAILED,
                files={"out/a.edl": "old", **files}, said=["out/a.edl: is there already; --force"],
                after={"out/a.edl": "old", "out/b.edl": HEAD}),
            Row("forced", ["convert", "--force", "-d", "out", "a.edl"],
                files={"out/a.edl": "old", **files}, after={"out/a.edl": WRITTEN}),
            Row("names that meet", ["convert", "-d", "out", "a.edl", "b.xml", "in/a.txt"], FAILED,
                files=files, said=["a.edl: " + meet, "in/a.txt: " + meet],
                after={"out/a.edl": None, "out/b.edl": None}),
            Row("own input", ["convert", "--force", "-d", ".", "a.edl", "b.xml"], FAILED, files=files,
                said=["./a.edl: is one of the files that are read"],
                after={"a.edl": NAMED, "b.edl": HEAD}),
            Row("another's input", ["convert", "--force", "-o", "b.xml", "a.edl"], files=files,
                after={"b.xml": WRITTEN}),
            Row("bundle", ["convert", "-d", "out", "cut.fcpxmld/"],
                files={"cut.fcpxmld/Info.fcpxml": '<fcpxml frameDuration="1/25s"/>'},
                after={"out/cut.edl": HEAD}),
            Row("folder that is a file", ["convert", "-d", "a.edl", "b.xml"], FAILED, files=files,
                said=["a.edl: could not be made: "]),
            Row("rates", ["convert", "--fps", "25", "--to", "50", "-o", "-", "a.edl"],
                files={"a.edl": EVENT.replace("05:00", "05:24")}, holds=["00:00:05:48 01:00:00:00"])])

    def test_input_of_another_is_not_written_over(self):
        self.put("a.xml", '<a timebase="25"/>')
        self.put("in/a.edl", NAMED)
        done = self.run_program("convert", "--force", "-d", "in", "a.xml", "in/a.edl")
        self.assertEqual((done.status, self.content("in/a.edl")), (FAILED, NAMED.encode()))

    def test_names_that_meet_leave_no_trace(self):
        self.put("a.edl", NAMED)
        self.put("a.xml", '<a timebase="25"/>')
        self.assertEqual(self.run_program("convert", "-d", "out", "a.edl", "a.xml").status, FAILED)
        self.assertFalse((self.folder / "out").exists())

    def test_names_that_meet_through_a_link(self):
        self.put("a.edl", NAMED)
        self.put("b.xml", '<a timebase="25"/>')
        self.put("out/b.edl", "old")
        for target in ("b.edl", str(self.folder / "out/b.edl")):
            (self.folder / "out/a.edl").symlink_to(target)
            done = self.run_program("convert", "--force", "-d", "out", "a.edl", "b.xml")
            self.assertEqual((done.status, self.content("out/b.edl")), (FAILED, b"old"))
            self.assertIn("a.edl: would be written to out/a.edl, and so would another", done.said)
            (self.folder / "out/a.edl").unlink()

    def test_wrong_use(self):
        for arguments in (["a.edl"], ["-o", "x", "-d", "y", "a.edl"], ["-o", "x", "a.edl", "b.edl"],
                          ["-d", "x", "--from", "edl", "-"], ["-d", "", "a.edl"],
                          ["-d", "x", "--from", "edl", "/dev/fd/0"], ["-o", "x"]):
            with self.subTest(arguments=arguments):
                self.assertEqual(self.run_program("convert", *arguments).status, WRONG_USE)
                self.assertEqual(list(self.folder.iterdir()), [])


class ReadAgain(ProgramTest):
    def test_what_is_lost_is_said(self):
        good = {"reel": "R", "track": "V", "clipname": "n"}
        times = ["00:00:00:00", "00:00:00:01"] * 2
        for change, reason in [
                ({"reel": "a b"}, "reels hold blanks"), ({"reel": "a\u00a0b"}, "reels hold blanks"),
                ({"track": "V 1"}, "tracks hold blanks"), ({"clipname": "a: b"}, "names hold colons"),
                ({"clipname": "a\nb"}, "names hold line ends"), ({"clipname": ""}, "clips have no name"),
                ({"times": ["", *times[1:]]}, "timecodes are missing"),
                ({"times": ["00:00:00;00", *times[1:]]}, "timecodes are drop-frame"),
                ({"times": ["100:00:00:00", *times[1:]]}, "timecodes are not of the form HH:MM:SS:FF"),
                ({"comment": "from clip name: z"}, "comments hold the words FROM CLIP NAME")]:
            with self.subTest(change=change):
                self.put("cut.xml", '<a timebase="25">'
                         + self.event(times, good) + self.event(change.get("times", times),
                                                                {**good, **change}) + "</a>")
                done = self.run_program("convert", "-o", "x.edl", "--force", "cut.xml")
                self.assertEqual(done.status, OK)
                expected = f"x.edl: 1 of 2 events can be read again: {reason}"
                self.assertIn(expected, done.said)
                self.put("cut.xml", '<a timebase="25">' + self.event(
                    change.get("times", times), {**good, **change}) + "</a>")
                done = self.run_program("convert", "-q", "-o", "x.edl", "--force", "cut.xml")
                self.assertEqual(done.status, FAILED)
                self.assertIn(f"x.edl: 0 of 1 event can be read again: {reason}\n", done.said)
                self.assertTrue(self.content("x.edl").startswith(HEAD.encode()))

    def test_name_behind_a_lost_event(self):
        times = ["00:00:00:00", "00:00:00:01"] * 2
        good = {"reel": "R", "track": "V", "clipname": "n"}
        self.put("cut.xml", '<a timebase="25">' + self.event(times, good) + self.event(times, good)
                 + self.event(times, {**good, "reel": "a b", "clipname": "m"}) + "</a>")
        said = self.run_program("convert", "-o", "x.edl", "cut.xml").said
        self.assertIn("x.edl: 1 of 3 events can be read again: ", said)
        self.assertIn("reels hold blanks", said)
        self.assertIn("some get the name of the lost event behind them", said)

    def test_empty_reel_and_track_count_as_kept(self):
        self.put("cut.xml", '<a timebase="25"><event><source in="0" out="1"/><record in="0" out="1"/>'
                            "<clipname>n</clipname></event></a>")
        done = self.run_program("convert", "-o", "-", "cut.xml")
        self.assertEqual((done.status, done.said), (OK, ""))

    @staticmethod
    def event(times, fields):
        children = "".join(f"<{key}>{value}</{key}>" for key, value in fields.items()
                           if key != "times")
        return (f'<event><source in="{times[0]}" out="{times[1]}"/>'
                f'<record in="{times[2]}" out="{times[3]}"/>{children}</event>')


class JSONLines(ProgramTest):
    def both_ways(self, timeline, *rates):
        straight = run("convert", "-q", *rates, "-o", "-", timeline)
        lines = run("list", "-q", *rates, "-f", "jsonl", timeline)
        around = run("convert", "-q", "--from", "jsonl", "-o", "-", "-", stdin=lines.output)
        self.assertEqual(lines.status, OK, lines.said)
        self.assertEqual((around.output, around.status, around.said),
                         (straight.output, straight.status, straight.said))
        return straight

    def test_around_by_jsonl_is_the_same(self):
        for timeline in fixtures():
            with self.subTest(timeline=timeline.name):
                self.both_ways(timeline)
                self.both_ways(timeline, "--fps", "25", "--to", "29.97")

    def test_around_by_jsonl_is_the_same_for_generated_timelines(self):
        lengths = set()
        for name, content in timelines(60):
            with self.subTest(content=content):
                done = self.both_ways(self.put(name, content))
                lengths.add(done.output.count(b"FROM CLIP NAME"))
        self.assertGreater(len(lengths), 3)

    def test_picture_track_alone(self):
        self.put("cut.edl", NAMED + EVENT.replace(" V ", " A ") + EVENT.replace("001 ", "003 "))
        command = ("'{0}' list -f jsonl cut.edl | jq -c 'select(.track == \"V\")' | "
                   "'{0}' convert --from jsonl -o video.edl -").format(PROGRAM)
        done = subprocess.run(["bash", "-o", "pipefail", "-c", command], cwd=self.folder,
                              capture_output=True, check=True)
        self.assertEqual(done.stderr, b"")
        self.assertEqual(self.content("video.edl").count(b" V C "), 2)
        self.assertNotIn(b" A C ", self.content("video.edl"))


if __name__ == "__main__":
    main()
