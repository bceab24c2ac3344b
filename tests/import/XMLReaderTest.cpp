// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <string>

#include <clipvane/TimelineParser.h>
#include "support/LongTest.h"
#include "support/Records.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::Field;

std::vector<TimelineEvent> eventsOf(std::string_view xml) {
    return records(TimelineParser::parseXML(xml, 25));
}

struct CountRow {
    std::string_view name;
    std::string xml;
    std::size_t events;
};

class XMLDocument : public testing::TestWithParam<CountRow> {};

TEST_P(XMLDocument, GivesTheEventsBeforeItsFirstError) {
    EXPECT_EQ(eventsOf(GetParam().xml).size(), GetParam().events);
}

/// Entities that would expand to far more than the parser's guard lets through.
const std::string entityBomb = [] {
    std::string text = "<!DOCTYPE a [<!ENTITY e0 'ha ha ha ha ha ha ha ha'>";
    for (int i = 1; i < 10; ++i) {
        const std::string earlier = "&e" + std::to_string(i - 1) + ";";
        text += "<!ENTITY e" + std::to_string(i) + " '";
        for (int j = 0; j < 10; ++j) text += earlier;
        text += "'>";
    }
    return text + "]>";
}();

std::string nested(std::size_t levels, std::string_view content) {
    std::string text;
    for (std::size_t i = 0; i < levels; ++i) text += "<group>";
    text += content;
    for (std::size_t i = 0; i < levels; ++i) text += "</group>";
    return text;
}

