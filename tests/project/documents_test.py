# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Runs what the documents show, and follows what they name.

    documents_test.py TREE LIST CLI COMMANDS VERSION

LIST is the built example, CLI the batch program, COMMANDS open_and_export, which stops where the
window does; VERSION is the project's.
"""

import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import unittest

TREE, LIST, CLI, COMMANDS = (pathlib.Path(a).absolute() for a in sys.argv[1:5])
VERSION = sys.argv[5]


def documents():
    return [*TREE.glob("*.md"), *TREE.glob("docs/**/*.md")]


def text_of(name):
    return (TREE / name).read_text(encoding="utf-8")


def blocks(text):
    """The fenced blocks as (info string, content)."""
    return re.findall(r"^```([^\n]+)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)


def anchors(document):
    """What links to the headings of a document name."""
    text = re.sub(r"^```.*?^```$", "", document.read_text(encoding="utf-8"),
                  flags=re.MULTILINE | re.DOTALL)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")
            for heading in re.findall(r"^#+ (.*)$", text, re.MULTILINE)}


def run(*command, cwd=None):
    return subprocess.run([str(part) for part in command], cwd=cwd, capture_output=True,
                          text=True, encoding="utf-8", check=False)


class Formats(unittest.TestCase):
    def test_every_example_is_read_and_written_as_shown(self):
        shown = blocks(text_of("docs/formats.md"))
        timeline = None
        checked = 0
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            for info, content in shown:
                if info in ("edl", "xml"):
                    timeline = folder / f"example.{info}"
                    timeline.write_text(content, encoding="utf-8")
                    continue
                with self.subTest(info=info, timeline=timeline.read_text()):
                    if info == "text":
                        said = run(LIST, timeline).stdout
                    else:
                        command = {"csv": ("list", "-f", "csv"),
                                   "edl written": ("convert", "-o", "-")}[info]
                        said = run(CLI, *command, timeline).stdout
                    self.assertEqual(said, content)
                checked += 1
        self.assertGreaterEqual(checked, 7)

    def test_times_in_xml_mean_what_the_table_says(self):
        rows = re.findall(r"^\| (`.*`) \| [^|]* \| (.*) \|$",
                          text_of("docs/formats.md").split("## Times in XML")[1].split("\n## ")[0],
                          re.MULTILINE)
        self.assertGreaterEqual(len(rows), 6)
        for written, expected in rows:
            values = re.findall("`([^`]*)`", written)
            times = re.findall("`([^`]*)`", expected) or ["-"]
            self.assertEqual(len(values), len(times))
            for value, time in zip(values, times):
                with self.subTest(value=value), tempfile.TemporaryDirectory() as folder:
                    timeline = pathlib.Path(folder) / "time.xml"
                    timeline.write_text(f'<a timebase="25"><event><source in="{value}"/></event></a>')
                    self.assertEqual(run(LIST, timeline).stdout.split("\n")[1],
                                     f"1  -  -  {time} -  - -  -")


class Corpus(unittest.TestCase):
    def test_it_shows_what_check_prints(self):
        said = run(CLI, "check", "examples/timelines", "tests/fixtures", cwd=TREE).stdout
        [shown] = [content for info, content in blocks(text_of("docs/corpus.md")) if info == "text"]
        self.assertEqual(said, shown)


class Library(unittest.TestCase):
    def test_the_example_is_the_file_that_is_built(self):
        [example] = [content for info, content in blocks(text_of("docs/api/README.md"))
                     if info == "cpp"]
        file = re.sub(r"\A(// SPDX-[^\n]*\n)+\n?", "", text_of("examples/list/main.cpp"))
        self.assertEqual(example, file)

    def test_it_names_the_public_headers_and_no_others(self):
        table = text_of("docs/api/README.md").split("## What there is")[1].split("\n## ")[0]
        named = re.findall(r"`([A-Za-z/]+\.h)`", table)
        public = [file.relative_to(folder).as_posix()
                  for folder in TREE.glob("src/*/public/clipvane") for file in folder.rglob("*")
                  if file.is_file() and "detail" not in file.parts]
        self.assertEqual(sorted(named), sorted(public))


class Security(unittest.TestCase):
    def test_every_input_named_stops_the_program_with_its_reason(self):
        for line in self.table():
            row = re.fullmatch(r"\| (EDL|XML) \| `(.*)` \| (.*) \| (.*) \|", line)
            self.assertTrue(row, line)
            kind, content, when, reason = row.groups()
            with self.subTest(content=content), tempfile.TemporaryDirectory() as folder:
                timeline = pathlib.Path(folder) / f"hostile.{kind.lower()}"
                timeline.write_text(content.replace(" ⏎ ", "\n") + "\n", encoding="utf-8")
                opening = run(LIST, timeline)
                if when == "opening":
                    self.assert_stopped(opening, reason)
                    continue
                self.assertEqual(opening.returncode, 0, opening.stderr)
                if when == "changing the rate":
                    self.assert_stopped(run(LIST, timeline, 60), reason)
                else:
                    self.assertEqual(when, "showing or exporting the event")
                    report = pathlib.Path(folder) / "report.csv"
                    self.assert_stopped(run(COMMANDS, timeline, report), reason)

    def test_every_reason_of_the_program_is_named(self):
        reasons = {reason for file in TREE.glob("src/**/*") if file.is_file()
                   for reason in re.findall(r'\bfatal\(\s*"([^"]*)"\)',
                                            file.read_text(encoding="utf-8"))}
        shown = {line.split(" | ")[-1].removesuffix(" |") for line in self.table()}
        self.assertLessEqual(shown, reasons)
        self.assertEqual({reason for reason in reasons - shown if f"`{reason}`" not in self.part()},
                         set())

    def part(self):
        below = text_of("SECURITY.md").split("## What stops the program on purpose")[1]
        return below.split("\n## ")[0]

    def table(self):
        """The lines of its table below the head."""
        lines = [line for line in self.part().split("\n") if line.startswith("|")]
        self.assertTrue(lines[1:] and lines[1].startswith("|---"), lines[:2])
        self.assertTrue(lines[2:])
        return lines[2:]

    def assert_stopped(self, done, reason):
        self.assertEqual(done.returncode, -signal.SIGABRT, done.stdout)
        self.assertIn(f"clipvane: {reason}\n", done.stderr)


class Everywhere(unittest.TestCase):
    def test_there_are_documents(self):
        self.assertIn(TREE / "docs" / "architecture.md", documents())

    def test_every_link_leads_somewhere(self):
        for document in documents():
            for target in re.findall(r"\]\(([^):]+)\)", document.read_text(encoding="utf-8")):
                with self.subTest(document=document.name, target=target):
                    path, _, anchor = target.partition("#")
                    file = document.parent / path if path else document
                    self.assertTrue(file.exists())
                    if anchor:
                        self.assertIn(anchor, anchors(file))

    def test_every_script_named_can_be_run(self):
        for document in documents():
            for script in re.findall(r"\bscripts/(?:lib/)?[a-z][a-z-]*", document.read_text(encoding="utf-8")):
                with self.subTest(document=document.name, script=script):
                    path = TREE / script
                    self.assertTrue(path.is_file() and path.stat().st_mode & 0o111)

    def test_every_script_is_named_where_contributors_read(self):
        read = "".join(document.read_text(encoding="utf-8") for document in documents()
                       if document.name in ("README.md", "CONTRIBUTING.md")
                       or TREE / "docs" in document.parents)
        named = set(re.findall(r"\bscripts/[a-z][a-z-]*", read))
        scripts = {f"scripts/{file.name}" for file in TREE.glob("scripts/*")
                   if file.is_file()}
        self.assertGreater(len(scripts), 0)
        self.assertEqual(scripts - named, set())

    def test_the_newest_version_in_the_change_log_is_the_project_s(self):
        self.assertEqual(re.search(r"^## \[(\d+\.\d+\.\d+)\] - \d{4}-\d\d-\d\d$",
                                   text_of("CHANGELOG.md"), re.MULTILINE)[1], VERSION)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
