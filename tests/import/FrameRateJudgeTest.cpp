// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <clipvane/TimelineParser.h>
#include "import/FrameRateGenerator.h"
#include "judges/FrameRateJudge.h"
#include "support/AppendUTF8.h"
#include "support/CodePoints.h"
#include "support/LongTest.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

TEST(FrameRateDetectionJudge, GeneratedTexts_GiveThePatternsRate) {
    CLIPVANE_LONG_TEST();
    const std::size_t count = generatedCases(400'000);
    Random random;
    FrameRateJudge judge;
    std::size_t rates = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text = generateFrameRateText(random);
        const auto expected = judge.detect(utf16(text));
        const auto fps = TimelineParser::detectFPS(text);
        ASSERT_TRUE(sameRate(fps, expected))
            << expected.value_or(-1) << " expected, got " << fps.value_or(-1) << ": " << text;
        if (fps) ++rates;
    }
    std::cout << rates << " of " << count << " texts name a rate\n";
    EXPECT_LT(rates, count * 9 / 10);
    EXPECT_GT(judge.smallestShare(), count / 20) << "a pattern is hardly ever looked at";
}

/// Every code point once as each letter of the names, as a blank, as a digit and as a quote.
TEST(FrameRateDetectionJudge, EveryCodePointAtEveryKindOfPlace_GivesThePatternsRate) {
    CLIPVANE_LONG_TEST();
    FrameRateJudge judge;
    for (char32_t c = 0; c <= lastCodePoint; c = nextCodePoint(c)) {
        std::string s;
        appendUTF8(s, c);
        for (const std::string& text :
             {"fp" + s + ":1", s + "ps:2", "f" + s + "s:3", "fps" + s + ":" + s + "4" + s,
              "frame" + s + "rate=5", "<timeba" + s + "e>6</timeba" + s + "e>",
              "timebase=" + s + "7" + s, "frameDuration='1/25" + s + "'"}) {
            ASSERT_TRUE(sameRate(TimelineParser::detectFPS(text), judge.detect(utf16(text))))
                << text;
        }
    }
}

}  // namespace
}  // namespace clipvane::test
