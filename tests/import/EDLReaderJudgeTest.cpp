// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <array>

#include <clipvane/TimelineParser.h>
#include "import/ClipNameCommentGenerator.h"
#include "import/EventLineGenerator.h"
#include "import/Summary.h"
#include "judges/EDLJudge.h"
#include "support/LongTest.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

constexpr std::array comments{
    "* a comment"sv,
    " \t\u3000*\u00A0"sv,
    "\u200B* none"sv,
    "M2   AX  025.0"sv,
    ""sv,
    "FCM: DROP FRAME"sv,
    "a *"sv,
    "\0*"sv,
    "TITLE: x"sv,
    "**"sv,
    "* TO CLIP NAME: B"sv,
    "\uFEFF*"sv,
    "\x1F*"sv,
    "\uFFFD"sv,
    "*"sv,
};
constexpr std::array lineEnds{"\n"sv,     "\n"sv,     "\r\n"sv,   "\r"sv, "\v"sv,
                              "\u0085"sv, "\u2028"sv, "\u2029"sv, "\f"sv, "\n\n"sv};

/// Generated ones are mostly torn, as a line end is among the blanks between their columns.
constexpr std::string_view eventLine =
    "001  AX  V  C  00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00";

std::string generateEDL(Random& random) {
    std::string text;
    for (std::size_t left = random.below(10); left > 0; --left) {
        switch (random.below(4)) {
            case 0:
                text += generateClipNameComment(random);
                break;
            case 1:
                text += random.pick(comments);
                break;
            case 2:
                text += eventLine;
                break;
            default:
                text += generateEventLine(random);
                break;
        }
        text += random.pick(lineEnds);
    }
    return text;
}

template <class Events>
std::vector<std::string> summaries(const Events& events) {
    std::vector<std::string> all;
    for (const auto& event : events) all.push_back(summary(event));
    return all;
}

TEST(EDLReaderJudge, GeneratedTexts_GiveTheEventsOfThePattern) {
    CLIPVANE_LONG_TEST();
    const std::size_t count = generatedCases(60'000);
    Random random;
    EDLJudge judge;
    std::size_t events = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text = generateEDL(random);
        const auto read = TimelineParser::parseEDL(text);
        ASSERT_EQ(summaries(read), summaries(judge.read(utf16(text)))) << text;
        events += read.size();
    }
    std::cout << events << " events in " << count << " texts\n";
    EXPECT_GT(events, count / 2);
}

}  // namespace
}  // namespace clipvane::test
