# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What `clipvane-cli list` prints."""

import fcntl
import json
import os
import pty
import random
import re
import struct
import subprocess
import termios
import uuid

from program import (EVENT, FAILED, NAMED, OK, PROGRAM, ProgramTest, Row, fixtures, main, run)

HEADER = ("Event,Clip Name,Reel ID,FPS,FPS Source,Source In,Source Out,Source Duration,Record In,"
          "Record Out,Record Duration,Track,Format,Highlighted,Comments\n")
KEYS = ["id", "eventNumber", "clipName", "reelID", "sourceIn", "sourceOut", "recordIn", "recordOut",
        "format", "track", "comments", "highlighted", "rawText", "file", "row", "fps", "fpsSource",
        "sourceInFrames", "sourceOutFrames", "recordInFrames", "recordOutFrames",
        "sourceDurationFrames", "recordDurationFrames"]
GUESS = " names no rate: read at 24 fps; say --fps if it was written at another"


class Rates(ProgramTest):
    def rates_of(self, *arguments, **options):
        done = self.run_program("list", "-f", "jsonl", *arguments, **options)
        event = json.loads(done.text.splitlines()[0])
        return event["fps"], event["fpsSource"], event["sourceOut"], event["sourceOutFrames"]

    def test_where_the_rate_comes_from(self):
        self.put("named.edl", NAMED)
        self.put("unnamed.edl", EVENT)
        for arguments, expected in [
                (["named.edl"], (25, "File", "00:00:05:00", 125)),
                (["unnamed.edl"], (24, "Default", "00:00:05:00", 120)),
                (["--fps", "30", "unnamed.edl"], (30, "Manual", "00:00:05:00", 150)),
                (["--fps", "25", "named.edl"], (25, "Manual", "00:00:05:00", 125)),
                (["--fps", "23.976", "named.edl"], (23.976, "Manual", "00:00:05:00", 120)),
                (["--fps", "24000/1001", "named.edl"], (24000 / 1001, "Manual", "00:00:05:00", 120)),
                (["--fps", "0.5", "named.edl"], (0.5, "Manual", "00:00:05:00", 5)),
                (["--to", "50", "named.edl"], (50, "Manual", "00:00:05:00", 250)),
                (["--fps", "30", "--to", "25", "unnamed.edl"], (25, "Manual", "00:00:05:00", 125))]:
            with self.subTest(arguments=arguments):
                self.assertEqual(self.rates_of(*arguments), expected)

    def test_xml_counts_at_the_rate_given_and_keeps_written_timecodes(self):
        self.put("cut.xml", '<xmeml><timebase>25</timebase><event><source in="50" out="2s"/>'
                            '<record in="00:00:01:00" out="1001/30000s"/></event></xmeml>')
        done = self.run_program("list", "-q", "-f", "jsonl", "--fps", "50", "cut.xml")
        event = json.loads(done.text)
        self.assertEqual([event[key] for key in ("sourceIn", "sourceOut", "recordIn", "recordOut")],
                         ["00:00:01:00", "00:00:02:00", "00:00:01:00", "00:00:00:02"])

    def test_what_is_said(self):
        event = {"cut.edl": EVENT, "named.edl": NAMED}
        self.try_rows([
            Row("named", ["list", "named.edl"], files=event),
            Row("unnamed", ["list", "cut.edl"], files=event, said=["cut.edl" + GUESS]),
            Row("quiet", ["list", "-q", "cut.edl"], files=event),
            Row("told", ["list", "--fps", "25", "cut.edl"], files=event),
            Row("told another", ["list", "--fps", "24", "named.edl"], files=event,
                said=["named.edl names 25 fps: read at 24 fps, as --fps says"]),
            Row("told the same", ["list", "--fps", "25", "named.edl"], files=event),
            Row("converted from a guess", ["list", "--to", "25", "cut.edl"], FAILED, files=event,
                output="", said=["cut.edl: names no rate, and --to would convert from a guess"]),
            Row("one fails, the other stays", ["list", "--to", "30", "cut.edl", "named.edl"],
                FAILED, files=event, holds=["named.edl: 1 event at 30 fps (Manual)"],
                said=["cut.edl: names no rate"]),
            Row("impossible number", ["list", "a.xml", "named.edl"], FAILED,
                files={"a.xml": '<a timebase="25"><clip start="1e30s"/></a>', **event},
                holds=["named.edl: 1 event"],
                said=["a.xml: it holds an impossible number: a number cannot be rounded"]),
            Row("impossible rate", ["list", "-f", "jsonl", "b.edl"], FAILED, output="",
                files={"b.edl": "* FPS: 99999999999999999999"},
                said=["b.edl: it holds an impossible number"])])


