// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EventLine.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/RowName.h"
#include "support/TimecodeText.h"

namespace clipvane::test {
namespace {

using namespace std::string_view_literals;

struct Row {
    std::string_view name;
    std::string_view line;
    std::vector<std::string> columns;  ///< none: not an event line
};

class EventLineColumns : public testing::TestWithParam<Row> {};

TEST_P(EventLineColumns, AreRead) {
    std::vector<std::string> columns;
    if (const auto line = matchEventLine(GetParam().line)) {
        for (const auto column : {line->number, line->reel, line->track}) {
            columns.emplace_back(column);
        }
        for (const auto& timecode : line->timecodes) columns.push_back(textOf(timecode));
    }
    EXPECT_THAT(columns, testing::ElementsAreArray(GetParam().columns));
}

const std::vector<std::string> usual{"001",         "AX",          "V",          "00:00:00:00",
                                     "00:00:05:00", "01:00:00:00", "01:00:05:00"};
const std::vector<std::string> none;

/// The usual columns with another one at `index`.
std::vector<std::string> with(std::size_t index, std::string column) {
    auto columns = usual;
    columns[index] = std::move(column);
    return columns;
}

INSTANTIATE_TEST_SUITE_P(
    Columns, EventLineColumns,
    testing::Values(
        Row{"usual", "001  AX  V  C  00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", usual},
        Row{"singleBlanks", "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", usual},
        Row{"dissolveWithDuration",
            "002  AX  V  D  030  00:00:05:00 00:00:06:00 01:00:05:00 01:00:06:00",
            {"002", "AX", "V", "00:00:05:00", "00:00:06:00", "01:00:05:00", "01:00:06:00"}},
        Row{"wipe", "001 AX V W001 025 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", usual},
        Row{"leadingBlanks", " \t 001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            usual},
        Row{"trailingText", "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00 \t REEL",
            usual},
        Row{"trailingDigit", "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:007", usual},
        Row{"trailingLetter", "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00x", usual},
        Row{"trailingFifthTimecode",
            "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00 02:00:00:00", usual},
        Row{"unicodeBlanks",
            "\u3000001\u00A0AX\u2003V\u1680C\u202F00:00:00:00\u205F00:00:05:00\u2028"
            "01:00:00:00\u2029"
            "01:00:05:00",
            usual},
        Row{"nextLineAsBlank", "001\u0085AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            usual},
        Row{"oneDigitNumber", "1 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            with(0, "1")},
        Row{"longNumber",
            "00012345678901234567890 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            with(0, "00012345678901234567890")},
        Row{"reelOfThirtyCharacters",
            "001 A001C003_230412_R2XL_and_more1 V C 00:00:00:00 00:00:05:00 01:00:00:00 "
            "01:00:05:00",
            with(1, "A001C003_230412_R2XL_and_more1")},
        Row{"reelWithColon", "001 a:b V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            with(1, "a:b")},
        Row{"reelBeyondASCII",
            "001 Sc\u00E8ne\U0001F3AC\uFFFD V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            with(1, "Sc\u00E8ne\U0001F3AC\uFFFD")},
        Row{"nulInReel", "001 A\0X V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00"sv,
            with(1, std::string("A\0X", 3))},
        Row{"zeroWidthSpaceIsColumn",
            "001 \u200B V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", with(1, "\u200B")},
        Row{"informationSeparatorIsColumn",
            "001 \x1C V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", with(1, "\x1C")},
        Row{"tracks", "001 AX AA/V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            with(2, "AA/V")},
        Row{"editTypeIsNumber", "001 AX V 7 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            usual},
        Row{"editTypeAndDurationAreNumbers",
            "001 AX V 7 8 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", usual},
        Row{"fiveTimecodes_FirstIsEditType",
            "001 AX V 09:09:09:09 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", usual},
        Row{"clipNameCommentInColumns",
            "001 FROM CLIP NAME 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            {"001", "FROM", "CLIP", "00:00:00:00", "00:00:05:00", "01:00:00:00", "01:00:05:00"}},
        Row{"outOfRangeFields", "001 AX V C 99:99:99:99 00:00:05:00 01:00:00:00 01:00:05:00",
            with(3, "99:99:99:99")}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    UnicodeDigits, EventLineColumns,
    testing::Values(
        Row{"arabicNumber", "\u0661\u0662 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            with(0, "\u0661\u0662")},
        Row{"fullWidthTimecode",
            "001 AX V C \uFF10\uFF10:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            with(3, "\uFF10\uFF10:00:00:00")},
        Row{"digitsBeyondTheBasicPlane",
            "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:\U0001D7D8\U0001D7D9",
            with(6, "01:00:05:\U0001D7D8\U0001D7D9")},
        Row{"mixedDuration", "001 AX V D 0\u0663 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            usual},
        Row{"superscriptIsNoDigit", "\u00B2 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"romanNumeralIsNoDigit",
            "001 AX V C 00:00:00:0\u2167 00:00:05:00 01:00:00:00 01:00:05:00", none}),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    NotEvents, EventLineColumns,
    testing::Values(
        Row{"empty", "", none}, Row{"blanks", "  \t ", none}, Row{"title", "TITLE: CUT 1", none},
        Row{"fcm", "FCM: NON-DROP FRAME", none},
        Row{"motionEffect", "M2   AX       000.0                01:00:00:00", none},
        Row{"numberAlone", "001", none}, Row{"numberAndReel", "001 AX ", none},
        Row{"threeTimecodes", "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00", none},
        Row{"noEditType", "001 AX V 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"dropFrameSeparator", "001 AX V C 00:00:00;00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"dropFrameSeparatorInLast",
            "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05;00", none},
        Row{"reelWithBlank", "001 A X V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"twoDurations", "001 AX V D 10 20 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"durationWithLetter", "001 AX V D 10f 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"durationGluedToTimecode",
            "001 AX V D 03000:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"letterInNumber", "001A AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"starBeforeNumber", "*001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"textBeforeNumber", "x 001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"byteOrderMark",
            "\uFEFF"
            "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"nulBeforeNumber", "\0001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00"sv,
            none},
        Row{"zeroWidthSpaceBeforeNumber",
            "\u200B"
            "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"gluedTimecodes", "001 AX V C 00:00:00:0000:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"threeDigitFrames", "001 AX V C 00:00:00:000 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"threeDigitHours", "001 AX V C 000:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"oneDigitField", "001 AX V C 0:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"signInTimecode", "001 AX V C -0:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"fullWidthColon", "001 AX V C 00\uFF1A00:00:00 00:00:05:00 01:00:00:00 01:00:05:00",
            none},
        Row{"combiningMarkAfterColon",
            "001 AX V C 00:\u030100:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"combiningMarkAfterDigit",
            "001 AX V C 00\u0301:00:00:00 00:00:05:00 01:00:00:00 01:00:05:00", none},
        Row{"endsInTimecode", "001 AX V C 00:00:00:00 00:00:05:00 01:00:00:00 01:00:05:0", none}),
    RowName());

}  // namespace
}  // namespace clipvane::test
