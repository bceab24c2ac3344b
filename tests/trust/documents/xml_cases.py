# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

"""Hostile XML: entities, references to other files, depth, width, length."""

from case import Case, Loaded, Stopped, around, numbered, repeated, times, whole

HEAD, TAIL = b"<a><gap name='first'/>", b"<gap name='last'/></a>"
NOT_ROUNDED = "a number cannot be rounded to a 64-bit integer"


def xml(name, content, events, grows=True, file="case.xml"):
    expected = events if isinstance(events, Stopped) else Loaded(events)
    return Case("xml-" + name, file, content, expected, grows)


def one(name, data, events):
    return xml(name, whole(data), events, grows=False)


def inside(name, head, piece, tail, events=2):
    """Something endless between two events."""
    return xml(name, around(HEAD + head, piece, tail + TAIL), events)


def per_event(name, event, head=b"<a>", tail=b"</a>"):
    return xml("events-" + name, around(head, event, tail), lambda size: times(event, size))


def subset(name, declarations, document=HEAD + TAIL, events=2):
    return one(name, b"<!DOCTYPE a [" + declarations + b"]>" + document, events)


def laughs(reference, levels=40):
    """Entities that each hold the one before ten times."""
    yield b"<!DOCTYPE a [<!ENTITY l0 'ha'>"
    for level in range(1, levels):
        yield b"<!ENTITY l%d '%s'>" % (level, b"&l%d;" % (level - 1) * 10)
    yield b"]>" + HEAD + reference % (b"&l%d;" % (levels - 1)) + TAIL


