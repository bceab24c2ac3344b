// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "import/ClipNameComment.h"
#include "import/ClipNameCommentGenerator.h"
#include "judges/EDLJudge.h"
#include "support/AppendUTF8.h"
#include "support/CodePoints.h"
#include "support/LongTest.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

constexpr std::string_view spelling = "frOm cLip namE";

/// The keyword with `insertion` in place of its `count` letters from `position`.
std::string keywordWith(std::string_view insertion, std::size_t position, std::size_t count) {
    std::string line(spelling.substr(0, position));
    line += insertion;
    line += spelling.substr(position + count);
    return line;
}

TEST(ClipNameCommentJudge, EveryCodePointForEveryLetterAndAroundIt_IsFoundAsInUpperCase) {
    CLIPVANE_LONG_TEST();
    const auto judged = [](const std::string& line) {
        return clipNameComment(line) == judgedClipName(utf16(line));
    };
    for (char32_t c = 0; c <= lastCodePoint; c = nextCodePoint(c)) {
        std::string s;
        appendUTF8(s, c);
        for (std::size_t i = 0; i < spelling.size(); ++i) {
            ASSERT_TRUE(judged(keywordWith(s, i, 1))) << keywordWith(s, i, 1);
        }
        for (const std::size_t i : {std::size_t{0}, std::size_t{7}, spelling.size()}) {
            ASSERT_TRUE(judged(keywordWith(s, i, 0))) << keywordWith(s, i, 0);
        }
    }
}

TEST(ClipNameCommentJudge, GeneratedLines_GiveTheNameFoundInUpperCase) {
    CLIPVANE_LONG_TEST();
    const std::size_t count = generatedCases(400'000);
    Random random;
    std::size_t names = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string line = generateClipNameComment(random);
        const auto expected = judgedClipName(utf16(line));
        const auto name = clipNameComment(line);
        ASSERT_EQ(name.has_value(), expected.has_value()) << line;
        if (!expected) continue;
        ASSERT_EQ(*name, *expected) << line;
        ++names;
    }
    std::cout << names << " of " << count << " lines are clip-name comments\n";
    EXPECT_GT(names, count / 4);
    EXPECT_LT(names, count * 9 / 10);
}

}  // namespace
}  // namespace clipvane::test
