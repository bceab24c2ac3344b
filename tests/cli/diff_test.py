# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What `clipvane-cli diff` prints and says, and what docs/diff.md shows of it."""

import csv
import fcntl
import io
import json
import os
import pty
import re
import struct
import subprocess
import termios

from program import (EVENT, FAILED, NAMED, OK, PROGRAM, SUSPICIOUS, TREE, WRONG_USE, ProgramTest,
                     Row, fixtures, main)

DOCUMENT = TREE / "docs" / "diff.md"
TIMELINES = TREE / "docs" / "diff"

A = "001  A  V  C  00:00:00:00 00:00:02:00 00:00:00:00 00:00:02:00\n"
B = "002  B  V  C  00:00:00:00 00:00:02:00 00:00:02:00 00:00:04:00\n"
X = "002  X  V  C  00:00:00:00 00:00:00:12 00:00:02:00 00:00:02:12\n"
B_LATER = "003  B  V  C  00:00:00:00 00:00:02:00 00:00:02:12 00:00:04:12\n"
OLD = A + B
NEW = A + X + B_LATER
PAIR = {"old.edl": OLD, "new.edl": NEW}
SUMS = ("Events: 1 new, 1 shifted, 1 same. Frames: 100 kept, 12 new, 0 again, 0 gone, 0 fewer. "
        "The cut is 12 longer.\n")
GUESS = "names no rate: read at 24 fps"
DROP = "FCM: DROP FRAME\n"


