// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EditedEDL.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "commands/SampleEvents.h"
#include "support/Records.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

constexpr std::string_view headerLines = "TITLE: Clipvane Export\nFCM: NON-DROP FRAME\n";

/// The file's lines for its only event, without the header and the empty lines around them.
std::string linesOf(const TimelineEvent& event) {
    TimelineDocument document;
    document.events.push_back(event);
    const std::string text = edlText(document);
    const std::string before = std::string(headerLines) + "\n";
    EXPECT_TRUE(text.starts_with(before)) << text;
    return text.substr(before.size());
}

TEST(EditedEDL, NoEvents_TwoHeaderLines) {
    EXPECT_EQ(edlText(TimelineDocument()), "TITLE: Clipvane Export\nFCM: NON-DROP FRAME\n");
}

TEST(EditedEDL, AnEvent_ItsLineItsClipNameAndAnEmptyLine) {
    TimelineDocument document;
    fillWithSamples(document, 1);
    EXPECT_EQ(edlText(document),
              "TITLE: Clipvane Export\n"
              "FCM: NON-DROP FRAME\n"
              "\n"
              "001  A001 V C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00\n"
              "* FROM CLIP NAME: A001_C002\n");
}

TEST(EditedEDL, TwoEvents_AnEmptyLineBetweenAndOneLineFeedAtTheEnd) {
    TimelineDocument document;
    fillWithSamples(document, 2);
    edit(document.events, 0, [](auto& event) { event.comments = "wide"; });
    EXPECT_EQ(edlText(document),
              "TITLE: Clipvane Export\n"
              "FCM: NON-DROP FRAME\n"
              "\n"
              "001  A001 V C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00\n"
              "* FROM CLIP NAME: A001_C002\n"
              "* COMMENT: wide\n"
              "\n"
              "002  A001 V C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00\n"
              "* FROM CLIP NAME: A001_C002\n");
}

struct EventRow {
    std::string name;
    TimelineEvent event;
    std::string lines;
};

TimelineEvent changed(void (*change)(TimelineEvent&)) {
    TimelineEvent event = sampleEvent();
    change(event);
    return event;
}

class EditedEDLEvent : public testing::TestWithParam<EventRow> {};

TEST_P(EditedEDLEvent, Lines) {
    EXPECT_EQ(linesOf(GetParam().event), GetParam().lines);
}

const std::string timecodes = "01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00\n";
const std::string sampleLine = "001  A001 V C        " + timecodes;
const std::string sampleName = "* FROM CLIP NAME: A001_C002\n";

INSTANTIATE_TEST_SUITE_P(
    Rows, EditedEDLEvent,
    testing::Values(
        EventRow{"WithoutComment", sampleEvent(), sampleLine + sampleName},
        EventRow{"WithComment", changed([](auto& e) { e.comments = "good take"; }),
                 sampleLine + sampleName + "* COMMENT: good take\n"},
        EventRow{"TwoLineComment", changed([](auto& e) { e.comments = "one\ntwo"; }),
                 sampleLine + sampleName + "* COMMENT: one two\n"},
        EventRow{"CommentOfOneBlank", changed([](auto& e) { e.comments = " "; }),
                 sampleLine + sampleName + "* COMMENT:  \n"},
        EventRow{"CommentOfOneLineFeed", changed([](auto& e) { e.comments = "\n"; }),
                 sampleLine + sampleName + "* COMMENT:  \n"},
        EventRow{"CommentKeepsCarriageReturns", changed([](auto& e) { e.comments = "a\r\nb\rc"; }),
                 sampleLine + sampleName + "* COMMENT: a\r b\rc\n"},
        EventRow{"EmptyReelAndTrack", changed([](auto& e) { e.reelID = e.track = ""; }),
                 "001  AX V C        " + timecodes + sampleName},
        EventRow{"BlankReel_AsItIs", changed([](auto& e) { e.reelID = " "; }),
                 "001    V C        " + timecodes + sampleName},
        EventRow{"LongReelWithBlanks",
                 changed([](auto& e) { e.reelID = "Camera A, card 12 of 30"; }),
                 "001  Camera A, card 12 of 30 V C        " + timecodes + sampleName},
        EventRow{"EmptyClipName", changed([](auto& e) { e.clipName = ""; }),
                 sampleLine + "* FROM CLIP NAME: \n"},
        EventRow{"ClipNameWithLineFeed_Raw", changed([](auto& e) { e.clipName = "a\nb"; }),
                 sampleLine + "* FROM CLIP NAME: a\nb\n"},
        EventRow{"EmptyTimecodes_BlanksStay",
                 changed([](auto& e) { e.sourceIn = e.sourceOut = e.recordIn = e.recordOut = ""; }),
                 "001  A001 V C           \n" + sampleName},
        EventRow{"DropFrameTimecode_AsStored", changed([](auto& e) { e.sourceIn = "1:2:3;4"; }),
                 "001  A001 V C        1:2:3;4 01:00:04:00 00:00:00:00 00:00:04:00\n" + sampleName},
        EventRow{"OwnNumber_IsNotUsed", changed([](auto& e) { e.eventNumber = "0815"; }),
                 sampleLine + sampleName}),
    RowName());

TEST(EditedEDL, SecondOfThreeRemoved_TheRestIsRenumbered) {
    TimelineDocument document;
    fillWithSamples(document, 3);
    document.removedEvents.push_back(document.events[1].record());
    document.events.erase(1);
    const std::string text = edlText(document);
    EXPECT_NE(text.find("\n001  "), std::string::npos);
    EXPECT_NE(text.find("\n002  "), std::string::npos);
    EXPECT_EQ(text.find("\n003  "), std::string::npos);
}

TEST(EditedEDL, ThousandEvents_TheLastIsNumber1000) {
    TimelineDocument document;
    fillWithSamples(document, 1000);
    const std::string text = edlText(document);
    EXPECT_NE(text.find("\n042  A001"), std::string::npos);
    EXPECT_NE(text.find("\n999  A001"), std::string::npos);
    EXPECT_NE(text.find("\n1000  A001"), std::string::npos);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2 + 3000);
}

TEST(EditedEDL, AnyRate_IsNotLookedAt) {
    TimelineDocument document;
    fillWithSamples(document, 2);
    const std::string text = edlText(document);
    document.fps = std::numeric_limits<double>::infinity();
    EXPECT_EQ(edlText(document), text);
}

TEST(WriteEDL, ManyChunks_FileHoldsTheWholeText) {
    const TemporaryFolder folder;
    TimelineDocument document;
    fillWithSamples(document, 10000);
    const auto written = writeEDL(document, folder / "cut.edl");
    ASSERT_TRUE(written) << written.error().description;
    const std::string text = edlText(document);
    EXPECT_GT(text.size(), 800'000U);
    EXPECT_TRUE(contentOf(folder / "cut.edl") == text);
    EXPECT_EQ(folder.names().size(), 1U);
}

}  // namespace
}  // namespace clipvane::test
