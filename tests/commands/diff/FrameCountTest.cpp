// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FrameCount.h"

#include <gtest/gtest.h>

namespace clipvane::test {
namespace {

using diff::countFrames;
using diff::Counting;

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
}

}  // namespace
}  // namespace clipvane::test
