// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/CommonTimelineXMLDelegate.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>

#include <clipvane/TimelineParser.h>
#include "import/Summary.h"
#include "support/Records.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

std::vector<TimelineEvent> eventsOf(std::string_view xml, double fps = 25) {
    return records(TimelineParser::parseXML(xml, fps));
}

TimelineEvent lastEvent(std::string_view xml) {
    auto events = eventsOf(xml);
    EXPECT_FALSE(events.empty()) << xml;
    return events.empty() ? TimelineEvent() : events.back();
}

// Events of the generic form.

TEST(XMLEvent, WithSourceAndRecord_IsFilled) {
    EXPECT_EQ(
        summary(lastEvent("<a><event number='7' highlighted='TRUE'><source in='10s' out='20s'/>"
                          "<record in='3600s' out='3610s'/><name>N</name><reel>R</reel>"
                          "<track>V</track><comments>C</comments></event></a>")),
        "7|N|R|00:00:10:00|00:00:20:00|01:00:00:00|01:00:10:00|XML|V|C|event|yes");
}

TEST(XMLEvent, WithoutAnything_HasItsPositionAndItsElementName) {
    const auto events = eventsOf("<a><clip/><EVENT/><event/></a>");
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(summary(events[1]), "2|||||||XML|||EVENT|no");
    EXPECT_EQ(summary(events[2]), "3|||||||XML|||event|no");
    EXPECT_NE(events[1].id, events[2].id);
}

TEST(XMLEvent, TheNumber_IsCleanedAndMayBeEmpty) {
    EXPECT_EQ(lastEvent("<event number=' 0%2007 '/>").eventNumber, "0 07");
    EXPECT_EQ(lastEvent("<event number=''/>").eventNumber, "");
    EXPECT_EQ(lastEvent("<event Number='7'/>").eventNumber, "1");
}

TEST(XMLEvent, Highlighted_IsTrueInAnyCaseAndNothingElse) {
    for (const char* yes : {"true", "TRUE", "True", "tRuE"}) {
        EXPECT_TRUE(lastEvent("<event highlighted='" + std::string(yes) + "'/>").highlighted)
            << yes;
    }
    for (const char* no :
         {"", " true", "true ", "1", "yes", "false", "truee", "tru", "\uFF54rue"}) {
        EXPECT_FALSE(lastEvent("<event highlighted='" + std::string(no) + "'/>").highlighted) << no;
    }
    EXPECT_FALSE(lastEvent("<event Highlighted='true'/>").highlighted);
    EXPECT_FALSE(lastEvent("<clip highlighted='true'/>").highlighted);
}

struct Row {
    std::string_view name;
    std::string_view xml;
    std::string_view source;  ///< in-point and out-point
    std::string_view record;
};

class XMLRange : public testing::TestWithParam<Row> {};

TEST_P(XMLRange, OfTheEvent) {
    const TimelineEvent event = lastEvent(GetParam().xml);
    EXPECT_EQ(event.sourceIn + " " + event.sourceOut, GetParam().source);
    EXPECT_EQ(event.recordIn + " " + event.recordOut, GetParam().record);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, XMLRange,
    testing::Values(
        Row{"source", "<event><source in='1' out='2'/></event>", "00:00:00:01 00:00:00:02", " "},
        Row{"record", "<event><RECORD in='1' out='2'/></event>", " ", "00:00:00:01 00:00:00:02"},
        Row{"oneAttribute", "<event><source out='2'/></event>", " 00:00:00:02", " "},
        Row{"overwrites", "<event><source in='1' out='2'/><source in='3'/></event>",
            "00:00:00:03 00:00:00:02", " "},
        Row{"overwritesWithEmptyText", "<event><source in='1' out='2'/><source in=''/></event>",
            " 00:00:00:02", " "},
        Row{"overwritesWithNegative", "<event><record in='1' out='2'/><record out='-1'/></event>",
            " ", "00:00:00:01 "},
        Row{"withoutAttributes", "<event><source in='1'/><source/></event>", "00:00:00:01 ", " "},
        Row{"otherAttributes", "<event><source start='1' IN='2'/></event>", " ", " "},
        Row{"overwritesAClipsAttributes", "<clip in='1' out='2'><source in='3' out='4'/></clip>",
            "00:00:00:03 00:00:00:04", " "},
        Row{"childrenAreSourceTimes_AlsoInRecord",
            "<event><record><in>1</in><out>2</out></record></event>", "00:00:00:01 00:00:00:02",
            " "},
        Row{"startAndEndAreRecordTimes_AlsoInSource",
            "<event><source><start>1</start><end>2</end></source></event>", " ",
            "00:00:00:01 00:00:00:02"},
        Row{"childrenOnlyFill", "<event><source in='1'><in>5</in></source></event>", "00:00:00:01 ",
            " "},
        Row{"attributesAfterChildren", "<event><in>5</in><source in='1'/></event>", "00:00:00:01 ",
            " "},
        Row{"closingSourceEndsNothing",
            "<event><source in='1'></source><record in='2'></record><out>3</out></event>",
            "00:00:00:01 00:00:00:03", "00:00:00:02 "}),
    RowName());

