"""Hostile edit decision lists."""

from case import Case, Loaded, Stopped, around, repeated, times, whole

TIMES = b"01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00"
EVENT = b"001  AX V C        " + TIMES + b"\n"
SHORT = b"1 A V C " + TIMES + b"\n"
NOT_ROUNDED = "a number cannot be rounded to a 64-bit integer"


def edl(name, content, events, grows=True):
    expected = events if isinstance(events, Stopped) else Loaded(events)
    return Case("edl-" + name, "case.edl", content, expected, grows)


def one(name, data, events):
    return edl(name, whole(data), events, grows=False)


def only(name, piece):
    return edl("only-" + name, around(b"", piece), 0)


def after_event(name, piece, events=1, tail=b""):
    return edl("event-then-" + name, around(EVENT.rstrip(b"\n"), piece, tail), events)


def between_events(name, piece):
    return edl("between-events-" + name, around(EVENT, piece, b"\n" + EVENT), 2)


def per_event(name, event):
    return edl("events-" + name, around(b"", event), lambda size: times(event, size))


def column(name, head, piece, tail):
    return edl("endless-" + name, around(head, piece, tail), 1)


CASES = [
    only("one-letter", b"x"), only("one-digit", b"1"), only("NULs", b"\0"),
    only("blanks", b" "), only("tabs", b"\t"), only("wide-blanks", "\u3000".encode()),
    only("line-feeds", b"\n"), only("carriage-returns", b"\r"), only("both", b"\r\n"),
    only("vertical-tabs", b"\v"), only("form-feeds", b"\f"), only("next-lines", b"\xc2\x85"),
    only("line-separators", "\u2028".encode()), only("paragraph-separators", "\u2029".encode()),
    only("stars", b"*"), only("comments", b"* x\n"), only("clip-name-comments", b"FROM CLIP NAME\n"),
    only("colons", b":"), only("digits-and-blanks", b"1 "), only("timecodes", TIMES + b" "),
    only("overlong-utf8", b"\xc0\x80"), only("lone-surrogates", b"\xed\xa0\x80"),
    only("continuations", b"\x80"), only("lead-bytes", b"\xf4"), only("all-ones", b"\xff"),
    only("cut-sequences", b"\xe2\x80 "), only("beyond-unicode", b"\xf5\x80\x80\x80"),
    only("rates-without-number", b"fps: "), only("halves-of-rates", b"fps"),
    only("quoted-rates", b"timebase='1"), only("durations-of-frames", b"frameDuration='1/"),
    only("elements-of-rates", b"<timebase>1"), only("rate-then-blanks", b"fps" + b" " * 65536),
    after_event("trailing-text", b" x"), after_event("NULs", b"\0"),
    after_event("comments", b"\n* x"), after_event("empty-comments", b"\n*"),
    after_event("clip-names", b"\nfrom clip name: x"), after_event("one-clip-name", b"x",
                                                                   tail=b"\n* FROM CLIP NAME: y"),
    edl("event-then-endless-name", around(EVENT + b"* FROM CLIP NAME: ", b"n"), 1),
    edl("event-then-name-of-colons", around(EVENT + b"* FROM CLIP NAME: ", b":"), 1),
    edl("event-then-nearly-a-name", around(EVENT + b"* ", b"FROM CLIP NAM"), 1),
    between_events("line", b"x"), between_events("empty-lines", b"\n"),
    between_events("overlong-utf8", b"\xc0\x80"), between_events("NULs", b"\0"),
    column("number", b"", b"7", b" AX V C " + TIMES), column("reel", b"1 ", b"R", b" V C " + TIMES),
    column("reel-of-accents", b"1 ", "\u00e9".encode(), b" V C " + TIMES),
    column("reel-of-invalid-bytes", b"1 ", b"\xff", b" V C " + TIMES),
    column("track", b"1 AX ", b"V", b" C " + TIMES), column("edit", b"1 AX V ", b"C", b" " + TIMES),
    column("transition", b"1 AX V D ", b"1", b" " + TIMES),
    column("blanks", b"1 AX V C", b" ", TIMES),
    per_event("of-least-length", SHORT), per_event("ended-by-CR", SHORT[:-1] + b"\r"),
    per_event("ended-by-CRLF", SHORT[:-1] + b"\r\n"), per_event("ended-by-VT", SHORT[:-1] + b"\v"),
    per_event("ended-by-U+0085", SHORT[:-1] + b"\xc2\x85"),
    per_event("ended-by-U+2028", SHORT[:-1] + "\u2028".encode()),
    per_event("with-names", SHORT + b"* FROM CLIP NAME: x\n"),
    per_event("with-NULs", b"1 \0 V\0 C " + TIMES + b"\0\n"),
    per_event("in-other-digits", "١ A V C ٠١:٠٠:٠٠:٠٠ ٠١:٠٠:٠٤:٠٠ ٠٠:٠٠:٠٠:٠٠ ٠٠:٠٠:٠٤:٠٠\n".encode()),
    one("empty", b"", 0), one("one-byte", b"1", 0), one("one-NUL", b"\0", 0), one("one-0xFF", b"\xff", 0),
    one("utf8-mark", b"\xef\xbb\xbf" + EVENT + EVENT, 1),
    one("utf16-little-endian", b"\xff\xfe" + EVENT.decode().encode("utf-16-le"), 0),
    one("utf16-big-endian", b"\xfe\xff" + EVENT.decode().encode("utf-16-be"), 0),
    one("utf32", EVENT.decode().encode("utf-32"), 0),
    one("every-line-end", b"".join(SHORT[:-1] + end for end in
        [b"\n", b"\r", b"\r\n", b"\v", b"\f", b"\xc2\x85", b"\xe2\x80\xa8", b"\xe2\x80\xa9", b""]), 9),
    one("rate-of-twenty-digits", b"* FPS: 99999999999999999999\n" + EVENT, Stopped(NOT_ROUNDED)),
    one("rate-of-309-digits", b"fps=1" + b"0" * 308 + b"\n" + EVENT, Stopped(NOT_ROUNDED)),
    one("rate-of-a-thousand-digits", b"fps=" + b"9" * 1000 + b"\n" + EVENT, Stopped(NOT_ROUNDED)),
    one("rate-just-too-large", b"fps=9223372036854775807\n" + EVENT, Stopped(NOT_ROUNDED)),
    one("largest-rate-without-timecodes", b"fps=9223372036854774784\n", 0),
    one("largest-rate", b"fps=9223372036854774784\n" + EVENT,
        Stopped("a frame count exceeds 64 bits (multiplication)")),
    one("smallest-rate", b"fps=0." + b"0" * 400 + b"1\n" + EVENT, 1),
    one("rate-that-is-no-number", b"fps=nan\nfps:inf\nfps=-1\nfps=1e308\n" + EVENT, 1),
]
