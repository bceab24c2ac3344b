#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Opens large timelines where there is really too little memory for them: the program gets ever more address space, from
hardly enough to start with to plenty. It opens the timeline whole, or says that memory was lacking; it never crashes.

    little_memory.py PROGRAM FOLDER [EVENTS]

PROGRAM is open_and_export; EVENTS is how many events the timelines hold, 200,000 without it.
"""

import os
import re
import resource
import shutil
import subprocess
import sys

MEGABYTE = 1 << 20
PLENTY = 512  # megabytes, to start with
STEPS = 16
LACK = re.compile(r'alert: Could not open timeline \| (The file "large\.\w+" could not be read: Cannot allocate memory\.'
                  r'|There is not enough memory\.)\n')


def edl(count):
    yield "TITLE: large\n* FPS: 25\n"
    for i in range(count):
        yield (f"{i:06}  A001C{i:06} V     C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00\n"
               f"* FROM CLIP NAME: a name of the usual length {i}\n")


def latin_edl(count):
    for line in edl(count):
        yield line.replace("usual", "usu\xe9l")


def fcpxml(count):
    yield "<fcpxml><resources><format frameDuration='1/25s'/><asset id='r1' name='Harbour'/></resources>\n"
    for i in range(count):
        yield f"<asset-clip ref='r1' name='clip {i}' offset='{i}s' start='3600s' duration='1s'><note>n</note></asset-clip>\n"
    yield "</fcpxml>"


def latin_xml(count):
    yield "<?xml version='1.0' encoding='windows-1252'?>"
    for line in fcpxml(count):
        yield line.replace("'clip ", "'cl\xefp ")


def run(program, timeline, export, megabytes):
    def limit():
        resource.setrlimit(resource.RLIMIT_AS, (megabytes * MEGABYTE, megabytes * MEGABYTE))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    return subprocess.run([program, timeline, export], capture_output=True, text=True, errors="replace",
                          preexec_fn=limit)


def least_to_start_with(program, folder):
    """The megabytes in which the program opens a file of one event."""
    with open(f"{folder}/small.edl", "w") as file:
        file.writelines(edl(1))
    for megabytes in range(8, PLENTY + 1):
        result = run(program, f"{folder}/small.edl", f"{folder}/small.csv", megabytes)
        if "Loaded 1 events" in result.stdout:
            return megabytes
    sys.exit(f"FAILED: {PLENTY} MB are too little for one event\n{result.stdout}{result.stderr}")


def main():
    program, folder = os.path.abspath(sys.argv[1]), sys.argv[2]
    count = int(sys.argv[3]) if len(sys.argv) > 3 else 200_000
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    least = least_to_start_with(program, folder)
    failures = 0
    for name, lines in [("large.edl", edl), ("large.txt", latin_edl), ("large.fcpxml", fcpxml), ("large.xml", latin_xml)]:
        timeline = f"{folder}/{name}"
        with open(timeline, "w", encoding="latin-1") as file:
            file.writelines(lines(count))
        size = os.path.getsize(timeline)
        refused = loaded = 0
        for step in range(STEPS):
            megabytes = least + 16 * size * step // STEPS // MEGABYTE
            result = run(program, timeline, f"{folder}/out.csv", megabytes)
            if result.returncode == 0 and LACK.search(result.stdout):
                refused += 1
            elif result.returncode == 0 and f"Loaded {count} events" in result.stdout:
                loaded += 1
            else:
                failures += 1
                print(f"FAILED {name} in {megabytes} MB: status {result.returncode}\n{result.stdout}{result.stderr}")
        print(f"{name}, {size} bytes, {least} to {megabytes} MB: {refused} times too little, {loaded} times enough")
        failures += refused == 0 or loaded == 0
    shutil.rmtree(folder)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
