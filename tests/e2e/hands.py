# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Keyboard, mouse, clipboard and the list of windows: what a person at the desk has in hand."""

import subprocess

KEY_PAUSE = "4"  # ms between typed characters


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True)


def active_title():
    """The title of the window that has the keyboard, or an empty text. A window that its manager
    has not finished with yet does not count: what it is asked for then may be lost."""
    window = active_window()
    state = subprocess.run(["xprop", "-id", window, "WM_STATE"], capture_output=True, text=True)
    if "Normal" not in state.stdout:
        return ""
    return xdotool("getwindowname", window).stdout.rstrip("\n")


def active_window():
    return xdotool("getactivewindow").stdout.strip()


def window_titles():
    """The titles of all windows on the screen, as the window manager lists them."""
    ids = subprocess.run(["xprop", "-root", "-notype", "_NET_CLIENT_LIST"],
                         capture_output=True, text=True).stdout.partition("#")[2].split(",")
    return sorted(xdotool("getwindowname", i.strip()).stdout.rstrip("\n") for i in ids if i.strip())


def press(*keys):
    xdotool("key", "--clearmodifiers", "--delay", KEY_PAUSE, *keys)


def type_text(text):
    xdotool("type", "--clearmodifiers", "--delay", KEY_PAUSE, text)


def click_at(x, y, button=1):
    xdotool("mousemove", x, y, "click", button)


def clipboard():
    answer = subprocess.run(["xclip", "-selection", "clipboard", "-o", "-t", "UTF8_STRING"],
                            capture_output=True, timeout=20)
    return answer.stdout.decode() if answer.returncode == 0 else None


def put_on_clipboard(text):
    subprocess.run(["xclip", "-selection", "clipboard", "-i"], input=text.encode(), check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
