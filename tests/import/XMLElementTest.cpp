// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLElement.h"

#include <gtest/gtest.h>

#include <string>

#include "support/RowName.h"

namespace clipvane::test {
namespace {

struct Row {
    std::string_view name;
    std::string_view element;
    XMLElement meaning;
};

class XMLElementName : public testing::TestWithParam<Row> {};

TEST_P(XMLElementName, HasItsMeaning) {
    EXPECT_EQ(classifyXMLElement(GetParam().element), GetParam().meaning);
}

INSTANTIATE_TEST_SUITE_P(
    Events, XMLElementName,
    testing::Values(
        Row{"asset", "asset", XMLElement::asset}, Row{"media", "media", XMLElement::asset},
        Row{"file", "file", XMLElement::file}, Row{"event", "event", XMLElement::event},
        Row{"source", "source", XMLElement::source}, Row{"record", "record", XMLElement::record},
        Row{"clipitem", "clipitem", XMLElement::clip}, Row{"clip", "clip", XMLElement::clip},
        Row{"assetClip", "asset-clip", XMLElement::clip},
        Row{"syncClip", "sync-clip", XMLElement::clip}, Row{"mcClip", "mc-clip", XMLElement::clip},
        Row{"gap", "gap", XMLElement::clip}, Row{"title", "title", XMLElement::clip},
        Row{"sequence", "sequence", XMLElement::container},
        Row{"project", "project", XMLElement::container}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Fields, XMLElementName,
    testing::Values(
        Row{"clipname", "clipname", XMLElement::clipName},
        Row{"elementName", "name", XMLElement::name}, Row{"reelid", "reelid", XMLElement::reel},
        Row{"reel", "reel", XMLElement::reel}, Row{"reelname", "reelname", XMLElement::reel},
        Row{"masterclipid", "masterclipid", XMLElement::reel},
        Row{"track", "track", XMLElement::track}, Row{"comments", "comments", XMLElement::comments},
        Row{"comment", "comment", XMLElement::comments}, Row{"in", "in", XMLElement::in},
        Row{"out", "out", XMLElement::out}, Row{"start", "start", XMLElement::start},
        Row{"end", "end", XMLElement::end}, Row{"duration", "duration", XMLElement::duration}),
    RowName());

INSTANTIATE_TEST_SUITE_P(Case, XMLElementName,
                         testing::Values(Row{"capitals", "ASSET-CLIP", XMLElement::clip},
                                         Row{"mixed", "MasterClipID", XMLElement::reel},
                                         Row{"kelvinSign", "trac\u212A", XMLElement::track},
                                         Row{"longS_LowerCaseAlready", "a\u017F\u017Fet",
                                             XMLElement::other},
                                         Row{"dottedCapitalI", "cl\u0130p", XMLElement::other},
                                         Row{"dotlessI", "cl\u0131p", XMLElement::other},
                                         Row{"fullWidth", "\uFF23lip", XMLElement::other}),
                         RowName());

INSTANTIATE_TEST_SUITE_P(
    Others, XMLElementName,
    testing::Values(
        Row{"empty", "", XMLElement::other}, Row{"prefixed", "x:clip", XMLElement::other},
        Row{"longer", "clips", XMLElement::other}, Row{"shorter", "cli", XMLElement::other},
        Row{"longerThanAny", "masterclipidx", XMLElement::other},
        Row{"compoundClip", "compound-clip", XMLElement::other},
        Row{"refClip", "ref-clip", XMLElement::other}, Row{"video", "video", XMLElement::other},
        Row{"timecode", "timecode", XMLElement::other}, Row{"marker", "marker", XMLElement::other},
        Row{"beyondASCII", "\u00E9v\u00E9nement", XMLElement::other},
        Row{"longBeyondASCII",
            "\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9"
            "\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9\u00E9",
            XMLElement::other}),
    RowName());

TEST(XMLElementNames, OfAnyLength_IsTaken) {
    EXPECT_EQ(classifyXMLElement(std::string(10'000'000, 'c')), XMLElement::other);
    EXPECT_EQ(classifyXMLElement(std::string(10'000'000, '\xC3')), XMLElement::other);
}

}  // namespace
}  // namespace clipvane::test
