# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What `clipvane-cli check` says about timelines, and about what is none."""

import json
import os
import re
import subprocess

from program import (EVENT, FAILED, NAMED, OK, PROGRAM, SUSPICIOUS, TREE, WRONG_USE, ProgramTest, Row,
                     fixtures, main, run)

MANUAL = TREE / "packaging" / "clipvane-cli.1.in"
KINDS = {"assumed-rate", "no-events", "hidden-event", "unread-event", "drop-frame", "skipped-title",
         "skipped-fcm", "skipped-m2", "skipped-comment", "skipped-blank", "skipped-line", "utf-16",
         "invalid-utf-8", "broken-xml", "unread-element", "impossible-field", "frames-beyond-rate",
         "reversed-range", "gap", "overlap"}


def event(number, source, record, track="V"):
    return f"{number:03} AX {track} C {source[0]} {source[1]} {record[0]} {record[1]}\n"


def at(frame):
    """A timecode at 25."""
    return f"{frame // 90000:02}:{frame // 1500 % 60:02}:{frame // 25 % 60:02}:{frame % 25:02}"


def played(*ranges, track="V"):
    return "* FPS: 25\n" + "".join(event(i, (at(0), at(out - into)), (at(into), at(out)), track)
                                   for i, (into, out) in enumerate(ranges, 1))


class Checked(ProgramTest):
    def findings(self, name, content, *options):
        """The findings as (kind, weight, line, row, text)."""
        self.put(name, content)
        done = self.run_program("check", "-f", "jsonl", *options, name)
        self.assertEqual((done.status, done.said), (OK, ""))
        first, *rest = [json.loads(line) for line in done.text.splitlines()]
        self.assertEqual(list(first), ["file", "events", "fps", "fpsSource"])
        for finding in rest:
            self.assertEqual(list(finding), ["file", "kind", "weight", "line", "row", "text"])
            self.assertEqual(finding["file"], name)
            self.assertIn(finding["kind"], KINDS)
        return [tuple(finding.values())[1:] for finding in rest]

    def suspicious(self, name, content, *options):
        return [(kind, line or row, text) for kind, weight, line, row, text
                in self.findings(name, content, *options) if weight == "suspicious"]

    def notes(self, name, content, *options):
        return [(kind, line or row, text) for kind, weight, line, row, text
                in self.findings(name, content, *options) if weight == "note"]


