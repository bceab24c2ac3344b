// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <limits>

#include <clipvane/Timecode.h>

namespace clipvane::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr const char* notRounded = "clipvane: a number cannot be rounded to a 64-bit integer";
constexpr const char* exceeds = "clipvane: a frame count exceeds 64 bits";

TEST(FramesDeathTest, CountBeyond64Bits_IsFatalInEveryStep) {
    EXPECT_DEATH(frames("153722867280912931:00:00:00", 1), exceeds);  // hours * 60
    EXPECT_DEATH(frames("153722867280912930:8:00:00", 1), exceeds);   // + minutes
    EXPECT_DEATH(frames("0:153722867280912931:00:00", 1), exceeds);   // * 60
    EXPECT_DEATH(frames("0:153722867280912930:8:00", 1), exceeds);    // + seconds
    EXPECT_DEATH(frames("0:0:9223372036854775807:00", 2), exceeds);   // * base
    EXPECT_DEATH(frames("0:0:9223372036854775807:1", 1), exceeds);    // + frames
    EXPECT_DEATH(frames("0:0:-9223372036854775808:-1", 1), exceeds);
    EXPECT_DEATH(frames("-9223372036854775808:0:0:0", 1), exceeds);
}

TEST(FramesDeathTest, StepBeyond64Bits_IsFatalEvenIfTheResultWouldFit) {
    EXPECT_DEATH(frames("153722867280912931:-153722867280912931:0:0", 1), exceeds);
}

TEST(TimecodeDeathTest, RateWithoutAFrameBase_IsFatal) {
    for (const double fps : {infinity, -infinity, notANumber, 1e19, -1e19}) {
        EXPECT_DEATH(frames("01:00:00:00", fps), notRounded);
        EXPECT_DEATH(timecode(1, fps, false), notRounded);
        EXPECT_DEATH(convertTimecode("01:00:00:00", fps, 25), notRounded);
        EXPECT_DEATH(convertTimecode("01:00:00:00", 25, fps), notRounded);
        EXPECT_DEATH(TimecodeConversion(fps, 25), notRounded);
        EXPECT_DEATH(TimecodeConversion(25, fps), notRounded);
        EXPECT_DEATH(durationDisplay("01:00:00:00", "01:00:00:00", fps), notRounded);
    }
}

TEST(ConvertTimecodeDeathTest, ConvertedCountBeyond64Bits_IsFatal) {
    EXPECT_DEATH(convertTimecode("0:0:0:9223372036854775807", 1, 1), notRounded);
    EXPECT_DEATH(convertTimecode("0:0:0:9223372036854775807", 25, 50), notRounded);
    EXPECT_DEATH(convertTimecode("0:0:0:-9223372036854775808", 25, 26), notRounded);
    EXPECT_DEATH(convertTimecode("9223372036854775807:0:0:0", 25, 24), exceeds);
}

TEST(DurationDisplayDeathTest, DifferenceBeyond64Bits_IsFatal) {
    EXPECT_DEATH(durationDisplay("0:0:0:-1", "0:0:0:9223372036854775807", 25), exceeds);
    EXPECT_DEATH(durationDisplay("0:0:0:2", "0:0:0:-9223372036854775807", 25), exceeds);
}

TEST(Timecode, TextThatIsNone_IsDecidedBeforeTheRateIsLookedAt) {
    EXPECT_EQ(frames("01:00:00", infinity), std::nullopt);
    EXPECT_EQ(convertTimecode("LEADER", notANumber, infinity), "LEADER");
    EXPECT_EQ(durationDisplay("", "01:00:00:00", notANumber), "-");
}

TEST(DurationDisplay, UnreadableStart_LeavesTheEndAlone) {
    EXPECT_EQ(durationDisplay("", "9223372036854775807:0:0:0", 25), "-");
}

}  // namespace
}  // namespace clipvane::test
