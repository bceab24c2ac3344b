// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/diff/CutDiff.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/diff/Cuts.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

/// "of 1" is the partner's row in OLD, from 0; the numbers in brackets are frames new, again, and
/// paired elsewhere, or gone and fewer.
struct Case {
    std::string_view name;
    std::vector<Row> oldRows;
    std::vector<Row> newRows;
    std::vector<std::string> report;
    std::int64_t longer = 0;
};

class CutDiff : public testing::TestWithParam<Case> {};

TEST_P(CutDiff, ReportsWhatWasDone) {
    const auto oldEvents = eventsOf(GetParam().oldRows);
    const auto newEvents = eventsOf(GetParam().newRows);
    const auto diff = diff::compareCuts({oldEvents, at25}, {newEvents, at25});
    EXPECT_EQ(reportOf(diff, oldEvents, newEvents), GetParam().report);
    EXPECT_EQ(diff.sums.longer, GetParam().longer);
}

bool areSame(const std::vector<Row>& oldRows, const std::vector<Row>& newRows) {
    return compare(oldRows, newRows).sums.areSame();
}

TEST(CutDiffSums, AreSame_OnlyWhenNothingIsLostOrLeftOut) {
    const Row a = cut("A", 0, 50, 0);
    const Row b = cut("B", 0, 50, 50);
    const Row odd{"A", 0, 50, 0, -1};
    EXPECT_TRUE(areSame({a, b, odd}, {a, b, odd}));
    EXPECT_FALSE(areSame({a, b}, {a}));                    // gone
    EXPECT_FALSE(areSame({a, cut("A", 0, 50, 50)}, {a}));  // fewer
    EXPECT_FALSE(areSame({a, odd}, {a}));                  // not compared
    EXPECT_FALSE(areSame({a}, {a, b}));                    // new
}

