// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/TextNumbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/LongTest.h"

namespace clipvane::test {
namespace {

/// So many that some have a hash in common.
TEST(TextNumbers, ManyTexts_HaveANumberEach) {
    CLIPVANE_LONG_TEST();
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < 300'000; ++i) texts.push_back("A" + std::to_string(i));
    diff::TextNumbers numbers;
    std::vector<bool> isGiven(texts.size() + 1);
    for (const std::string& text : texts) {
        const std::uint32_t number = numbers.of(text);
        ASSERT_LT(number, isGiven.size()) << text;
        ASSERT_FALSE(isGiven[number]) << text;
        isGiven[number] = true;
    }
    EXPECT_FALSE(isGiven[0]) << "the number of the empty text";
    for (std::size_t i = 0; i < texts.size(); i += 1000) EXPECT_EQ(numbers.of(texts[i]), i + 1);
}

TEST(TextNumbers, EquivalentTexts_HaveOneNumber) {
    const std::vector<std::string> composed{"\u00E9", "Caf\u00E9 au lait, twice"};
    const std::vector<std::string> apart{"e\u0301", "Cafe\u0301 au lait, twice"};
    diff::TextNumbers composedFirst;
    diff::TextNumbers apartFirst;
    for (std::size_t i = 0; i < composed.size(); ++i) {
        EXPECT_EQ(composedFirst.of(composed[i]), composedFirst.of(apart[i]));
        EXPECT_EQ(apartFirst.of(apart[i]), apartFirst.of(composed[i]));
        EXPECT_NE(composedFirst.of(composed[i]), composedFirst.of("e"));
    }
    EXPECT_EQ(composedFirst.of(""), 0);
}

}  // namespace
}  // namespace clipvane::test
