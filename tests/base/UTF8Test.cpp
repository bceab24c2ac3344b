// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/UTF8.h"

#include <gtest/gtest.h>
#include <unicode/unistr.h>

#include <cstddef>
#include <random>
#include <vector>

#include "support/AppendUTF8.h"
#include "support/LongTest.h"
#include "support/RowName.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

constexpr char32_t lastOfUnicode = 0x10FFFF;

constexpr bool isSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

struct ReplacementRow {
    const char* name;
    std::string_view bytes;
    std::string_view expected;
};

class ReplaceInvalidUTF8 : public testing::TestWithParam<ReplacementRow> {};

TEST_P(ReplaceInvalidUTF8, Row) {
    EXPECT_EQ(replaceInvalidUTF8(GetParam().bytes), GetParam().expected);
}

const std::vector<ReplacementRow> replacements{
    {"Empty", "", ""},
    {"ASCII", "001  A1 V", "001  A1 V"},
    {"Valid", "é€😀", "é€😀"},
    {"ByteOrderMarkStays", "\uFEFFTITLE", "\uFEFFTITLE"},
    {"NULStays", std::string_view("a\0b", 3), std::string_view("a\0b", 3)},
    {"NoncharacterStays", "\uFFFF", "\uFFFF"},
    {"TwoOfThreeBytesThenLetter",
     "\xE2\x82"
     "A",
     "\uFFFDA"},
    {"OverlongNUL", "\xC0\x80", "\uFFFD\uFFFD"},
    {"Surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
    {"OverlongFourBytes", "\xF0\x80\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"FiveBytes", "\xF8\x88\x80\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"ThreeOfFourBytesAtTheEnd", "\xF0\x9F\x98", "\uFFFD"},
    {"BeyondUnicode", "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
    {"LatinOne", "caf\xE9 noir", "caf\uFFFD noir"},
    {"LoneNextLine",
     "a\x85"
     "b",
     "a\uFFFDb"},
    {"TruncatedBeforeValid", "\xE2\x82\xC3\xA9", "\uFFFDé"},
    {"BrokenBehindLongASCII", "0123456789012345678901234567890123456789\xFF",
     "0123456789012345678901234567890123456789\uFFFD"},
};
INSTANTIATE_TEST_SUITE_P(Bytes, ReplaceInvalidUTF8, testing::ValuesIn(replacements), RowName());

TEST(UTF8, EveryCodePoint_IsReadBackFromBothEnds) {
    for (char32_t c = 0; c <= lastOfUnicode; ++c) {
        std::string text = "x";
        appendUTF8(text, c);
        const std::string_view written = std::string_view(text).substr(1);
        const char32_t expected = isSurrogate(c) ? U'\uFFFD' : c;
        ASSERT_EQ(firstCodePoint(written).value, expected);
        ASSERT_EQ(firstCodePoint(written).length, written.size());
        ASSERT_EQ(lastCodePoint(text).value, expected);
        ASSERT_EQ(lastCodePoint(text).length, written.size());
        ASSERT_EQ(validUTF8Prefix(text), text.size());
        ASSERT_EQ(isASCII(text), expected < 0x80);
    }
}

TEST(ValidUTF8Prefix, EndsBeforeTheFirstBrokenSequence) {
    EXPECT_EQ(validUTF8Prefix(""), 0U);
    EXPECT_EQ(validUTF8Prefix("abc"), 3U);
    EXPECT_EQ(validUTF8Prefix("abé\xE2\x82"), 4U);
    EXPECT_EQ(validUTF8Prefix("\x80"), 0U);
}

TEST(IsASCII, OneHighByteAnywhere_IsFound) {
    for (std::size_t size = 0; size < 100; ++size) {
        std::string text(size, '\x7F');
        ASSERT_TRUE(isASCII(text));
        for (std::size_t at = 0; at < size; ++at) {
            text[at] = '\x80';
            ASSERT_FALSE(isASCII(text));
            text[at] = '\x7F';
        }
    }
}

/// Texts of the bytes that UTF-8's rules turn on, in runs, with stretches of ASCII between.
class Garbage {
  public:
    std::string draw() {
        static constexpr unsigned char borders[]{
            0x00, 0x0A, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF,
            0xE0, 0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xF8, 0xFE, 0xFF};
        std::string text;
        for (auto left = engine() % 24; left > 0; --left) {
            switch (engine() % 4) {
                case 0:
                    text.append(engine() % 50, 'a');
                    break;
                case 1:
                    appendUTF8(text, static_cast<char32_t>(engine() % 0x110000));
                    break;
                default:
                    text += static_cast<char>(borders[engine() % std::size(borders)]);
            }
        }
        return text;
    }

  private:
    std::mt19937_64 engine{42};
};

TEST(ReplaceInvalidUTF8, GeneratedGarbage_IsReplacedAsICUDoes) {
    CLIPVANE_LONG_TEST();
    Garbage garbage;
    for (std::size_t i = 0; i < scaled(200'000); ++i) {
        const std::string bytes = garbage.draw();
        std::string expected;
        icu::UnicodeString::fromUTF8(bytes).toUTF8String(expected);
        ASSERT_EQ(replaceInvalidUTF8(bytes), expected);
        ASSERT_EQ(validUTF8Prefix(bytes) == bytes.size(), bytes == expected);
    }
}

TEST(LastCodePoint, GeneratedGarbage_IsReadBackwardsAsForwards) {
    CLIPVANE_LONG_TEST();
    Garbage garbage;
    for (std::size_t i = 0; i < scaled(200'000); ++i) {
        const std::string bytes = garbage.draw();
        std::vector<CodePoint> forwards;
        for (std::string_view rest = bytes; !rest.empty();) {
            forwards.push_back(firstCodePoint(rest));
            rest.remove_prefix(forwards.back().length);
        }
        std::string_view rest = bytes;
        for (auto expected = forwards.rbegin(); expected != forwards.rend(); ++expected) {
            const CodePoint last = lastCodePoint(rest);
            ASSERT_EQ(last.value, expected->value);
            ASSERT_EQ(last.length, expected->length);
            rest.remove_suffix(last.length);
        }
        ASSERT_TRUE(rest.empty());
    }
}

}  // namespace
}  // namespace clipvane::test
