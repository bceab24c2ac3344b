// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <array>

#include "import/EventLine.h"
#include "import/EventLineGenerator.h"
#include "judges/EDLJudge.h"
#include "support/AppendUTF8.h"
#include "support/CodePoints.h"
#include "support/LongTest.h"
#include "support/Scale.h"
#include "support/TimecodeText.h"

namespace clipvane::test {
namespace {

constexpr std::array groups{1, 2, 3, 5, 6, 7, 8};  // the fourth is the edit type, not kept

std::array<std::string, groups.size()> keptColumns(const EventLine& line) {
    const auto& times = line.timecodes;
    return {std::string(line.number), std::string(line.reel), std::string(line.track),
            textOf(times[0]),         textOf(times[1]),       textOf(times[2]),
            textOf(times[3])};
}

/// Whether matcher and pattern agree on `line`; counts the lines that match.
testing::AssertionResult agree(Pattern& pattern, const std::string& line, std::size_t& matches) {
    const icu::UnicodeString text = utf16(line);
    const bool expected = pattern.find(text);
    const auto columns = matchEventLine(line);
    const auto general = matchAnyEventLine(line);
    if (general.has_value() != columns.has_value() ||
        (general && keptColumns(*general) != keptColumns(*columns))) {
        return testing::AssertionFailure() << "straight and general way differ: " << line;
    }
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

/// Lines as most are, with a slip in many: the straight way and the general one must not differ in
/// what both take, and most must go the straight way.
TEST(EventLineJudge, PlainLinesAndTheirMutations_MatchAlikeOnBothWays) {
    constexpr std::array lines{
        "000042  A012C003  V    C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00",
        "001 AX AA/V D 030 00:00:00:00 00:00:00:01 10:59:59:23 99:99:99:99",
        "\t7\tB\tA2\tW001\t012\t01:00:00:00\t01:00:04:00\t00:00:00:00\t00:00:04:00 trailing",
        "  12345678  REEL_OF_THIRTY_CHARACTERS_AND_1  V  C  01:00:00:00 01:00:04:00 00:00:00:00 "
        "00:00:04:00",
        "3 12 V 00:00:00:00 00:00:00:00 00:00:00:01 10:59:59:23 99:99:99:99"};
    constexpr std::string_view slips =
        "0123456789 \t::;\v\r\x1F\x7F\x80\xC2\xA0\xD9\xA1\xFF"
        "A/!";
    const std::size_t count = generatedCases(1'000'000);
    Random random;
    std::size_t plain = 0;
    for (std::size_t i = 0; i < count; ++i) {
        std::string line = random.pick(lines);
        for (std::size_t left = random.below(4); left > 0 && !line.empty(); --left) {
            const std::size_t place = random.below(line.size());
            switch (random.below(4)) {
                case 0:
                    line.insert(place, 1, random.pick(slips));
                    break;
                case 1:
                    line.erase(place, 1);
                    break;
                case 2:
                    line.resize(place + 1);
                    break;
                default:
                    line[place] = random.pick(slips);
            }
        }
        const auto straight = matchPlainEventLine(line);
        const auto general = matchAnyEventLine(line);
        ASSERT_TRUE(!straight || general) << line;
        if (!straight) continue;
        ++plain;
        ASSERT_EQ(keptColumns(*straight), keptColumns(*general)) << line;
        ASSERT_EQ(straight->number.data(), general->number.data()) << line;
    }
    std::cout << plain << " of " << count << " lines went the straight way\n";
    EXPECT_GT(plain, count / 4);
    for (const char* line : lines) EXPECT_TRUE(matchPlainEventLine(line)) << line;
}

/// Every code point once as a digit, as a blank, as a colon and as a part of a column.
TEST(EventLineJudge, EveryCodePointAtEveryKindOfPlace_MatchesAsThePatternDoes) {
    CLIPVANE_LONG_TEST();
    Pattern pattern(eventPattern);
    std::size_t matches = 0;
    const std::string tail = "00:00:00:01 00:00:00:02 00:00:00:03";
    for (char32_t c = 0; c <= lastCodePoint; c = nextCodePoint(c)) {
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
