# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What examples/survey says about timelines, and about what is none.

    survey_test.py SURVEY
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

SURVEY = pathlib.Path(sys.argv[1]).absolute()
EVENT = "001  AX  V  C  00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00"


class Survey(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def put(self, name, content):
        path = self.folder / name
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(content.encode() if isinstance(content, str) else content)

    def survey(self, *arguments):
        """Exit status, lines of the output, and what was said on the standard error."""
        done = subprocess.run([SURVEY, *arguments], cwd=self.folder, capture_output=True,
                              text=True, encoding="utf-8", check=False)
        return done.returncode, done.stdout.splitlines(), done.stderr

    def test_no_argument_tells_the_usage(self):
        for arguments in ([], ["--lines"]):
            self.assertEqual(self.survey(*arguments),
                             (2, [], "usage: survey [--lines] FILE-OR-FOLDER ...\n"))

    def test_folder_without_timelines_says_so(self):
        self.put("notes.pdf", "")
        self.assertEqual(self.survey("."), (1, [], "survey: no timelines found\n"))

    def test_missing_file_says_so_and_the_others_are_read(self):
        self.put("a.edl", EVENT)
        status, lines, said = self.survey("gone.edl", "a.edl")
        self.assertEqual((status, said), (1, "survey: gone.edl: No such file or directory\n"))
        self.assertIn("1 timelines, 1 events, 0 unread lines, 1 failures", lines[-1])

    def test_file_of_another_kind_says_so(self):
        self.put("notes.pdf", EVENT)
        status, lines, said = self.survey("notes.pdf")
        self.assertEqual((status, lines), (1, []))
        self.assertIn("survey: notes.pdf: not a timeline: its name ends in none of .edl", said)

    def test_file_that_cannot_be_read_gives_the_reason_in_its_place(self):
        os.mkfifo(self.folder / "pipe.edl")
        self.put("z.edl", EVENT)
        status, lines, _ = self.survey(".")
        self.assertEqual(status, 1)
        self.assertIn('"pipe.edl" could not be read: Not a regular file.', lines[1])
        self.assertIn("1 timelines, 1 events, 0 unread lines, 1 failures", lines[-1])

    def test_file_that_stops_the_program_does_not_stop_the_survey(self):
        self.put("a.xml", '<a><clip start="1e30s"/></a>')
        self.put("b.edl", "* FPS: 99999999999999999999")
        self.put("c.edl", EVENT)
        status, lines, _ = self.survey(".")
        self.assertEqual(status, 1)
        for line in lines[1:3]:
            self.assertIn("Clipvane stops at this file: a number cannot be rounded", line)
        self.assertIn("1 timelines, 1 events, 0 unread lines, 2 failures", lines[-1])

    def test_formats_and_rates(self):
        self.put("a.EDL", "* FPS: 25\n" + EVENT)
        self.put("b.xml", "<xmeml><timebase>30</timebase><clipitem/></xmeml>")
        self.put("c.fcpxml", '<fcpxml><format frameDuration="1001/30000s"/></fcpxml>')
        self.put("d.xmeml", "<other><event/></other>")
        self.put("in/e.TXT", "")
        status, lines, said = self.survey(".")
        self.assertEqual((status, said), (0, ""))
        self.assertEqual([line.split()[:6] for line in lines[1:-1]], [
            ["./a.EDL", "EDL", "25", "file", "1", "0"],
            ["./b.xml", "XMEML", "30", "file", "1", "-"],
            ["./c.fcpxml", "FCPXML", "29.97", "file", "0", "-"],
            ["./d.xmeml", "XML", "24", "assumed", "1", "-"],
            ["./in/e.TXT", "EDL", "24", "assumed", "0", "0"]])
        self.assertIn("5 timelines, 3 events, 0 unread lines, 0 failures", lines[-1])

    def test_lines_with_four_timecodes_in_any_notation_are_counted_and_shown(self):
        unread = ["001  AX  V  C  00:00:00;00 00:00:05;00 01:00:00;00 01:00:05;00",
                  "002  AX  V  K B  00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
                  "003  AX  V  C  00.00.00.00 00.00.05.00 01.00.00.00 01.00.05.00",
                  "004  AX  V  C  0:00:00:00 0:00:05:00 1:00:00:00 1:00:05:00"]
        others = [EVENT, "", "005  AX  V  C  00:00:00:00 00:00:05:00 01:00:00:00", "TITLE: x",
                  "12:34:56 1:2:3:4:5 99:99:99:999 100:00:00:00 00:00:00:00",
                  "* FROM CLIP NAME: 01:02:03:04"]
        for end in ("\n", "\r\n", "\r"):
            with self.subTest(end=end):
                self.put("a.edl", end.join(others + unread))
                _, lines, _ = self.survey("--lines", "a.edl")
                self.assertEqual(lines[1].split()[:6], ["a.edl", "EDL", "24", "assumed", "1", "4"])
                self.assertEqual(lines[2:6], [f"    {7 + i}: {line}" for i, line in enumerate(unread)])

    def test_names_of_files_cannot_break_the_table(self):
        for name in (b"new\nline.edl", b"latin\xe9.edl", "caf\u00e9.edl".encode()):
            (self.folder / os.fsdecode(name)).write_text(EVENT)
        status, lines, _ = self.survey(".")
        self.assertEqual((status, len(lines)), (0, 5))
        self.assertEqual({line.index("EDL") for line in lines[1:4]}, {lines[0].index("Format")})
        self.assertEqual([line.split()[0] for line in lines[1:4]],
                         ["./caf\u00e9.edl", "./latin\ufffd.edl", "./new?line.edl"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
