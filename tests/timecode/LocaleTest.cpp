// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include "support/ScopedLocale.h"

namespace clipvane::test {
namespace {

/// Every text that the arithmetic writes, at all standard rates.
std::string timecodeReport() {
    std::string report;
    for (const double fps : standardFPSValues) {
        report += formatFPS(fps) + ' ' + formatFPS(fps * 1000 + 0.5) + '\n';
        report += timecode(1234567890123, fps, true) + ' ' + timecode(-30, fps, false) + '\n';
        report += convertTimecode("01:02:03;04", fps, 29.97) + '\n';
        report += durationDisplay("00:00:00:00", "1234:00:00:00", fps) + '\n';
    }
    return report;
}

TEST(TimecodeArithmetic, UnderEveryLocale_GivesTheSameBytes) {
    const std::string expected = timecodeReport();
    EXPECT_TRUE(expected.starts_with("23.976 23976.5\n"));
    for (const char* name : localesOfTests) {
        const ScopedLocale locale(name);
        ASSERT_TRUE(locale.isSet()) << name << " is missing in LOCPATH; run the tests with ctest";
        char comma[8];
        std::snprintf(comma, sizeof comma, "%.1f", 0.5);
        ASSERT_STREQ(comma, "0,5") << "the locale has no effect";
        EXPECT_EQ(timecodeReport(), expected) << name;
    }
}

}  // namespace
}  // namespace clipvane::test
