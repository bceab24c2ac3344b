// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include <clipvane/UUID.h>
#include "base/Number.h"

namespace clipvane::test {
namespace {

/// What the number routines say of texts and values that locales like to change.
std::string numberReport() {
    std::string report;
    for (const std::string_view text : {"23.976", "23,976", "1.000", "1,000", "1e3", "0x1.8", "inf",
                                        "INFINITY", "NaN", "1e400"}) {
        const auto number = parseNumber(text);
        report += number ? std::to_string(roundToInteger(
                               *number > 1e6 || *number != *number ? 0 : *number * 1000))
                         : "-";
        const auto integer = parseInteger(text);
        report += integer ? "i" : "-";
        report += '\n';
    }
    appendInteger(report, 1234567890);
    appendPadded(report, -1234567, 12);
    return report + UUID().text();
}

TEST(Number, UnderEveryLocale_GivesTheSameBytes) {
    const std::string expected = numberReport();
    for (const char* name : localesOfTests) {
        const ScopedLocale locale(name);
        ASSERT_TRUE(locale.isSet()) << name << " is missing in LOCPATH; run the tests with ctest";
        char comma[8];
        std::snprintf(comma, sizeof comma, "%.1f", 0.5);
        ASSERT_STREQ(comma, "0,5") << "the locale has no effect";
        EXPECT_EQ(numberReport(), expected) << name;
    }
}

}  // namespace
}  // namespace clipvane::test
