// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/FrameRate.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "support/LongTest.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

struct RateRow {
    const char* name;
    double fps;
    std::int64_t base;
    std::string_view label;
};

class FrameRate : public testing::TestWithParam<RateRow> {};

TEST_P(FrameRate, Base) {
    EXPECT_EQ(frameBase(GetParam().fps), GetParam().base);
}

TEST_P(FrameRate, Label) {
    EXPECT_EQ(formatFPS(GetParam().fps), GetParam().label);
}

const std::vector<RateRow> rates{
    {"Film23976", 23.976, 24, "23.976"},
    {"Film24000Over1001", 24000.0 / 1001, 24, "23.976"},
    {"Film24", 24, 24, "24"},
    {"PAL", 25, 25, "25"},
    {"NTSC2997", 29.97, 30, "29.97"},
    {"NTSC30000Over1001", 30000.0 / 1001, 30, "29.97"},
    {"NTSC30", 30, 30, "30"},
    {"High47952", 47.952, 48, "47.952"},
    {"High48", 48, 48, "48"},
    {"High50", 50, 50, "50"},
    {"High5994", 59.94, 60, "59.94"},
    {"High60", 60, 60, "60"},
    {"Half", 12.5, 13, "12.5"},
    {"NearlyThirty", 29.9995, 30, "30"},
    {"LittleAbove24", 24.0004, 24, "24"},
    {"StillLabelled24", 24.0007, 24, "24"},
    {"AThousandthAbove24", 24.001, 24, "24.001"},
    {"JustBelow24", 23.999, 24, "23.999"},
    {"JustCloserTo24", 23.9991, 24, "24"},
    {"Zero", 0, 1, "0"},
    {"NegativeZero", -0.0, 1, "0"},
    {"AThousandth", 0.001, 1, "0.001"},
    {"BelowAThousandth", 0.0009, 1, "0"},
    {"BelowHalf", 0.49999999999999994, 1, "0.5"},
    {"Negative", -25, 1, "-25"},
    {"NegativeFraction", -29.97, 1, "-29.97"},
    {"NegativeHalf", -0.5, 1, "-0.5"},
    {"Hundred", 100, 100, "100"},
    {"HundredThousand", 100000, 100000, "100000"},
    {"TrailingZerosOfTheFractionOnly", 120.5, 121, "120.5"},
    {"ThirdDecimalIsRounded", 14.9876, 15, "14.988"},
    {"RoundsUpToTheNextTenth", 14.0996, 14, "14.1"},
    {"LargestDoubleInRange", 9223372036854774784.0, 9223372036854774784, "9223372036854774784"},
    {"LowestInRange", -9223372036854775808.0, 1, "-9223372036854775808"},
    {"LargeFraction", 4503599627370495.5, 4503599627370496, "4503599627370495.5"},
};
INSTANTIATE_TEST_SUITE_P(Rates, FrameRate, testing::ValuesIn(rates), RowName());

TEST(StandardFPSValues, AreTheTenThatTheUserCanChoose) {
    std::vector<std::string> titles;
    for (const double fps : standardFPSValues) titles.push_back(formatFPS(fps) + " fps");
    EXPECT_EQ(titles,
              (std::vector<std::string>{"23.976 fps", "24 fps", "25 fps", "29.97 fps", "30 fps",
                                        "47.952 fps", "48 fps", "50 fps", "59.94 fps", "60 fps"}));
}

TEST(FrameRateDeathTest, NotFiniteOrBeyond64Bits_IsFatal) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const char* message = "clipvane: a number cannot be rounded to a 64-bit integer";
    for (const double fps : {infinity, -infinity, notANumber, 9223372036854775808.0,
                             -9223372036854777856.0, 99999999999999999999.0}) {
        EXPECT_DEATH(frameBase(fps), message) << fps;
        EXPECT_DEATH(formatFPS(fps), message) << fps;
    }
}

/// The label of a rate given in millionths, by integers alone.
std::string labelOfMillionths(std::int64_t millionths) {
    const std::int64_t size = millionths < 0 ? -millionths : millionths;
    const std::string sign = millionths < 0 ? "-" : "";
    const std::int64_t nearest = (size + 500'000) / 1'000'000;
    if (std::abs(nearest * 1'000'000 - size) < 1000) {
        return nearest == 0 ? "0" : sign + std::to_string(nearest);
    }
    const std::int64_t thousandths = (size + 500) / 1000;
    std::string decimals = std::to_string(1000 + thousandths % 1000).substr(1);
    while (decimals.ends_with('0')) decimals.pop_back();
    const std::string whole = sign + std::to_string(thousandths / 1000);
    return decimals.empty() ? whole : whole + '.' + decimals;
}

TEST(FormatFPS, ManyRates_AreLabelledAsIntegerArithmeticSays) {
    CLIPVANE_LONG_TEST();
    std::mt19937_64 engine(5);
    for (int i = 0; i < 500'000; ++i) {
        const auto most = std::int64_t{1} << (10 + engine() % 30);
        std::int64_t millionths = static_cast<std::int64_t>(engine() % 2'000'000'000'000) % most;
        if (engine() % 2 == 0) millionths = millionths / 1000 * 1000;
        if (engine() % 4 == 0) millionths = -millionths;
        // Exact ties and the exact border hang on the double's own value.
        const std::int64_t rest = std::abs(millionths) % 1'000'000;
        if (rest % 1000 == 500 || rest == 1000 || rest == 999'000) continue;
        const double fps = static_cast<double>(millionths) / 1e6;
        ASSERT_EQ(formatFPS(fps), labelOfMillionths(millionths)) << millionths;
    }
}

}  // namespace
}  // namespace clipvane::test
