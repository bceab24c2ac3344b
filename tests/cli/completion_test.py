# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""The completions for bash and zsh know what --help knows."""

import re
import shutil
import subprocess
import unittest

from program import TREE, main, run

BASH = TREE / "packaging" / "completions" / "clipvane-cli.bash"
ZSH = TREE / "packaging" / "completions" / "_clipvane-cli"


def commands():
    return re.findall(r"^  ([a-z]+) ", run("--help").text.split("Commands:")[1].split("\n\n")[0],
                      re.MULTILINE)


def options(command):
    return set(re.findall(r"(--[a-z][a-z-]*)", run(command, "--help").text.split("Options:")[1]
                          .split("Examples:")[0]))


def standard_rates():
    header = (TREE / "src/timecode/public/clipvane/FrameRate.h").read_text(encoding="utf-8")
    [listed] = re.findall(r"standardFPSValues\{([^}]*)\}", header)
    return [rate.removesuffix(".0") for rate in listed.replace(",", " ").split()]


def completed(*words):
    script = (f"source '{BASH}'; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _clipvane_cli; "
              "printf '%s\\n' \"${COMPREPLY[@]}\"")
    done = subprocess.run(["bash", "-c", script, "bash", "clipvane-cli", *words],
                          capture_output=True, text=True, check=True)
    assert done.stderr == "", done.stderr
    return set(done.stdout.split())


class Bash(unittest.TestCase):
    def test_commands_and_their_options(self):
        self.assertGreaterEqual(len(commands()), 4)
        self.assertLessEqual(set(commands()), completed(""))
        for command in commands():
            with self.subTest(command):
                self.assertEqual(completed(command, "--"), options(command))

    def test_values(self):
        self.assertEqual(completed("list", "-f", ""), {"table", "csv", "tsv", "jsonl"})
        self.assertEqual(completed("check", "--format", ""), {"text", "jsonl"})
        self.assertEqual(completed("list", "--from", "j"), {"jsonl"})
        self.assertEqual(completed("stamp", "--from", ""), {"edl"})
        self.assertEqual(completed("list", "--fps", ""), set(standard_rates()))
        self.assertEqual(completed("list", "--fps", "29"), {"29.97"})
        self.assertEqual(completed("list", "cut"), set())  # which leaves files to the shell


class Zsh(unittest.TestCase):
    def test_every_command_and_option_is_named(self):
        text = ZSH.read_text()
        for command in commands():
            self.assertIn(f"'{command}:", text)
            for option in options(command):
                self.assertIn(option, text)

    def test_it_offers_the_standard_rates(self):
        self.assertGreaterEqual(len(standard_rates()), 10)
        self.assertIn("(" + " ".join(standard_rates()) + ")", ZSH.read_text())

    @unittest.skipUnless(shutil.which("zsh"), "zsh is missing")
    def test_zsh_takes_it(self):
        subprocess.run(["zsh", "-n", ZSH], check=True)


if __name__ == "__main__":
    main()
