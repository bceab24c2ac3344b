// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/Timecode.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <vector>

#include "base/GrowingText.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

struct FramesRow {
    const char* name;
    std::string_view text;
    double fps;
    std::optional<std::int64_t> expected;
};

class Frames : public testing::TestWithParam<FramesRow> {};

TEST_P(Frames, Row) {
    EXPECT_EQ(frames(GetParam().text, GetParam().fps), GetParam().expected);
}

const std::vector<FramesRow> counts{
    {"OneHourAt2997", "01:00:00:00", 29.97, 108000},
    {"OneHourOfDropFrameAt2997", "01:00:00;00", 29.97, 108000},
    {"OnlySemicolons", "01;00;00;00", 29.97, 108000},
    {"OneDigitAField", "1:2:3:4", 24, 89356},
    {"OneHourAt23976", "01:00:00:00", 23.976, 86400},
    {"OneHourAt5994", "01:00:00:00", 59.94, 216000},
    {"RateOfZeroCountsSeconds", "00:01:30:00", 0, 90},
    {"NegativeRateCountsSeconds", "00:01:30:00", -25, 90},
    {"RateBelowOneHalf", "00:01:30:00", 0.3, 90},
    {"FramesAtTheBaseOrAbove", "00:00:00:45", 25, 45},
    {"SecondsOfSixtyAndMore", "00:00:99:00", 25, 2475},
    {"MinutesOfSixtyAndMore", "00:99:00:00", 25, 148500},
    {"HundredHours", "100:00:00:00", 25, 9000000},
    {"NegativeHour", "-1:00:00:00", 25, -90000},
    {"NegativeHourWithTwoDigits", "-01:00:00:00", 25, -90000},
    {"NegativeFieldsOnly", "00:00:-1:-5", 25, -30},
    {"PlusSigns", "+1:+0:+0:+1", 25, 90001},
    {"MinusZero", "-0:00:00:00", 25, 0},
    {"LeadingZeros", "0001:0000:0000:0001", 25, 90001},
    {"Empty", "", 25, std::nullopt},
    {"ThreeFields", "01:00:00", 25, std::nullopt},
    {"FiveFields", "01:00:00:00:00", 25, std::nullopt},
    {"SeparatorsOnly", ":::", 25, std::nullopt},
    {"EmptyPiecesAreDropped", "::01::00:;00:00::", 25, 90000},
    {"WordBehind", "01:00:00:00:x", 25, 90000},
    {"WordBefore", "x:01:00:00:00", 25, 90000},
    {"WordsBetween", "01:a:00:b:00:c:00", 25, 90000},
    {"WordInPlaceOfAField", "01:00:xx:00", 25, std::nullopt},
    {"TrailingBlank", "01:00:00:00 ", 25, std::nullopt},
    {"LeadingBlank", " 01:00:00:00", 25, std::nullopt},
    {"TrailingCarriageReturn", "01:00:00:00\r", 25, std::nullopt},
    {"TrailingNUL", std::string_view("01:00:00:00\0", 12), 25, std::nullopt},
    {"Points", "01.00.00.00", 25, std::nullopt},
    {"PointBeforeFrames", "01:00:00.00", 25, std::nullopt},
    {"Fraction", "01:00:00:0.5", 25, std::nullopt},
    {"Hexadecimal", "0x1:00:00:00", 25, std::nullopt},
    {"Exponent", "1e0:00:00:00", 25, std::nullopt},
    {"TwoSigns", "--1:00:00:00", 25, std::nullopt},
    {"SignBehind", "1-:00:00:00", 25, std::nullopt},
    {"FullWidthDigits", "０１:00:00:00", 25, std::nullopt},
    {"ArabicDigits", "٠١:00:00:00", 25, std::nullopt},
    {"FullWidthColon", "01：00:00:00", 25, std::nullopt},
    {"GreekQuestionMarkIsNoSemicolon", "01:00:00\u037E00", 25, std::nullopt},
    {"CombiningMarkSpoilsItsPiece", "01:\u030100:00:00", 25, std::nullopt},
    {"InvalidBytes", "01:00:\xFF\xFE:00", 25, std::nullopt},
    {"InvalidBytesBehind", "01:00:00:00:\xFF", 25, 90000},
    {"PieceBeyond64Bits", "01:00:00:00:9223372036854775808", 25, 90000},
    {"FieldBeyond64Bits", "01:00:00:9223372036854775808", 25, std::nullopt},
    {"LargestFrames", "00:00:00:9223372036854775807", 25, largest},
    {"SmallestFrames", "00:00:00:-9223372036854775808", 25, smallest},
    {"LargestOverAll", "2562047788015215:30:07:00", 1, largest},
    {"SmallestOverAll", "-2562047788015215:-30:-08:00", 1, smallest},
};
INSTANTIATE_TEST_SUITE_P(Texts, Frames, testing::ValuesIn(counts), RowName());