class Lines(Checked):
    def test_rate_and_events(self):
        self.assertEqual(self.findings("a.edl", NAMED)[0][0], "skipped-comment")
        self.assertEqual(self.findings("a.edl", EVENT), [
            ("assumed-rate", "note", None, None, "it names no rate: read at 24 fps")])
        self.assertEqual(self.findings("a.edl", EVENT, "--fps", "25"), [])
        self.assertEqual(self.suspicious("a.txt", "* FPS: 25\n"),
                         [("no-events", None, "it holds no events")])

    def test_skipped_lines_by_kind(self):
        text = ("* FPS: 25\nTITLE: x\nFCM: NON-DROP FRAME\n\n* a\n  * b\nfrom clip name: c\n" + EVENT
                + "* kept\nFROM CLIP NAME: kept\nM2 AX 050.0\n \t\nFCM: NON-DROP FRAME\n>>> x\n")
        for end in ("\n", "\r\n", "\r", "\u2028"):
            with self.subTest(end=end):
                self.assertEqual(self.findings("a.edl", text.replace("\n", end)), [
                    ("skipped-title", "note", 2, None, "1 title is skipped"),
                    ("skipped-fcm", "note", 3, None, "2 FCM lines are skipped"),
                    ("skipped-m2", "note", 11, None, "1 M2 line is skipped"),
                    ("skipped-comment", "note", 1, None,
                     "4 comments that belong to no event are skipped"),
                    ("skipped-blank", "note", 4, None, "2 blank lines are skipped"),
                    ("skipped-line", "note", 14, None, "1 other line is skipped")])

    def test_lines_that_look_like_events(self):
        good = "00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00"
        for line, reason in [
                ("001 AX V C " + good.replace(":00 ", ";00 "), "a drop-frame separator"),
                ("001 AX V C " + good.replace(":", "."), '"." instead of ":" in a timecode'),
                ("001 AX V C " + good.replace("00:00:00:00", "0:00:00:00"),
                 "a field of one digit in a timecode"),
                ("001 A X V C " + good, "a reel or an edit type of two words"),
                ("001 AX V K B " + good, "a reel or an edit type of two words"),
                ("001 A X V D 030 " + good, "a reel or an edit type of two words"),
                ("x01 AX V C " + good, "it begins with no event number"),
                (good, "it begins with no event number"),
                ("001 AX V " + good, "a column is missing before its timecodes"),
                ("001 AX V C " + good.replace(" 01", ",01"), "its timecodes are not separated"),
                ("001 AX V C 0 125 90000 90125", "frame counts instead of timecodes")]:
            with self.subTest(line=line):
                [(kind, number, text)] = self.suspicious("a.edl", NAMED + f"  {line} \t\n")
                self.assertEqual((kind, number), ("unread-event", 3))
                self.assertIn(f"no event is read, because of {reason}", text)
                self.assertTrue(text.endswith(": " + line), text)
        for line in ("001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00", "TITLE: x", EVENT,
                     "12:34:56 1:2:3:4:5 99:99:99:999 100:00:00:00 00:00:00:00",
                     "* LOC: " + good, "* FROM CLIP NAME: " + good, "1 2 3 4 5 6 7 8"):
            with self.subTest(line=line):
                self.assertEqual(self.suspicious("a.edl", NAMED.replace(EVENT, "") + line + "\n" + (
                    event(2, (at(0), at(1)), (at(900000), at(900001)))), "--fps", "25"), [])

    def test_byte_order_mark_hides_an_event(self):
        [(kind, number, text)] = self.suspicious("a.edl", "\ufeff" + EVENT + event(
            2, (at(0), at(1)), (at(900000), at(900001))))
        self.assertEqual((kind, number), ("hidden-event", 1))
        self.assertIn("a byte-order mark hides this event", text)
        self.assertEqual(self.suspicious("a.edl", "\ufeffTITLE: x\n" + EVENT), [])

    def test_encodings(self):
        self.assertEqual(self.suspicious("a.edl", EVENT.encode("utf-16"))[1][:2], ("utf-16", None))
        self.assertEqual(self.suspicious("a.edl", EVENT.encode("utf-16-be"))[1][:2], ("utf-16", None))
        text = "TITLE: x\r\n".encode() + EVENT.encode() + b"* FROM CLIP NAME: \xe9\n"
        self.assertEqual(self.suspicious("a.edl", text)[0][:2], ("invalid-utf-8", 3))
        self.assertEqual(self.suspicious("a.edl", b"\xe9\n" + EVENT.encode())[0][:2],
                         ("invalid-utf-8", 1))
        self.assertEqual(self.suspicious("a.edl", EVENT.encode() + b"\xe9\n")[0][:2],
                         ("invalid-utf-8", 2))

    def test_drop_frame(self):
        found = self.suspicious("a.edl", "FCM: NON-DROP FRAME\nFCM: DROP FRAME\n" + NAMED
                                + "FCM: DROP FRAME\n")
        self.assertEqual([finding[:2] for finding in found], [("drop-frame", 2)])
        self.assertIn("counted without dropping", found[0][2])
        for line, isDropped in [("fcm: Drop Frame", True), ("  FCM:DROP", True), ("FCM: non-drop", False),
                                ("FCM", False), ("DROP FRAME", False), ("", False)]:
            found = self.suspicious("a.edl", line + "\n" + NAMED)
            self.assertEqual([finding[0] for finding in found], ["drop-frame"] * isDropped, line)


