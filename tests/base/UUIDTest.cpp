// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/UUID.h>
#include "support/LongTest.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace clipvane::test {
namespace {

constexpr UUID sample{{0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF, 0xFE, 0xDC, 0xBA, 0x98, 0x76,
                       0x54, 0x32, 0x10}};
constexpr std::string_view sampleText = "01234567-89AB-CDEF-FEDC-BA9876543210";

TEST(UUID, IsWrittenInUpperCaseWithHyphens) {
    EXPECT_EQ(sample.text(), sampleText);
    EXPECT_EQ(UUID().text(), "00000000-0000-0000-0000-000000000000");
}

TEST(UUID, IsReadInEitherCase) {
    EXPECT_EQ(UUID::parse(sampleText), sample);
    EXPECT_EQ(UUID::parse("01234567-89ab-cdef-fedc-ba9876543210"), sample);
    EXPECT_EQ(UUID::parse("01234567-89aB-CdEf-fEdC-bA9876543210"), sample);
}

TEST(UUID, AnyOtherForm_IsNotRead) {
    for (const std::string_view text : {
             "",
             "0123456789ABCDEFFEDCBA9876543210",
             "{01234567-89AB-CDEF-FEDC-BA9876543210}",
             "01234567-89AB-CDEF-FEDC-BA987654321",
             "01234567-89AB-CDEF-FEDC-BA98765432100",
             " 01234567-89AB-CDEF-FEDC-BA9876543210",
             "01234567-89AB-CDEF-FEDC-BA987654321G",
             "01234567-89AB-CDEF-FEDC-BA987654321 ",
             "01234567_89AB_CDEF_FEDC_BA9876543210",
             "0123456-789AB-CDEF-FEDC-BA9876543210",
             "01234567--9AB-CDEF-FEDC-BA9876543210",
         }) {
        EXPECT_EQ(UUID::parse(text), std::nullopt) << text;
    }
}

TEST(UUID, OneWrongCharacterAnywhere_IsNotRead) {
    for (std::size_t at = 0; at < sampleText.size(); ++at) {
        for (const char c : {'g', '/', ':', '@', '`', '\0', '\xC3'}) {
            std::string text(sampleText);
            text[at] = c;
            EXPECT_EQ(UUID::parse(text), std::nullopt) << at;
        }
    }
}

TEST(UUIDGenerator, DrawsAreRandomIdentifiersOfVersionFour) {
    CLIPVANE_LONG_TEST();
    UUIDGenerator generator;
    std::set<std::string> drawn;
    for (int i = 0; i < 100'000; ++i) {
        const UUID uuid = generator.next();
        const std::string text = uuid.text();
        ASSERT_EQ(text[14], '4');
        ASSERT_NE(std::string_view("89AB").find(text[19]), std::string_view::npos);
        ASSERT_EQ(UUID::parse(text), uuid);
        ASSERT_TRUE(drawn.insert(text).second) << "drawn twice: " << text;
    }
}

TEST(UUIDGenerator, TwoGenerators_DrawDifferentIdentifiers) {
    EXPECT_NE(UUIDGenerator().next(), UUIDGenerator().next());
}

TEST(UUIDGenerator, EveryFreeBit_IsDrawnBothWays) {
    UUIDGenerator generator;
    std::array<int, 128> ones{};
    constexpr int draws = 10'000;
    for (int i = 0; i < draws; ++i) {
        const UUID uuid = generator.next();
        for (std::size_t bit = 0; bit < ones.size(); ++bit) {
            ones[bit] += uuid.bytes[bit / 8] >> (bit % 8) & 1;
        }
    }
    for (std::size_t bit = 0; bit < ones.size(); ++bit) {
        const bool isFixed = (bit / 8 == 6 && bit % 8 >= 4) || (bit / 8 == 8 && bit % 8 >= 6);
        if (isFixed) continue;
        EXPECT_GT(ones[bit], draws / 2 - 500) << bit;
        EXPECT_LT(ones[bit], draws / 2 + 500) << bit;
    }
}

}  // namespace
}  // namespace clipvane::test
