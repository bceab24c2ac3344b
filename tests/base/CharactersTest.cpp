// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/Characters.h"

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <set>
#include <string>
#include <vector>

#include "support/AppendUTF8.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

template <class Predicate>
std::set<char32_t> allThat(Predicate predicate) {
    std::set<char32_t> members;
    for (char32_t c = 0; c <= 0x10FFFF; ++c) {
        if (predicate(c)) members.insert(c);
    }
    return members;
}

const std::set<char32_t> newlines{0x0A, 0x0B, 0x0C, 0x0D, 0x85, 0x2028, 0x2029};

const std::set<char32_t> blanks{0x09,   0x20,   0xA0,   0x1680, 0x2000, 0x2001,
                                0x2002, 0x2003, 0x2004, 0x2005, 0x2006, 0x2007,
                                0x2008, 0x2009, 0x200A, 0x202F, 0x205F, 0x3000};

TEST(Characters, Newlines_AreExactlySeven) {
    EXPECT_EQ(allThat(isNewline), newlines);
}

TEST(Characters, Blanks_AreTabAndTheSpaceSeparators) {
    EXPECT_EQ(allThat(isBlank), blanks);
    EXPECT_EQ(allThat(isBlank), allThat([](char32_t c) {
                  return c == U'\t' || u_charType(static_cast<UChar32>(c)) == U_SPACE_SEPARATOR;
              }));
}

TEST(Characters, WhiteSpace_IsUnicodesProperty) {
    std::set<char32_t> expected = blanks;
    expected.insert(newlines.begin(), newlines.end());
    EXPECT_EQ(allThat(isWhiteSpace), expected);
    EXPECT_EQ(allThat(isWhiteSpace), allThat([](char32_t c) {
                  return u_hasBinaryProperty(static_cast<UChar32>(c), UCHAR_WHITE_SPACE) != 0;
              }));
}

TEST(Characters, DecimalDigits_AreTheGeneralCategoryNd) {
    const auto digits = allThat(isDecimalDigit);
    EXPECT_EQ(digits, allThat([](char32_t c) {
                  return u_charType(static_cast<UChar32>(c)) == U_DECIMAL_DIGIT_NUMBER;
              }));
    EXPECT_TRUE(digits.contains(U'０'));
    EXPECT_TRUE(digits.contains(U'٣'));
    EXPECT_TRUE(digits.contains(0x1D7CE)) << "a digit beyond U+FFFF";
    EXPECT_FALSE(digits.contains(U'²'));
    EXPECT_FALSE(digits.contains(U'Ⅷ'));
}

TEST(Characters, ASCIIClasses_HoldNothingElse) {
    EXPECT_EQ(allThat(isASCIIDigit),
              (std::set<char32_t>{'0', '1', '2', '3', '4', '5', '6', '7', '8', '9'}));
    EXPECT_EQ(allThat(isASCIIWhiteSpace), (std::set<char32_t>{9, 10, 11, 12, 13, 32}));
}

TEST(HoldsEither, FindsEachOfTheTwoAtEveryPlaceOfEveryLength) {
    for (std::size_t size = 0; size < 40; ++size) {
        EXPECT_FALSE(holdsEither(std::string(size, '#'), '"', '\n')) << size;
        for (std::size_t at = 0; at < size; ++at) {
            for (int byte = 0; byte < 256; ++byte) {
                std::string text(size, '#');
                text[at] = static_cast<char>(byte);
                EXPECT_EQ(holdsEither(text, '"', '\n'), byte == '"' || byte == '\n')
                    << byte << " at " << at << " of " << size;
            }
        }
    }
}

TEST(HoldsEither, LooksAtTheTextAlone) {
    const std::string_view quoted = "\"12345678\"";
    for (std::size_t size = 0; size <= 8; ++size) {
        EXPECT_FALSE(holdsEither(quoted.substr(1, size), '"', '\n')) << size;
    }
}

TEST(ASCIILower, ChangesTheTwentySixCapitalsOnly) {
    for (int byte = 0; byte < 256; ++byte) {
        const bool isCapital = byte >= 'A' && byte <= 'Z';
        EXPECT_EQ(asciiLower(static_cast<char>(byte)),
                  static_cast<char>(isCapital ? byte + 32 : byte));
    }
}

struct TrimRow {
    const char* name;
    std::string_view text;
    std::string_view trimmed;
};

class Trim : public testing::TestWithParam<TrimRow> {};

TEST_P(Trim, Row) {
    EXPECT_EQ(trimBlanksAndNewlines(GetParam().text), GetParam().trimmed);
}

const std::vector<TrimRow> trims{
    {"Empty", "", ""},
    {"NothingToTrim", "a b", "a b"},
    {"BlanksOnly", " \t\u3000 ", ""},
    {"NewlinesOnly", "\r\n", ""},
    {"BothEnds", "\t a b \u00A0", "a b"},
    {"NewlinesOutside", "\n a \r\n", "a"},
    {"NewlinesInside", " a\nb ", "a\nb"},
    {"NewlineBehindBlanks", " \n a", "a"},
    {"UnicodeNewlines", "\u2028a\u0085", "a"},
    {"ZeroWidthSpaceStays", "\u200Ba\u200B", "\u200Ba\u200B"},
    {"MongolianVowelSeparatorStays", "\u180Ea", "\u180Ea"},
    {"ByteOrderMarkStays", "\uFEFF a", "\uFEFF a"},
    {"WordJoinerStays", "a\u2060", "a\u2060"},
    {"NULStays", std::string_view("\0 a", 3), std::string_view("\0 a", 3)},
    {"InformationSeparatorsStay",
     "\x1C"
     "a\x1F",
     "\x1C"
     "a\x1F"},
    {"InvalidBytesStay", " \x85 ", "\x85"},
    {"CombiningMarkStandsAlone", " \u0301a", "\u0301a"},
};
INSTANTIATE_TEST_SUITE_P(Texts, Trim, testing::ValuesIn(trims), RowName());

TEST(Trim, EveryBlankAndNewline_GoesFromBothEnds) {
    for (const char32_t c : allThat(isWhiteSpace)) {
        std::string end;
        appendUTF8(end, c);
        EXPECT_EQ(trimBlanksAndNewlines(end + "x" + end), "x");
    }
}

}  // namespace
}  // namespace clipvane::test