class Formats(ProgramTest):
    def test_csv_is_the_window_s_report(self):
        for timeline in fixtures():
            with self.subTest(timeline=timeline.name):
                done = run("list", "-q", "-f", "csv", timeline)
                self.assertEqual((done.status, done.said), (OK, ""))
                self.assertEqual(done.output, self.judged(timeline, ".csv"))

    def test_csv_of_several_has_one_header(self):
        row = ('"001","Clip 001","AX","25","File","00:00:00:00","00:00:05:00",'
               '"00:00:05:00 (125 frames)","01:00:00:00","01:00:05:00",'
               '"00:00:05:00 (125 frames)","V","EDL","No",""\n')
        files = {"a.edl": NAMED, "b.edl": NAMED, "none.edl": "* FPS: 25\n", "gone.txt": ""}
        self.try_rows([
            Row("two", ["list", "-f", "csv", "a.edl", "b.edl"], files=files,
                output=HEADER + row + row),
            Row("none first", ["list", "-f", "csv", "none.edl", "a.edl"], files=files,
                output=HEADER + row),
            Row("none last", ["list", "-f", "csv", "a.edl", "none.edl"], files=files,
                output=HEADER + row),
            Row("none at all", ["list", "-f", "csv", "none.edl", "none.edl"], files=files,
                output=HEADER + "\n"),
            Row("one missing", ["list", "-f", "csv", "x.edl", "a.edl"], FAILED, files=files,
                output=HEADER + row, said=["x.edl: could not be read: No such file"])])

    def test_tsv_has_the_csv_s_columns_after_the_file_and_frames_behind(self):
        for timeline in fixtures():
            with self.subTest(timeline=timeline.name):
                done = run("list", "-q", "-f", "tsv", timeline)
                lines = [line.split("\t") for line in done.text.removesuffix("\n").split("\n")]
                self.assertEqual({len(line) for line in lines}, {22})
                self.assertEqual(lines[0][1:16], HEADER.strip().split(","))
                events = [json.loads(line) for line in
                          run("list", "-q", "-f", "jsonl", timeline).text.split("\n")[:-1]]
                self.assertEqual(len(lines) - 1, len(events))
                for line, event in zip(lines[1:], events):
                    self.assertEqual(line[0], str(timeline))
                    self.assertEqual(line[1], event["eventNumber"])
                    self.assertEqual(line[16:], ["" if event[key] is None else str(event[key])
                                                 for key in KEYS[17:]])

    def test_tsv_has_blanks_for_tabs_and_line_ends(self):
        self.put("cut.xml", '<a timebase="25"><event><clipname>a\tb\nc\u2028d "e"</clipname></event></a>')
        done = self.run_program("list", "-f", "tsv", "cut.xml")
        self.assertEqual(done.text.split("\n")[1].split("\t")[2], 'a b c d "e"')
        self.assertEqual(done.text.count("\n"), 2)

    def test_jsonl_has_the_keys_in_their_order(self):
        for timeline in fixtures():
            with self.subTest(timeline=timeline.name):
                done = run("list", "-q", "-f", "jsonl", timeline)
                for number, line in enumerate(done.text.split("\n")[:-1], 1):
                    event = json.loads(line)
                    self.assertEqual(list(event), KEYS)
                    self.assertEqual((event["file"], event["row"]), (str(timeline), number))
                    for inside, out, length in [
                            ("sourceInFrames", "sourceOutFrames", "sourceDurationFrames"),
                            ("recordInFrames", "recordOutFrames", "recordDurationFrames")]:
                        if event[inside] is None or event[out] is None:
                            self.assertIsNone(event[length])
                        else:
                            self.assertEqual(event[length], event[out] - event[inside])

    def test_jsonl_holds_comment_lines_and_reversed_ranges(self):
        self.put("cut.edl", "* FPS: 25\n001 AX V C 00:00:05:00 00:00:04:00 00:00:00:00 00:00:01:00\n"
                            "* LOC: 01:00:00:00 RED  MARK\n")
        event = json.loads(self.run_program("list", "-f", "jsonl", "cut.edl").text)
        self.assertEqual(event["sourceDurationFrames"], -25)
        self.assertTrue(event["rawText"].endswith("\n* LOC: 01:00:00:00 RED  MARK"))
        self.assertTrue(re.fullmatch("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}", event["id"]))

    def test_jsonl_has_no_counts_of_what_is_no_timecode(self):
        self.put("cut.xml", '<a timebase="25"><event><source in="soon"/></event></a>')
        event = json.loads(self.run_program("list", "-f", "jsonl", "cut.xml").text)
        self.assertEqual([event[key] for key in KEYS[17:]], [None] * 6)

    def test_table_is_elided_by_nothing_but_a_terminal(self):
        name = "shot " + "x" * 300
        self.put("cut.edl", NAMED + f"* FROM CLIP NAME: {name}\n")
        done = self.run_program("list", "cut.edl")
        self.assertIn(name, done.text)
        self.assertEqual(done.text.splitlines()[0], "cut.edl: 1 event at 25 fps (File)")
        for columns in (80, 120):
            for to in ([], ["-o", "-"], ["-o", "/dev/stdout"]):
                lines = self.on_terminal(columns, "list", *to, "cut.edl").splitlines()
                self.assertEqual(len(lines), 3, lines)
                self.assertTrue(all(len(line) <= columns for line in lines), lines)
                self.assertIn("01:00:05:00  V", lines[2])
                self.assertRegex(lines[2], "001 +sh?.*\u2026x+ ")
        self.on_terminal(80, "list", "-o", "table.txt", "cut.edl")
        self.assertIn(name.encode(), self.content("table.txt"))

    def test_terminal_shows_each_table_with_what_is_said_of_it(self):
        self.put("a.edl", EVENT)
        self.put("b.edl", EVENT)
        lines = self.on_terminal(80, "list", "a.edl", "b.edl", stderr=subprocess.STDOUT).splitlines()
        self.assertEqual([line.split()[1] for line in lines if "names no rate" in line or "at 24 fps (" in line],
                         ["a.edl", "1", "b.edl", "1"])

    def test_table_shows_wide_characters_in_their_columns(self):
        self.put("cut.edl", NAMED + "* FROM CLIP NAME: \u6e2f\n" + EVENT + "* FROM CLIP NAME: e\u0301\n")
        lines = self.run_program("list", "cut.edl").text.splitlines()
        self.assertEqual(lines[2].index("AX") + 1, lines[3].index("AX") - 1)

    def test_table_shows_no_control_character(self):
        self.put("cut.edl", NAMED + "* FROM CLIP NAME: \x1b[31mred\x07 \u009b2J \u202erl\n")
        self.put("\x1b[2Jcut.edl", "")
        done = self.run_program("list", "cut.edl", "\x1b[2Jcut.edl", "gone\x1b[2J.edl", "\n.edl")
        for text in (done.text, done.said):
            self.assertEqual([c for c in text if c != "\n" and (ord(c) < 32 or ord(c) == 0x9b)], [])
        self.assertIn("\ufffd[31mred\ufffd \ufffd2J \ufffdrl", done.text)
        self.assertIn("gone\ufffd[2J.edl: could not be read", done.said)

    def on_terminal(self, columns, *arguments, stderr=subprocess.DEVNULL):
        """What the program writes to a terminal that wide."""
        main_end, terminal = pty.openpty()
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        subprocess.run([PROGRAM, *arguments], cwd=self.folder, stdout=terminal,
                       stderr=stderr, check=True, timeout=60)
        os.close(terminal)
        output = b""
        while True:
            try:
                piece = os.read(main_end, 65536)
            except OSError:
                break
            output += piece
        os.close(main_end)
        return output.decode()


