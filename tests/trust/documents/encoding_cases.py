"""False names, false encodings, and every format's content under every other's name."""

from case import Case, Loaded, Refused, around, times, whole
from edl_cases import EVENT

DOCUMENT = "<a><gap name='ph\u00e9re'/><gap name='second'/></a>"
UNSUPPORTED = "Unsupported file type. Open EDL, XML, FCPXML, or XMEML files."

XMEML = (b"<?xml version='1.0' encoding='UTF-8'?><!DOCTYPE xmeml><xmeml><sequence><clipitem id='c'>"
         b"<name>n</name><start>0</start><end>5</end></clipitem></sequence></xmeml>")
FCPXML = (b"<?xml version='1.0'?><!DOCTYPE fcpxml><fcpxml><asset id='r' name='n'/>"
          b"<asset-clip ref='r' offset='0s' duration='1s'/></fcpxml>")
CONTENTS = {"edl": EVENT, "xmeml": XMEML, "fcpxml": FCPXML}


def one(name, data, expected, file="case.xml"):
    expected = Loaded(expected) if isinstance(expected, int) else expected
    return Case("encoding-" + name, file, whole(data), expected, grows=False)


def declared(name, encoding, document=DOCUMENT):
    return f"<?xml version='1.0' encoding='{name}'?>{document}".encode(encoding)


def named(file, content, expected):
    return Case(f"file-{file}-of-{content}", file, whole(CONTENTS[content]),
                Loaded(expected) if isinstance(expected, int) else expected, grows=False)


CASES = [
    one("utf8-mark", b"\xef\xbb\xbf" + DOCUMENT.encode(), 2),
    one("utf8-mark-and-other-name", b"\xef\xbb\xbf" + declared("UTF-16", "utf-8"), 2),
    one("utf16-little-endian", DOCUMENT.encode("utf-16"), 2),
    one("utf16-big-endian", b"\xfe\xff" + DOCUMENT.encode("utf-16-be"), 2),
    one("utf16-without-mark", DOCUMENT.encode("utf-16-be"), 2),
    one("utf16-called-utf8", b"\xff\xfe" + declared("UTF-8", "utf-16-le"), 2),
    one("utf8-called-utf16", declared("UTF-16", "utf-8"), 2),
    one("utf8-called-utf32", declared("UTF-32", "utf-8"), 2),
    one("utf8-called-ebcdic", declared("ibm-1047", "utf-8"), 2),
    one("utf8-called-ascii", declared("US-ASCII", "utf-8"), 2),
    one("utf8-called-nonsense", declared("nonsense", "utf-8"), 2),
    one("utf8-called-windows-1252", declared("windows-1252", "utf-8"), 2),
    one("windows-1252", declared("windows-1252", "windows-1252"), 2),
    one("latin1-called-utf8", declared("UTF-8", "latin-1"), 0),
    one("shift-jis", declared("Shift_JIS", "shift-jis", "<a><gap name='\u30a2'/></a>"), 1),
    one("utf32-little-endian", DOCUMENT.encode("utf-32"), 0),
    one("utf32-big-endian", b"\0\0\xfe\xff" + DOCUMENT.encode("utf-32-be"), 0),
    one("cut-utf16", DOCUMENT.encode("utf-16")[:-1], 2),
    one("lone-surrogate", b"\xff\xfe" + "<a><gap/>\ud800<gap/></a>".encode("utf-16-le", "surrogatepass"), 1),
    one("overlong", b"<a><gap/>\xc0\xbcgap/></a>", 1),
    one("surrogate-in-utf8", b"<a><gap/>\xed\xa0\x80<gap/></a>", 1),
    one("cut-sequence", b"<a><gap/>\xe2\x82<gap/></a>", 1),
    one("byte-0xFF", b"<a><gap/>\xff<gap/></a>", 1),
    one("name-with-options", declared("windows-1252,swaplfnl", "utf-8"), 0),
    one("empty-name", b"<?xml version='1.0' encoding=''?><a><gap/></a>", 0),
    one("name-without-end", b"<?xml version='1.0' encoding='", 0),
    Case("encoding-endless-name", "case.xml", around(b"<?xml version='1.0' encoding='", b"n", b"'?><a><gap/></a>"),
         Loaded(1)),
    Case("encoding-endless-latin", "case.xml", around(declared("windows-1252", "utf-8", "<a><clip><name>"), b"\xe9",
                                                      b"</name></clip><gap/></a>"), Loaded(2)),
    Case("encoding-stateful", "case.xml", around(declared("ISO-2022-JP", "ascii", "<a>"), b"\x1b$B$\"\x1b(B",
                                                 b"<gap/></a>"), Loaded(1)),
    one("empty", b"", 0), one("one-byte", b"<", 0), one("one-mark", b"\xff\xfe", 0), one("one-NUL", b"\0", 0),
    named("CASE.EDL", "edl", 1), named("case.TXT", "edl", 1), named("Case.Xml", "xmeml", 1),
    named("case.XMEML", "xmeml", 1), named("case.FcpXml", "fcpxml", 1),
    named("case.edl", "xmeml", 0), named("case.edl", "fcpxml", 0), named("case.txt", "xmeml", 0),
    named("case.txt", "fcpxml", 0), named("case.xml", "edl", 0), named("case.xmeml", "edl", 0),
    named("case.fcpxml", "edl", 0), named("case.xmeml", "fcpxml", 1), named("case.fcpxml", "xmeml", 1),
    named("case.csv", "edl", Refused(UNSUPPORTED)), named("case.edl.bak", "edl", Refused(UNSUPPORTED)),
    named("case", "edl", Refused(UNSUPPORTED)), named("case.", "xmeml", Refused(UNSUPPORTED)),
    named(".edl", "edl", 1), named("case.xml ", "xmeml", Refused(UNSUPPORTED)),
    named("case.ed\u0131", "edl", Refused(UNSUPPORTED)),
]