def blocks(info):
    text = DOCUMENT.read_text(encoding="utf-8")
    found = re.findall(rf"^```{info}\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)
    assert found, info
    return found


def timecode(frames):
    return f"{frames // 90000:02}:{frames // 1500 % 60:02}:{frames // 25 % 60:02}:{frames % 25:02}"


def edl(notation):
    """An EDL at 25 fps from "A 0-50 @0, B 0-100 in 50 @50 on V2"."""
    lines = []
    for number, event in enumerate(notation.split(", "), 1):
        reel, source_in, source_out, length, place, track = re.fullmatch(
            r"(\w+) (\d+)-(\d+)(?: in (\d+))? @(\d+)(?: on (\w+))?", event).groups()
        length = int(length or int(source_out) - int(source_in))
        times = [int(source_in), int(source_out), int(place), int(place) + length]
        lines.append(f"{number:03}  {reel} {track or 'V'} C  {' '.join(map(timecode, times))}\n")
    return "".join(lines)


class Documented(ProgramTest):
    def test_the_small_cuts_are_reported_as_shown(self):
        shown = blocks("cuts")
        self.assertEqual(len(shown), 10)
        for block in shown:
            with self.subTest(block):
                old, new, report = re.fullmatch(r"OLD ([^\n]*)\nNEW ([^\n]*)\n\n(.*)", block,
                                                re.DOTALL).groups()
                self.put("old.edl", edl(old))
                self.put("new.edl", edl(new))
                done = self.run_program("diff", "--fps", "25", "old.edl", "new.edl")
                self.assertEqual((done.status, done.said), (OK, ""))
                *lines, _, sums = done.text.splitlines()
                width = lines[0].index("Record in OLD")
                own = [line[:width].rstrip() for line in lines] + ["", sums]
                self.assertEqual("\n".join(own) + "\n", report)

    def test_the_commands_print_what_is_shown(self):
        for block in blocks("console"):
            command, output = block.split("\n", 1)
            with self.subTest(command):
                words = command.removeprefix("$ ").split()
                self.assertEqual(words[:2], ["clipvane-cli", "diff"])
                done = subprocess.run([PROGRAM, *words[1:]], cwd=TIMELINES, capture_output=True,
                                      text=True, encoding="utf-8", check=True)
                self.assertEqual(done.stderr, "")
                lines = [line.rstrip() for line in done.stdout.splitlines()]
                self.assertEqual("\n".join(lines) + "\n", output)

    def test_every_field_is_told(self):
        self.put("a.edl", NAMED)
        header = self.run_program("diff", "-f", "csv", "a.edl", "a.edl").text
        told = re.findall(r"`(\w+)`", DOCUMENT.read_text(encoding="utf-8"))
        for name in next(csv.reader([header])):
            self.assertIn(name, told)


class Formats(ProgramTest):
    def test_formats(self):
        self.try_rows([
            Row("table", ["diff", "--fps", "25", "old.edl", "new.edl"], files=PAIR,
                holds=["V               2        new             ", "  X     Clip 002\n", "\n\n" + SUMS]),
            Row("nothing", ["diff", "--fps", "25", "old.edl", "old.edl"], files=PAIR,
                output="Events: 2 same. Frames: 100 kept, 0 new, 0 again, 0 gone, 0 fewer. "
                       "The cut is as long as it was.\n"),
            Row("change list", ["diff", "--fps", "25", "-f", "edl", "old.edl", "new.edl"],
                files=PAIR, output="* FPS: 25\nTITLE: Changes\nFCM: NON-DROP FRAME\n\n"
                "001  OLDCUT V C        00:00:00:00 00:00:02:00 00:00:00:00 00:00:02:00\n"
                "* NOT IN OLDCUT: 00:00:02:00 00:00:02:12 X Clip 002\n\n"
                "002  OLDCUT V C        00:00:02:00 00:00:04:00 00:00:02:12 00:00:04:12\n"),
            Row("into a file", ["diff", "--fps", "25", "-f", "csv", "-o", "a.csv", "old.edl",
                                "new.edl"], files=PAIR, output=""),
            Row("a file that is there", ["diff", "--fps", "25", "-o", "a.txt", "old.edl",
                                         "new.edl"], FAILED, files={**PAIR, "a.txt": "mine"},
                output="", said=["a.txt: "], after={"a.txt": "mine"}),
            Row("over an input", ["diff", "--fps", "25", "--force", "-o", "new.edl", "old.edl",
                                  "new.edl"], FAILED, files=PAIR, output="",
                said=["new.edl: is one of the timelines"], after={"new.edl": NEW})])

    def test_csv_and_jsonl_say_the_same(self):
        self.put("old.edl", OLD)
        self.put("new.edl", NEW)
        both = ["--fps", "25", "old.edl", "new.edl"]
        rows = list(csv.DictReader(io.StringIO(self.run_program("diff", "-f", "csv", *both).text)))
        lines = [json.loads(line)
                 for line in self.run_program("diff", "-f", "jsonl", *both).text.splitlines()]
        self.assertEqual([row["change"] for row in rows], ["new", "shifted"])
        self.assertEqual([row["shift"] for row in rows], ["", "12"])
        sums = lines.pop()["sums"]
        self.assertEqual((sums["kept"], sums["new"], sums["longer"]), (100, 12, 12))
        self.assertEqual(sums["events"]["shifted"], 1)
        self.assertEqual(len(lines), len(rows))
        for row, line in zip(rows, lines):
            line["change"] = " ".join(line["change"])
            self.assertEqual(list(row), list(line))
            self.assertEqual(row, {key: "" if value is None else str(value)
                                   for key, value in line.items()})

    def lines(self, old, new, *options):
        self.put("old.edl", edl(old))
        self.put("new.edl", edl(new))
        done = self.run_program("diff", "--fps", "25", "-f", "jsonl", *options, "old.edl",
                                "new.edl")
        return [json.loads(line) for line in done.text.splitlines()]

    def test_each_count_stands_in_its_field(self):
        *lines, sums = self.lines(
            "A 100-200 @0 on V1, B 0-50 @0 on V2, C 0-100 @0 on V3, D 0-40 @0 on V4, "
            "D 52-100 @40 on V4, E 0-50 @0 on V5, F 0-50 @0 on V6, F 20-50 @50 on V6, "
            "I 0-10 @0 on V7, J 0-10 @10 on V7, L 0-9 @10 on V8, K 0-10 @0 on V8",
            "A 90-205 @300 on V1, B 7-57 @12 on V2, C 0-40 @0 on V3, C 52-70 @40 on V3, "
            "C 80-100 @58 on V3, D 3-100 @0 on V4, E 0-50 @0 on V5, E 10-30 @50 on V5, "
            "F 0-50 @0 on V6, I 0-10 @0 on V7, J 0-10 @15 on V7, K 0-10 @0 on V8, "
            "M 0-8 @10 on V8")
        found = [" ".join([line["track"], *line["change"]] +
                          [f"{key} {value}" for key, value in line.items() if isinstance(value, int)
                           and (value or not key.endswith("Frames"))]) for line in lines]
        self.assertEqual(found, [
            "V1 trimmed shifted oldRow 1 newRow 1 head 10 tail 5 inside 0 shift 310 newFrames 15",
            "V2 slipped shifted oldRow 2 newRow 2 sourceShift 7 shift 12 newFrames 7 goneFrames 7",
            "V3 split oldRow 3 newRow 3 piece 1 pieces 3 shift 0 goneFrames 22",
            "V3 trimmed split shifted oldRow 3 newRow 4 head -12 tail 0 inside 0 piece 2 pieces 3 "
            "shift -12 goneFrames 22",
            "V3 trimmed split shifted oldRow 3 newRow 5 head -10 tail 0 inside 0 piece 3 pieces 3 "
            "shift -22 goneFrames 22",
            "V4 trimmed joined shifted oldRow 4 newRow 6 head -3 tail 0 inside 12 parts 2 shift -3 "
            "newFrames 12 goneFrames 3",
            "V5 again newRow 8 againFrames 20",
            "V6 fewer oldRow 8 fewerFrames 30",
            "V7 black longer 5",
            "V7 shifted oldRow 10 newRow 11 shift 5",
            "V8 gone oldRow 11 goneFrames 9",
            "V8 new newRow 13 inPlaceOf 11 newFrames 8"])
        counts = {key: value for key, value in sums["sums"].items() if key != "events"}
        self.assertEqual(counts, {
            "newEvents": 13, "oldEvents": 12, "kept": 436, "keptInOld": 436, "new": 42, "again": 20,
            "gone": 41, "fewer": 30, "longer": 315})

    def test_each_text_stands_in_its_field(self):
        line = self.lines("A 100-200 @0 on V1", "A 90-205 @300 on V1")[0]
        fields = ("Event", "Reel", "Name", "Track", "SourceIn", "SourceOut", "RecordIn", "RecordOut")
        self.assertEqual([line["old" + field] for field in fields], [
            "001", "A", "Clip 001", "V1", "00:00:04:00", "00:00:08:00", "00:00:00:00",
            "00:00:04:00"])
        self.assertEqual([line["new" + field] for field in fields], [
            "001", "A", "Clip 001", "V1", "00:00:03:15", "00:00:08:05", "00:00:12:00",
            "00:00:16:15"])

    def test_sums_of_a_track_count_what_either_list_has_there(self):
        sums = self.lines("A 0-50 @0, B 0-30 @50", "A 0-50 @0, B 0-30 @50 on A", "--track",
                          "A")[-1]["sums"]
        self.assertEqual([sums[key] for key in ("newEvents", "oldEvents", "kept", "keptInOld")],
                         [1, 0, 30, 0])

    def test_csv_quotes_and_keeps_a_line_for_each_change(self):
        clip = '<clip name="the &quot;best&quot;&#10;take" start="0s" duration="2s" offset="0s"/>'
        self.put("old.xml", f"<a>{clip}</a>")
        self.put("new.xml", f"<a>{clip.replace('take', 'part')}</a>")
        text = self.run_program("diff", "--fps", "25", "-f", "csv", "old.xml", "new.xml").text
        self.assertEqual(len(text.splitlines()), 3)
        rows = list(csv.DictReader(io.StringIO(text)))
        self.assertEqual(rows[0]["oldName"], 'the "best" take')

    def test_frames_that_are_paired_elsewhere_are_told(self):
        first, second, third = edl("A 100-180 @50, A 160-210 @200, B 0-50 @250").splitlines(True)
        self.put("old.edl", first + second + "* FROM CLIP NAME: another\n" + third)
        self.put("new.edl", edl("A 100-160 @140, A 160-210 @200, B 0-50 @250"))
        text = self.run_program("diff", "--fps", "25", "old.edl", "new.edl").text
        self.assertIn("20 frames from elsewhere in OLD", text)

    def test_frames_are_told_where_no_word_tells_them(self):
        for old, new, phrase in (
                ("A 0-50 @0", "A 0-50 @0, A 40-60 @50",
                 "new; 10 frames new; 10 frames again"),
                ("A 0-100 @0, A 50-100 @300", "A 0-100 @0, A 0-70 @200, A 70-100 @320",
                 "again; 50 frames again; 20 frames from elsewhere in OLD"),
                ("A 0-100 in 50 @0, A 0-100 in 80 @50", "A 0-100 in 50 @0, A 0-100 in 50 @50",
                 "retimed: 100 in 80 to 100 in 50; 50 frames again"),
                ("Z 0-10 @50, A 0-100 @100", "Z 0-10 @0, A 40-60 @90, A 0-100 @200",
                 "split 1/2; shifted 100 later; 20 frames again"),
                ("A 100-200 @0", "A 90-197 @0",
                 "trimmed: head 10 longer, tail 3 shorter; shifted 10 later"),
                ("A 100-180 @50, A 160-210 @200, B 0-50 @250",
                 "A 100-160 @150, A 160-210 @210, B 0-50 @260",
                 "shifted 10 later; 20 frames from elsewhere in OLD")):
            with self.subTest(phrase):
                self.put("old.edl", edl(old))
                self.put("new.edl", edl(new))
                text = self.run_program("diff", "--fps", "25", "old.edl", "new.edl").text
                self.assertIn(f"  {phrase}  ", text)

    def test_verbose_lists_each(self):
        old = A + B
        new = A.replace("00:00:00:00 00:00:02:00\n", "00:00:01:00 00:00:03:00\n") + \
            B.replace("00:00:02:00 00:00:04:00\n", "00:00:03:00 00:00:05:00\n")
        self.put("old.edl", old)
        self.put("new.edl", new)
        both = ["--fps", "25", "old.edl", "new.edl"]
        self.assertIn("V      1-2      1-2      2 events shifted 25 later",
                      self.run_program("diff", *both).text)
        self.assertEqual(self.run_program("diff", "--verbose", *both).text.count("shifted 25"), 2)


    def test_what_is_not_compared_is_listed_where_all_is(self):
        point = "002  B  V  C  00:00:07:00 00:00:07:00 00:00:02:00 00:00:02:00\n"
        odd = "003  C  V  C  00:00:07:00 00:00:09:00 00:00:02:00 00:00:01:00\n"
        self.put("old.edl", A + odd)
        self.put("new.edl", A + point)
        both = ["--fps", "25", "old.edl", "new.edl"]
        self.assertEqual(self.run_program("diff", *both).text.count("not compared"), 1)
        lines = self.run_program("diff", "--verbose", *both).text.splitlines()
        told = [line.split()[:4] for line in lines if " not compared  " in line]
        self.assertEqual(told, [["V", "2", "not", "compared"]] * 2)
        rows = list(csv.DictReader(io.StringIO(self.run_program("diff", "-f", "csv", *both).text)))
        self.assertEqual([(row["change"], row["oldRow"], row["newRow"]) for row in rows],
                         [("not compared", "2", ""), ("not compared", "", "2")])
        first = json.loads(self.run_program("diff", "-f", "jsonl", *both).text.splitlines()[0])
        self.assertEqual((first["change"], first["oldReel"]), (["not compared"], "C"))

    def test_a_narrow_terminal_shows_what_changed_and_where_whole(self):
        trimmed = B.replace("00:00:00:00 00:00:02:00", "00:00:00:10 00:00:02:00") \
            .replace("00:00:04:00", "00:00:03:15").replace("  B  ", "  A_LONG_REEL_OF_THE_CAMERA  ")
        self.put("old.edl", A + B.replace("  B  ", "  A_LONG_REEL_OF_THE_CAMERA  "))
        self.put("new.edl", A + trimmed)
        main_end, terminal = pty.openpty()
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, 80, 0, 0))
        subprocess.run([PROGRAM, "diff", "-q", "--fps", "25", "old.edl", "new.edl"],
                       cwd=self.folder, stdout=terminal, check=True)
        os.close(terminal)
        text = os.read(main_end, 65536).decode()
        os.close(main_end)
        self.assertIn("trimmed: head 10 shorter; shifted 10 earlier", text)
        self.assertIn("00:00:02:00 - 00:00:04:00  00:00:02:00 - 00:00:03:15", text)
        self.assertNotIn("A_LONG_REEL_OF_THE_CAMERA", text)


