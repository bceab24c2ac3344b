// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FrameCount.h"

#include <gtest/gtest.h>

#include "support/ThrowingFatal.h"

namespace clipvane::test {
namespace {

using diff::Counting;

std::optional<std::int64_t> countFrames(std::string_view timecode, const Counting& counting) {
    return diff::FrameCounter(counting).count(timecode);
}

TEST(FrameCount, DropFrame_LeavesOutTheFirstNumbersOfMostMinutes) {
    const Counting at30{29.97, true};
    const Counting at60{59.94, true};
    EXPECT_EQ(countFrames("00:00:59:29", at30), 1799);
    EXPECT_EQ(countFrames("00:01:00;02", at30), 1800);
    EXPECT_EQ(countFrames("00:09:59:29", at30), 17981);
    EXPECT_EQ(countFrames("00:10:00:00", at30), 17982);
    EXPECT_EQ(countFrames("01:00:00:00", at30), 107892);
    EXPECT_EQ(countFrames("00:00:59:59", at60), 3599);
    EXPECT_EQ(countFrames("00:01:00:04", at60), 3600);
    EXPECT_EQ(countFrames("?", at30), std::nullopt);
}

TEST(FrameCount, NonDrop_CountsEveryNumber) {
    EXPECT_EQ(countFrames("00:01:00:02", {29.97, false}), 1802);
    EXPECT_EQ(countFrames("00:01:00;02", {29.97, false}), 1802);
    EXPECT_EQ(countFrames("00:01:00:02", {100, false}), 6002);
    EXPECT_EQ(countFrames("00:01:00:02", {101, false}), 6062);
    EXPECT_EQ(countFrames("99:99:99:99", {12000, false}), 4349268099) << "not in 32 bits";
    EXPECT_EQ(countFrames("100:00:00:00", {24, false}), 8640000);
    EXPECT_EQ(countFrames("-1:00:00:00", {24, false}), -86400);
}

TEST(FrameCount, ImpossibleRate_IsFatalForATimecodeAlone) {
    const ThrowingFatal fatal;
    EXPECT_EQ(countFrames("?", {1e30, false}), std::nullopt);
    EXPECT_THROW(countFrames("00:00:00:01", {1e30, false}), ThrowingFatal::Reason);
}

}  // namespace
}  // namespace clipvane::test