INSTANTIATE_TEST_SUITE_P(
    Errors, XMLDocument,
    testing::Values(CountRow{"wellFormed", "<a><clip/><clip/></a>", 2},
                    CountRow{"nothingRecognised", "<a><b c='d'>e</b></a>", 0},
                    CountRow{"empty", "", 0}, CountRow{"blanks", " \n", 0},
                    CountRow{"text", "hello", 0}, CountRow{"unclosed", "<a><clip/><clip>", 2},
                    CountRow{"mismatched", "<a><clip/><clip></b><clip/></a>", 2},
                    CountRow{"unfinishedTag", "<a><clip/><clip", 1},
                    CountRow{"unfinishedTagWithAttribute", "<a><clip/><clip a='b' ", 1},
                    CountRow{"unfinishedTagInValue", "<a><clip/><clip a='b", 1},
                    CountRow{"unfinishedEmptyTag", "<a><clip/><clip /", 1},
                    CountRow{"afterTheRoot", "<a><clip/></a><clip/>", 1},
                    CountRow{"textAfterTheRoot", "<clip/> tail", 1},
                    CountRow{"repeatedAttribute", "<a><clip/><clip a='1' a='2'/><clip/></a>", 1},
                    CountRow{"unquotedAttribute", "<a><clip/><clip a=1/></a>", 1},
                    CountRow{"bareAmpersand", "<a><clip/><b>R & D</b><clip/></a>", 1},
                    CountRow{"nulInText", "<a><clip/>\0<clip/></a>"s, 1},
                    CountRow{"controlCharacter", "<a><clip/>\x01<clip/></a>", 1},
                    CountRow{"illFormedUTF8", "<a><clip/>\xFF<clip/></a>", 1},
                    CountRow{"undeclaredEntity", "<a><clip/>&nope;<clip/></a>", 1},
                    CountRow{"undeclaredPrefix", "<a><x:clip/><clip/></a>", 1},
                    CountRow{"declarationNotFirst", "\n<?xml version='1.0'?><clip/>", 0},
                    CountRow{"version11", "<?xml version='1.1'?><clip/>", 1},
                    CountRow{"unfinishedComment", "<a><clip/><!-- <clip/>", 1},
                    CountRow{"unfinishedCDATA", "<a><clip/><![CDATA[ <clip/>", 1}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Documents, XMLDocument,
    testing::Values(
        CountRow{"bareDocumentType", "<!DOCTYPE xmeml><xmeml><clip/></xmeml>", 1},
        CountRow{"externalDocumentType",
                 "<!DOCTYPE x PUBLIC '-//x' 'http://127.0.0.1:9/x.dtd'><x><clip/></x>", 1},
        CountRow{"externalParameterEntity",
                 "<!DOCTYPE x [<!ENTITY % p SYSTEM 'file:///etc/hostname'> %p;]><x><clip/></x>", 1},
        CountRow{"entityBomb_EventsBeforeItStay",
                 entityBomb + "<a><clip/><clip/><b>&e9;</b><clip/></a>", 2},
        CountRow{"entityBombInAttribute", entityBomb + "<a><clip/><clip name='&e9;'/></a>", 1},
        CountRow{"entityOfItself", "<!DOCTYPE a [<!ENTITY e '&e;'>]><a><clip/><b>&e;</b></a>", 1},
        CountRow{"entityHoldingAClip", "<!DOCTYPE a [<!ENTITY e '<clip/>'>]><a>&e;&e;</a>", 2},
        CountRow{"threeHundredLevels", nested(300, "<clip/>"), 1},
        CountRow{"hundredThousandLevels", nested(100'000, "<clip/>"), 1},
        CountRow{"nestedClips", "<clip><clip><clip/></clip></clip>", 3},
        CountRow{"clipInComment", "<a><!-- <clip/> --><clip/></a>", 1},
        CountRow{"clipInCDATA", "<a><![CDATA[<clip/>]]><clip/></a>", 1},
        CountRow{"instructions", "<?a b?><a><?clip?><clip/></a><?c?>", 1}),
    RowName());

struct NameRow {
    std::string_view name;
    std::string xml;
    std::string_view clipName;
};

class XMLNames : public testing::TestWithParam<NameRow> {};

TEST_P(XMLNames, AreReadAsCharacters) {
    const auto events = eventsOf(GetParam().xml);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].clipName, GetParam().clipName);
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, XMLNames,
    testing::Values(
        NameRow{"ampersand", "<clip name='R &amp; D'/>", "R & D"},
        NameRow{"allFive", "<clip name='&lt;&gt;&quot;&apos;&amp;'/>", "<>\"'&"},
        NameRow{"references", "<clip name='&#233;&#xE9;&#x1F3AC;'/>", "\u00E9\u00E9\U0001F3AC"},
        NameRow{"lineBreaksAndTabsBecomeBlanks", "<clip name='a\nb\tc\r\nd\re'/>", "a b c d e"},
        NameRow{"referencesToThemStay", "<clip name='a&#10;b&#9;c&#13;d'/>", "a\nb\tc\rd"},
        NameRow{"entity", "<!DOCTYPE clip [<!ENTITY e 'x &#38;amp; y'>]><clip name='&e;!'/>",
                "x & y!"},
        NameRow{"ampersandEscapedTwice", "<clip name='&amp;amp;'/>", "&amp;"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Text, XMLNames,
    testing::Values(
        NameRow{"plain", "<clip><name>a</name></clip>", "a"},
        NameRow{"escapes", "<clip><name>R &amp; D &lt;1&gt; &#xE9;</name></clip>",
                "R & D <1> \u00E9"},
        NameRow{"characterData", "<clip><name><![CDATA[R & D <1>]]></name></clip>", "R & D <1>"},
        NameRow{"piecesOfBoth", "<clip><name>a <![CDATA[b]]> c<![CDATA[]]> d</name></clip>",
                "a b c d"},
        NameRow{"commentsAndInstructionsBetween", "<clip><name>a<!-- x -->b<?c d?>c</name></clip>",
                "abc"},
        NameRow{"entity",
                "<!DOCTYPE clip [<!ENTITY e 'R &#38;amp; D'>]><clip><name>1 &e; 2</name></clip>",
                "1 R & D 2"},
        NameRow{"lineEndsAreOneKind", "<clip><name>a\r\nb\rc</name></clip>", "a\nb\nc"},
        NameRow{"externalEntityIsNeverRead",
                "<!DOCTYPE clip [<!ENTITY e SYSTEM 'file:///etc/hostname'>]>"
                "<clip><name>a&e;b</name></clip>",
                "ab"}),
    RowName());

TEST(XMLReader, AnExternalEntity_IsNotReadFromItsFile) {
    const TemporaryFolder folder;
    writeContent(folder / "secret", "secret");
    const std::string xml = "<!DOCTYPE clip [<!ENTITY e SYSTEM 'file://" +
                            (folder / "secret").string() + "'>]><clip><name>a&e;b</name></clip>";
    EXPECT_THAT(eventsOf(xml), ElementsAre(Field(&TimelineEvent::clipName, "ab")));
}

TEST(XMLReader, AnEntityInANameOfLength_ExpandsWithinTheGuard) {
    const std::string value(10'000, 'x');
    std::string xml = "<!DOCTYPE clip [<!ENTITY e '" + value + "'>]><clip><name>";
    std::string expected;
    for (int i = 0; i < 50; ++i) {
        xml += "&e;";
        expected += value;
    }
    EXPECT_THAT(eventsOf(xml + "</name></clip>"),
                ElementsAre(Field(&TimelineEvent::clipName, expected)));
}

/// The file is handed over in pieces; a text, a tag and a character may lie across their ends.
TEST(XMLReader, ALongDocument_IsReadAcrossPieces) {
    CLIPVANE_LONG_TEST();
    constexpr std::size_t count = 60'000;
    std::string xml = "<a>";
    for (std::size_t i = 0; i < count; ++i) {
        xml += "<clip id='\u00E9" + std::to_string(i) + "'><name>\U0001F3AC \u00E9 " +
               std::to_string(i) + "</name></clip>";
    }
    const auto events = eventsOf(xml + "</a>");
    ASSERT_EQ(events.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_EQ(events[i].clipName, "\U0001F3AC \u00E9 " + std::to_string(i));
        ASSERT_EQ(events[i].reelID, "\u00E9" + std::to_string(i));
    }
}

}  // namespace
}  // namespace clipvane::test
