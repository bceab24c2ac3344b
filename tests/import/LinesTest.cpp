// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/Lines.h"

#include <gmock/gmock.h>
#include <unicode/uchar.h>

#include <array>
#include <string>
#include <vector>

#include "judges/Pattern.h"
#include "support/LongTest.h"
#include "support/Random.h"
#include "support/RowName.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> all;
    Lines lines(text);
    while (const auto line = lines.next()) all.emplace_back(*line);
    return all;
}

struct Row {
    std::string_view name;
    std::string_view text;
    std::vector<std::string> lines;
};

class LinesOfText : public testing::TestWithParam<Row> {};

TEST_P(LinesOfText, AreSplit) {
    EXPECT_THAT(linesOf(GetParam().text), testing::ElementsAreArray(GetParam().lines));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LinesOfText,
    testing::Values(
        Row{"empty", "", {""}}, Row{"oneLine", "abc", {"abc"}}, Row{"lineFeed", "a\nb", {"a", "b"}},
        Row{"lastLineFeed", "a\n", {"a", ""}}, Row{"carriageReturn", "a\rb", {"a", "b"}},
        Row{"carriageReturnLineFeed_EmptyLineBetween", "a\r\nb", {"a", "", "b"}},
        Row{"mixed", "a\r\nb\rc\nd", {"a", "", "b", "c", "d"}},
        Row{"verticalTab", "a\vb", {"a", "b"}}, Row{"formFeed", "a\fb", {"a", "b"}},
        Row{"nextLine", "a\u0085b", {"a", "b"}}, Row{"lineSeparator", "a\u2028b", {"a", "b"}},
        Row{"paragraphSeparator", "a\u2029b", {"a", "b"}},
        Row{"newlinesOnly", "\n\u2029\u0085", {"", "", "", ""}}, Row{"tabIsNone", "a\tb", {"a\tb"}},
        Row{"informationSeparatorsAreNone",
            "a\x1C\x1D\x1E\x1F"
            "b",
            {"a\x1C\x1D\x1E\x1F"
             "b"}},
        Row{"neighboursAreNone",
            "\u0084\u0086\u2027\u202A\u0A0A\u0D0D",
            {"\u0084\u0086\u2027\u202A\u0A0A\u0D0D"}},
        Row{"nulIsNone", "a\0b\nc"sv, {std::string("a\0b", 3), "c"}},
        Row{"byteOrderMarkStays",
            "\uFEFF"
            "a\nb",
            {"\uFEFF"
             "a",
             "b"}},
        Row{"acrossEightByteWords",
            "1234567\n12345678\n123456789\n",
            {"1234567", "12345678", "123456789", ""}},
        Row{"wideNewlineAcrossWords",
            "1234567\u2028"
            "123456\u0085"
            "1",
            {"1234567", "123456", "1"}}),
    RowName());

bool isMandatoryBreak(UChar32 c) {
    switch (u_getIntPropertyValue(c, UCHAR_LINE_BREAK)) {
        case U_LB_MANDATORY_BREAK:
        case U_LB_CARRIAGE_RETURN:
        case U_LB_LINE_FEED:
        case U_LB_NEXT_LINE:
            return true;
        default:
            return false;
    }
}

std::vector<std::string> linesByProperty(const icu::UnicodeString& text) {
    std::vector<std::string> lines{""};
    for (std::int32_t i = 0; i < text.length(); i = text.moveIndex32(i, 1)) {
        const UChar32 c = text.char32At(i);
        if (isMandatoryBreak(c)) {
            lines.emplace_back();
        } else {
            icu::UnicodeString(c).toUTF8String(lines.back());
        }
    }
    return lines;
}

TEST(LinesJudge, GeneratedTexts_AreSplitAtMandatoryBreaks) {
    CLIPVANE_LONG_TEST();
    constexpr std::array pieces{"a"sv,      "\n"sv,     "\r"sv,     "\r\n"sv,   "\v"sv,
                                "\f"sv,     "\u0085"sv, "\u2028"sv, "\u2029"sv, "\u0084"sv,
                                "\u2027"sv, "\u202A"sv, "\u00E2"sv, "\u00C2"sv, "\U0001F3AC"sv,
                                "\t"sv,     "\x1C"sv,   "\0"sv,     "\uFFFD"sv, "12345678"sv,
                                "  "sv,     "\x0E"sv,   "\u200B"sv, "\uFEFF"sv, "\u0A85"sv};
    Random random;
    for (std::size_t left = generatedCases(200'000); left > 0; --left) {
        std::string text;
        for (auto piecesLeft = random.below(24); piecesLeft > 0; --piecesLeft)
            text += random.pick(pieces);
        ASSERT_EQ(linesOf(text), linesByProperty(utf16(text))) << text;
    }
}

/// Texts in which long stretches hold line feeds alone, and others do not.
TEST(LinesJudge, LongTexts_AreSplitAtMandatoryBreaks) {
    CLIPVANE_LONG_TEST();
    constexpr std::array rareEnds{"\r"sv, "\r\n"sv, "\v"sv, "\u0085"sv, "\u2028"sv, "\u00C2"sv};
    Random random;
    for (std::size_t left = scaled(300); left > 0; --left) {
        std::string text;
        for (auto linesLeft = random.below(60); linesLeft > 0; --linesLeft) {
            text.append(random.oneIn(20) ? random.below(6000) : random.below(100), 'x');
            text += random.oneIn(30) ? random.pick(rareEnds) : "\n"sv;
        }
        ASSERT_EQ(linesOf(text), linesByProperty(utf16(text)));
    }
}

TEST(LinesJudge, EveryCodePoint_SplitsAsItsPropertySays) {
    CLIPVANE_LONG_TEST();
    for (UChar32 c = 0; c <= 0x10FFFF; ++c) {
        if (c >= 0xD800 && c <= 0xDFFF) continue;
        const std::string text = "1234" + utf8(icu::UnicodeString(c)) + "5678";
        ASSERT_EQ(linesOf(text).size(), isMandatoryBreak(c) ? 2U : 1U) << std::hex << c;
    }
}

}  // namespace
}  // namespace clipvane::test