class Uses(ProgramTest):
    def test_statuses(self):
        self.try_rows([
            Row("one list", ["diff", "old.edl"], WRONG_USE, files=PAIR, output="",
                said=["takes two timelines"]),
            Row("three", ["diff", "old.edl", "new.edl", "old.edl"], WRONG_USE, files=PAIR,
                output="", said=["takes two timelines"]),
            Row("both from standard input", ["diff", "--from", "edl", "-", "-"], WRONG_USE,
                output="", said=[""]),
            Row("two tracks in a change list", ["diff", "-f", "edl", "--track", "V", "--track",
                                                "A", "old.edl", "new.edl"], WRONG_USE, files=PAIR,
                output="", said=["say --track once"]),
            Row("verbose csv", ["diff", "--verbose", "-f", "csv", "old.edl", "new.edl"], WRONG_USE,
                files=PAIR, output="", said=["--verbose is for the table"]),
            Row("no such list", ["diff", "--fps", "25", "old.edl", "no.edl"], FAILED, files=PAIR,
                output="", said=["no.edl: could not be read"]),
            Row("no such track", ["diff", "--fps", "25", "--track", "Q", "old.edl", "new.edl"],
                FAILED, files=PAIR, output="", said=['neither list has a track "Q"']),
            Row("strict", ["diff", "--fps", "25", "--strict", "old.edl", "new.edl"], SUSPICIOUS,
                files=PAIR),
            Row("strict and the same", ["diff", "--fps", "25", "--strict", "old.edl", "old.edl"],
                files=PAIR),
            Row("strict and not compared",
                ["diff", "-q", "--strict", "old.edl", "new.edl"], SUSPICIOUS,
                files={"old.edl": A, "new.edl": A + B.replace("00:00:04:00", "00:00:02:00")}),
            Row("standard input", ["diff", "--fps", "25", "--from", "edl", "-", "new.edl"],
                stdin=OLD.encode(), files=PAIR, holds=[SUMS]),
            Row("impossible number", ["diff", "--fps", "25", "a.xml", "new.edl"], FAILED,
                files={**PAIR, "a.xml": '<a><clip start="1e30s"/></a>'}, output="",
                said=["a.xml: it holds an impossible number"]),
            Row("a count beyond 64 bits", ["diff", "--fps", "25", "a.xml", "a.xml"], FAILED,
                files={"a.xml": '<a><clip name="a" start="9223372036854775000" '
                                'offset="-9000000000000000s" duration="7"/></a>'}, output="",
                said=["a.xml and a.xml: they cannot be compared: a frame count exceeds 64 bits"])])

    def test_rates(self):
        files = {**PAIR, "named.edl": "* FPS: 25\n" + OLD, "at30.edl": "* FPS: 30\n" + NEW}
        self.try_rows([
            Row("none named", ["diff", "old.edl", "new.edl"], files=files,
                said=["old.edl " + GUESS, "new.edl " + GUESS]),
            Row("none named, quiet", ["diff", "-q", "old.edl", "new.edl"], files=files),
            Row("one named", ["diff", "named.edl", "new.edl"], FAILED, files=files, output="",
                said=["named.edl names 25 fps, new.edl names no rate"]),
            Row("two bases", ["diff", "named.edl", "at30.edl"], FAILED, files=files, output="",
                said=["named.edl is at 25 fps, at30.edl at 30 fps: say with --to"]),
            Row("two bases, converted", ["diff", "--to", "25", "named.edl", "at30.edl"],
                files=files, holds=["new"]),
            Row("a guess is not converted", ["diff", "--to", "25", "old.edl", "new.edl"], FAILED,
                files=files, output="", said=["old.edl names no rate"]),
            Row("an empty list is at any rate", ["diff", "named.edl", "none.edl"],
                files={**files, "none.edl": "TITLE: none\n"}, holds=["2 gone"],
                said=["none.edl has no event"]),
            Row("an empty first list, too", ["diff", "none.edl", "at30.edl"],
                files={**files, "none.edl": "TITLE: none\n"},
                holds=["3 new", "Frames: 0 kept, 132 new"], said=["none.edl has no event"]),
            Row("told another", ["diff", "--fps", "24", "named.edl", "old.edl"], files=files,
                said=["named.edl names 25 fps: read at 24 fps"])])

    def test_drop_frame_timecode_is_counted_with_dropping(self):
        # The cut stands at the first frame number of a minute that exists.
        event = "001  A  V  C  00:00:58:00 00:01:00:02 00:00:58:00 00:01:00:02\n"
        files = {"drop.edl": DROP + event, "plain.edl": event,
                 "mixed.edl": DROP + event + "FCM: NON-DROP FRAME\n" + event}
        self.try_rows([
            Row("both drop", ["diff", "--fps", "29.97", "drop.edl", "drop.edl"], files=files,
                holds=["Frames: 60 kept"]),
            Row("none does", ["diff", "--fps", "29.97", "plain.edl", "plain.edl"], files=files,
                holds=["Frames: 62 kept"]),
            Row("one does", ["diff", "--fps", "29.97", "drop.edl", "plain.edl"], FAILED,
                files=files, output="", said=["drop.edl counts in drop-frame timecode"]),
            Row("both kinds", ["diff", "--fps", "29.97", "mixed.edl", "mixed.edl"], FAILED,
                files=files, output="", said=["mixed.edl has both"]),
            Row("no such base", ["diff", "--fps", "25", "drop.edl", "drop.edl"], FAILED,
                files=files, output="", said=["which 25 fps has not: say --fps 29.97"]),
            Row("converted", ["diff", "--fps", "29.97", "--to", "25", "drop.edl", "drop.edl"],
                FAILED, files=files, output="", said=["cannot be converted"]),
            Row("change list", ["diff", "--fps", "29.97", "-f", "edl", "drop.edl", "drop.edl"],
                FAILED, files=files, output="", said=["drop-frame"])])

    def test_what_is_said(self):
        named = "* FROM CLIP NAME: BOAT\n"
        clip = '<clip name="BOAT" start="0s" offset="0s" duration="2s"/>'
        self.try_rows([
            Row("a namesake", ["diff", "--fps", "25", "old.edl", "new.edl"],
                files={"old.edl": A + B + named, "new.edl": A + B.replace("B ", "B2 ") + named},
                holds=["in place of 2"], said=["--by name may find it"]),
            Row("a namesake in another spelling", ["diff", "--fps", "25", "old.edl", "new.edl"],
                files={"old.edl": A + B + "* FROM CLIP NAME: Pr\u00EAt\n",
                       "new.edl": A + B.replace("B ", "B2 ") + "* FROM CLIP NAME: Pre\u0302t\n"},
                holds=["in place of 2"], said=["--by name may find it"]),
            Row("found by name", ["diff", "--fps", "25", "--by", "name", "old.edl", "new.edl"],
                files={"old.edl": A + B + named, "new.edl": A + B.replace("B ", "B2 ") + named},
                holds=["Events: 2 same."]),
            Row("EDL and XML", ["diff", "--fps", "25", "old.edl", "new.xml"],
                files={"old.edl": A + named, "new.xml": f"<a>{clip}</a>"},
                holds=["Events: 1 same."],
                said=["no track in common", "by name", "from the file's start"]),
            Row("broken off", ["diff", "--fps", "25", "a.xml", "b.xml"],
                files={"a.xml": f"<a>{clip}</a>", "b.xml": f"<a>{clip}<b>"},
                said=["b.xml breaks off", "by name"]),
            Row("no events", ["diff", "--fps", "25", "old.edl", "none.edl"],
                files={"old.edl": A, "none.edl": "TITLE: none\n"}, holds=["1 gone"],
                said=["none.edl has no event: all of the other list reads as gone"]),
            Row("no events in either", ["diff", "--fps", "25", "none.edl", "none.edl"],
                files={"none.edl": "TITLE: none\n"}, output="Events: none. Frames: 0 kept, 0 new, "
                "0 again, 0 gone, 0 fewer. The cut is as long as it was.\n")])

    def test_tracks_are_chosen_after_the_pairing(self):
        sound = B.replace(" V ", " A ")
        self.put("old.edl", A + B)
        self.put("new.edl", A + sound)
        done = self.run_program("diff", "--fps", "25", "--track", "A", "old.edl", "new.edl")
        self.assertIn("track V to A", done.text)
        self.assertIn("Events: 1 on another track. Frames: 50 kept, 0 new", done.text)
        done = self.run_program("diff", "--fps", "25", "-f", "edl", "old.edl", "new.edl")
        self.assertEqual(done.status, FAILED)
        self.assertIn("say --track", done.said)

    def test_a_track_is_chosen_in_any_spelling(self):
        composed, decomposed = "Pr\u00EAt", "Pre\u0302t"
        sound = B.replace(" V ", f" {composed} ")
        self.put("old.edl", A + sound)
        self.put("new.edl", A + sound)
        for format_ in ("table", "edl"):
            done = self.run_program("diff", "--fps", "25", "-f", format_, "--track", decomposed,
                                    "old.edl", "new.edl")
            self.assertEqual((done.status, done.said), (OK, ""))
        self.assertIn(f"OLDCUT {composed} C        00:00:02:00 00:00:04:00", done.text)

    def test_a_track_is_chosen_though_the_other_list_is_empty(self):
        self.put("old.edl", A + B.replace(" V ", " A "))
        self.put("none.edl", "TITLE: none\n")
        for lists, word in ((("old.edl", "none.edl"), "gone"), (("none.edl", "old.edl"), "new")):
            done = self.run_program("diff", "-q", "--fps", "25", "--track", "A", *lists)
            self.assertEqual(done.status, OK)
            self.assertIn(f"Events: 1 {word}. ", done.text)
            self.assertRegex(done.text, r"\nA  .*" + word)

    def test_no_track_is_chosen_where_none_is_compared(self):
        self.put("old.edl", A)
        self.put("new.edl", A.replace(" V ", " V9 "))
        done = self.run_program("diff", "--fps", "25", "--track", "V", "old.edl", "new.edl")
        self.assertEqual(done.status, FAILED)
        self.assertIn("no track in common", done.said)

    def test_every_list_is_the_same_as_itself(self):
        for path in fixtures():
            with self.subTest(path=path):
                text = path.read_bytes()
                kinds = set(re.findall(rb"^FCM:\s*(DROP|NON-DROP)", text, re.MULTILINE))
                rate = "29.97" if kinds == {b"DROP"} else "25"
                done = self.run_program("diff", "-q", "--strict", "--fps", rate, path, path)
                if len(kinds) > 1:
                    self.assertEqual(done.status, FAILED)
                elif b"99999999" not in text and b"1e30" not in text:
                    self.assertEqual((done.status, done.said), (OK, ""))
                    self.assertTrue(done.text.startswith("Events: "), done.text)


if __name__ == "__main__":
    main()