struct TimecodeRow {
    const char* name;
    std::int64_t count;
    double fps;
    bool usesDropFrameSeparator;
    std::string_view expected;
};

class Timecode : public testing::TestWithParam<TimecodeRow> {};

TEST_P(Timecode, Row) {
    const auto& row = GetParam();
    EXPECT_EQ(timecode(row.count, row.fps, row.usesDropFrameSeparator), row.expected);
}

const std::vector<TimecodeRow> timecodes{
    {"Zero", 0, 25, false, "00:00:00:00"},
    {"OneFrame", 1, 25, false, "00:00:00:01"},
    {"LastFrameOfASecond", 24, 25, false, "00:00:00:24"},
    {"OneSecond", 25, 25, false, "00:00:01:00"},
    {"LastFrameOfAnHour", 89999, 25, false, "00:59:59:24"},
    {"OneHour", 90000, 25, false, "01:00:00:00"},
    {"OneHourAt2997", 108000, 29.97, false, "01:00:00:00"},
    {"OneHourOfDropFrame", 108000, 29.97, true, "01:00:00;00"},
    {"NoFrameIsSkippedAtTheMinute", 1800, 29.97, true, "00:01:00;00"},
    {"Beyond24Hours", 8640000, 25, false, "96:00:00:00"},
    {"HundredHours", 9000000, 25, false, "100:00:00:00"},
    {"RateOfZero", 90, 0, false, "00:01:30:00"},
    {"NegativeRate", 90, -1, false, "00:01:30:00"},
    {"MinusOneFrame", -1, 25, false, "00:00:00:-1"},
    {"MinusThirtyFrames", -30, 25, false, "00:00:-1:-5"},
    {"MinusOneFrameOfDropFrame", -1, 29.97, true, "00:00:00;-1"},
    {"MinusOneOfEachField", -(((60 + 1) * 60 + 1) * 25 + 1), 25, false, "-1:-1:-1:-1"},
    {"MinusTenHours", -900000, 25, false, "-10:00:00:00"},
    {"FramesOfThreeDigits", 119, 120, false, "00:00:00:119"},
    {"FramesBeyond32Bits", 4294967296, 5e9, false, "00:00:00:4294967296"},
    {"HoursBeyond32Bits", 4294967296 * 3600, 1, false, "4294967296:00:00:00"},
    {"Largest", largest, 1, false, "2562047788015215:30:07:00"},
    {"Smallest", smallest, 1, false, "-2562047788015215:-30:-8:00"},
    {"SmallestAt25", smallest, 25, false, "-102481911520608:-37:-12:-8"},
    {"SmallestAtTheLargestBase", smallest, 9223372036854774784.0, false, "00:00:-1:-1024"},
};
INSTANTIATE_TEST_SUITE_P(Counts, Timecode, testing::ValuesIn(timecodes), RowName());

struct ConversionRow {
    const char* name;
    std::string_view text;
    double from;
    double to;
    std::string_view expected;
};

class ConvertTimecode : public testing::TestWithParam<ConversionRow> {};

TEST_P(ConvertTimecode, Row) {
    const auto& row = GetParam();
    EXPECT_EQ(convertTimecode(row.text, row.from, row.to), row.expected);
    std::string inPlace(row.text);
    const TimecodeConversion conversion(row.from, row.to);
    EXPECT_EQ(conversion.convert(inPlace), frames(row.text, 1).has_value());
    EXPECT_EQ(inPlace, row.expected);
}

