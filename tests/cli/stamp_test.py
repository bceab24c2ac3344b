# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What `clipvane-cli stamp` writes."""

import json

from generated import timelines
from program import (EVENT, FAILED, NAMED, OK, WRONG_USE, ProgramTest, Row, fixtures, main, run)

BOM = "\ufeff"


class Texts(ProgramTest):
    def test_where_the_line_stands(self):
        for name, before, after in [
                ("after the title", "TITLE: A\nFCM: X\n" + EVENT, "TITLE: A\n* FPS: 25\nFCM: X\n" + EVENT),
                ("without a title", EVENT, "* FPS: 25\n" + EVENT),
                ("carriage returns", "TITLE: A\r\n" + EVENT, "TITLE: A\r\n* FPS: 25\r\n" + EVENT),
                ("old ones", "TITLE: A\rFCM\r", "TITLE: A\r* FPS: 25\rFCM\r"),
                ("separators", "TITLE: A\u2028x", "TITLE: A\u2028* FPS: 25\u2028x"),
                ("first line's end", "FCM\r\n" + EVENT, "* FPS: 25\r\nFCM\r\n" + EVENT),
                ("title without an end", "TITLE: A", "TITLE: A\n* FPS: 25"),
                ("empty", "", "* FPS: 25\n"), ("no line end", "FCM", "* FPS: 25\nFCM"),
                ("mark", BOM + "TITLE: A\n" + EVENT, BOM + "TITLE: A\n* FPS: 25\n" + EVENT),
                ("mark, no title", BOM + "FCM\n" + EVENT, BOM + "* FPS: 25\nFCM\n" + EVENT),
                ("title behind an event", EVENT + "TITLE: A\n", "* FPS: 25\n" + EVENT + "TITLE: A\n"),
                ("title behind a line", "x\nTITLE: A\n", "x\nTITLE: A\n* FPS: 25\n"),
                ("rate of nought above", "fps = 0\nTITLE: A\n", "* FPS: 25\nfps = 0\nTITLE: A\n"),
                ("stamp of nought", "* FPS: 0\nTITLE: A\n", "* FPS: 25\n* FPS: 0\nTITLE: A\n"),
                ("not UTF-8", b"TITLE: \xe9\n", b"TITLE: \xe9\n* FPS: 25\n")]:
            with self.subTest(name):
                self.put("cut.edl", before)
                done = self.run_program("stamp", "--fps", "25", "-o", "-", "cut.edl")
                expected = after.encode() if isinstance(after, str) else after
                self.assertEqual((done.status, done.said, done.output), (OK, "", expected))

    def test_rates_are_written_so_that_they_read_back(self):
        for told, written in [("25", "25"), ("25.0", "25"), ("23.976", "23.976"), ("0.1", "0.1"),
                              ("24000/1001", "23.976023976023978"), ("1000", "1000"),
                              ("1/3", "0.3333333333333333"), ("0.00000001", "0.00000001")]:
            with self.subTest(told):
                done = self.run_program("stamp", "--fps", told, "--from", "edl", "-o", "-", "-")
                self.assertEqual(done.text, f"* FPS: {written}\n")

    def test_a_rate_that_is_named_already(self):
        other = "TITLE: A\n* FPS: 24\n" + EVENT
        low = "TITLE: A\n" + EVENT + "* frame rate = 30\n"
        files = {"named.edl": NAMED, "other.edl": other, "low.edl": low}
        self.try_rows([
            Row("the same", ["stamp", "--fps", "25", "-o", "-", "named.edl"], files=files, output=NAMED),
            Row("the same, restamped", ["stamp", "--fps", "25", "--restamp", "-o", "-", "named.edl"],
                files=files, output=NAMED),
            Row("another", ["stamp", "--fps", "25", "-o", "-", "other.edl"], FAILED, files=files,
                output="", said=["other.edl: names 24 fps already; --restamp makes it 25"]),
            Row("another, not to the last digit",
                ["stamp", "--fps", "24000/1001", "-o", "-", "a.edl"], FAILED,
                files={"a.edl": "* FPS: 23.976\n"}, said=["a.edl: names 23.976 fps already"]),
            Row("replaced", ["stamp", "--fps", "23.976", "--restamp", "-o", "-", "other.edl"],
                files=files, output=other.replace("24\n", "23.976\n")),
            Row("added before", ["stamp", "--fps", "25", "--restamp", "-o", "-", "low.edl"],
                files=files, output=low.replace("A\n", "A\n* FPS: 25\n", 1)),
            Row("added before the title", ["stamp", "--fps", "25", "--restamp", "-o", "-", "a.edl"],
                files={"a.edl": "TITLE: fps=24\n" + EVENT}, output="* FPS: 25\nTITLE: fps=24\n" + EVENT)])

    def test_events_that_a_mark_hid_may_come(self):
        self.put("cut.edl", BOM + EVENT + EVENT)
        done = self.run_program("stamp", "--fps", "25", "-o", "x.edl", "cut.edl")
        self.assertEqual(done.status, OK)
        self.assertIn("x.edl: its first event, which a byte-order mark hid, is read now", done.said)
        self.assertEqual(self.content("x.edl").decode(), BOM + "* FPS: 25\n" + EVENT + EVENT)

    def test_utf_16_is_refused(self):
        for encoding in ("utf-16", "utf-16-le", "utf-16-be"):
            self.put("cut.edl", EVENT.encode(encoding))
            self.try_row(Row("", ["stamp", "--fps", "25", "-o", "-", "cut.edl"], FAILED, output="",
                             said=["cut.edl: is UTF-16"]))