class Inputs(ProgramTest):
    def test_names_and_streams(self):
        lines = self.run_program("list", "-f", "jsonl", "--from", "edl", "-",
                                 stdin=NAMED.encode()).output
        event = json.loads(lines)
        self.assertEqual((event["file"], event["fps"]), ("-", 25))
        done = self.run_program("list", "-f", "jsonl", "--from", "jsonl", "-", stdin=lines)
        self.assertEqual((done.status, done.said), (OK, ""))
        self.assertEqual(json.loads(done.text), event)

    def test_process_substitution(self):
        self.put("cut.edl", NAMED)
        for stream in ("<(cat cut.edl)", "/dev/fd/3 3< <(cat cut.edl)", "/proc/self/fd/3 3< <(cat cut.edl)"):
            done = subprocess.run(["bash", "-c", f"'{PROGRAM}' list --from edl -f csv {stream}"],
                                  cwd=self.folder, capture_output=True, check=True)
            self.assertEqual(done.stdout, run("list", "-f", "csv", self.folder / "cut.edl").output)

    def test_folder_that_is_one_timeline(self):
        self.put("cut.FCPXMLD/Info.fcpxml",
                 '<fcpxml><format frameDuration="1/25s"/><clip name="a" start="2s"/></fcpxml>')
        for name in ("cut.FCPXMLD", "cut.FCPXMLD/"):
            event = json.loads(self.run_program("list", "-f", "jsonl", name).text)
            self.assertEqual((event["file"], event["sourceIn"]), (name, "00:00:02:00"))

    def test_odd_names(self):
        for name in (b"[a,b].edl", b"list", b"-x.edl", b"latin\xe9.edl", b"a b\n.edl", b"++", b"%%"):
            with self.subTest(name=name):
                self.put(name, NAMED)
                told = () if name.endswith(b".edl") else ("--from", "edl")
                done = self.run_program("list", "-f", "jsonl", *told, "--", name)
                self.assertEqual((done.status, done.said), (OK, ""))
                shown = name.decode("utf-8", "replace")
                self.assertIn(json.loads(done.text)["file"], (shown, "./" + shown))

    def test_names_behind_the_options(self):
        for name in ("a.edl", "-x.edl", "--fps", "[y]", "++", "--"):
            self.put(name, NAMED)
        done = self.run_program("list", "-f", "jsonl", "a.edl", "--from", "edl", "--", "-x.edl", "--fps", "[y]",
                                "++", "--", "-", stdin=NAMED.encode())
        self.assertEqual((done.status, done.said), (OK, ""))
        self.assertEqual([json.loads(line)["file"] for line in done.text.splitlines()],
                         ["a.edl", "./-x.edl", "./--fps", "./[y]", "./++", "./--", "-"])
        done = self.run_program("list", "-f", "jsonl", "--from", "edl", "[y]", "++", "a.edl")
        self.assertEqual([json.loads(line)["file"] for line in done.text.splitlines()],
                         ["./[y]", "./++", "a.edl"])

    def test_what_cannot_be_read(self):
        self.put("cut.edl", NAMED)
        (self.folder / "folder.edl").mkdir()
        os.mkfifo(self.folder / "pipe.edl")
        (self.folder / "loop.edl").symlink_to("loop.edl")
        done = self.run_program("list", "gone.edl", "folder.edl", "pipe.edl", "/dev/null", "loop.edl",
                                "notes.pdf", "cut.edl")
        self.assertEqual(done.status, FAILED)
        self.assertEqual([line.split(": ", 2)[1:] for line in done.said.splitlines()], [
            ["gone.edl", "could not be read: No such file or directory"],
            ["folder.edl", "could not be read: Is a directory"],
            ["pipe.edl", "could not be read: it is not a regular file"],
            ["/dev/null", "could not be read: it is not a regular file"],
            ["loop.edl", "could not be read: Too many levels of symbolic links"],
            ["notes.pdf", "could not be read: No such file or directory"]])
        self.assertIn("cut.edl: 1 event", done.text)

    def test_unknown_extension(self):
        self.put("cut.pdf", NAMED)
        self.try_row(Row("", ["list", "cut.pdf"], FAILED, output="",
                         said=["cut.pdf: is not called .edl, .txt, .xml, .fcpxml or .xmeml: say with --from"]))
        self.try_row(Row("", ["list", "--from", "edl", "cut.pdf"], holds=["cut.pdf: 1 event"]))


