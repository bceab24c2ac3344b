// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include <clipvane/TimelineParser.h>
#include "support/Records.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

using Texts = std::string TimelineEvent::*;

constexpr Texts clipName = &TimelineEvent::clipName;
constexpr Texts reelID = &TimelineEvent::reelID;
constexpr Texts sourceIn = &TimelineEvent::sourceIn;
constexpr Texts sourceOut = &TimelineEvent::sourceOut;
constexpr Texts recordIn = &TimelineEvent::recordIn;
constexpr Texts recordOut = &TimelineEvent::recordOut;
constexpr Texts track = &TimelineEvent::track;

/// What a field of the last event of a document is, at 25 frames per second.
struct Row {
    std::string_view name;
    Texts field;
    std::string_view value;
    std::string_view xml;
};

class XMLClip : public testing::TestWithParam<Row> {};

TEST_P(XMLClip, HasTheValue) {
    const auto events = records(TimelineParser::parseXML(GetParam().xml, 25));
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back().*GetParam().field, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Name, XMLClip,
    testing::Values(
        Row{"attribute", clipName, "A", "<clip name='A'/>"},
        Row{"cleaned", clipName, "/a/My Clip.mov", "<clip name='file:///a/My%20Clip.mov'/>"},
        Row{"emptyAttributeCounts", clipName, "",
            "<a><asset id='r' name='X'/><clip ref='r' name='' lane='1'/></a>"},
        Row{"assetName", clipName, "X", "<a><asset id='r1' name='X'/><asset-clip ref='r1'/></a>"},
        Row{"assetSrc", clipName, "/a b",
            "<a><asset id='r1' src='file:///a%20b'/><clip ref='r1'/></a>"},
        Row{"assetPathURL", clipName, "/p",
            "<a><file id='r1' pathurl='file:///p'/><clip ref='r1'/></a>"},
        Row{"assetNameBeforeSrc", clipName, "X",
            "<a><asset id='r1' pathurl='p' src='s' name='X'/><clip ref='r1'/></a>"},
        Row{"assetSrcBeforePathURL", clipName, "s",
            "<a><asset id='r1' pathurl='p' src='s'/><clip ref='r1'/></a>"},
        Row{"assetIdItself", clipName, "r1", "<a><media id='r1'/><clip ref='r1'/></a>"},
        Row{"assetUID", clipName, "X", "<a><asset uid='u' name='X'/><clip ref='u'/></a>"},
        Row{"assetIdBeforeUID", clipName, "clip",
            "<a><asset id='i' uid='u' name='X'/><clip ref='u'/></a>"},
        Row{"assetWithoutId", clipName, "clip", "<a><asset name='X'/><clip/></a>"},
        Row{"assetWithEmptyId_ServesClipsWithoutReference", clipName, "X",
            "<a><asset id='' name='X'/><clip/></a>"},
        Row{"assetWithEmptyName", clipName, "",
            "<a><asset id='r' name=''/><clip ref='r' lane='1'/></a>"},
        Row{"laterAssetReplaces", clipName, "Y",
            "<a><asset id='r' name='X'/><file id='r' name='Y'/><clip ref='r'/></a>"},
        Row{"assetAfterTheClip", clipName, "clip",
            "<a><clip ref='r'/><asset id='r' name='X'/></a>"},
        Row{"assetIdIsNotCleaned", clipName, "clip",
            "<a><asset id=' r' name='X'/><clip ref='r'/></a>"},
        Row{"assetInCapitals", clipName, "X", "<a><ASSET id='r' name='X'/><CLIP ref='r'/></a>"},
        Row{"attributesOfAssetAreCaseSensitive", clipName, "r",
            "<a><asset id='r' Name='X'/><clip ref='r'/></a>"},
        Row{"lane", clipName, "2", "<clip lane=' 2 '/>"},
        Row{"elementName", clipName, "clip", "<clip/>"},
        Row{"elementNameAsWritten", clipName, "Clip", "<Clip/>"},
        Row{"title", clipName, "title", "<title/>"},
        Row{"gap", clipName, "Black", "<gap name='Black'/>"},
        Row{"gapWithoutName", clipName, "gap", "<gap/>"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    NameChild, XMLClip,
    testing::Values(
        Row{"fillsPlaceholder", clipName, "N", "<clipitem><name>N</name></clipitem>"},
        Row{"fillsEmpty", clipName, "N", "<clip name=''><name>N</name></clip>"},
        Row{"fillsAfterCapital", clipName, "N", "<Clip><name>N</name></Clip>"},
        Row{"fillsWhateverBeginsWithClip", clipName, "N",
            "<clip name='clip 7'><name>N</name></clip>"},
        Row{"allCapitalsStay", clipName, "CLIPITEM", "<CLIPITEM><name>N</name></CLIPITEM>"},
        Row{"capitalWithMoreStays", clipName, "Clip-7",
            "<clip name='Clip-7'><name>N</name></clip>"},
        Row{"attributeStays", clipName, "A", "<clip name='A'><name>N</name></clip>"},
        Row{"assetNameStays", clipName, "X",
            "<a><asset id='r' name='X'/><clip ref='r'><name>N</name></clip></a>"},
        Row{"otherElementNameStays", clipName, "asset-clip",
            "<asset-clip><name>N</name></asset-clip>"},
        Row{"titleStays", clipName, "title", "<title><name>N</name></title>"},
        Row{"firstWins", clipName, "N", "<clip><name>N</name><name>M</name></clip>"},
        Row{"clipLikeNameIsReplacedAgain", clipName, "M",
            "<clip><name>clip</name><name>M</name></clip>"},
        Row{"blankIsNone", clipName, "clip", "<clip><name> \n </name></clip>"},
        Row{"cleaned", clipName, "/a b", "<clip><name> file:///a%20b\n</name></clip>"},
        Row{"deeper", clipName, "N", "<clip><x><y><name>N</name></y></x></clip>"},
        Row{"inCapitals", clipName, "N", "<clip><NAME>N</NAME></clip>"},
        Row{"clipnameAlways", clipName, "C", "<clip name='A'><clipname>C</clipname></clip>"},
        Row{"lastClipnameWins", clipName, "D",
            "<clip name='A'><clipname>C</clipname><ClipName>D</ClipName></clip>"},
        Row{"clipnameThenName", clipName, "C",
            "<clip><clipname>C</clipname><name>N</name></clip>"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Reel, XMLClip,
    testing::Values(
        Row{"ref", reelID, "r1", "<clip id='i' asset='a' ref='r1' reel='R'/>"},
        Row{"asset", reelID, "a", "<clip id='i' asset='a' reel='R'/>"},
        Row{"id", reelID, "clipitem-1", "<clipitem id='clipitem-1' reel='R'/>"},
        Row{"emptyRefIsTheReference", reelID, "R", "<clip ref='' id='i' reel='R'/>"},
        Row{"reel", reelID, "R", "<clip reel='R' src='S'/>"},
        Row{"src", reelID, "/s", "<clip src='file:///s'/>"},
        Row{"emptyReelBeforeSrc", reelID, "", "<clip reel='' src='S'/>"},
        Row{"none", reelID, "", "<clip/>"}, Row{"cleaned", reelID, "a b", "<clip ref=' a%20b '/>"},
        Row{"attributesAreCaseSensitive", reelID, "", "<clip Ref='r' REEL='R'/>"},
        Row{"childrenAfterId", reelID, "clipitem-1",
            "<clipitem "
            "id='clipitem-1'><reel><name>n</name></reel><reelname>R</reelname></clipitem>"},
        Row{"reelidChild", reelID, "R", "<clip><reelid>R</reelid></clip>"},
        Row{"reelChild", reelID, "R", "<clip><reel>R</reel></clip>"},
        Row{"reelnameChild", reelID, "R", "<clip><ReelName>R</ReelName></clip>"},
        Row{"masterclipidChild", reelID, "R", "<clip><masterclipid>R</masterclipid></clip>"},
        Row{"fileChild", reelID, "R", "<clip><file>R</file></clip>"},
        Row{"firstChildWins", reelID, "M",
            "<clip><reel> </reel><masterclipid>M</masterclipid><reelid>R</reelid></clip>"},
        Row{"endOfFileSeesItsLastChild", reelID, "/a b.mov",
            "<clip><file "
            "id='f'><name>n</name><pathurl>file:///a%20b.mov</pathurl>\n</file></clip>"},
        Row{"endOfReelSeesItsLastChild", reelID, "A001",
            "<clip><reel> x <z>y</z><name>A001</name> </reel></clip>"},
        Row{"textAfterLastChildIsAppended", reelID, "n tail",
            "<clip><file><name>n</name> tail</file></clip>"},
        Row{"textBeforeLastChildIsLost", reelID, "", "<clip><file>R<rate/></file></clip>"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Track, XMLClip,
    testing::Values(Row{"lane", track, "1", "<clip track='V2' lane='1'/>"},
                    Row{"track", track, "V2", "<clip track=' V2 '/>"},
                    Row{"elementName", track, "clipitem", "<clipitem/>"},
                    Row{"elementNameAsWritten", track, "Asset-Clip", "<Asset-Clip/>"},
                    Row{"emptyLane", track, "", "<clip lane='' track='V2'/>"},
                    Row{"childFillsEmptyOnly", track, "V3",
                        "<clip lane=''><track>V3</track><track>V4</track></clip>"},
                    Row{"childAfterElementName", track, "clip", "<clip><track>V3</track></clip>"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Times, XMLClip,
    testing::Values(
        Row{"start", sourceIn, "00:00:01:00", "<clip in='3s' tcStart='2s' start='1s'/>"},
        Row{"tcStart", sourceIn, "00:00:02:00", "<clip in='3s' tcStart='2s'/>"},
        Row{"in", sourceIn, "00:00:03:00", "<clip in='3s'/>"},
        Row{"emptyStartCounts", sourceIn, "", "<clip start='' in='3s'/>"},
        Row{"noStart", sourceIn, "", "<clip/>"},
        Row{"offset", recordIn, "00:00:05:00", "<clip start='1s' timelineStart='4s' offset='5s'/>"},
        Row{"timelineStart", recordIn, "00:00:04:00", "<clip start='1s' timelineStart='4s'/>"},
        Row{"startForTheRecord", recordIn, "00:00:01:00", "<clip start='1s'/>"},
        Row{"inIsNotForTheRecord", recordIn, "", "<clip in='1s'/>"},
        Row{"out", sourceOut, "00:00:09:00", "<clip start='1s' duration='2s' out='9s'/>"},
        Row{"emptyOutCounts", sourceOut, "", "<clip start='1s' duration='2s' out=''/>"},
        Row{"durationAfterStart", sourceOut, "00:00:03:00", "<clip start='1s' duration='2s'/>"},
        Row{"durationInFrames", sourceOut, "00:00:03:00", "<clip start='25' duration='50'/>"},
        Row{"durationAsTimecode", sourceOut, "01:00:02:01",
            "<clip start='01:00:00;00' duration='00:00:02:01'/>"},
        Row{"durationWithoutStart", sourceOut, "", "<clip duration='2s'/>"},
        Row{"startWithoutDuration", sourceOut, "", "<clip start='1s'/>"},
        Row{"negativeFramesOfDuration", sourceOut, "", "<clip start='1s' duration='-1'/>"},
        Row{"negativeDuration", sourceOut, "00:00:-1:00", "<clip start='1s' duration='-2s'/>"},
        Row{"unreadableStart", sourceOut, "", "<clip start='abc' duration='2s'/>"},
        Row{"startCleanedAgain", sourceOut, "00:00:03:00",
            "<clip start='fifile://le://00:00:01:00' duration='2s'/>"},
        Row{"end", recordOut, "00:00:08:00", "<clip offset='1s' duration='2s' end='8s'/>"},
        Row{"durationAfterOffset", recordOut, "00:00:07:00",
            "<clip offset='5s' duration='2s' out='9s'/>"},
        Row{"durationAfterStartForTheRecord", recordOut, "00:00:03:00",
            "<clip start='1s' duration='2s'/>"},
        Row{"noDurationForTheRecord", recordOut, "", "<clip offset='5s'/>"},
        Row{"rationalSeconds", sourceOut, "01:00:03:03",
            "<clip start='3600s' duration='3003/960s'/>"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    TimeChildren, XMLClip,
    testing::Values(
        Row{"in", sourceIn, "00:00:00:10", "<clip><in>10</in><in>20</in></clip>"},
        Row{"out", sourceOut, "00:00:00:20", "<clip><out> 20 </out><out>30</out></clip>"},
        Row{"start", recordIn, "00:00:00:10", "<clip><start>10</start><start>20</start></clip>"},
        Row{"end", recordOut, "00:00:00:10", "<clip><end>10</end><end>20</end></clip>"},
        Row{"inAfterAttribute", sourceIn, "00:00:01:00", "<clip in='1s'><in>10</in></clip>"},
        Row{"startIsNotTheSource", sourceIn, "", "<clip><start>10</start></clip>"},
        Row{"negativeStartLeavesItEmpty", recordIn, "00:00:00:07",
            "<clip><start>-1</start><start>7</start></clip>"},
        Row{"negativeEndLeavesItEmpty", recordOut, "00:00:00:07",
            "<clip><end>-1</end><end>7</end></clip>"},
        Row{"textCleanedTwice", sourceIn, "00:00:10:00", "<clip><in>fifile://le://250</in></clip>"},
        Row{"unreadableIsKept", sourceIn, "abc", "<clip><in>abc</in><in>5</in></clip>"},
        Row{"durationForSource", sourceOut, "00:00:00:15",
            "<clip><in>10</in><duration>5</duration></clip>"},
        Row{"durationForRecord", recordOut, "00:00:00:15",
            "<clip><start>10</start><duration>5</duration></clip>"},
        Row{"durationBeforeIn", sourceOut, "", "<clip><duration>5</duration><in>10</in></clip>"},
        Row{"durationAfterOut", sourceOut, "00:00:00:20",
            "<clip><in>10</in><out>20</out><duration>5</duration></clip>"},
        Row{"outAfterDuration", sourceOut, "00:00:00:15",
            "<clip><in>10</in><duration>5</duration><out>20</out></clip>"},
        Row{"secondDurationAfterUselessFirst", sourceOut, "00:00:00:16",
            "<clip><duration>5</duration><in>10</in><duration>6</duration></clip>"},
        Row{"unreadableDuration", sourceOut, "", "<clip><in>10</in><duration>x</duration></clip>"}),
    RowName());

}  // namespace
}  // namespace clipvane::test
