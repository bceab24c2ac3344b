# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Timelines from a steady random source, plain and awkward, for comparisons of two ways."""

import random

ODD = ["", " ", "a b", "x:y", "\u00e9", "e\u0301", "\u6e2f", "\u2028", "\u00a0", '"', "\\", "\t", "\x1b[2J",
       "FROM CLIP NAME", "* FPS: 30", "TITLE", "0x1"]
EDL_LINES = ["FCM: DROP FRAME", "M2   AX   025.0   00:00:00:00", "", "   ", ">>> note", "* LOC: 01:00:00:00 RED",
             "* FROM CLIP NAME: ", "* FROM CLIP NAME: shot: 3", "from clip name: b", "* COMMENT: c",
             "*", "003 A B C 00:00:00;00 00:00:00;01 00:00:00;00 00:00:00;01"]


def timecode(chance):
    return ":".join(f"{chance.randrange(limit):02}" for limit in (24, 60, 60, 24))


def edl(chance):
    """An EDL, sometimes without a title, with line ends of all kinds."""
    lines = [f"TITLE: {chance.choice(ODD)}"] if chance.random() < 0.7 else []
    if chance.random() < 0.4:
        lines.append(chance.choice(["* FPS: 25", "fps = 23.976", "FRAME RATE: 30", "* fps=0"]))
    for number in range(chance.randrange(8)):
        reel = chance.choice(["AX", "A001", "x" * 30, "\u00e9"])
        track = chance.choice(["V", "A", "AA/V", "B"])
        edit = chance.choice(["C", "D 030", "W001 5"])
        lines.append(f"{number:03} {reel} {track} {edit} "
                     + " ".join(timecode(chance) for _ in range(4)))
        for _ in range(chance.randrange(3)):
            lines.append(chance.choice(EDL_LINES))
    end = chance.choice(["\n", "\r\n", "\r", "\u2028"])
    mark = "\ufeff" if chance.random() < 0.2 else ""
    return (mark + end.join(lines) + chance.choice(["", end])).encode()


def xml(chance):
    def escaped(text):
        for old, new in (("&", "&amp;"), ("<", "&lt;"), ('"', "&quot;"), ("\x1b", "")):
            text = text.replace(old, new)
        return text
    parts = [f'<xmeml><timebase>{chance.choice(["24", "25", "29.97", "0"])}</timebase>']
    for _ in range(chance.randrange(6)):
        times = [chance.choice(["", "5", "-1", "10s", "1001/30000s", timecode(chance), "soon",
                                timecode(chance).replace(":", ";")]) for _ in range(4)]
        name, reel, comment = (escaped(chance.choice(ODD)) for _ in range(3))
        parts.append(f'<event number="{chance.randrange(99)}" highlighted="{chance.choice(["true", "no"])}">'
                     f'<source in="{times[0]}" out="{times[1]}"/><record in="{times[2]}" out="{times[3]}"/>'
                     f"<clipname>{name}</clipname><reel>{reel}</reel><comment>{comment}</comment></event>")
    return ("".join(parts) + "</xmeml>").encode()


def timelines(count, seed=1):
    """Pairs of a name and the bytes of a timeline."""
    chance = random.Random(seed)
    for number in range(count):
        kind, make = chance.choice([("edl", edl), ("xml", xml)])
        yield f"{number}.{kind}", make(chance)
