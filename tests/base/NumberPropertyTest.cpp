// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <bit>
#include <cinttypes>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "base/Number.h"
#include "support/LongTest.h"

namespace clipvane::test {
namespace {

/// Draws texts that are numbers, or nearly so.
class Literals {
  public:
    std::string draw() {
        std::string text;
        if (below(3) == 0) text += oneOf("+-");
        switch (below(8)) {
            case 0:
                return text + hexadecimal(below(2) == 0 ? 1 : 30);
            case 1:
                return text + hexadecimal(14);
            case 2:
                return text + printed("%a");
            case 3:
                return text + printed("%.17g");
            case 4:
                return text + printed("%.40e");
            case 5:
                return text + nearBorder();
            case 6:
                return junk();
            default:
                return text + decimal();
        }
    }

  private:
    unsigned below(unsigned end) { return std::uniform_int_distribution(0U, end - 1)(engine); }
    char oneOf(std::string_view choice) {
        return choice[below(static_cast<unsigned>(choice.size()))];
    }

    std::string digits(unsigned most, std::string_view alphabet) {
        std::string text;
        for (unsigned left = below(most + 1); left > 0; --left) text += oneOf(alphabet);
        return text;
    }

    std::string exponent(std::string_view marks, int most) {
        const int value = static_cast<int>(below(static_cast<unsigned>(2 * most))) - most;
        const bool showsPlus = value >= 0 && below(2) == 0;
        return oneOf(marks) + std::string(showsPlus ? "+" : "") + std::to_string(value);
    }

    std::string mantissa(unsigned most, std::string_view alphabet) {
        std::string text = digits(most, alphabet);
        if (below(2) == 0) text += '.' + digits(most, alphabet);
        return text;
    }

    std::string decimal() {
        std::string text = mantissa(below(10) == 0 ? 400 : 20, "0123456789");
        if (below(2) == 0) text += exponent("eE", below(2) == 0 ? 20 : 400);
        return text;
    }

    std::string hexadecimal(unsigned most) {
        std::string text = below(2) == 0 ? "0x" : "0X";
        text += mantissa(most, "0123456789abcdefABCDEF");
        if (below(2) == 0) text += exponent("pP", below(2) == 0 ? 20 : 1200);
        return text;
    }

    /// A finite double with random bits, so that exponents of every size occur.
    std::string printed(const char* format) {
        double value = 0;
        do {
            value = std::abs(std::bit_cast<double>(engine()));
        } while (!std::isfinite(value));
        char text[128];
        std::snprintf(text, sizeof text, format, value);
        return text;
    }

    /// About where doubles end, where subnormal ones begin, and where they end.
    std::string nearBorder() {
        static constexpr const char* borders[]{
            "1.797693134862315",
            "e308",
            "1.79769313486231580793728971405",
            "e308",
            "2.225073858507201",
            "e-308",
            "2.47032822920623272088284396434",
            "e-324",
            "4.940656458412465",
            "e-324",
            "2.4703282292062327208828439643411",
            "e-324",
            "17976931348623158",
            "e292",
            "0.00049406564584124654",
            "e-320",
        };
        const unsigned at = 2 * below(8);
        return borders[at] + digits(20, "0123456789") + borders[at + 1];
    }

    std::string junk() { return digits(8, "0011.eEpPxX+-infatyINFATY9_,"); }

    std::mt19937_64 engine{20240229};
};

/// What strtod says of the whole text.
std::optional<double> judged(const std::string& text) {
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || end != text.c_str() + text.size()) return std::nullopt;
    return value;
}

bool same(std::optional<double> a, std::optional<double> b) {
    if (!a || !b) return !a && !b;
    if (std::isnan(*a) || std::isnan(*b)) return std::isnan(*a) && std::isnan(*b);
    return std::bit_cast<std::uint64_t>(*a) == std::bit_cast<std::uint64_t>(*b);
}

TEST(ParseNumber, GeneratedLiterals_AreReadAsTheCLibraryReadsThem) {
    CLIPVANE_LONG_TEST();
    Literals literals;
    int differences = 0;
    int read = 0;
    for (int i = 0; i < 400'000 && differences < 10; ++i) {
        const std::string text = literals.draw();
        const auto expected = judged(text);
        const auto value = parseNumber(text);
        if (expected) ++read;
        if (same(value, expected)) continue;
        ++differences;
        ADD_FAILURE() << '"' << text << "\" is " << (value ? std::to_string(*value) : "nothing")
                      << ", not " << (expected ? std::to_string(*expected) : "nothing");
    }
    EXPECT_GT(read, 300'000) << "too few of the texts are numbers";
}

TEST(AppendPadded, RandomValues_AreWrittenAsTheCLibraryWritesThem) {
    std::mt19937_64 engine(7);
    for (int i = 0; i < 100'000; ++i) {
        const auto value = static_cast<std::int64_t>(engine()) >> (engine() % 64);
        const int width = 1 + static_cast<int>(engine() % 20);
        char expected[32];
        std::snprintf(expected, sizeof expected, "%0*" PRId64, width, value);
        std::string text;
        appendPadded(text, value, width);
        ASSERT_EQ(text, expected);
    }
}

TEST(ParseInteger, EveryWrittenInteger_IsReadBack) {
    std::mt19937_64 engine(11);
    for (int i = 0; i < 100'000; ++i) {
        const auto value = static_cast<std::int64_t>(engine()) >> (engine() % 64);
        ASSERT_EQ(parseInteger(std::to_string(value)), value);
    }
}

}  // namespace
}  // namespace clipvane::test
