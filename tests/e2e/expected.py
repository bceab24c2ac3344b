# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""What the session must show and write, figured by hand from the timelines beside it."""

LONG_NAME = "A_VERY_LONG_NAME_THAT_DOES_NOT_FIT_ITS_COLUMN_BY_FAR_BUT_KEEPS_BOTH_ENDS"

START_LINES = ["Process started.", "Setting up main UI.", "Main window created before run loop.",
               "Application did finish launching."]

REMINDER = ["Check Project Frame Rate",
            "Please make sure to set the right project frame rate. Incorrect frame rate might "
            "produce incorrect timecodes."]

RATES = ["23.976 fps", "24 fps", "25 fps", "29.97 fps", "30 fps", "47.952 fps", "48 fps", "50 fps",
         "59.94 fps", "60 fps"]

PIER = [
    ("001", "PIER_WIDE", "A001C001", "01:00:00:00", "01:00:04:00", "10:00:00:00", "10:00:04:00", "EDL"),
    ("002", '<i>PIER</i> & "GULLS"', "A001C002", "01:10:00:12", "01:10:03:12", "10:00:04:00", "10:00:07:00", "EDL"),
    ("003", "WIND", "B007", "02:00:00:00", "02:00:01:01", "10:00:07:00", "10:00:08:01", "EDL"),
    ("004", "Clip 004", "BL", "00:00:00:00", "00:00:02:00", "10:00:08:01", "10:00:10:01", "EDL"),
    ("005", LONG_NAME, "A002C009", "03:30:10:24", "03:30:12:24", "10:00:10:01", "10:00:12:01", "EDL"),
]

PIER_AT_50 = [
    ("001", "PIER_WIDE", "A001C001", "01:00:00:00", "01:00:04:00", "10:00:00:00", "10:00:04:00", "EDL"),
    ("002", '<i>PIER</i> & "GULLS"', "A001C002", "01:10:00:24", "01:10:03:24", "10:00:04:00", "10:00:07:00", "EDL"),
    ("003", "WIND", "B007", "02:00:00:00", "02:00:01:02", "10:00:07:00", "10:00:08:02", "EDL"),
    ("004", "Clip 004", "BL", "00:00:00:00", "00:00:02:00", "10:00:08:02", "10:00:10:02", "EDL"),
    ("005", LONG_NAME, "A002C009", "03:30:10:48", "03:30:12:48", "10:00:10:02", "10:00:12:02", "EDL"),
]

NO_DETAILS = {
    "Clip Name": "-", "Reel ID": "-", "Track": "-", "Source In": "-", "Source Out": "-",
    "Source Dur": "-", "Record In": "-", "Record Out": "-", "Record Dur": "-",
    "FPS Source": "Default", "Format": "-",
}

DETAILS_OF_002 = {
    "Clip Name": '<i>PIER</i> & "GULLS"', "Reel ID": "A001C002", "Track": "V",
    "Source In": "01:10:00:12", "Source Out": "01:10:03:12",
    "Source Dur": "00:00:03:00 (75 frames)",
    "Record In": "10:00:04:00", "Record Out": "10:00:07:00",
    "Record Dur": "00:00:03:00 (75 frames)", "FPS Source": "File", "Format": "EDL",
}

# A no-break space, an accent, quotes, two scripts of which one is written to the left, an emoji.
PASTED = 'say\u00a0"hi", \u00e9\u00e8 \u05e9\u05dc\u05d5\u05dd \U0001f30a'

COPIED = (
    "Event: 001\n"
    "Clip Name: PIER_WIDE\n"
    "Reel ID: A001C001\n"
    "FPS: 50 fps (Manual)\n"
    "Source: 01:00:00:00 - 01:00:04:00\n"
    "Source Duration: 00:00:04:00 (200 frames)\n"
    "Record: 10:00:00:00 - 10:00:04:00\n"
    "Record Duration: 00:00:04:00 (200 frames)\n"
    "Track: V\n"
    "Comments: Keep the gulls\n  and the wind."
)

CSV = (
    "Event,Clip Name,Reel ID,FPS,FPS Source,Source In,Source Out,Source Duration,Record In,"
    "Record Out,Record Duration,Track,Format,Highlighted,Comments\n"
    '"001","PIER_WIDE","A001C001","50","Manual","01:00:00:00","01:00:04:00",'
    '"00:00:04:00 (200 frames)","10:00:00:00","10:00:04:00","00:00:04:00 (200 frames)",'
    '"V","EDL","No","Keep the gulls   and the wind."\n'
    '"002","<i>PIER</i> & ""GULLS""","A001C002","50","Manual","01:10:00:24","01:10:03:24",'
    '"00:00:03:00 (150 frames)","10:00:04:00","10:00:07:00","00:00:03:00 (150 frames)",'
    '"V","EDL","No","' + PASTED.replace('"', '""') + '"\n'
    '"005","' + LONG_NAME + '","A002C009","50","Manual","03:30:10:48","03:30:12:48",'
    '"00:00:02:00 (100 frames)","10:00:10:02","10:00:12:02","00:00:02:00 (100 frames)",'
    '"AA/V","EDL","No","last words"\n'
)

EDL = (
    "TITLE: Clipvane Export\n"
    "FCM: NON-DROP FRAME\n"
    "\n"
    "001  A001C001 V C        01:00:00:00 01:00:04:00 10:00:00:00 10:00:04:00\n"
    "* FROM CLIP NAME: PIER_WIDE\n"
    "* COMMENT: Keep the gulls   and the wind.\n"
    "\n"
    "002  A001C002 V C        01:10:00:24 01:10:03:24 10:00:04:00 10:00:07:00\n"
    '* FROM CLIP NAME: <i>PIER</i> & "GULLS"\n'
    "* COMMENT: " + PASTED + "\n"
    "\n"
    "003  A002C009 AA/V C        03:30:10:48 03:30:12:48 10:00:10:02 10:00:12:02\n"
    "* FROM CLIP NAME: " + LONG_NAME + "\n"
    "* COMMENT: last words\n"
)

# Cells as they are told to assistive technology: a dash for an empty one.

# 30 frames a second, named by the timebase.
QUAY = [
    ("1", "QUAY_CRANE", "quay-1", "00:00:01:00", "00:00:04:00", "00:00:00:00", "00:00:03:00", "XML"),
    ("2", "QUAY_ROPES", "Q002", "00:02:00:00", "00:02:01:15", "00:00:03:00", "00:00:04:15", "XML"),
]

# 24000/1001 frames a second, counted on a base of 24: an hour has 86,314 frames.
MOLE = [
    ("1", "-", "-", "-", "-", "-", "-", "XML"),
    ("2", "MOLE_LIGHT", "a1", "00:59:56:10", "01:00:01:10", "00:00:00:00", "00:00:05:00", "XML"),
    ("3", "Gap", "-", "00:00:00:00", "00:00:01:00", "00:00:05:00", "00:00:06:00", "XML"),
]

# 12.5 frames a second, counted on a base of 13.
TIDE = [
    ("11", "TIDE_LOW", "-", "00:00:00:00", "00:00:01:12", "00:00:00:00", "00:00:02:00", "XML"),
    ("12", "TIDE_HIGH", "-", "00:00:09:08", "00:00:19:03", "00:00:02:00", "00:00:12:00", "XML"),
    ("13", "TIDE_SLACK", "-", "-", "-", "-", "-", "XML"),
]