def blow_up(size, folder):
    """One long entity, named again and again."""
    yield b"<!DOCTYPE a [<!ENTITY e '"
    yield from repeated(b"x", size // 2)
    yield b"'>]>" + HEAD + b"<clip><name>"
    yield from repeated(b"&e;", size // 2)
    yield b"</name></clip>" + TAIL


def chain(reference, forwards):
    """Each entity holds the next: as deep as the document is long."""
    def content(size, folder):
        count = max(2, size // 40)
        yield b"<!DOCTYPE a ["
        for i in range(count) if forwards else reversed(range(count)):
            yield b"<!ENTITY e%d '&e%d;'>" % (i, i + 1)
        yield b"<!ENTITY e%d 'x'>]>" % count + HEAD + reference + TAIL
    return content


def users_of_a_chain(size, folder):
    """Many entities that name one, whose own chain grows behind it."""
    yield b"<!DOCTYPE a ["
    for i in range(size // 40):
        yield b"<!ENTITY u%d '&e0;'>" % i
    for i in range(250):
        yield b"<!ENTITY e%d '&e%d;'>" % (i, i + 1)
    yield b"]>" + HEAD + TAIL


def parameter_laughs(size, folder):
    yield b"<!DOCTYPE a [<!ENTITY % p0 '<!ENTITY e \"x\">'>"
    for level in range(1, 30):
        yield b"<!ENTITY %% p%d '%s'>" % (level, b"&#37;p%d;" % (level - 1) * 10)
    yield b"%p29;]>" + HEAD + TAIL


def default_attributes(declared):
    """Attributes that every element gets, for so many bytes, and elements for the rest."""
    def content(size, folder):
        yield b"<!DOCTYPE a [<!ATTLIST b"
        for i in range(max(1, declared(size) // 24)):
            yield b" a%07d CDATA 'value'" % i
        yield b">]>" + HEAD
        yield from repeated(b"<b/>", size // 2)
        yield TAIL
    return content


def shared_asset(size, folder):
    """A long name that as many clips get."""
    yield b"<a><asset id='r' name='"
    yield from repeated(b"n", size // 2)
    yield b"'/>"
    yield from repeated(b"<clip ref='r'/>", size // 2)
    yield b"</a>"


def text_ended_often(element, more):
    """A long text within as many elements, each of which ends with the whole of it."""
    def content(size, folder):
        yield b"<a><clip>"
        start, end = b"<%s>" % element, more + b"</%s>" % element
        count = max(1, size // 2 // (len(start) + len(end)))
        yield from repeated(start, count * len(start))
        yield from repeated(b"t", size // 2)
        yield from repeated(end, count * len(end))
        yield b"</clip></a>"
    return content


def nested(start, end, tail=b"</a>"):
    def content(size, folder):
        levels = size // (len(start) + len(end))
        yield HEAD
        yield from repeated(start, levels * len(start))
        yield from repeated(end, levels * len(end))
        yield tail
    return content


def naming(name, before, document, events=2):
    """A document that names another file: SECRET, FIFO or SERVER stand for one."""
    def content(size, folder):
        data = before + document
        yield (data.replace(b"SECRET", folder.encode() + b"/secret.xml")
               .replace(b"FIFO", folder.encode() + b"/fifo")
               .replace(b"SERVER", b"http://127.0.0.1:9/x"))
    return xml("naming-" + name, content, events, grows=False)


def names_file(kind, place):
    """The ways in which a document can name a file."""
    def doctype(declarations):
        return b"<!DOCTYPE a [" + declarations + b"]>"
    system = b"SYSTEM '" + place + b"'"
    middle = HEAD + b"<clip><name>&e;</name></clip>" + TAIL
    return [
        naming(kind + "-as-entity", doctype(b"<!ENTITY e " + system + b">"), middle, 3),
        naming(kind + "-as-public-entity", doctype(b"<!ENTITY e PUBLIC 'x' '" + place + b"'>"), middle, 3),
        naming(kind + "-as-entity-in-attribute", doctype(b"<!ENTITY e " + system + b">"),
               HEAD + b"<clip name='&e;'/>" + TAIL, 1),
        naming(kind + "-as-parameter-entity", doctype(b"<!ENTITY % e " + system + b"> %e;"), HEAD + TAIL),
        naming(kind + "-as-unparsed-entity",
               doctype(b"<!NOTATION n " + system + b"><!ENTITY e " + system + b" NDATA n>"), HEAD + TAIL),
        naming(kind + "-as-subset", b"<!DOCTYPE a " + system + b">", HEAD + TAIL),
        naming(kind + "-as-public-subset", b"<!DOCTYPE a PUBLIC 'x' '" + place + b"'>", HEAD + TAIL),
        naming(kind + "-to-include", b"", HEAD + b"<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' "
               b"href='" + place + b"' parse='text'/>" + TAIL),
        naming(kind + "-as-style-sheet", b"<?xml-stylesheet type='text/xsl' href='" + place + b"'?>", HEAD + TAIL),
        naming(kind + "-as-schema", b"", HEAD + b"<b xsi:schemaLocation='x " + place + b"'/>" + TAIL),
        naming(kind + "-as-source", b"", HEAD + b"<asset id='r' src='" + place + b"'/><clip ref='r'/>" + TAIL, 3),
        naming(kind + "-as-encoding", b"<?xml version='1.0' encoding='" + place + b"'?>", HEAD + TAIL, 0),
    ]


def timing(name, value, events):
    return one("timing-" + name, HEAD + b"<clip start='" + value + b"'/>" + TAIL, events)


CASES = [
    # Entities.
    xml("laughs-in-text", lambda size, folder: laughs(b"<clip><name>%s</name></clip>"), 2, grows=False),
    xml("laughs-in-attribute", lambda size, folder: laughs(b"<clip name='%s'/>"), 1, grows=False),
    xml("laughs-outside-events", lambda size, folder: laughs(b"<b>%s</b>"), 1, grows=False),
    xml("laughs-of-parameters", parameter_laughs, 2, grows=False),
    xml("quadratic-blow-up", blow_up, lambda size: 3 if size < 4000 else 2),
    xml("chain-of-entities", chain(b"<b>&e0;</b>", False), lambda size: 2 if size < 4000 else 0),
    xml("chain-of-entities-declared-forwards", chain(b"<b>&e0;</b>", True), lambda size: 2 if size < 4000 else 0),
    xml("chain-of-entities-in-attribute", chain(b"<b c='&e0;'/>", False), lambda size: 2 if size < 4000 else 0),
    subset("entity-of-itself", b"<!ENTITY e '&e;'>", HEAD + b"&e;" + TAIL, 1),
    subset("entities-of-each-other", b"<!ENTITY e '&f;'><!ENTITY f '&e;'>", HEAD + b"&e;" + TAIL, 1),
    subset("entity-of-half-a-tag", b"<!ENTITY e '<clip'>", HEAD + b"&e;/>" + TAIL, 1),
    subset("entity-of-an-end-tag", b"<!ENTITY e '</a>'>", HEAD + b"&e;" + TAIL, 1),
    subset("entity-of-events", b"<!ENTITY e '<gap/><gap/>'>", HEAD + b"&e;&e;" + TAIL, 6),
    one("unknown-entity", HEAD + b"&unknown;" + TAIL, 1),
    one("reference-to-NUL", HEAD + b"&#0;" + TAIL, 1),
    one("reference-to-surrogate", HEAD + b"&#xD800;" + TAIL, 1),
    one("reference-beyond-unicode", HEAD + b"&#x110000;" + TAIL, 1),
    one("reference-of-many-digits", HEAD + b"&#" + b"9" * 100000 + b";" + TAIL, 1),
    inside("references", b"<b>", b"&amp;", b"</b>"), inside("numeric-references", b"<b>", b"&#65;", b"</b>"),
    inside("references-in-a-name", b"<clip><name>", b"&#65;", b"</name></clip>", 3),
    xml("entity-declarations", numbered(b"<!DOCTYPE a [", b"<!ENTITY e%d 'x'>", b"]>" + HEAD + TAIL), 2),
    xml("entity-declarations-with-references",
        numbered(b"<!DOCTYPE a [", b"<!ENTITY e%d 'a &amp; b'>", b"]>" + HEAD + TAIL), 2),
    xml("entities-of-one-that-grows", users_of_a_chain, lambda size: 2 if size < 100000 else 0),
    xml("element-declarations", numbered(b"<!DOCTYPE a [", b"<!ELEMENT e%d ANY>", b"]>" + HEAD + TAIL), 2),
    xml("default-attributes-of-many-elements", default_attributes(lambda size: min(size // 2, 200000)),
        lambda size: 2 if size < 30000 else 1),
    xml("default-attributes", default_attributes(lambda size: size // 2), lambda size:
        2 if size < 30000 else 1 if size < 575000 else 0),
    xml("groups-in-groups", around(b"<!DOCTYPE a [<!ELEMENT a ", b"(", b"a"), 0),
    # Depth and width.
    xml("levels", nested(b"<b>", b"</b>", TAIL), lambda size: 2 if size < 6000000 else 1),
    xml("levels-left-open", around(HEAD, b"<b>"), 1),
    xml("levels-with-name-spaces", nested(b"<n:b xmlns:n='u'>", b"</n:b>", TAIL),
        lambda size: 2 if size < 22000000 else 1),
    xml("clips-in-clips", nested(b"<clip>", b"</clip>"), lambda size: min(1 + size // 13, 1000000)),
    xml("clips-left-open", around(HEAD, b"<clip>"), lambda size: min(1 + size // 6, 1000000)),
    xml("attributes", numbered(HEAD + b"<clip", b" a%d=''", b"/>" + TAIL), 3),
    xml("attributes-elsewhere", numbered(HEAD + b"<b", b" a%d=''", b"/>" + TAIL), 2),
    xml("attributes-all-alike", around(HEAD + b"<clip", b" a=''", b"/>" + TAIL), 1),
    xml("assets", numbered(HEAD, b"<file id='%d'/>", TAIL), 2),
    xml("assets-all-alike", around(HEAD, b"<file id='r' name='x'/>", TAIL), 2),
    xml("clips-of-one-endless-asset", shared_asset, lambda size: (size // 2) // 15 if size < 100000 else
        min((size // 2) // 15, 1 + (8 * size + (64 << 20)) // (size // 2))),
    # Length.
    inside("text", b"<b>", b"x", b"</b>"), inside("text-in-clip", b"<clip>", b"x", b"</clip>", 3),
    inside("name", b"<clip><name>", b"n", b"</name></clip>", 3),
    inside("name-of-blanks", b"<clip><name>", b" ", b"</name></clip>", 3),
    inside("name-of-file-urls", b"<clip><name>", b"file://", b"</name></clip>", 3),
    inside("name-of-escaped-blanks", b"<clip><name>", b"%20", b"</name></clip>", 3),
    inside("comments-in-clip", b"<clip><comments>", b"c\n", b"</comments></clip>", 3),
    inside("comment", b"<!--", b"x", b"-->"), inside("comments", b"", b"<!---->", b""),
    inside("cdata", b"<clip><name><![CDATA[", b"]", b"]]></name></clip>", 3),
    inside("cdata-sections", b"<clip><name>", b"<![CDATA[x]]>", b"</name></clip>", 3),
    inside("instruction", b"<?x ", b"y", b"?>"), inside("instructions", b"", b"<?x?>", b""),
    inside("attribute-value", b"<clip name='", b"v", b"'/>", 3),
    inside("attribute-value-of-references", b"<clip name='", b"&lt;", b"'/>", 3),
    inside("attribute-name", b"<clip ", b"n", b"='1'/>", 3), inside("blanks-in-tag", b"<clip", b" ", b"/>", 3),
    inside("tag-without-end", b"<clip name='", b"v", b"", 1),
    xml("element-name", around(HEAD + b"<", b"n", b"/>" + TAIL), 2),
    xml("declaration", around(b"<?xml version='1.0'", b" ", b"?>" + HEAD + TAIL), 2),
    xml("comment-in-doctype", around(b"<!DOCTYPE a [<!--", b"x", b"-->]>" + HEAD + TAIL), 2),
    xml("entity-value", around(b"<!DOCTYPE a [<!ENTITY e '", b"x", b"'>]>" + HEAD + TAIL), 2),
    xml("blanks", around(b"", b" ", HEAD + TAIL), 2), xml("blanks-behind", around(HEAD + TAIL, b" "), 2),
    xml("NULs", around(HEAD, b"\0"), 1), xml("no-markup", around(b"", b"x"), 0),
    xml("opening-brackets", around(b"", b"<"), 0), xml("ampersands", around(HEAD, b"&"), 1),
    xml("text-ended-often-as-name", text_ended_often(b"name", b""), 1),
    xml("text-ended-often-as-comment", text_ended_often(b"comment", b""), 1),
    xml("text-ended-often-and-growing", text_ended_often(b"comment", b"x"), 1),
    xml("time-ended-often", text_ended_often(b"in", b""), 1),
    # Events by the million.
    per_event("empty-gaps", b"<gap/>"), per_event("empty-clipitems", b"<clipitem/>"),
    per_event("empty-asset-clips", b"<asset-clip/>"), per_event("generic", b"<event/>"),
    per_event("with-parts", b"<event><source in='1' out='2'/><record in='3' out='4'/></event>"),
    per_event("with-children", b"<clip><name>n</name><in>1</in><out>2</out><duration>1</duration></clip>"),
    xml("sequences", around(HEAD, b"<sequence><project/></sequence>", TAIL), 2),
    # Numbers.
    timing("1e30-seconds", b"1e30s", Stopped(NOT_ROUNDED)), timing("1e308", b"1e308", Stopped(NOT_ROUNDED)),
    timing("1e308-seconds", b"1e308s", Stopped(NOT_ROUNDED)), timing("infinity", b"inf", Stopped(NOT_ROUNDED)),
    timing("not-a-number", b"nan", Stopped(NOT_ROUNDED)), timing("hexadecimal", b"0x1p9999", Stopped(NOT_ROUNDED)),
    timing("minus-infinity", b"-inf", 3), timing("minus-infinite-seconds", b"-infs", Stopped(NOT_ROUNDED)),
    timing("fraction-over-zero", b"1/0s", 3), timing("infinite-fraction", b"1e308/1e-308s", Stopped(NOT_ROUNDED)),
    timing("infinite-quotient", b"inf/infs", Stopped(NOT_ROUNDED)), timing("tiny", b"1e-999s", 3),
    timing("many-digits", b"1" * 100000, Stopped(NOT_ROUNDED)),
    timing("many-digits-of-a-fraction", b"0." + b"1" * 100000 + b"s", 3),
    timing("many-colons", b"1:" * 100000, 3), timing("too-many-hours", b"9223372036854775807:0:0:0' end='1:0:0:0", Stopped(
        "a frame count exceeds 64 bits (multiplication)")),
    one("timing-sum", HEAD + b"<clip start='9223372036854774784' duration='9223372036854774784'/>" + TAIL,
        Stopped("a frame count exceeds 64 bits (addition)")),
    one("rate-of-many-digits", b"<a><timebase>" + b"9" * 1000 + b"</timebase><clip start='1'/></a>",
        Stopped(NOT_ROUNDED)),
    one("frame-duration-of-next-to-nothing", b"<a frameDuration='1/" + b"9" * 400 + b"s'><clip start='1'/></a>",
        Stopped(NOT_ROUNDED)),
]
for kind, place in [("file", b"SECRET"), ("pipe", b"FIFO"), ("device", b"/dev/zero"), ("server", b"SERVER")]:
    CASES += names_file(kind, place)
