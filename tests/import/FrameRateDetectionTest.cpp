// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include <clipvane/TimelineParser.h>
#include "support/RowName.h"

namespace clipvane::test {
namespace {

using namespace std::string_literals;

constexpr double infinity = std::numeric_limits<double>::infinity();

struct Row {
    std::string_view name;
    std::string text;
    std::optional<double> fps;
};

class FrameRate : public testing::TestWithParam<Row> {};

TEST_P(FrameRate, IsDetected) {
    EXPECT_EQ(TimelineParser::detectFPS(GetParam().text), GetParam().fps);
}

INSTANTIATE_TEST_SUITE_P(
    Named, FrameRate,
    testing::Values(
        Row{"frameRate", "* FRAME RATE: 23.976", 23.976}, Row{"framerate", "framerate=30", 30.0},
        Row{"fps", "* FPS: 25", 25.0}, Row{"mixedCase", "fRaMe RaTe=24", 24.0},
        Row{"fpsWithinWord", "xfps=12", 12.0}, Row{"afterName", "fpsx=12", std::nullopt},
        Row{"blanks", "fps \t= \t 25", 25.0}, Row{"noBlanks", "fps:25", 25.0},
        Row{"acrossLines", "fps\r\n:\n\n25\n", 25.0},
        Row{"unicodeBlanks", "fps\u00A0:\u2029\u300025", 25.0},
        Row{"nextLine", "fps\u0085:\u008525", 25.0},
        Row{"zeroWidthSpace", "fps\u200B: 25", std::nullopt},
        Row{"informationSeparator", "fps\x1F: 25", std::nullopt},
        Row{"nulBetween", "fps\0:25"s, std::nullopt}, Row{"nulBefore", "\0\0fps:25\0"s, 25.0},
        Row{"byteOrderMark",
            "\uFEFF"
            "fps:25",
            25.0},
        Row{"twoBlanksInName", "frame  rate: 25", std::nullopt},
        Row{"noBreakSpaceInName", "frame\u00A0rate: 25", std::nullopt},
        Row{"lineBreakInName", "frame\nrate: 25", std::nullopt}, Row{"longS", "FP\u017F: 25", 25.0},
        Row{"ligature", "\uFB01ps: 25 \uFB00ps: 25", std::nullopt},
        Row{"dotlessI_NoI", "t\u0131mebase='25'", std::nullopt},
        Row{"fullWidthColon", "fps\uFF1A25", std::nullopt},
        Row{"quoteBeforeNumber", "fps=\"25\"", std::nullopt}, Row{"fraction", "fps=29.97", 29.97},
        Row{"pointWithoutFraction", "fps=25.x", 25.0}, Row{"secondPoint", "fps=25.5.5", 25.5},
        Row{"pointFirst", "fps=.5", std::nullopt}, Row{"comma", "fps=23,976", 23.0},
        Row{"exponentIgnored", "fps=1e3", 1.0}, Row{"hexadecimalIsZero", "fps=0x19", std::nullopt},
        Row{"negative", "fps=-25", std::nullopt}, Row{"plus", "fps=+25", std::nullopt},
        Row{"arabicDigits", "fps=\u0662\u0665", std::nullopt},
        Row{"arabicDigitsEndNumber", "fps=2\u0665", 2.0},
        Row{"notRounded", "fps=23.97602397602", 23.97602397602},
        Row{"noRangeCheck", "fps=100000", 100000.0}, Row{"tiny", "fps=0.0001", 0.0001},
        Row{"infinite", "fps=" + std::string(400, '9'), infinity},
        Row{"leadingZeros", "fps=" + std::string(400, '0') + "25", 25.0},
        Row{"underflow", "fps=0." + std::string(400, '0') + "1", std::nullopt},
        Row{"comment", "<!-- fps=25 -->", 25.0}, Row{"empty", "", std::nullopt},
        Row{"onlyName", "fps", std::nullopt}, Row{"onlyNameAndMark", "fps:", std::nullopt},
        Row{"replacedBytes", "fps\uFFFD:25 \xFF fps:30", 30.0}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    FirstMatchCounts, FrameRate,
    testing::Values(
        Row{"first", "fps=25 fps=30", 25.0}, Row{"zero", "fps = 0", std::nullopt},
        Row{"zeroHidesLaterOnes", "fps=0 fps=25", std::nullopt},
        Row{"zeroFraction", "fps=0.000 framerate=25", std::nullopt},
        Row{"noMatchDoesNotHide", "fps=x fps=25", 25.0},
        Row{"zeroGoesOnToElement", "fps=0 <timebase>25</timebase>", 25.0},
        Row{"elementZero", "<timebase>0</timebase><timebase>25</timebase>", std::nullopt},
        Row{"elementZeroGoesOnToAttribute",
            "<timebase>0</timebase><timebase>25</timebase> timebase=\"30\"", 30.0},
        Row{"elementZeroGoesOnToDuration",
            "<timebase>0</timebase><timebase>25</timebase> frameDuration=\"1/50s\"", 50.0},
        Row{"attributeZeroGoesOnToDuration", "timebase='0' timebase='25' frameDuration='1/50s'",
            50.0},
        Row{"durationZero", "frameDuration='0/25s' frameDuration='1/25s'", std::nullopt},
        Row{"durationOverZero", "frameDuration='1/0s' frameDuration='1/25s'", std::nullopt}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Precedence, FrameRate,
    testing::Values(Row{"namedOverDuration", "<x frameDuration='100/2500s'/><!-- fps=30 -->", 30.0},
                    Row{"namedOverElement", "<timebase>25</timebase> fps=30", 30.0},
                    Row{"elementOverAttribute", "timebase='30' <timebase>25</timebase>", 25.0},
                    Row{"attributeOverDuration", "frameDuration='1/30s' timebase='25'", 25.0},
                    Row{"ntscIsIgnored", "<rate><timebase>30</timebase><ntsc>TRUE</ntsc></rate>",
                        30.0}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    XML, FrameRate,
    testing::Values(
        Row{"element", "<timebase>25</timebase>", 25.0},
        Row{"elementInCapitals", "<TIMEBASE>25</TimeBase>", 25.0},
        Row{"elementWithBlanks", "<timebase>\n\t 23.976 \r\n</timebase>", 23.976},
        Row{"elementAtVeryStart", "<timebase>25</timebase>", 25.0},
        Row{"elementWithAttribute", "<timebase a='b'>25</timebase>", std::nullopt},
        Row{"elementWithBlankInTag", "<timebase >25</timebase>", std::nullopt},
        Row{"elementWithText", "<timebase>25 fps</timebase>", std::nullopt},
        Row{"elementEmpty", "<timebase></timebase>", std::nullopt},
        Row{"elementUnfinished", "<timebase>25", std::nullopt},
        Row{"elementLongS", "<timeba\u017Fe>25</timeba\u017FE>", 25.0},
        Row{"withoutLessThan", "timebase>25</timebase>", std::nullopt},
        Row{"attribute", "<rate timebase=\"25\"/>", 25.0},
        Row{"attributeApostrophes", "<rate TimeBase='29.97'/>", 29.97},
        Row{"attributeMixedQuotes", "timebase='25\"", 25.0},
        Row{"attributeLongS", "timeba\u017Fe='25'", 25.0},
        Row{"attributeBlankBeforeEquals", "timebase ='25'", std::nullopt},
        Row{"attributeBlankInQuotes", "timebase=' 25'", std::nullopt},
        Row{"attributeUnquoted", "timebase=25", std::nullopt},
        Row{"attributeCurlyQuotes", "timebase=\u201C25\u201D", std::nullopt},
        Row{"attributeUnfinished", "timebase='25", std::nullopt},
        Row{"duration", "<format frameDuration=\"1001/24000s\"/>", 24000.0 / 1001.0},
        Row{"durationThirty", "frameDuration='1001/30000s'", 30000.0 / 1001.0},
        Row{"durationTwentyFive", "FRAMEDURATION='100/2500S'", 25.0},
        Row{"durationLongS", "frameDuration='1/25\u017F'", 25.0},
        Row{"durationRejected", "frameDuration='0/25s'", std::nullopt},
        Row{"durationWithPoint", "frameDuration='1.5/25s'", std::nullopt},
        Row{"durationWithBlank", "frameDuration='1 /25s'", std::nullopt},
        Row{"durationWithoutUnit", "frameDuration='1/25'", std::nullopt},
        Row{"durationInSeconds", "frameDuration='1s'", std::nullopt},
        Row{"durationInfinite", "frameDuration='1/" + std::string(400, '9') + "s'", infinity},
        Row{"durationByInfinity", "frameDuration='" + std::string(400, '9') + "/1s'", 0.0},
        Row{"oneByteForEachCharacter_UTF16", "f\0p\0s\0=\0002\0005\0"s, std::nullopt}),
    RowName());

TEST(FrameRateDetection, InfinityOverInfinity_IsNotANumber) {
    const std::string digits(400, '9');
    const auto fps = TimelineParser::detectFPS("frameDuration='" + digits + "/" + digits + "s'");
    ASSERT_TRUE(fps.has_value());
    EXPECT_TRUE(std::isnan(*fps));
}

/// Blocks of bytes are looked at together: a name may start anywhere in one and end in the next.
TEST(FrameRateDetection, AtEveryPosition_IsFound) {
    for (std::size_t before = 0; before < 70; ++before) {
        for (std::size_t after = 0; after < 40; ++after) {
            for (const char filler : {'.', 'f', 't', '\0'}) {
                const std::string front(before, filler);
                const std::string back(after, filler);
                EXPECT_EQ(TimelineParser::detectFPS(front + "fps:25" + back), 25.0);
                EXPECT_EQ(TimelineParser::detectFPS(front + "<timebase>25</timebase>" + back),
                          25.0);
                EXPECT_EQ(TimelineParser::detectFPS(front + "frameDuration='1/25s'" + back), 25.0);
                EXPECT_EQ(TimelineParser::detectFPS(front + "frame rate=25" + back), 25.0);
                EXPECT_EQ(TimelineParser::detectFPS(front + "timebase='25'" + back), 25.0);
            }
        }
    }
}

/// The end of the text is read up to, never beyond.
TEST(FrameRateDetection, EveryPrefix_IsReadWithinItsEnd) {
    const std::string whole =
        "................fps = frame rate: <timebase> 25 </timebase timebase='25 "
        "frameDuration='1/2s";
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const std::vector<char> prefix(whole.begin(), whole.begin() + static_cast<long>(size));
        EXPECT_EQ(TimelineParser::detectFPS({prefix.data(), prefix.size()}), std::nullopt) << size;
    }
}

}  // namespace
}  // namespace clipvane::test