class JSONLines(ProgramTest):
    def test_bad_lines_fail_the_file_with_their_number(self):
        self.put("cut.edl", NAMED + EVENT)
        lines = self.run_program("list", "-f", "jsonl", "cut.edl").text.splitlines()
        event = json.loads(lines[1])
        without = {key: value for key, value in event.items() if key != "track"}
        for bad, reason in [
                ("{", "is not JSON"), ("[1]", "is no JSON object"),
                (json.dumps(without), 'lacks "track", or it is not a text'),
                (json.dumps({**event, "highlighted": "no"}), 'lacks "highlighted", or it is not true'),
                (json.dumps({**event, "clipName": None}), 'lacks "clipName", or it is not a text'),
                (json.dumps({**event, "fps": "25"}), 'lacks "fps", or it is not a number above 0'),
                (json.dumps({**event, "fps": 0}), 'lacks "fps", or it is not a number above 0'),
                (json.dumps({**event, "fpsSource": "Guess"}), 'lacks "fpsSource"'),
                (json.dumps({**event, "id": "x"}), 'has an "id" that is no UUID'),
                (json.dumps({**event, "fps": 24}), 'has another "fps" than the lines before')]:
            with self.subTest(bad=bad):
                stdin = "\n".join([lines[0], "", " \t\r", bad]).encode()
                done = self.run_program("list", "--from", "jsonl", "-", stdin=stdin)
                self.assertEqual((done.status, done.text), (FAILED, ""))
                self.assertIn("clipvane-cli: standard input: line 4 " + reason, done.said)

    def test_texts_are_written_as_json_writes_them(self):
        """Whatever characters they hold: Python's own writer is the judge."""
        chance = random.Random(5)
        usual = "abc \n\r\t\"\\/\u00e9\u6e2f\U0001f3ac\u2028"
        rare = usual + "".join(map(chr, range(32))) + "\x7f\x80\ufffd\uffff"
        events = []
        for row in range(300):
            texts = {key: "".join(chance.choices(chance.choice([usual, rare]), k=chance.randrange(9)))
                     for key in KEYS[1:13] if key != "highlighted"}
            events.append({"id": str(uuid.UUID(int=chance.getrandbits(128))).upper(), **texts,
                           "highlighted": row % 2 == 0, "fps": 25, "fpsSource": "File"})
        done = self.run_program("list", "-f", "jsonl", "--from", "jsonl", "-",
                                stdin="\n".join(map(json.dumps, events)).encode())
        self.assertEqual((done.status, done.said), (OK, ""))
        lines = done.text.split("\n")[:-1]
        self.assertEqual(len(lines), len(events))
        for line, event in zip(lines, events):
            written = {key: event[key] for key in KEYS[:13]}
            form = json.dumps(written, ensure_ascii=False, separators=(",", ":"))
            self.assertEqual(line[:len(form) - 1], form[:-1])

    def test_different_rates_are_one_when_told(self):
        self.put("a.edl", NAMED)
        self.put("b.edl", EVENT.replace("* FPS: 25", ""))
        lines = self.run_program("list", "-q", "-f", "jsonl", "a.edl", "b.edl").output
        done = self.run_program("list", "--fps", "30", "-f", "jsonl", "--from", "jsonl", "-",
                                stdin=lines)
        self.assertEqual([(json.loads(line)["fps"], json.loads(line)["fpsSource"])
                          for line in done.text.splitlines()], [(30, "Manual")] * 2)

    def test_another_rate_than_the_lines_name_is_said(self):
        self.put("a.edl", NAMED)
        self.put("b.edl", NAMED.replace("25", "24"))
        for files, told, named in [(["a.edl"], "30", "25"), (["a.edl"], "25", None),
                                   (["b.edl", "a.edl"], "24", "25"), (["b.edl", "a.edl"], "25", "24"),
                                   (["a.edl", "b.edl"], "30", "25")]:
            with self.subTest(files=files, told=told):
                lines = self.run_program("list", "-f", "jsonl", *files).output
                done = self.run_program("list", "--fps", told, "--from", "jsonl", "-", stdin=lines)
                self.assertEqual(done.said, f"clipvane-cli: standard input names {named} fps: read at "
                                 f"{told} fps, as --fps says\n" if named else "")

    def test_guess_stays_a_guess(self):
        self.put("cut.edl", EVENT)
        lines = self.run_program("list", "-q", "-f", "jsonl", "cut.edl").output
        done = self.run_program("list", "--from", "jsonl", "--to", "25", "-", stdin=lines)
        self.assertEqual((done.status, done.text), (FAILED, ""))
        done = self.run_program("list", "--from", "jsonl", "--fps", "24", "--to", "25", "-", stdin=lines)
        self.assertEqual((done.status, done.said), (OK, ""))

    def test_empty_stream_is_an_empty_list(self):
        for stdin in (b"", b"\n\n"):
            done = self.run_program("list", "-f", "csv", "--from", "jsonl", "-", stdin=stdin)
            self.assertEqual((done.status, done.said, done.text), (OK, "", HEADER + "\n"))


if __name__ == "__main__":
    main()