class Events(Checked):
    def test_fields_that_no_rate_has(self):
        for bad in ("00:60:00:00", "00:00:60:00"):
            found = self.suspicious("a.edl", "* FPS: 25\n" + event(1, (at(0), at(1)), (bad, bad)))
            self.assertEqual([f[:2] for f in found], [("impossible-field", 1)] * 2)
            self.assertIn(bad + " has more than 59", found[0][2])

    def test_fields_that_this_rate_does_not_have(self):
        for rate, field, fits in [
                ("25", 29, "29.97, 30, 47.952, 48, 50, 59.94, 60 would fit all"),
                ("24", 24, "25, 29.97, 30, 47.952, 48, 50, 59.94, 60 would fit all"),
                ("25", 59, "59.94, 60 would fit all"),
                ("25", 60, "none of the standard rates would fit all")]:
            high = f"01:00:00:{field:02}"
            text = f"* FPS: {rate}\n" + event(1, (at(0), at(1)), (at(0), at(1))) + event(
                2, (at(0), at(1)), ("01:00:00:00", high)) + event(3, (at(0), high), (at(1), at(2)))
            self.assertEqual([f for f in self.suspicious("a.edl", text) if f[0] != "overlap"], [
                ("frames-beyond-rate", 2, f"{high} is no timecode at {rate} fps, nor is 1 other; {fits}")])
        self.assertNotIn("frames-beyond-rate", {f[0] for f in self.suspicious(
            "a.edl", text.replace("* FPS: 25\n", ""), "--fps", "61")})

    def test_reversed_ranges(self):
        text = "* FPS: 25\n" + event(1, (at(5), at(4)), (at(0), at(1))) + event(
            2, (at(0), at(1)), (at(9), at(8)))
        self.assertEqual(self.suspicious("a.edl", text), [
            ("reversed-range", 1, "source out 00:00:00:04 comes before in 00:00:00:05"),
            ("reversed-range", 2, "record out 00:00:00:08 comes before in 00:00:00:09")])

    def test_gaps_and_overlaps(self):
        for text, expected in [
                (played((0, 10), (10, 20), (20, 20), (20, 30)), []),
                (played((0, 10), (12, 20)), [("gap", 2, "track V is empty for 2 frames before it")]),
                (played((12, 20), (0, 10)), [("gap", 1, "track V is empty for 2 frames before it")]),
                (played((0, 10), (9, 20)), [("overlap", 2, "it overlaps row 1 by 1 frame on track V")]),
                (played((9, 20), (0, 10)), [("overlap", 2, "it overlaps row 1 by 1 frame on track V")]),
                (played((0, 30), (5, 10), (20, 25), (30, 40)),
                 [("overlap", 2, "it overlaps row 1 by 5 frames on track V"),
                  ("overlap", 3, "it overlaps row 1 by 5 frames on track V")]),
                (played((0, 10)) + event(2, (at(0), at(10)), (at(0), at(10)), "A"), []),
                (played((0, 10), (9, 10), track="A2"),
                 [("overlap", 2, "it overlaps row 1 by 1 frame on track A2")])]:
            with self.subTest(text=text):
                found = [f for f in self.notes("a.edl", text) + self.suspicious("a.edl", text)
                         if f[0] in ("gap", "overlap")]
                self.assertEqual(found, expected)

    def test_lists_of_other_kinds_have_no_gaps(self):
        self.put("a.edl", played((0, 10), (5, 20), (40, 50)))
        lines = self.run_program("list", "-f", "jsonl", "a.edl").output
        done = self.run_program("check", "--from", "jsonl", "-", stdin=lines)
        self.assertEqual(done.text, "standard input: 3 events at 25 fps (File)\n")