TEST(XMLEvent, SourceAndRecordOutsideOfEvents_AreIgnored) {
    EXPECT_TRUE(eventsOf("<a><source in='1'/><record in='1'/></a>").empty());
    EXPECT_EQ(lastEvent("<a><event/><source in='1'/></a>").sourceIn, "");
}

// Clips, and what ends them.

TEST(XMLClips, WithoutAttributes_HaveTheElementNameAsNameAndTrack) {
    EXPECT_EQ(summary(lastEvent("<clipitem/>")), "1|clipitem||||||XML|clipitem||clipitem|no");
}

TEST(XMLClips, OfEveryKind_AreEvents) {
    const auto events = eventsOf(
        "<a><clipitem/><clip/><asset-clip/><sync-clip/><mc-clip/><gap/><title/><ref-clip/><video/>"
        "<sequence/><project/><Asset-Clip/><x:clip xmlns:x='y'/></a>");
    std::string names;
    for (const auto& event : events) names += event.eventNumber + event.rawText + " ";
    EXPECT_EQ(names, "1clipitem 2clip 3asset-clip 4sync-clip 5mc-clip 6gap 7title 8Asset-Clip ");
}

TEST(XMLClips, TheElementName_IsKeptAsWritten) {
    EXPECT_EQ(lastEvent("<CLIPITEM name='x'/>").rawText, "CLIPITEM");
}

TEST(XMLClips, Comments_TheLastCounts) {
    EXPECT_EQ(
        lastEvent("<clip><comment>a</comment><comments>b</comments><comment> c </comment></clip>")
            .comments,
        "c");
    EXPECT_EQ(lastEvent("<clip><comment>a</comment><comment> </comment></clip>").comments, "a");
    EXPECT_EQ(lastEvent("<clip><comments><m>a</m><m>b</m> </comments></clip>").comments, "b");
}

TEST(XMLClips, InnerClip_TakesThePlaceOfTheOuter) {
    const auto events =
        eventsOf("<clip><in>1</in><clip><in>2</in></clip><out>3</out><name>late</name></clip>");
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].sourceIn, "00:00:00:01");
    EXPECT_EQ(events[0].sourceOut, "");
    EXPECT_EQ(events[0].clipName, "clip");
    EXPECT_EQ(events[1].sourceIn, "00:00:00:02");
    EXPECT_EQ(events[1].sourceOut, "");
}

TEST(XMLClips, ATitleInsideAnEvent_IsAnEventOfItsOwn) {
    const auto events = eventsOf("<event><title>T</title><name>lost</name></event>");
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].clipName, "");
    EXPECT_EQ(events[1].clipName, "title");
}

TEST(XMLClips, EveryClosingElement_EndsTheEvent) {
    for (const std::string name : {"event", "clipitem", "clip", "asset-clip", "sync-clip",
                                   "mc-clip", "gap", "title", "sequence", "project", "SEQUENCE"}) {
        const auto events = eventsOf("<event><" + name + "/><name>lost</name></event>");
        ASSERT_FALSE(events.empty());
        for (const auto& event : events) EXPECT_NE(event.clipName, "lost") << name;
    }
}

