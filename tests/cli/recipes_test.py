# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Runs docs/recipes.md: a block names a file that it is, or is a script whose output follows it."""

import os
import re
import shutil
import subprocess
import unittest

from program import PROGRAM, TREE, ProgramTest, main

INTERPRETERS = {"sh": ["bash", "-euo", "pipefail", "-c"], "python": ["/usr/bin/python3", "-c"]}


def blocks():
    text = (TREE / "docs" / "recipes.md").read_text()
    return re.findall(r"^```([^\n]+)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)


class Recipes(ProgramTest):
    def test_every_recipe_prints_what_follows_it(self):
        if not shutil.which("jq"):
            self.skipTest("jq is missing; scripts/setup test installs it")
        binaries = self.folder / "bin"
        binaries.mkdir()
        (binaries / "clipvane-cli").symlink_to(PROGRAM)
        environment = {"PATH": f"{binaries}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}
        printed = None
        recipes = 0
        for info, content in blocks():
            kind, _, name = info.partition(" ")
            if name:
                self.put(name, content)
            elif kind == "text":
                self.assertEqual(printed, content)
                printed = None
                recipes += 1
            else:
                self.assertIsNone(printed, "a recipe without what it prints")
                with self.subTest(content):
                    done = subprocess.run([*INTERPRETERS[kind], content], cwd=self.folder, text=True,
                                          env=environment, capture_output=True, check=False)
                    self.assertEqual((done.returncode, done.stderr), (0, ""))
                printed = done.stdout
        self.assertIsNone(printed)
        self.assertGreaterEqual(recipes, 13)


if __name__ == "__main__":
    main()
