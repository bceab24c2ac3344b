// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/Fatal.h>

namespace clipvane {

/// Reads the whole of `text` as one number in C notation, whatever the locale: an optional sign,
/// then decimal or hexadecimal ("0x") digits with an optional exponent, or "inf", "infinity" or
/// "nan" in any case. A literal too large for a double is infinity, one too small is zero.
/// Nothing when any other character occurs, a blank included.
std::optional<double> parseNumber(std::string_view text);

/// Reads the whole of `text` as a decimal integer: an optional sign and ASCII digits, within 64
/// bits. Nothing otherwise.
std::optional<std::int64_t> parseInteger(std::string_view text);

// Arithmetic on frame counts. Leaving the signed 64-bit range is fatal.
inline std::int64_t addChecked(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum)) fatal("a frame count exceeds 64 bits (addition)");
    return sum;
}
inline std::int64_t subtractChecked(std::int64_t a, std::int64_t b) {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(a, b, &difference)) {
        fatal("a frame count exceeds 64 bits (subtraction)");
    }
    return difference;
}
inline std::int64_t multiplyChecked(std::int64_t a, std::int64_t b) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product)) {
        fatal("a frame count exceeds 64 bits (multiplication)");
    }
    return product;
}

/// The nearest integer, halves away from zero. A value that is not finite or lies outside the
/// signed 64-bit range once rounded is fatal.
inline std::int64_t roundToInteger(double value) {
    // 2^63 is the first double above the range; its negative is the range's lower end. Doubles of
    // that size are whole, so that rounding leads none across.
    constexpr double limit = 9223372036854775808.0;
    if (!(value >= -limit && value < limit)) {
        fatal("a number cannot be rounded to a 64-bit integer");
    }
    const auto whole = static_cast<std::int64_t>(value);
    const double fraction = value - static_cast<double>(whole);  // exact
    return whole + (fraction >= 0.5 ? 1 : 0) - (fraction <= -0.5 ? 1 : 0);
}

/// The shortest decimal without an exponent that reads back to `value`: "25", "23.976023976023978";
/// "inf" or "nan" for what is not finite.
std::string shortestDecimal(double value);

/// Appends `value` in decimal.
void appendInteger(std::string& text, std::int64_t value);

/// Appends `value` in decimal, filled with zeros to `width` characters (at most 20), the minus sign
/// of a negative value among them.
void appendPadded(std::string& text, std::int64_t value, int width);

}  // namespace clipvane
