// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <array>

#include "import/EventLine.h"
#include "import/EventLineGenerator.h"
#include "judges/EDLJudge.h"
#include "support/AppendUTF8.h"
#include "support/LongTest.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

constexpr std::array groups{1, 2, 3, 5, 6, 7, 8};  // the fourth is the edit type, not kept

std::array<std::string_view, groups.size()> keptColumns(const EventLine& line) {
    return {line.number,    line.reel,     line.track,    line.sourceIn,
            line.sourceOut, line.recordIn, line.recordOut};
}

/// Whether matcher and pattern agree on `line`; counts the lines that match.
testing::AssertionResult agree(Pattern& pattern, const std::string& line, std::size_t& matches) {
    const icu::UnicodeString text = utf16(line);
    const bool expected = pattern.find(text);
    const auto columns = matchEventLine(line);
    if (expected != columns.has_value()) {
        return testing::AssertionFailure() << (expected ? "no match: " : "a match: ") << line;
    }
    if (!expected) return testing::AssertionSuccess();
    ++matches;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (keptColumns(*columns)[i] != pattern.group(groups[i])) {
            return testing::AssertionFailure() << "group " << groups[i] << " of " << line;
        }
    }
    return testing::AssertionSuccess();
}

TEST(EventLineJudge, GeneratedLines_MatchAsThePatternDoes) {
    CLIPVANE_LONG_TEST();
    const std::size_t count = generatedCases(1'200'000);
    Random random;
    Pattern pattern(eventPattern);
    std::size_t matches = 0;
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_TRUE(agree(pattern, generateEventLine(random), matches));
    }
    std::cout << matches << " of " << count << " lines are event lines\n";
    EXPECT_GT(matches, count / 4);
    EXPECT_LT(matches, count * 3 / 4);
}

/// Every code point once as a digit, as a blank, as a colon and as a part of a column.
TEST(EventLineJudge, EveryCodePointAtEveryKindOfPlace_MatchesAsThePatternDoes) {
    CLIPVANE_LONG_TEST();
    Pattern pattern(eventPattern);
    std::size_t matches = 0;
    const std::string tail = "00:00:00:01 00:00:00:02 00:00:00:03";
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c <= 0xDFFF) continue;
        std::string s;
        appendUTF8(s, c);
        ASSERT_TRUE(
            agree(pattern, s + "1 AX" + s + " V C" + s + "00:0" + s + ":00:00 " + tail, matches));
        ASSERT_TRUE(agree(pattern, "1 AX V C 00:00:00" + s + "00 " + tail + s, matches));
    }
    EXPECT_GT(matches, 0U);
}

}  // namespace
}  // namespace clipvane::test
