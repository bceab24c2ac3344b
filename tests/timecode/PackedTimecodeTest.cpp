// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/detail/PackedTimecode.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include "support/Random.h"
#include "support/Scale.h"

namespace clipvane::test {
namespace {

std::string textOf(PackedTimecode timecode) {
    std::string text(twoDigitLength, ' ');
    timecode.write(std::span<char, twoDigitLength>(text));
    return text;
}

TEST(PackedTimecode, EveryPairOfDigitsInEveryField_ComesBack) {
    for (int number = 0; number < 100; ++number) {
        const std::string digits{static_cast<char>('0' + number / 10),
                                 static_cast<char>('0' + number % 10)};
        for (std::size_t field = 0; field < 4; ++field) {
            std::string text = "12:34:56:78";
            text.replace(3 * field, 2, digits);
            const auto packed = PackedTimecode::pack(text);
            ASSERT_TRUE(packed) << text;
            EXPECT_EQ(textOf(*packed), text);
            EXPECT_EQ(packed->bits() & 0x8080'8080, 0U) << text;
        }
    }
}

TEST(PackedTimecode, OtherForms_AreNotPacked) {
    for (const char* text :
         {"", "01:00:00;00", "01;00:00:00", "1:2:3:4", "01:00:00:0", "01:00:00:000", "01:00:00: 0",
          "-1:00:00:00", "0\u0661:00:00:00", "01:00:00-00", "ab:cd:ef:gh", "01:00:00:0\xFF"}) {
        EXPECT_FALSE(PackedTimecode::pack(text)) << text;
    }
}

TEST(PackedTimecode, Hours_AreTheFirstField) {
    EXPECT_EQ(PackedTimecode::pack("98:01:02:03")->hours(), 98U);
}

/// A timecode whose fields are anything up to 99, often at the ends.
std::string anyTimecode(Random& random) {
    std::string text;
    for (int field = 0; field < 4; ++field) {
        const std::size_t number = random.below(4) == 0 ? 97 + random.below(3) : random.below(100);
        if (field > 0) text += ':';
        text += static_cast<char>('0' + number / 10);
        text += static_cast<char>('0' + number % 10);
    }
    return text;
}

TEST(PackedTimecode, ConvertedPacked_IsTheTextConverted) {
    constexpr std::array bases{1.0, 2.0, 12.5, 99.0, 100.0};
    Random random(1);
    const auto anyRate = [&] {
        const std::size_t choice = random.below(standardFPSValues.size() + bases.size());
        return choice < bases.size() ? bases[choice] : standardFPSValues[choice - bases.size()];
    };
    for (std::size_t i = 0; i < scaled(200'000); ++i) {
        const std::string text = anyTimecode(random);
        const double from = anyRate();
        const double to = anyRate();
        const TimecodeConversion conversion(from, to);
        const auto packed = PackedTimecode::pack(text);
        ASSERT_TRUE(packed);
        ASSERT_EQ(conversion.fits(*packed), packed->hours() < 99) << text;
        if (!conversion.fits(*packed)) continue;
        ASSERT_EQ(textOf(conversion.convert(*packed)), convertTimecode(text, from, to))
            << text << " from " << from << " to " << to;
    }
}

/// Where the frames are converted without the rest: every number of them between all usual bases.
TEST(PackedTimecode, EveryNumberOfFramesConvertedPacked_IsTheTextConverted) {
    Random random(2);
    for (int from = 1; from <= 100; ++from) {
        for (int to = 1; to <= 100; ++to) {
            const TimecodeConversion conversion(from, to);
            for (std::uint32_t frames = 0; frames < 100; ++frames) {
                const auto hours = static_cast<std::uint32_t>(random.below(99));
                const auto minutes = static_cast<std::uint32_t>(random.below(60));
                const auto seconds = static_cast<std::uint32_t>(random.below(60));
                const PackedTimecode timecode(hours | minutes << 8 | seconds << 16 | frames << 24);
                const std::string before = textOf(timecode);
                std::string expected = before;
                ASSERT_TRUE(conversion.convert(expected));
                ASSERT_EQ(textOf(conversion.convert(timecode)), expected)
                    << before << " from " << from << " to " << to;
            }
        }
    }
}

TEST(PackedTimecode, OnTheClock_AreMinutesAndSecondsBelowSixty) {
    EXPECT_TRUE(PackedTimecode::pack("99:59:59:99")->isOnTheClock());
    EXPECT_TRUE(PackedTimecode::pack("00:00:00:00")->isOnTheClock());
    for (const char* text : {"00:60:00:00", "00:00:60:00", "99:99:00:00", "00:59:99:00"}) {
        EXPECT_FALSE(PackedTimecode::pack(text)->isOnTheClock()) << text;
    }
}

TEST(PackedTimecode, UnusualRates_DoNotFit) {
    const auto packed = *PackedTimecode::pack("01:00:00:00");
    EXPECT_FALSE(TimecodeConversion(25, 101).fits(packed));
    EXPECT_FALSE(TimecodeConversion(101, 25).fits(packed));
    EXPECT_TRUE(TimecodeConversion(0, -1).fits(packed));
}

}  // namespace
}  // namespace clipvane::test
