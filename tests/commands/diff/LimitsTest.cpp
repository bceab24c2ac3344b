// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Counts at the ends of 64 bits: compared as far as they go, and fatal behind.

#include <gtest/gtest.h>

#include <limits>

#include "commands/diff/ChangeList.h"
#include "commands/diff/Cuts.h"
#include "support/RowName.h"
#include "support/ThrowingFatal.h"

namespace clipvane::test {
namespace {

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t half = most / 2;

TEST(Limits, ALongestEvent_IsCompared) {
    const auto diff = compare({cut("A", 0, most, 0)}, {cut("A", 0, most, 0)});
    EXPECT_TRUE(diff.sums.areSame());
    EXPECT_EQ(diff.sums.kept, most);
}

TEST(Limits, ALongestTrimAndShift_AreCounted) {
    const auto diff = compare({cut("A", 0, most, 0), cut("B", 0, 1, most - 1)},
                              {cut("A", 0, half + 1, 0), cut("B", 0, 1, -1)});
    EXPECT_EQ(diff.newEvents[0].shift, -most);
    EXPECT_EQ(diff.newEvents[1].tail, half + 1 - most);
    EXPECT_EQ(diff.sums.gone, most - half - 1);
}

TEST(Limits, SplitAtTheEnd_IsCounted) {
    const auto diff =
        compare({cut("A", 0, most, 0)}, {cut("A", 0, half, 0), cut("A", half + 7, most, half + 7)});
    EXPECT_EQ(diff.newEvents[1].head, -7);
    EXPECT_EQ(diff.sums.kept, most - 7);
}

struct Case {
    std::string_view name;
    std::vector<Row> oldRows;
    std::vector<Row> newRows;
};

class BeyondLimits : public testing::TestWithParam<Case> {};

TEST_P(BeyondLimits, IsFatal) {
    const ThrowingFatal fatal;
    EXPECT_THROW(compare(GetParam().oldRows, GetParam().newRows), ThrowingFatal::Reason);
}

INSTANTIATE_TEST_SUITE_P(
    Counts, BeyondLimits,
    testing::Values(
        Case{"RecordLength", {}, {{"A", 0, 1, -most, most}}},
        Case{"SourceLength", {}, {{"A", -most, most, 0, 1}}},
        Case{"FramesKept",
             {cut("A", 0, most, 0), cut("B", 0, most, 0)},
             {cut("A", 0, most, 0), cut("B", 0, most, 0)}},
        Case{"FramesNew", {}, {cut("A", 0, most, 0), cut("B", 0, most, 0)}},
        Case{"FramesGone", {cut("A", 0, most, 0), cut("B", 0, most, 0)}, {}},
        Case{"LengthOfTheCut", {}, {cut("A", 0, 1, -most), cut("B", 0, 1, most - 1)}},
        Case{"Shift", {cut("A", 0, 1, -half - 10)}, {cut("A", 0, 1, half + 10)}},
        Case{"ShiftOfRetimed",
             {{"A", 0, 2, -half - 10, -half - 9}},
             {{"A", 0, 3, half + 10, half + 11}}},
        Case{"LongerCut", {cut("A", 0, 1, -1), cut("B", 0, 1, most - 1)}, {cut("A", 0, 1, 0)}}),
    RowName());

TEST(Limits, AChangeListThatDoesNotFit_IsRefused) {
    const ThrowingFatal fatal;
    const auto events = eventsOf({cut("A", 0, 1, -most), cut("B", 0, 1, most - 1)});
    const diff::CutList list{events, at25};
    diff::CutDiff diff;
    diff.tracks = {"V"};
    const diff::Times first{0, 1, -most, 1 - most};
    const diff::Times last{0, 1, most - 1, most};
    diff.newEvents.resize(2);
    diff.oldEvents.resize(2);
    diff.newEvents[0].times = diff.oldEvents[0].times = first;
    diff.newEvents[1].times = diff.oldEvents[1].times = last;
    diff.newEvents[1].row = diff.oldEvents[1].row = 1;
    diff.paired = {{0, 0, -most, 1 - most, -most}, {1, 1, most - 1, most, most - 1}};
    EXPECT_THROW(static_cast<void>(diff::changeList({diff, list, list}, 0, "25")),
                 ThrowingFatal::Reason);
}

}  // namespace
}  // namespace clipvane::test
