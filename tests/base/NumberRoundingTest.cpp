// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "base/Number.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

struct RoundingRow {
    const char* name;
    double value;
    std::int64_t expected;
};

class RoundToInteger : public testing::TestWithParam<RoundingRow> {};

TEST_P(RoundToInteger, Row) {
    EXPECT_EQ(roundToInteger(GetParam().value), GetParam().expected);
}

const std::vector<RoundingRow> roundings{
    {"Zero", 0.0, 0},
    {"NegativeZero", -0.0, 0},
    {"Half", 0.5, 1},
    {"NegativeHalf", -0.5, -1},
    {"JustBelowHalf", 0.49999999999999994, 0},
    {"JustAboveNegativeHalf", -0.49999999999999994, 0},
    {"OneAndAHalf", 1.5, 2},
    {"TwoAndAHalf", 2.5, 3},
    {"NegativeTwoAndAHalf", -2.5, -3},
    {"Rate", 23.976, 24},
    {"LastHalf", 4503599627370495.5, 4503599627370496},
    {"OddBeyondHalves", 4503599627370497.0, 4503599627370497},
    {"OddBeyondHalvesNegative", -4503599627370497.0, -4503599627370497},
    {"LargestDoubleInRange", 9223372036854774784.0, 9223372036854774784},
    {"LowerEnd", -9223372036854775808.0, smallest},
    {"SmallestSubnormal", std::numeric_limits<double>::denorm_min(), 0},
};
INSTANTIATE_TEST_SUITE_P(Values, RoundToInteger, testing::ValuesIn(roundings), RowName());

TEST(RoundToIntegerDeathTest, BeyondTheRangeOrNotFinite_IsFatal) {
    const double upperEnd = 9223372036854775808.0;
    const double infinity = std::numeric_limits<double>::infinity();
    const char* message = "clipvane: a number cannot be rounded to a 64-bit integer";
    EXPECT_DEATH(roundToInteger(upperEnd), message);
    EXPECT_DEATH(roundToInteger(std::nextafter(-upperEnd, -infinity)), message);
    EXPECT_DEATH(roundToInteger(1e300), message);
    EXPECT_DEATH(roundToInteger(infinity), message);
    EXPECT_DEATH(roundToInteger(-infinity), message);
    EXPECT_DEATH(roundToInteger(std::numeric_limits<double>::quiet_NaN()), message);
}

TEST(CheckedArithmetic, WithinTheRange_GivesTheResult) {
    EXPECT_EQ(addChecked(largest - 1, 1), largest);
    EXPECT_EQ(addChecked(smallest + 1, -1), smallest);
    EXPECT_EQ(addChecked(largest, smallest), -1);
    EXPECT_EQ(subtractChecked(smallest + 1, 1), smallest);
    EXPECT_EQ(subtractChecked(-1, largest), smallest);
    EXPECT_EQ(subtractChecked(-1, smallest), largest);
    EXPECT_EQ(multiplyChecked(largest, -1), smallest + 1);
    EXPECT_EQ(multiplyChecked(smallest / 2, 2), smallest);
    EXPECT_EQ(multiplyChecked(smallest, 0), 0);
}

TEST(CheckedArithmeticDeathTest, BeyondTheRange_IsFatal) {
    EXPECT_DEATH(addChecked(largest, 1), "clipvane: a frame count exceeds 64 bits");
    EXPECT_DEATH(addChecked(smallest, -1), "clipvane: a frame count exceeds 64 bits");
    EXPECT_DEATH(subtractChecked(smallest, 1), "clipvane: a frame count exceeds 64 bits");
    EXPECT_DEATH(subtractChecked(0, smallest), "clipvane: a frame count exceeds 64 bits");
    EXPECT_DEATH(multiplyChecked(largest, 2), "clipvane: a frame count exceeds 64 bits");
    EXPECT_DEATH(multiplyChecked(smallest, -1), "clipvane: a frame count exceeds 64 bits");
}

}  // namespace
}  // namespace clipvane::test