class Documents(Checked):
    def test_elements_that_are_no_events(self):
        text = ('<xmeml><timebase>25</timebase><media><video><Marker/>\n<marker/><clipitem/>'
                '<audio ref="r"/></video></media>\n<ref-clip/></xmeml>')
        self.assertEqual(self.notes("a.xml", text), [
            ("unread-element", 3, "1 <ref-clip> element is no event"),
            ("unread-element", 2, "1 <audio> element is no event"),
            ("unread-element", 1, "2 <marker> elements are no event")])

    def test_document_that_breaks_off(self):
        self.assertEqual(self.suspicious("a.xml", '<a timebase="25">\n<event/></b>'),
                         [("broken-xml", 2, "it breaks off in column 11: mismatched tag")])
        bomb = "<!DOCTYPE a [<!ENTITY e0 'ha'>" + "".join(
            f"<!ENTITY e{i} '{f'&e{i - 1};' * 10}'>" for i in range(1, 12)) + "]><a>&e11;</a>"
        self.assertEqual(self.suspicious("a.xml", bomb)[1][0], "broken-xml")


class Files(Checked):
    def test_folders_are_walked_in_the_order_of_paths(self):
        for name in ("in/b.edl", "in/A.EDL", "in/a/z.xml", "in/a.edl", "in/c.fcpxml", "in/d.xmeml",
                     "in/e.Txt", "in/notes.pdf", "in/bundle.fcpxmld/Info.fcpxml", "other.edl"):
            self.put(name, NAMED if name.lower().endswith(("edl", "txt")) else "<a><event/></a>")
        os.link(self.folder / "in/b.edl", self.folder / "in/same.edl")
        (self.folder / "in/linked").symlink_to("../in")
        (self.folder / "elsewhere").mkdir()
        self.put("elsewhere/x.edl", NAMED)
        (self.folder / "in/else").symlink_to("../elsewhere")
        done = self.run_program("check", "-f", "jsonl", "in", "other.edl", "in/a.edl")
        files = [line["file"] for line in map(json.loads, done.text.splitlines()) if "events" in line]
        self.assertEqual(files, ["in/A.EDL", "in/a.edl", "in/a/z.xml", "in/b.edl",
                                 "in/bundle.fcpxmld", "in/c.fcpxml", "in/d.xmeml", "in/e.Txt",
                                 "in/else/x.edl", "other.edl"])
        self.assertEqual((done.status, done.said), (OK, ""))

    def test_what_may_be_anything_gives_one_note_in_a_folder(self):
        for name in ("in/readme.txt", "in/settings.xml"):
            self.put(name, "hello\n\nFCM: DROP FRAME")
        done = self.run_program("check", "--strict", "in")
        self.assertEqual((done.status, done.text.splitlines()), (OK, [
            "in/readme.txt: 0 events at 24 fps (Default)", "  note: it holds no events",
            "in/settings.xml: 0 events at 24 fps (Default)", "  note: it holds no events",
            "2 timelines, 0 events, 0 suspicious, 2 notes"]))
        self.assertEqual(self.run_program("check", "--strict", "in/readme.txt").status, SUSPICIOUS)

    def test_statuses(self):
        files = {"good.edl": NAMED, "bad.edl": "FCM: DROP FRAME\n" + NAMED}
        self.try_rows([
            Row("good", ["check", "--strict", "good.edl"], files=files),
            Row("bad, not strict", ["check", "bad.edl"], files=files, holds=["suspicious: line 1"]),
            Row("bad", ["check", "--strict", "bad.edl"], SUSPICIOUS, files=files),
            Row("missing", ["check", "--strict", "gone.edl", "bad.edl"], FAILED, files=files,
                holds=["bad.edl: "], said=["gone.edl: could not be read"]),
            Row("unknown kind", ["check", "a.pdf"], FAILED, files={"a.pdf": NAMED},
                said=["a.pdf: is not called .edl"]),
            Row("told another rate", ["check", "--fps", "30", "good.edl"], files=files,
                said=["good.edl names 25 fps: read at 30 fps"]),
            Row("impossible", ["check", "a.edl", "good.edl"], FAILED, holds=["good.edl: 1 event"],
                files={"a.edl": "* FPS: 99999999999999999999", **files},
                said=["a.edl: it holds an impossible number"]),
            Row("empty folder", ["check", "in"], files={"in/notes.pdf": ""}, output="",
                said=["in holds no timelines"]),
            Row("no format", ["check", "-f", "csv", "good.edl"], WRONG_USE, files=files,
                said=["-"])])

    def test_folder_that_cannot_be_walked_whole(self):
        self.put("in/a.edl", NAMED)
        os.mkfifo(self.folder / "in/pipe.edl")
        (self.folder / "in/loop.edl").symlink_to("loop.edl")
        done = self.run_program("check", "in")
        self.assertEqual(done.status, FAILED)
        self.assertIn("in/a.edl: 1 event", done.text)
        self.assertEqual([line.split(": ")[1] for line in done.said.splitlines()],
                         ["in/loop.edl", "in/pipe.edl"])

    def test_folder_with_the_name_of_a_timeline_is_walked(self):
        self.put("cuts.edl/a.edl", NAMED)
        for folder in ("cuts.edl", "."):
            self.assertIn("cuts.edl/a.edl: 1 event", self.run_program("check", folder).text)

    def test_report_is_no_timeline_of_its_own(self):
        self.put("in/a.edl", NAMED)
        with open(self.folder / "in/report.txt", "wb") as report:
            done = subprocess.run([PROGRAM, "check", "in"], cwd=self.folder, stdout=report,
                                  stderr=subprocess.PIPE, check=False)
        self.assertEqual((done.returncode, done.stderr), (OK, b""))
        self.assertEqual(self.content("in/report.txt"), self.run_program("check", "in/a.edl").output)

    def test_report_is_not_written_over_what_is_read(self):
        path = self.put("a.edl", NAMED)
        with open(path, "ab") as report:
            done = subprocess.run([PROGRAM, "check", "a.edl"], cwd=self.folder, stdout=report,
                                  stderr=subprocess.PIPE, check=False)
        self.assertEqual((done.returncode, done.stderr.decode()), (
            FAILED, "clipvane-cli: standard output: is one of the files that are read, "
                    "and is not written over\n"))
        self.assertEqual(path.read_bytes(), NAMED.encode())

    def test_names_of_files_cannot_break_the_lines(self):
        for name in (b"new\nline.edl", b"latin\xe9.edl", "caf\u00e9.edl".encode()):
            self.put(name, NAMED)
        lines = [line for line in self.run_program("check", ".").text.splitlines()
                 if not line.startswith("  ")]
        self.assertEqual([line.split(":")[0] for line in lines[:-1]],
                         ["./caf\u00e9.edl", "./latin\ufffd.edl", "./new\ufffdline.edl"])

    def test_every_fixture(self):
        for timeline in fixtures():
            with self.subTest(timeline=timeline.name):
                done = run("check", "-f", "jsonl", timeline)
                self.assertEqual((done.status, done.said), (OK, ""))
                events = run("list", "-q", "-f", "jsonl", timeline).text.count("\n")
                self.assertEqual(json.loads(done.text.splitlines()[0])["events"], events)
                for line in done.text.splitlines()[1:]:
                    finding = json.loads(line)
                    self.assertIn(finding["kind"], KINDS)
                    if finding["kind"] == "unread-event":
                        text = timeline.read_bytes().decode("utf-8", "replace")
                        shown = re.split("\r\n|[\n\r\v\f\x85\u2028\u2029]", text)[finding["line"] - 1]
                        self.assertTrue(finding["text"].endswith(shown.strip()))


class Manual(Checked):
    def test_every_kind_stands_in_the_man_page(self):
        listed = set(re.findall(r"^\.B ([a-z0-9\\-]+)$", MANUAL.read_text().split(".SH FINDINGS")[1]
                                .split("\n.SH ")[0], re.MULTILINE))
        self.assertEqual({kind.replace("\\-", "-") for kind in listed}, KINDS)


if __name__ == "__main__":
    main()
