// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <set>
#include <string>

#include <clipvane/TimelineParser.h>
#include "support/Records.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

using namespace std::string_literals;
using testing::Field;

constexpr std::string_view eventLine =
    "001  AX  V  C  00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00";

std::string lines(std::initializer_list<std::string_view> all, std::string_view newline = "\n") {
    std::string text;
    for (const auto line : all) {
        text += line;
        text += newline;
    }
    text.resize(text.size() - newline.size());
    return text;
}

std::vector<TimelineEvent> eventsOf(std::string_view text) {
    return records(TimelineParser::parseEDL(text));
}

TEST(EDLReader, AnEventLine_FillsEveryField) {
    const auto events = eventsOf(eventLine);
    ASSERT_EQ(events.size(), 1U);
    const TimelineEvent& event = events[0];
    EXPECT_NE(event.id, UUID());
    EXPECT_EQ(event.eventNumber, "001");
    EXPECT_EQ(event.clipName, "Clip 001");
    EXPECT_EQ(event.reelID, "AX");
    EXPECT_EQ(event.sourceIn, "00:00:00:00");
    EXPECT_EQ(event.sourceOut, "00:00:05:00");
    EXPECT_EQ(event.recordIn, "01:00:00:00");
    EXPECT_EQ(event.recordOut, "01:00:05:00");
    EXPECT_EQ(event.format, "EDL");
    EXPECT_EQ(event.track, "V");
    EXPECT_EQ(event.comments, "");
    EXPECT_FALSE(event.highlighted);
    EXPECT_EQ(event.rawText, eventLine);
}

struct Row {
    std::string_view name;
    std::string text;
    std::string clipName = "Clip 001";
    std::string rawText = std::string(eventLine);
};

/// Texts that hold the one event above, and comments.
class EDLWithOneEvent : public testing::TestWithParam<Row> {};

TEST_P(EDLWithOneEvent, HasItsNameAndRawText) {
    const auto events = eventsOf(GetParam().text);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].clipName, GetParam().clipName);
    EXPECT_EQ(events[0].rawText, GetParam().rawText);
    EXPECT_EQ(events[0].comments, "");
    EXPECT_EQ(events[0].reelID, "AX");
}

INSTANTIATE_TEST_SUITE_P(
    ClipNames, EDLWithOneEvent,
    testing::Values(Row{"clipName", lines({eventLine, "* FROM CLIP NAME: A001"}), "A001",
                        lines({eventLine, "* FROM CLIP NAME: A001"})},
                    Row{"withoutStar", lines({eventLine, "from clip name: A001"}), "A001",
                        lines({eventLine, "from clip name: A001"})},
                    Row{"emptyName_ExtendsRawTextOnly", lines({eventLine, "* FROM CLIP NAME:  "}),
                        "Clip 001", lines({eventLine, "* FROM CLIP NAME:  "})},
                    Row{"twoNames_LastWins",
                        lines({eventLine, "* FROM CLIP NAME: A", "* FROM CLIP NAME: B"}), "B",
                        lines({eventLine, "* FROM CLIP NAME: A", "* FROM CLIP NAME: B"})},
                    Row{"nameThenEmptyName_NameStays",
                        lines({eventLine, "* FROM CLIP NAME: A", "* FROM CLIP NAME:"}), "A",
                        lines({eventLine, "* FROM CLIP NAME: A", "* FROM CLIP NAME:"})},
                    Row{"nameBeforeFirstEvent_Dropped", lines({"* FROM CLIP NAME: A", eventLine})},
                    Row{"nameWithColon_LastPart",
                        lines({eventLine, "* FROM CLIP NAME: Take: Scene: 12"}), "12",
                        lines({eventLine, "* FROM CLIP NAME: Take: Scene: 12"})},
                    Row{"toClipName_RawTextOnly", lines({eventLine, "* TO CLIP NAME: B"}),
                        "Clip 001", lines({eventLine, "* TO CLIP NAME: B"})},
                    Row{"indentedName_KeptUntrimmed", lines({eventLine, " \tfrom clip name: A "}),
                        "A", lines({eventLine, " \tfrom clip name: A "})}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Comments, EDLWithOneEvent,
    testing::Values(Row{"twoComments_NoTrailingLineFeed", lines({eventLine, "* ONE", "* TWO", ""}),
                        "Clip 001", lines({eventLine, "* ONE", "* TWO"})},
                    Row{"sourceFile", lines({eventLine, "* SOURCE FILE: a.mov"}), "Clip 001",
                        lines({eventLine, "* SOURCE FILE: a.mov"})},
                    Row{"indentedComment_KeptUntrimmed",
                        lines({eventLine, " \t\u00A0\u3000* ONE \t"}), "Clip 001",
                        lines({eventLine, " \t\u00A0\u3000* ONE \t"})},
                    Row{"combiningMarkAfterStar", lines({eventLine, "*\u0301 ONE"}), "Clip 001",
                        lines({eventLine, "*\u0301 ONE"})},
                    Row{"zeroWidthSpaceBeforeStar_Skipped", lines({eventLine, "\u200B* ONE"})},
                    Row{"fullWidthStar_Skipped", lines({eventLine, "\uFF0A ONE"})},
                    Row{"separatorBeforeStar_Skipped", lines({eventLine, "\x1F* ONE"})},
                    Row{"nulBeforeStar_Skipped", lines({eventLine, std::string("\0* ONE", 6)})},
                    Row{"nulInComment_Kept", lines({eventLine, std::string("* \0ONE", 6)}),
                        "Clip 001", lines({eventLine, std::string("* \0ONE", 6)})},
                    Row{"beforeFirstEvent_Dropped", lines({"TITLE: T", "* ONE", eventLine})},
                    Row{"skippedLinesDoNotEndTheEvent",
                        lines({eventLine, "FCM: DROP FRAME", "", "   ", "M2 AX 025.0 00:00:00:00",
                               "SPLIT:", "* ONE"}),
                        "Clip 001", lines({eventLine, "* ONE"})},
                    Row{"starredMalformedEvent_IsComment",
                        lines({eventLine, "* 002 AX V C 00:00:00:00 00:00:05:00 01:00:00:00"}),
                        "Clip 001",
                        lines({eventLine, "* 002 AX V C 00:00:00:00 00:00:05:00 01:00:00:00"})},
                    Row{"starredEvent_IsComment", lines({eventLine, "*"s + std::string(eventLine)}),
                        "Clip 001", lines({eventLine, "*"s + std::string(eventLine)})}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    LineEnds, EDLWithOneEvent,
    testing::Values(Row{"lineFeed", lines({"T", eventLine, "* ONE", ""}, "\n"), "Clip 001",
                        lines({eventLine, "* ONE"})},
                    Row{"carriageReturnLineFeed", lines({"T", eventLine, "* ONE", ""}, "\r\n"),
                        "Clip 001", lines({eventLine, "* ONE"})},
                    Row{"carriageReturn", lines({"T", eventLine, "* ONE", ""}, "\r"), "Clip 001",
                        lines({eventLine, "* ONE"})},
                    Row{"verticalTab", lines({"T", eventLine, "* ONE", ""}, "\v"), "Clip 001",
                        lines({eventLine, "* ONE"})},
                    Row{"formFeed", lines({"T", eventLine, "* ONE", ""}, "\f"), "Clip 001",
                        lines({eventLine, "* ONE"})},
                    Row{"nextLine", lines({"T", eventLine, "* ONE", ""}, "\u0085"), "Clip 001",
                        lines({eventLine, "* ONE"})},
                    Row{"lineSeparator", lines({"T", eventLine, "* ONE", ""}, "\u2028"), "Clip 001",
                        lines({eventLine, "* ONE"})},
                    Row{"paragraphSeparator", lines({"T", eventLine, "* ONE", ""}, "\u2029"),
                        "Clip 001", lines({eventLine, "* ONE"})},
                    Row{"mixed", "T\r\n"s + std::string(eventLine) + "\r* ONE\n\v* TWO", "Clip 001",
                        lines({eventLine, "* ONE", "* TWO"})}),
    RowName());

TEST(EDLReader, BlanksAndTextAroundTheEvent_AreInRawText) {
    const std::string line = " \t" + std::string(eventLine) + "  and more ";
    const auto events = eventsOf(line + "\n");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].rawText, line);
}

