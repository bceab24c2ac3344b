// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/ChangeList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clipvane/Timecode.h>
#include <clipvane/TimelineParser.h>
#include "commands/diff/Cuts.h"

namespace clipvane::test {
namespace {

using diff::ChangeStretch;
using testing::HasSubstr;

/// The change list of a track, and what its stretches are.
struct Made {
    Result<std::string> text;
    std::vector<ChangeStretch> stretches;
};

Made make(const std::vector<Row>& oldRows, const std::vector<Row>& newRows,
          diff::Counting counting = at25) {
    const diff::Events oldEvents = eventsOf(oldRows);
    const diff::Events newEvents = eventsOf(newRows);
    const diff::CutList oldList{oldEvents, counting};
    const diff::CutList newList{newEvents, counting};
    const auto diff = diff::compareCuts(oldList, newList);
    return {diff::changeList({diff, oldList, newList}, 0, "25"), diff::changeStretches(diff, 0)};
}

/// What the reader makes of a change list.
std::vector<ChangeStretch> readBack(const std::string& text) {
    EXPECT_EQ(TimelineParser::detectFPS(text), 25.0);
    std::vector<ChangeStretch> stretches;
    const auto events = TimelineParser::parseEDL(text);
    for (const auto& event : events) {
        EXPECT_EQ(event.reelID, "OLDCUT");
        EXPECT_EQ(event.track, "V");
        const std::int64_t from = *frames(event.recordIn, 25);
        const std::int64_t oldFrom = *frames(event.sourceIn, 25);
        const std::int64_t to = *frames(event.recordOut, 25);
        EXPECT_EQ(*frames(event.sourceOut, 25) - oldFrom, to - from);
        stretches.push_back({from, to, oldFrom});
    }
    return stretches;
}

TEST(ChangeList, RippledTrim_IsTwoStretches) {
    const auto made = make({cut("A", 0, 50, 0), cut("B", 0, 50, 50), cut("C", 0, 50, 100)},
                           {cut("A", 0, 50, 0), cut("B", 10, 50, 50), cut("C", 0, 50, 90)});
    EXPECT_THAT(made.stretches,
                testing::ElementsAre(ChangeStretch{0, 50, 0}, ChangeStretch{50, 140, 60}));
    ASSERT_TRUE(made.text.has_value());
    EXPECT_EQ(readBack(*made.text), made.stretches);
    EXPECT_TRUE(made.text->starts_with("* FPS: 25\n"));
}

TEST(ChangeList, BlackThatBothHave_IsPassed) {
    const auto made = make({cut("A", 0, 50, 0), cut("B", 0, 50, 60)},
                           {cut("X", 0, 5, 0), cut("A", 0, 50, 5), cut("B", 0, 50, 65)});
    EXPECT_THAT(made.stretches, testing::ElementsAre(ChangeStretch{5, 115, 0}));
}

TEST(ChangeList, BlackThatHeldSomething_IsNot) {
    const auto made = make({cut("A", 0, 50, 0), cut("X", 0, 10, 50), cut("B", 0, 50, 60)},
                           {cut("A", 0, 50, 0), cut("B", 0, 50, 60)});
    EXPECT_THAT(made.stretches,
                testing::ElementsAre(ChangeStretch{0, 50, 0}, ChangeStretch{60, 110, 60}));
}

TEST(ChangeList, WhatIsNotInOld_IsAGapAndAComment) {
    const auto made = make({cut("A", 0, 50, 0), cut("B", 0, 50, 50)},
                           {cut("A", 0, 50, 0), cut("X", 0, 12, 50), cut("B", 0, 50, 62)});
    ASSERT_TRUE(made.text.has_value());
    EXPECT_THAT(
        *made.text,
        HasSubstr("00:00:02:00\n* NOT IN OLDCUT: 00:00:02:00 00:00:02:12 X Clip 002\n\n002"));
}

TEST(ChangeList, WhatAnEventHasMoreAtItsEnds_IsAComment) {
    const auto made = make({cut("A", 10, 40, 0)}, {cut("A", 0, 50, 0)});
    ASSERT_TRUE(made.text.has_value());
    EXPECT_THAT(*made.text,
                HasSubstr("\n* NOT IN OLDCUT: 00:00:00:00 00:00:00:10 A Clip 001\n\n001"));
    EXPECT_THAT(*made.text, HasSubstr(" 00:00:01:15\n* NOT IN OLDCUT: 00:00:01:15 00:00:02:00 A "));
    EXPECT_EQ(readBack(*made.text), (std::vector{ChangeStretch{10, 40, 0}}));
}

TEST(ChangeList, NamesThatWouldBeRead_AreBroken) {
    auto inserted = cut("X", 0, 12, 50);
    inserted.name =
        "a\r\nb FROM CLIP NAME: c\xE2\x80\xA8"
        "001 AX V C 00:00:00:00 00:00:01:00";
    const auto made = make({cut("A", 0, 50, 0), cut("B", 0, 50, 50)},
                           {cut("A", 0, 50, 0), inserted, cut("B", 0, 50, 62)});
    ASSERT_TRUE(made.text.has_value());
    EXPECT_EQ(readBack(*made.text), made.stretches);
    EXPECT_EQ(TimelineParser::parseEDL(*made.text)[0].clipName, "Clip 001");
    EXPECT_THAT(*made.text,
                HasSubstr(" X_a__b_FROM_CLIP_NAME:_c_001_AX_V_C_00:00:00:00_00:00:01:00\n\n"));
}

TEST(ChangeList, WhatAnEDLCannotSay_IsRefused) {
    const std::vector<Row> one{cut("A", 0, 50, 0)};
    EXPECT_EQ(make(one, {cut("A", 0, 50, 0), cut("B", 0, 50, 20)}).text.error().description,
              "events of NEW overlap on the track: row 2");
    EXPECT_FALSE(make(one, {cut("A", 0, 50, -10)}).text);
    EXPECT_FALSE(make(one, {cut("A", 0, 50, 360000 * 25 - 50)}).text);
    EXPECT_TRUE(make(one, {cut("A", 0, 50, 360000 * 25 - 51)}).text);
    EXPECT_FALSE(make(one, one, {101, false}).text);
    EXPECT_TRUE(make(one, one, {100, false}).text);
    EXPECT_FALSE(make(one, one, {30, true}).text);
    EXPECT_FALSE(make({cut("A", 0, 50, 0, "V 1")}, {cut("A", 0, 50, 0, "V 1")}).text);
    EXPECT_FALSE(make({cut("A", 0, 50, 0, "")}, {cut("A", 0, 50, 0, "")}).text);
}

TEST(ChangeList, WhatHasNoFrames_OverlapsNothing) {
    const std::vector<Row> rows{cut("A", 0, 50, 0), {"P", 10, 10, 20, 20}, {"B", 0, 50, 0, -1}};
    const auto made = make(rows, rows);
    ASSERT_TRUE(made.text.has_value());
    EXPECT_EQ(readBack(*made.text), (std::vector{ChangeStretch{0, 50, 0}}));
}

TEST(ChangeList, TracksThatAreNotCompared_AreV) {
    const auto made = make({cut("A", 0, 50, 0, "one")}, {cut("A", 0, 50, 10, "two")});
    ASSERT_TRUE(made.text.has_value());
    EXPECT_EQ(readBack(*made.text), (std::vector{ChangeStretch{10, 60, 0}}));
}

}  // namespace
}  // namespace clipvane::test