INSTANTIATE_TEST_SUITE_P(
    Edits, CutDiff,
    testing::Values(
        Case{"Insert",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50)},
             {cut("A", 0, 50, 0), cut("X", 0, 12, 50), cut("B", 0, 50, 62)},
             {"X new (12 0 0)", "B of 1 shifted 12 (0 0 0)"},
             12},
        Case{"HeadTrimRippled",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50), cut("C", 0, 50, 100)},
             {cut("A", 0, 50, 0), cut("B", 10, 50, 50), cut("C", 0, 50, 90)},
             {"B of 1 trimmed -10 0 0 shifted -10 (0 0 0)", "C of 2 shifted -10 (0 0 0)"},
             -10},
        Case{"Roll",
             {cut("A", 0, 50, 0), cut("B", 100, 150, 50)},
             {cut("A", 0, 55, 0), cut("B", 105, 150, 55)},
             {"A of 0 trimmed 0 5 0 (5 0 0)", "B of 1 trimmed -5 0 0 (0 0 0)"}},
        Case{"Slip",
             {cut("A", 0, 50, 0), cut("B", 100, 150, 50)},
             {cut("A", 0, 50, 0), cut("B", 107, 157, 50)},
             {"B of 1 slipped 7 (7 0 0)"}},
        Case{"Swap",
             {cut("A", 0, 50, 0), cut("B", 0, 20, 50), cut("C", 0, 50, 70)},
             {cut("B", 0, 20, 0), cut("A", 0, 50, 20), cut("C", 0, 50, 70)},
             {"B of 1 moved -50 (0 0 0)", "A of 0 shifted 20 (0 0 0)"}},
        Case{"SplitAndCutOut",
             {cut("A", 0, 100, 0), cut("B", 0, 50, 100)},
             {cut("A", 0, 40, 0), cut("A", 52, 100, 40), cut("B", 0, 50, 88)},
             {"A of 0 split 1/2 (0 0 0)", "A of 0 split 2/2 trimmed -12 0 0 shifted -12 (0 0 0)",
              "B of 1 shifted -12 (0 0 0)"},
             -12},
        Case{"Joined",
             {cut("A", 0, 40, 0), cut("X", 0, 10, 40), cut("A", 40, 100, 50)},
             {cut("A", 0, 100, 0)},
             {"A of 0 joined 2 (0 0 0)", "X gone (10 0)"},
             -10},
        Case{"Again",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50)},
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50), cut("A", 10, 30, 100)},
             {"A again (0 20 0)"},
             20},
        Case{"Fewer",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50), cut("A", 0, 50, 100)},
             {cut("B", 0, 50, 0), cut("A", 0, 50, 50)},
             {"A fewer (0 50)", "B of 1 shifted -50 (0 0 0)", "A of 2 shifted -50 (0 0 0)"},
             -50},
        Case{"Mixed",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50), cut("C", 0, 50, 100), cut("D", 0, 50, 150)},
             {{"A", 0, 100, 0, 50},
              cut("B", 0, 50, 50, "V2"),
              cut("X", 0, 50, 100),
              cut("D", 0, 50, 150)},
             {"A of 0 retimed (50 0 0)", "C gone (50 0)", "X new (50 0 0) in place of 2",
              "black 50", "B of 1 track 0 (0 0 0)"}},
        Case{"Lift",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50), cut("C", 0, 50, 100)},
             {cut("A", 0, 50, 0), cut("C", 0, 50, 100)},
             {"B gone (50 0)", "black 50"}},
        Case{"BlackAdded",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50)},
             {cut("A", 0, 50, 0), cut("BL", 0, 10, 50), cut("B", 0, 50, 60)},
             {"black 10", "B of 1 shifted 10 (0 0 0)"},
             10},
        Case{"JoinedOverBlack",
             {cut("A", 0, 40, 0), cut("A", 40, 100, 50), cut("B", 0, 50, 110)},
             {cut("A", 0, 100, 0), cut("B", 0, 50, 100)},
             {"black -10", "A of 0 joined 2 (0 0 0)", "B of 2 shifted -10 (0 0 0)"},
             -10},
        Case{"JoinedWithMoreInside",
             {cut("A", 0, 40, 0), cut("A", 52, 100, 40), cut("B", 0, 50, 88)},
             {cut("A", 0, 100, 0), cut("B", 0, 50, 100)},
             {"A of 0 joined 2 trimmed 0 0 12 (12 0 0)", "B of 2 shifted 12 (0 0 0)"},
             12},
        Case{"HalvesSwapped",
             {cut("A", 0, 100, 0)},
             {cut("A", 60, 100, 0), cut("A", 0, 60, 40)},
             {"A of 0 split 2/2 moved -60 (0 0 0)", "A of 0 split 1/2 shifted 40 (0 0 0)"}},
        Case{"SlippedAndPushedAlong",
             {cut("A", 0, 50, 0), cut("B", 100, 150, 50)},
             {cut("X", 0, 12, 0), cut("A", 0, 50, 12), cut("B", 107, 157, 62)},
             {"X new (12 0 0)", "A of 0 shifted 12 (0 0 0)", "B of 1 slipped 7 shifted 12 (7 0 0)"},
             12},
        Case{"BothCutsRolled",
             {cut("A", 0, 50, 0), cut("B", 100, 150, 50), cut("C", 20, 70, 100)},
             {cut("A", 0, 57, 0), cut("B", 107, 157, 57), cut("C", 27, 70, 107)},
             {"A of 0 trimmed 0 7 0 (7 0 0)", "B of 1 trimmed -7 7 0 (7 0 0)",
              "C of 2 trimmed -7 0 0 (0 0 0)"}},
        Case{"OneNameForAnother",
             {cut("A", 0, 50, 0, "V", "x")},
             {cut("A", 0, 50, 0, "V", "y")},
             {"A of 0 renamed (0 0 0)"}},
        Case{"SlowedDown",
             {{"A", 0, 100, 0, 50}},
             {{"A", 0, 100, 0, 80}},
             {"A of 0 retimed (80 0 0)"},
             30},
        Case{"TheNumberOfAnotherEvent_IsAName",
             {cut("A", 0, 50, 0, "V", "Clip 007")},
             {cut("A", 0, 50, 0, "V", "Clip 008")},
             {"A of 0 renamed (0 0 0)"}},
        Case{"OddEventsByName",
             {{"A", 0, 50, 0, -1, "V", "x"}, {"A", 0, 50, 0, -1, "V", "y"}, cut("B", 0, 50, 0)},
             {{"A", 0, 50, 0, -1, "V", "y"}, cut("B", 0, 50, 0)},
             {"A not compared (0 0)"}},
        Case{"OddEventsByNameBehindWhatIsLost",
             {cut("A", 0, 50, 0),
              cut("B", 0, 50, 50),
              {"A", 0, 50, 0, -1, "V", "x"},
              {"A", 0, 50, 0, -1, "V", "y"}},
             {cut("A", 0, 50, 0), {"A", 0, 50, 0, -1, "V", "y"}},
             {"B gone (50 0)", "A not compared (0 0)"},
             -50},
        Case{"OddEventsByNameBehindWhatIsNew",
             {cut("B", 0, 50, 0), {"A", 0, 50, 0, -1, "V", "x"}, {"A", 0, 50, 0, -1, "V", "y"}},
             {cut("B", 0, 50, 0), cut("C", 0, 50, 50), {"A", 0, 50, 0, -1, "V", "y"}},
             {"A not compared (0 0)", "C new (50 0 0)"},
             50},
        Case{"PartlyFromElsewhere",
             {cut("A", 100, 180, 50), cut("A", 160, 210, 200, "V", "x"), cut("B", 0, 50, 250)},
             {cut("A", 100, 160, 140), cut("A", 160, 210, 200), cut("B", 0, 50, 250)},
             {"A of 0 trimmed 0 -20 0 shifted 90 (0 0 0)", "black -70", "A of 1 partly (0 0 20)"},
             -90},
        Case{"APointFollowsWhatIsBeforeIt",
             {{"P", 10, 10, 0, 0}, cut("A", 0, 50, 0), {"P", 10, 10, 50, 50}},
             {cut("A", 0, 50, 10), {"P", 10, 10, 60, 60}},
             {"P not compared (0 0)", "A of 1 shifted 10 (0 0 0)", "P of 2 shifted 10 (0 0 0)"}},
        Case{"APointFollowsWhatIsBehindIt",
             {{"P", 10, 10, 0, 0}, {"P", 10, 10, 50, 50}, cut("B", 0, 50, 50)},
             {{"P", 10, 10, 60, 60}, cut("B", 0, 50, 60)},
             {"P not compared (0 0)", "P of 1 shifted 10 (0 0 0)", "B of 2 shifted 10 (0 0 0)"}},
        Case{"AnEntireEvent_IsNotPairedWithTheRestOfAnother",
             {cut("A", 0, 10, 0), cut("A", 0, 5, 100), cut("B", 0, 10, 150)},
             {cut("A", 5, 10, 50), cut("B", 0, 10, 300), cut("A", 0, 5, 400)},
             {"A of 0 trimmed -5 0 0 shifted 45 (0 0 0)", "black 110", "B of 2 shifted 150 (0 0 0)",
              "A of 1 moved 300 (0 0 0)"},
             195},
        Case{"AnEntireEvent_IsNotPairedWithTheEndOfAnother",
             {cut("A", 0, 10, 0), cut("A", 5, 10, 100), cut("B", 0, 10, 150)},
             {cut("A", 0, 5, 50), cut("B", 0, 10, 300), cut("A", 5, 10, 400)},
             {"A of 0 trimmed 0 -5 0 shifted 50 (0 0 0)", "black 110", "B of 2 shifted 150 (0 0 0)",
              "A of 1 moved 300 (0 0 0)"},
             195},
        Case{"JoinedParts_LoseTheirBlackOneByOne",
             {cut("Z", 0, 10, 0), cut("A", 10, 50, 20), cut("A", 0, 100, 100)},
             {cut("Z", 0, 20, 0), cut("A", 10, 100, 20)},
             {"Z of 0 trimmed 0 10 0 (10 0 0)", "black -10", "black -40",
              "A of 2 joined 2 trimmed -10 0 -40 shifted -90 (0 0 0)"},
             -90},
        Case{"SharedWithAHole_StandsAsFarAsItReaches",
             {cut("Z", 0, 10, 50), cut("A", 0, 100, 100)},
             {cut("Z", 0, 10, 0), cut("A", 40, 60, 90), cut("A", 0, 100, 200)},
             {"Z of 0 shifted -50 (0 0 0)", "A of 1 split 2/2 trimmed 20 0 0 shifted -50 (0 0 0)",
              "black 130", "A of 1 split 1/2 shifted 100 (0 20 0)"},
             150},
        Case{"MovedPastWhatLiesUnderALongerOne",
             {cut("A", 0, 100, 0), cut("B", 0, 10, 10), cut("C", 0, 5, 50)},
             {cut("C", 0, 5, 0), cut("A", 0, 100, 10), cut("B", 0, 10, 20)},
             {"C of 2 moved -50 (0 0 0)", "A of 0 shifted 10 (0 0 0)", "B of 1 shifted 10 (0 0 0)"},
             10},
        Case{"TwiceInOnePlace",
             {cut("A", 0, 50, 0), cut("B", 0, 50, 50)},
             {cut("A", 0, 50, 0), cut("A", 0, 50, 0), cut("B", 0, 50, 50)},
             {"A again (0 50 0)"}},
        Case{"EachOthersBest_ButLessThanHalfOfWhatBothHold",
             {cut("B", 0, 40, 400), cut("A", 0, 100, 500), cut("A", 40, 70, 700),
              cut("A", 70, 100, 800)},
             {cut("B", 0, 40, 400), cut("A", 40, 70, 540), cut("A", 70, 100, 570),
              cut("A", 0, 100, 1000)},
             {"black 40", "A of 1 split 1/2 trimmed -40 0 0 (0 0 0)", "A of 1 split 2/2 (0 0 0)",
              "black 300", "black -70", "A of 2 joined 2 trimmed 40 0 0 shifted 340 (0 0 40)"},
             270},
        Case{"NothingToCompareWith", {}, {cut("A", 0, 50, 0)}, {"A new (50 0 0)"}, 50}),
    RowName());

}  // namespace
}  // namespace clipvane::test
