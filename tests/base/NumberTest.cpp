#include "base/Number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "support/RowName.h"

namespace clipvane::test {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

struct NumberRow {
    const char* name;
    std::string_view text;
    std::optional<double> expected;
};

class ParseNumber : public testing::TestWithParam<NumberRow> {};

TEST_P(ParseNumber, Row) {
    EXPECT_EQ(parseNumber(GetParam().text), GetParam().expected);
}

const std::vector<NumberRow> numbers{
    {"Integer", "25", 25.0},
    {"Plus", "+7", 7.0},
    {"Minus", "-5", -5.0},
    {"Fraction", "23.976", 23.976},
    {"NothingBeforePoint", ".5", 0.5},
    {"NothingAfterPoint", "5.", 5.0},
    {"Exponent", "1e3", 1000.0},
    {"ExponentUpperCase", "1E3", 1000.0},
    {"ExponentSigned", "1e+3", 1000.0},
    {"ExponentNegative", "25e-1", 2.5},
    {"LeadingZeros", "007", 7.0},
    {"Hexadecimal", "0x10", 16.0},
    {"HexadecimalFraction", "0x1.8", 1.5},
    {"HexadecimalUpperCase", "0X1P4", 16.0},
    {"HexadecimalMixedCase", "0X1p4", 16.0},
    {"HexadecimalNothingBeforePoint", "0x.8", 0.5},
    {"HexadecimalNothingAfterPoint", "0x8.", 8.0},
    {"HexadecimalLetters", "0xfF", 255.0},
    {"HexadecimalNegative", "-0x10", -16.0},
    {"HexadecimalExponentIsDecimal", "0x1p-10", 0x1p-10},
    {"HexadecimalTakesEAsDigit", "0x1e3", 483.0},
    {"Infinity", "inf", infinity},
    {"InfinityLong", "infinity", infinity},
    {"InfinityMixedCase", "InF", infinity},
    {"InfinityUpperCase", "INFINITY", infinity},
    {"InfinityNegative", "-inf", -infinity},
    {"InfinityPlus", "+Infinity", infinity},
    {"Overflow", "1e400", infinity},
    {"OverflowNegative", "-1e400", -infinity},
    {"OverflowOfExponent", "1e99999999999999999999", infinity},
    {"OverflowBehindZeros", "0.0001e999", infinity},
    {"OverflowHexadecimal", "0x1p99999", infinity},
    {"OverflowOfHexadecimalExponent", "0x1p99999999999999999999", infinity},
    {"Underflow", "1e-400", 0.0},
    {"UnderflowOfExponent", "1e-99999999999999999999", 0.0},
    {"UnderflowBehindDigits", "1000000e-999", 0.0},
    {"UnderflowHexadecimal", "0x1p-99999", 0.0},
    {"UnderflowOfHexadecimalExponent", "0x1p-99999999999999999999", 0.0},
    {"ZeroWithHugeExponent", "0e99999999999999999999", 0.0},
    {"HexadecimalZeroWithHugeExponent", "0x0p99999999999999999999", 0.0},
    {"LargestDouble", "1.7976931348623157e308", 1.7976931348623157e308},
    {"SmallestSubnormal", "4.9406564584124654e-324", 4.9406564584124654e-324},
    {"Empty", "", std::nullopt},
    {"SignOnly", "-", std::nullopt},
    {"TwoSigns", "+-5", std::nullopt},
    {"TwoMinusSigns", "--5", std::nullopt},
    {"PointOnly", ".", std::nullopt},
    {"TwoPoints", "1.2.3", std::nullopt},
    {"ExponentWithoutDigits", "1e", std::nullopt},
    {"ExponentSignWithoutDigits", "1e+", std::nullopt},
    {"ExponentOnly", "e5", std::nullopt},
    {"HexadecimalWithoutDigits", "0x", std::nullopt},
    {"HexadecimalPointOnly", "0x.", std::nullopt},
    {"HexadecimalExponentWithoutDigits", "0x1p", std::nullopt},
    {"HexadecimalSignInside", "0x-1", std::nullopt},
    {"HexadecimalTwice", "0x0x1", std::nullopt},
    {"HexadecimalInfinity", "0xinf", std::nullopt},
    {"LettersWithoutPrefix", "ff", std::nullopt},
    {"DigitSeparator", "1_000", std::nullopt},
    {"DecimalComma", "23,976", std::nullopt},
    {"GroupingComma", "1,000", std::nullopt},
    {"FloatSuffix", "1f", std::nullopt},
    {"LeadingBlank", " 1", std::nullopt},
    {"TrailingBlank", "1 ", std::nullopt},
    {"TrailingLineFeed", "1\n", std::nullopt},
    {"TrailingNUL", std::string_view("1\0", 2), std::nullopt},
    {"FullWidthDigits", "２５", std::nullopt},
    {"NaNWithPayload", "nan(1)", std::nullopt},
    {"InfinityCutShort", "infinit", std::nullopt},
    {"InfinityAndMore", "infinityx", std::nullopt},
    {"BinaryPrefix", "0b1", std::nullopt},
};
INSTANTIATE_TEST_SUITE_P(Literals, ParseNumber, testing::ValuesIn(numbers), RowName());

TEST(ParseNumber, NaNInAnyCaseAndWithASign_IsNotANumber) {
    for (const std::string_view text : {"nan", "NaN", "NAN", "-nan", "+nan"}) {
        const auto value = parseNumber(text);
        EXPECT_TRUE(value && std::isnan(*value)) << text;
    }
}

TEST(ParseNumber, NegativeZero_KeepsItsSign) {
    for (const std::string_view text : {"-0", "-0.0", "-0x0", "-1e-400"}) {
        const auto value = parseNumber(text);
        EXPECT_TRUE(value && *value == 0 && std::signbit(*value)) << text;
    }
}

TEST(ParseNumber, AMillionDigits_AreRead) {
    const std::string digits(1'000'000, '9');
    EXPECT_EQ(parseNumber(digits), infinity);
    EXPECT_EQ(parseNumber("0." + digits), 1.0);
    EXPECT_EQ(parseNumber("0." + std::string(1'000'000, '0') + "1"), 0.0);
    EXPECT_EQ(parseNumber("0." + std::string(1'000'000, '0') + "1e1000001"), 1.0);
    EXPECT_EQ(parseNumber("1" + std::string(1'000'000, '0') + "e-1000000"), 1.0);
}

struct IntegerRow {
    const char* name;
    std::string_view text;
    std::optional<std::int64_t> expected;
};

class ParseInteger : public testing::TestWithParam<IntegerRow> {};

TEST_P(ParseInteger, Row) {
    EXPECT_EQ(parseInteger(GetParam().text), GetParam().expected);
}

const std::vector<IntegerRow> integers{
    {"Zero", "0", 0},
    {"LeadingZeros", "0007", 7},
    {"Plus", "+7", 7},
    {"Minus", "-7", -7},
    {"MinusZero", "-0", 0},
    {"Largest", "9223372036854775807", largest},
    {"LargestWithPlus", "+9223372036854775807", largest},
    {"Smallest", "-9223372036854775808", smallest},
    {"LargestBehindZeros", "000000000000000000009223372036854775807", largest},
    {"AboveLargest", "9223372036854775808", std::nullopt},
    {"SmallestAndADigit", "-92233720368547758080", std::nullopt},
    {"BelowSmallest", "-9223372036854775809", std::nullopt},
    {"FarAbove", "99999999999999999999999", std::nullopt},
    {"Empty", "", std::nullopt},
    {"PlusOnly", "+", std::nullopt},
    {"MinusOnly", "-", std::nullopt},
    {"PlusMinus", "+-7", std::nullopt},
    {"MinusPlus", "-+7", std::nullopt},
    {"TwoPluses", "++7", std::nullopt},
    {"LeadingBlank", " 7", std::nullopt},
    {"TrailingBlank", "7 ", std::nullopt},
    {"TrailingLetter", "7x", std::nullopt},
    {"TrailingNUL", std::string_view("7\0", 2), std::nullopt},
    {"Fraction", "7.0", std::nullopt},
    {"Exponent", "1e3", std::nullopt},
    {"Hexadecimal", "0x10", std::nullopt},
    {"DigitSeparator", "1_000", std::nullopt},
    {"FullWidthDigit", "７", std::nullopt},
    {"ArabicDigit", "٧", std::nullopt},
};
INSTANTIATE_TEST_SUITE_P(Literals, ParseInteger, testing::ValuesIn(integers), RowName());

struct PaddedRow {
    const char* name;
    std::int64_t value;
    int width;
    std::string_view expected;
};

class AppendPadded : public testing::TestWithParam<PaddedRow> {};

TEST_P(AppendPadded, Row) {
    std::string text = "at ";
    appendPadded(text, GetParam().value, GetParam().width);
    EXPECT_EQ(text, "at " + std::string(GetParam().expected));
}

const std::vector<PaddedRow> padded{
    {"OneDigit", 7, 2, "07"},
    {"TwoDigits", 42, 2, "42"},
    {"WiderThanWidth", 100, 2, "100"},
    {"Zero", 0, 2, "00"},
    {"SignFillsTheWidth", -5, 2, "-5"},
    {"ZerosBehindTheSign", -5, 3, "-05"},
    {"WidthOne", 7, 1, "7"},
    {"BeyondThirtyTwoBits", 4294967296, 2, "4294967296"},
    {"Largest", largest, 2, "9223372036854775807"},
    {"Smallest", smallest, 2, "-9223372036854775808"},
    {"WidestWidth", 1, 20, "00000000000000000001"},
};
INSTANTIATE_TEST_SUITE_P(Values, AppendPadded, testing::ValuesIn(padded), RowName());

TEST(AppendInteger, AppendsDecimalDigits) {
    std::string text = "n=";
    appendInteger(text, -120);
    appendInteger(text, 0);
    appendInteger(text, smallest);
    EXPECT_EQ(text, "n=-1200-9223372036854775808");
}

}  // namespace
}  // namespace clipvane::test