TEST(EDLReader, EventsStayInTheOrderOfTheirLines) {
    const std::string second = "001  B  A2  C  00:00:07:00 00:00:08:00 01:00:00:00 01:00:01:00";
    const std::string text = lines({second, eventLine, "* FROM CLIP NAME: X", eventLine, second});
    EXPECT_THAT(eventsOf(text), testing::ElementsAre(Field(&TimelineEvent::rawText, second),
                                                     Field(&TimelineEvent::clipName, "X"),
                                                     Field(&TimelineEvent::clipName, "Clip 001"),
                                                     Field(&TimelineEvent::track, "A2")));
}

TEST(EDLReader, ALineRepeated_GivesEventsWithIdentifiersOfTheirOwn) {
    std::string text;
    for (int i = 0; i < 3000; ++i) text += std::string(eventLine) + "\n* ONE\n";
    std::set<std::string> identifiers;
    const auto events = eventsOf(text);
    for (const TimelineEvent& event : events) {
        identifiers.insert(event.id.text());
        ASSERT_EQ(event.rawText, lines({eventLine, "* ONE"}));
    }
    EXPECT_EQ(events.size(), 3000U);
    EXPECT_EQ(identifiers.size(), 3000U);
}

TEST(EDLReader, AnEventLineHoldingFromClipName_IsAnEvent) {
    const auto events =
        eventsOf(lines({eventLine, std::string(eventLine) + " * FROM CLIP NAME: X"}));
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].clipName, "Clip 001");
    EXPECT_EQ(events[1].clipName, "Clip 001");
}

TEST(EDLReader, ByteOrderMarkBeforeTheFirstEvent_HidesThatEvent) {
    const std::string mark = "\uFEFF";
    EXPECT_EQ(eventsOf(mark + lines({eventLine, eventLine})).size(), 1U);
    EXPECT_EQ(eventsOf(mark + lines({"TITLE: T", eventLine})).size(), 1U);
}

TEST(EDLReader, UnicodeDigits_StayAsWritten) {
    const auto events =
        eventsOf("\u0661 AX V C \u0660\u0660:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00");
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events[0].clipName, "Clip \u0661");
    EXPECT_EQ(events[0].sourceIn, "\u0660\u0660:00:00:00");
}

TEST(EDLReader, WithoutEventLines_YieldsNothing) {
    for (const auto& text : {""s, "\n"s, "TITLE: T\n* ONE\nFROM CLIP NAME: A\n"s, "\0\0"s}) {
        EXPECT_TRUE(eventsOf(text).empty()) << text;
    }
}

}  // namespace
}  // namespace clipvane::test
