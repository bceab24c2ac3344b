# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What the screen shows, pixel by pixel."""

import subprocess


class Screenshot:
    """The whole screen at this moment."""

    def __init__(self):
        picture = subprocess.run(["import", "-silent", "-window", "root", "-depth", "8", "ppm:-"],
                                 check=True, capture_output=True).stdout
        kind, size, most, self.pixels = picture.split(b"\n", 3)
        assert (kind, most) == (b"P6", b"255"), (kind, most)
        self.width, self.height = map(int, size.split())

    def pixel(self, x, y):
        """Red, green and blue."""
        at = 3 * (y * self.width + x)
        return tuple(self.pixels[at:at + 3])


def save_screen(path, window="root"):
    """A picture of the screen or of one window, as PNG."""
    subprocess.run(["import", "-silent", "-window", str(window), str(path)], check=True)