class Files(ProgramTest):
    def test_where_it_goes(self):
        stamped = "* FPS: 25\n" + EVENT
        files = {"a.edl": EVENT, "B.TXT": EVENT, "named.edl": NAMED, "c.xml": "<a/>"}
        base = ["stamp", "--fps", "25"]
        self.try_rows([
            Row("folder", [*base, "-d", "out", "a.edl", "B.TXT", "named.edl"], files=files,
                after={"out/a.edl": stamped, "out/B.TXT": stamped, "out/named.edl": NAMED,
                       "a.edl": EVENT}),
            Row("in place", [*base, "--in-place", "a.edl", "B.TXT"], files=files,
                after={"a.edl": stamped, "B.TXT": stamped}),
            Row("own input", [*base, "--force", "-o", "a.edl", "a.edl"], FAILED, files=files,
                said=["a.edl: is one of the files that are read"], after={"a.edl": EVENT}),
            Row("own folder", [*base, "--force", "-d", ".", "a.edl"], FAILED, files=files,
                said=["./a.edl: is one of the files that are read"], after={"a.edl": EVENT}),
            Row("XML", [*base, "--in-place", "c.xml", "a.edl"], FAILED, files=files,
                said=["c.xml: is XML, and only an EDL is stamped"],
                after={"c.xml": "<a/>", "a.edl": stamped})])

    def test_in_place_leaves_what_is_stamped_untouched(self):
        path = self.put("a.edl", NAMED)
        before = path.stat()
        self.assertEqual(self.run_program("stamp", "--fps", "25", "--in-place", "a.edl").status, OK)
        after = path.stat()
        self.assertEqual((after.st_ino, after.st_mtime_ns), (before.st_ino, before.st_mtime_ns))

    def test_wrong_use(self):
        self.put("a.edl", EVENT)
        for arguments in (["--in-place", "a.edl"], ["--fps", "25", "a.edl"],
                          ["--fps", "25", "--in-place", "-o", "x", "a.edl"],
                          ["--fps", "25", "--in-place", "--from", "edl", "-"],
                          ["--fps", "25", "--from", "jsonl", "-o", "x", "-"],
                          ["--fps", "25", "--from", "xml", "-o", "x", "-"],
                          ["--fps", "25", "--to", "24", "-o", "x", "a.edl"]):
            with self.subTest(arguments=arguments):
                self.assertEqual(self.run_program("stamp", *arguments).status, WRONG_USE)
        self.assertEqual(self.content("a.edl"), EVENT.encode())


class StampedIsTold(ProgramTest):
    """A stamped list reads as the list does with --fps."""

    def check(self, path, fps):
        stamped = self.folder / "stamped.edl"
        done = run("stamp", "-q", "--fps", fps, "--restamp", "--force", "-o", stamped, path)
        self.assertEqual(done.status, OK, done.said)
        after = self.events(stamped)
        before = self.events(path, "--fps", fps)
        if len(after) == len(before) + 1 and path.read_bytes().startswith(BOM.encode()):
            after = [{**event, "row": event["row"] - 1} for event in after[1:]]
        self.assertEqual(after, before)
        self.assertEqual(run("stamp", "--fps", fps, "-o", "-", stamped).output, stamped.read_bytes())

    @staticmethod
    def events(path, *options):
        lines = run("list", "-q", "-f", "jsonl", *options, path).text.split("\n")[:-1]
        return [{key: value for key, value in json.loads(line).items()
                 if key not in ("id", "file", "fpsSource")} for line in lines]

    def test_fixtures(self):
        edls = [path for path in fixtures() if path.suffix.lower() in (".edl", ".txt")]
        self.assertTrue(edls)
        for path in edls:
            with self.subTest(path=path.name):
                self.check(path, "23.976")

    def test_generated_lists(self):
        for name, content in timelines(60, seed=2):
            if name.endswith(".edl"):
                with self.subTest(content=content):
                    self.check(self.put(name, content), "50")


if __name__ == "__main__":
    main()