const std::vector<ConversionRow> conversions{
    {"WholeHour", "01:00:00:00", 25, 24, "01:00:00:00"},
    {"RoundsDown", "00:00:00:29", 30, 25, "00:00:00:24"},
    {"RoundsUp", "00:00:00:17", 24, 25, "00:00:00:18"},
    {"HalfGoesAwayFromZero", "00:00:00:01", 50, 25, "00:00:00:01"},
    {"EvenHalfGoesAwayFromZeroToo", "00:00:00:05", 50, 25, "00:00:00:03"},
    {"NegativeHalfGoesAwayFromZero", "00:00:00:-1", 50, 25, "00:00:00:-1"},
    {"NegativeThreeHalves", "00:00:00:-3", 50, 25, "00:00:00:-2"},
    {"DropFrameSeparatorIsKept", "01:00:00;00", 29.97, 25, "01:00:00;00"},
    {"SemicolonAnywhereMakesDropFrame", "01;00:00:00", 25, 24, "01:00:00;00"},
    {"SemicolonInADroppedPiece", "01:00:00:00:;x", 25, 24, "01:00:00;00"},
    {"SameBaseKeepsTheCount", "01:00:00:29", 29.97, 30, "01:00:00:29"},
    {"SameBase24", "10:11:12:13", 24, 23.976, "10:11:12:13"},
    {"SameBaseStillNormalizes", "1:2:3:4", 29.97, 30, "01:02:03:04"},
    {"SameBaseCarriesFields", "00:00:00:45", 30, 29.97, "00:00:01:15"},
    {"DroppedPiecesVanish", "x:01:00:00:00", 25, 24, "01:00:00:00"},
    {"Beyond24Hours", "100:00:00:00", 25, 50, "100:00:00:00"},
    {"Negative", "-1:00:00:00", 25, 30, "-1:00:00:00"},
    {"ToARateOfZero", "00:01:30:13", 25, 0, "00:01:31:00"},
    {"FromARateOfZero", "00:01:30:00", 0, 25, "00:01:30:00"},
    {"LowerEndSurvives", "00:00:00:-9223372036854775808", 25, 25, "-102481911520608:-37:-12:-8"},
    {"LongerThanBefore", "-9999:1:1:1", 25, 24, "-9998:-58:-58:-23"},
    {"ToManyDigitsOfFrames", "00:00:01:01", 2, 1e12, "00:00:01:500000000000"},
    {"HoursGrowByOneDigit", "99:59:59:59", 60, 24, "100:00:00:00"},
    {"Empty", "", 25, 24, ""},
    {"ThreeFields", "01:00:00", 25, 24, "01:00:00"},
    {"Word", "LEADER", 25, 24, "LEADER"},
    {"TrailingBlank", "01:00:00:00 ", 25, 24, "01:00:00:00 "},
    {"ArabicDigits", "٠١:٠٠:٠٠:٠٠", 25, 24, "٠١:٠٠:٠٠:٠٠"},
    {"NUL", std::string_view("\0", 1), 25, 24, std::string_view("\0", 1)},
};
INSTANTIATE_TEST_SUITE_P(Texts, ConvertTimecode, testing::ValuesIn(conversions), RowName());

struct DurationRow {
    const char* name;
    std::string_view from;
    std::string_view to;
    double fps;
    std::string_view expected;
};

class DurationDisplay : public testing::TestWithParam<DurationRow> {};

TEST_P(DurationDisplay, Row) {
    const auto& row = GetParam();
    EXPECT_EQ(durationDisplay(row.from, row.to, row.fps), row.expected);
    GrowingText line;
    line.put("Duration: ");
    putDuration(line, row.from, row.to, row.fps);
    EXPECT_EQ(line.view(), "Duration: " + std::string(row.expected));
}

const std::vector<DurationRow> durations{
    {"TenSeconds", "01:00:00:00", "01:00:10:00", 25, "00:00:10:00 (250 frames)"},
    {"OneFrameIsFramesToo", "01:00:00:00", "01:00:00:01", 25, "00:00:00:01 (1 frames)"},
    {"EndEqualToStart", "01:00:00:00", "01:00:00:00", 25, "00:00:00:00 (0 frames)"},
    {"EndBeforeStart", "01:00:10:00", "01:00:00:00", 25, "00:00:00:00 (0 frames)"},
    {"DropFrameIsShownWithColons", "01:00:00;00", "01:01:00;02", 29.97,
     "00:01:00:02 (1802 frames)"},
    {"FromANegativeStart", "-1:00:00:00", "00:00:00:00", 25, "01:00:00:00 (90000 frames)"},
    {"HundredHours", "00:00:00:00", "100:00:00:00", 25, "100:00:00:00 (9000000 frames)"},
    {"UnreadableStart", "x", "01:00:00:00", 25, "-"},
    {"UnreadableEnd", "01:00:00:00", "x", 25, "-"},
    {"ThreeFields", "01:00:00", "01:00:00", 25, "-"},
    {"BothEmpty", "", "", 25, "-"},
    {"LargestCount", "00:00:00:00", "00:00:00:9223372036854775807", 1,
     "2562047788015215:30:07:00 (9223372036854775807 frames)"},
};
INSTANTIATE_TEST_SUITE_P(Ranges, DurationDisplay, testing::ValuesIn(durations), RowName());

}  // namespace
}  // namespace clipvane::test
