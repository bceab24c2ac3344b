// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <limits>

#include "import/XMLTiming.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

struct TimingRow {
    std::string_view name;
    std::string_view value;
    std::string_view timecode;
    double fps = 25;
};

class XMLTiming : public testing::TestWithParam<TimingRow> {};

TEST_P(XMLTiming, IsATimecode) {
    EXPECT_EQ(xmlTime(GetParam().value, GetParam().fps).text(), GetParam().timecode);
}

INSTANTIATE_TEST_SUITE_P(
    Seconds, XMLTiming,
    testing::Values(
        TimingRow{"whole", "3600s", "01:00:00:00"}, TimingRow{"ten", "10s", "00:00:10:00"},
        TimingRow{"zero", "0s", "00:00:00:00"}, TimingRow{"decimal", "0.5s", "00:00:00:13"},
        TimingRow{"fraction", "1001/30000s", "00:00:00:01"},
        TimingRow{"fractionMultipliedLast", "29/50s", "00:00:00:14"},
        TimingRow{"fractionOfWholeSeconds", "3600/1s", "01:00:00:00"},
        TimingRow{"decimalFraction", "2.5/0.5s", "00:00:05:00"},
        TimingRow{"secondSlash", "1/2/3s", "1/2/3s"}, TimingRow{"slashOnly", "/s", "/s"},
        TimingRow{"noNumerator", "/2s", "00:00:00:00"},
        TimingRow{"unparsableNumerator", "x/2s", "00:00:00:00"},
        TimingRow{"unparsableDenominator", "1/xs", "1/xs"},
        TimingRow{"zeroDenominator", "1/0s", "1/0s"},
        TimingRow{"negativeDenominator", "1/-2s", "1/-2s"},
        TimingRow{"negative", "-5s", "00:00:-5:00"},
        TimingRow{"negativeFraction", "-1/2s", "00:00:00:-13"},
        TimingRow{"negativeOddFrames", "-3661.04s", "-1:-1:-1:-1"},
        TimingRow{"infiniteDenominator", "5/infs", "00:00:00:00"},
        TimingRow{"infiniteDenominatorInWords", "5/INFINITYs", "00:00:00:00"},
        TimingRow{"denominatorNotANumber", "5/nans", "5/nans"},
        TimingRow{"zeroOverTiny", "0/1e-400s", "0/1e-400s"},
        TimingRow{"exponent", "1e1s", "00:00:10:00"},
        TimingRow{"hexadecimal", "0x10s", "00:00:16:00"},
        TimingRow{"blankBeforeUnit", "5 s", "5 s"}, TimingRow{"capitalUnit", "5S", "5S"},
        TimingRow{"longSUnit", "5\u017F", "5\u017F"}, TimingRow{"unitOnly", "s", "s"},
        TimingRow{"twoUnits", "5ss", "5ss"}, TimingRow{"milliseconds", "5ms", "5ms"},
        TimingRow{"comma", "1,5s", "1,5s"},
        TimingRow{"fractionWithoutUnit", "1001/30000", "1001/30000"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Frames, XMLTiming,
    testing::Values(
        TimingRow{"plain", "250", "00:00:10:00"}, TimingRow{"zero", "0", "00:00:00:00"},
        TimingRow{"noWrap", "2160000", "24:00:00:00"},
        TimingRow{"hundredHours", "9000000", "100:00:00:00"},
        TimingRow{"half", "0.5", "00:00:00:01"},
        TimingRow{"belowHalf", "0.49999999999999994", "00:00:00:00"},
        TimingRow{"oneAndAHalf", "1.5", "00:00:00:02"},
        TimingRow{"twoAndAHalf", "2.5", "00:00:00:03"}, TimingRow{"plus", "+7", "00:00:00:07"},
        TimingRow{"pointFirst", ".5", "00:00:00:01"}, TimingRow{"pointLast", "5.", "00:00:00:05"},
        TimingRow{"exponent", "1e3", "00:00:40:00"},
        TimingRow{"hexadecimal", "0x10", "00:00:00:16"},
        TimingRow{"hexadecimalFraction", "0x1.8", "00:00:00:02"},
        TimingRow{"hexadecimalExponent", "0X1p4", "00:00:00:16"}, TimingRow{"negative", "-1", ""},
        TimingRow{"negativeFraction", "-0.001", ""}, TimingRow{"negativeZero", "-0", "00:00:00:00"},
        TimingRow{"negativeZeroDecimal", "-0.0", "00:00:00:00"},
        TimingRow{"negativeInfinity", "-inf", ""}, TimingRow{"negativeOverflow", "-1e400", ""},
        TimingRow{"underflow", "1e-400", "00:00:00:00"}, TimingRow{"underscore", "1_000", "1_000"},
        TimingRow{"suffix", "1f", "1f"}, TimingRow{"noExponent", "1e", "1e"},
        TimingRow{"noHexDigits", "0x", "0x"}, TimingRow{"noHexExponent", "0x1p", "0x1p"},
        TimingRow{"fullWidth", "\uFF12\uFF15", "\uFF12\uFF15"},
        TimingRow{"innerBlank", "1 0", "1 0"}, TimingRow{"comma", "1,5", "1,5"},
        TimingRow{"words", "abc", "abc"}, TimingRow{"dot", ".", "."}, TimingRow{"sign", "-", "-"},
        TimingRow{"twoSigns", "+-1", "+-1"}, TimingRow{"nanWithPayload", "nan(1)", "nan(1)"},
        TimingRow{"nul", std::string_view("5\0", 2), std::string_view("5\0", 2)}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    PassedThrough, XMLTiming,
    testing::Values(TimingRow{"timecode", "01:00:00:00", "01:00:00:00"},
                    TimingRow{"dropFrame", "01:00:00;12", "01:00:00;12"},
                    TimingRow{"notNormalized", "1:2:3:4", "1:2:3:4"},
                    TimingRow{"semicolonsOnly", "01;00;00;12", "01;00;00;12"},
                    TimingRow{"anythingWithColon", "a:b", "a:b"}, TimingRow{"colonOnly", ":", ":"},
                    TimingRow{"negativeTimecode", "-1:00", "-1:00"},
                    TimingRow{"fullWidthColonIsNone", "01\uFF1A00", "01\uFF1A00"},
                    TimingRow{"empty", "", ""}, TimingRow{"blanks", " \t\n ", ""},
                    TimingRow{"trimmed", " \n01:00:00:00\t ", "01:00:00:00"},
                    TimingRow{"unicodeBlanksTrimmed", "\u3000\u0085 25 \u2028\u00A0",
                              "00:00:01:00"},
                    TimingRow{"zeroWidthSpaceKept",
                              "\u200B"
                              "25",
                              "\u200B"
                              "25"},
                    TimingRow{"encodedBlanks", "%20250%20", "00:00:10:00"},
                    TimingRow{"fileScheme", "file://250", "00:00:10:00"},
                    TimingRow{"fileSchemeOnly", "file://", ""},
                    TimingRow{"nestedFileScheme", "fifile://le://250", "file://250"},
                    TimingRow{"schemeBeforeBlank", "%2file://0250", "00:00:10:00"}),
    RowName());

INSTANTIATE_TEST_SUITE_P(FrameBases, XMLTiming,
                         testing::Values(TimingRow{"baseThirty", "30", "00:00:01:00", 29.97},
                                         TimingRow{"baseTwentyFour", "24", "00:00:01:00", 23.976},
                                         TimingRow{"secondsAtTheRateItself", "100s", "00:01:39:27",
                                                   29.97},
                                         TimingRow{"baseOneForZero", "5", "00:00:05:00", 0},
                                         TimingRow{"secondsAtZero", "5s", "00:00:00:00", 0},
                                         TimingRow{"baseOneForSmallRate", "5", "00:00:05:00", 0.4},
                                         TimingRow{"halfRoundsUp", "3", "00:00:01:00", 2.5},
                                         TimingRow{"threeDigitFrames", "119", "00:00:00:119", 120},
                                         TimingRow{"sixty", "59", "00:00:00:59", 59.94},
                                         TimingRow{"hugeRate", "7", "00:00:00:07", 1e18}),
                         RowName());

struct FramesRow {
    std::string_view name;
    std::string_view value;
    std::optional<std::int64_t> frames;
    double fps = 25;
};

/// The count that a text was written for is kept, and is the one that the text has.
TEST_P(XMLTiming, HasTheFramesOfItsText) {
    const XMLTime time = xmlTime(GetParam().value, GetParam().fps);
    EXPECT_EQ(time.frames(GetParam().fps), xmlFrames(time.text(), GetParam().fps));
}

class XMLFrames : public testing::TestWithParam<FramesRow> {};

TEST_P(XMLFrames, AreCounted) {
    EXPECT_EQ(xmlFrames(GetParam().value, GetParam().fps), GetParam().frames);
}

INSTANTIATE_TEST_SUITE_P(
    Timecodes, XMLFrames,
    testing::Values(FramesRow{"oneHour", "01:00:00:00", 90000},
                    FramesRow{"dropFrame", "01:00:00;12", 90012},
                    FramesRow{"noColon", "01;00;00;12", std::nullopt},
                    FramesRow{"extraWord", "00:00:01:00:extra", 25},
                    FramesRow{"fivePieces", "00:00:00:01:00", std::nullopt},
                    FramesRow{"threePieces", "00:01:00", std::nullopt},
                    FramesRow{"emptyPiecesDropped", "::00::00:01;;00:", 25},
                    FramesRow{"signedPieces", "+0:-1:00:00", -1500},
                    FramesRow{"twoSigns", "00:00:+-1:00:00", 0},
                    FramesRow{"blankInPiece_Dropped", "00:00: 1:00:05", 5},
                    FramesRow{"decimalPiece_Dropped", "00:00:1.5:00:05", 5},
                    FramesRow{"hexadecimalPiece_Dropped", "00:00:0x1:00:05", 5},
                    FramesRow{"fullWidthPiece_Dropped", "00:00:\uFF11:00:05", 5},
                    FramesRow{"pieceOutsideSixtyFourBits_Dropped",
                              "00:00:9223372036854775808:00:05", 5},
                    FramesRow{"largestPiece", "00:00:00:9223372036854775807",
                              std::numeric_limits<std::int64_t>::max()},
                    FramesRow{"smallestPiece", "00:00:00:-9223372036854775808",
                              std::numeric_limits<std::int64_t>::min()},
                    FramesRow{"outOfRangeFields", "00:99:99:99", 99 * 60 * 25 + 99 * 25 + 99},
                    FramesRow{"baseThirty", "00:00:01:00", 30, 29.97},
                    FramesRow{"baseTwentyFour", "00:00:01:00", 24, 23.976},
                    FramesRow{"baseOne", "00:00:01:00", 1, 0},
                    FramesRow{"fileScheme", "file://00:00:01:00", 25},
                    FramesRow{"trimmed", " 00:00:01:00\n", 25}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Numbers, XMLFrames,
    testing::Values(FramesRow{"plain", "250", 250}, FramesRow{"seconds", "10s", 250},
                    FramesRow{"negative", "-1", std::nullopt},
                    FramesRow{"negativeSeconds", "-5s", -125}, FramesRow{"negativeZero", "-0", 0},
                    FramesRow{"halfNegative", "-0.02s", -1},
                    FramesRow{"halfNegativeFraction", "-1/2s", -13},
                    FramesRow{"negativeInfinity", "-inf", std::nullopt},
                    FramesRow{"overZero", "1/0s", std::nullopt},
                    FramesRow{"overWord", "1/xs", std::nullopt}, FramesRow{"wordOver", "x/2s", 0},
                    FramesRow{"empty", "", std::nullopt}, FramesRow{"blanks", "  ", std::nullopt},
                    FramesRow{"word", "abc", std::nullopt},
                    FramesRow{"largest", "9223372036854774784", 9223372036854774784}),
    RowName());

struct TimecodeRow {
    std::string_view name;
    std::int64_t frames;
    std::string_view timecode;
    double fps = 25;
};

class XMLTimecode : public testing::TestWithParam<TimecodeRow> {};

TEST_P(XMLTimecode, IsWritten) {
    EXPECT_EQ(XMLTime(GetParam().frames, GetParam().fps).text(), GetParam().timecode);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, XMLTimecode,
    testing::Values(TimecodeRow{"zero", 0, "00:00:00:00"},
                    TimecodeRow{"lastFrame", 24, "00:00:00:24"},
                    TimecodeRow{"noWrap", 2160000, "24:00:00:00"},
                    TimecodeRow{"negativeFrames", -1, "00:00:00:-1"},
                    TimecodeRow{"negativeSeconds", -125, "00:00:-5:00"},
                    TimecodeRow{"negativeEverything", -91526, "-1:-1:-1:-1"},
                    TimecodeRow{"negativeTwoDigits", -250, "00:00:-10:00"},
                    TimecodeRow{"largest", std::numeric_limits<std::int64_t>::max(),
                                "2562047788015215:30:07:00", 1},
                    TimecodeRow{"smallest", std::numeric_limits<std::int64_t>::min(),
                                "-2562047788015215:-30:-8:00", 1},
                    TimecodeRow{"baseOneForNegativeRate", 5, "00:00:05:00", -3}),
    RowName());

struct FatalRow {
    std::string_view name;
    std::string_view value;
    double fps = 25;
};

class FatalXMLTimingDeathTest : public testing::TestWithParam<FatalRow> {};

TEST_P(FatalXMLTimingDeathTest, StopsTheProgram) {
    EXPECT_DEATH(xmlTime(GetParam().value, GetParam().fps),
                 "clipvane: a number cannot be rounded to a 64-bit integer");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FatalXMLTimingDeathTest,
    testing::Values(
        FatalRow{"infinity", "inf"}, FatalRow{"infinityInWords", "+Infinity"},
        FatalRow{"notANumber", "nan"}, FatalRow{"signedNotANumber", "-NaN"},
        FatalRow{"infiniteSeconds", "infs"}, FatalRow{"negativeInfiniteSeconds", "-infs"},
        FatalRow{"notANumberOfSeconds", "nans"}, FatalRow{"infiniteNumerator", "inf/2s"},
        FatalRow{"numeratorNotANumber", "nan/2s"}, FatalRow{"infinityOverInfinity", "inf/infs"},
        FatalRow{"overflow", "1e400"}, FatalRow{"hugeSeconds", "1e30s"},
        FatalRow{"hugeFrames", "1e30"}, FatalRow{"justOutside", "9223372036854775808"},
        FatalRow{"negativeSecondsOutside", "-1e18s"}, FatalRow{"overTiny", "1/1e-320s"},
        FatalRow{"hugeRateBase", "5", 99999999999999999999.0},
        FatalRow{"infiniteRate", "5", std::numeric_limits<double>::infinity()},
        FatalRow{"zeroTimesInfinity", "0s", std::numeric_limits<double>::infinity()},
        FatalRow{"rateNotANumber", "5", std::numeric_limits<double>::quiet_NaN()}),
    RowName());

TEST(XMLFramesDeathTest, ASumBeyondSixtyFourBits_StopsTheProgram) {
    constexpr double fps = 25;
    EXPECT_DEATH(xmlFrames("9223372036854775807:0:0:0", fps), "exceeds 64 bits \\(multiplication");
    EXPECT_DEATH(xmlFrames("153722867280912930:9223372036854775807:0:0", fps), "addition");
    EXPECT_DEATH(xmlFrames("0:0:9223372036854775807:0", fps), "multiplication");
    EXPECT_DEATH(xmlFrames("0:0:1:9223372036854775807", fps), "addition");
    EXPECT_DEATH(xmlFrames("0:0:-1:-9223372036854775808", fps), "addition");
    // The time is told before the rate.
    EXPECT_DEATH(xmlFrames("9223372036854775807:0:0:0", 1e30), "exceeds");
}

}  // namespace
}  // namespace clipvane::test