TEST(XMLClips, OtherClosingElements_DoNot) {
    for (const std::string name :
         {"asset", "media", "file", "source", "record", "spine", "resources"}) {
        EXPECT_EQ(lastEvent("<event><" + name + "/><name>N</name></event>").clipName, "N") << name;
    }
}

TEST(XMLClips, TextIsOnlyResetAtElementStarts) {
    // The end of "out" sees the text of "in", too, for it had a child of its own.
    EXPECT_EQ(lastEvent("<clip><out>9<in>1</in>2</out></clip>").sourceOut, "00:00:00:12");
    EXPECT_EQ(lastEvent("<clip>5<in>1</in></clip>").sourceIn, "00:00:00:01");
}

// The callbacks themselves, as no document can make them.

TEST(CommonTimelineXMLDelegate, ClosingSequenceWithoutClosingClip_EndsTheEvent) {
    const char* const none[] = {nullptr};
    CommonTimelineXMLDelegate reader(25);
    reader.didStartElement(XMLElement::container, "sequence", none);
    reader.didStartElement(XMLElement::clip, "clip", none);
    reader.didEndElement(XMLElement::container);
    reader.didStartElement(XMLElement::name, "name", none);
    reader.foundCharacters("lost");
    reader.didEndElement(XMLElement::name);
    const EventList events = reader.finish();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].clipName, "clip");
}

TEST(CommonTimelineXMLDelegate, TextInPieces_IsAppended) {
    const char* const none[] = {nullptr};
    const char* const attributes[] = {"ref", "r1", "start", "1s", nullptr};
    CommonTimelineXMLDelegate reader(24);
    reader.didEndElement(XMLElement::clip);
    reader.foundCharacters("before");
    reader.didStartElement(XMLElement::clip, "clip", attributes);
    reader.didStartElement(XMLElement::comments, "comment", none);
    for (const char* piece : {" a", "", " b\xC3", "\xA9 ", " c "}) reader.foundCharacters(piece);
    reader.didEndElement(XMLElement::comments);
    const EventList events = reader.finish();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].comments, "a b\u00E9  c");
    EXPECT_EQ(events[0].reelID, "r1");
    EXPECT_EQ(events[0].sourceIn, "00:00:01:00");
}

// Hostile numbers that reach the fatal cases through a document.

TEST(HostileXMLDeathTest, StopsTheProgram) {
    const std::string rounded = "cannot be rounded";
    EXPECT_DEATH(eventsOf("<clip start='inf'/>"), rounded);
    EXPECT_DEATH(eventsOf("<clip start='nan'/>"), rounded);
    EXPECT_DEATH(eventsOf("<clip duration='1s' start='0' out='1e30s'/>"), rounded);
    EXPECT_DEATH(eventsOf("<clip><in>1e400</in></clip>"), rounded);
    EXPECT_DEATH(eventsOf("<event><source in='infs'/></event>"), rounded);
    EXPECT_DEATH(eventsOf("<clip start='5'/>", 1e20), rounded);
    EXPECT_DEATH(eventsOf("<clip start='9000000000000000000' duration='9000000000000000000'/>"),
                 "exceeds 64 bits \\(addition\\)");
    EXPECT_DEATH(
        eventsOf(
            "<clip><in>9000000000000000000</in><duration>9000000000000000000</duration></clip>"),
        "exceeds 64 bits \\(addition\\)");
}

TEST(HostileXML, WhereNoCountIsNeeded_IsRead) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(eventsOf("<clip name='x' out='01:00:00:00' end='abc'/>", infinity).size(), 1U);
    // Without a count of the first value the second is not looked at.
    EXPECT_EQ(lastEvent("<clip start='abc' duration='inf'/>").sourceOut, "");
    EXPECT_EQ(lastEvent("<clip><duration>inf</duration></clip>").sourceOut, "");
    EXPECT_EQ(lastEvent("<clip in='1'><in>inf</in></clip>").sourceIn, "00:00:00:01");
    EXPECT_EQ(lastEvent("<clip start='1s' duration='-inf'/>").sourceOut, "");
    EXPECT_EQ(lastEvent("<clip duration='inf'/>").sourceOut, "");
    EXPECT_EQ(lastEvent("<clip out='-1e400'/>").sourceOut, "");
}

}  // namespace
}  // namespace clipvane::test
