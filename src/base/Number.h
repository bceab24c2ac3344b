#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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
std::int64_t addChecked(std::int64_t a, std::int64_t b);
std::int64_t subtractChecked(std::int64_t a, std::int64_t b);
std::int64_t multiplyChecked(std::int64_t a, std::int64_t b);

/// The nearest integer, halves away from zero. A value that is not finite or lies outside the
/// signed 64-bit range once rounded is fatal.
std::int64_t roundToInteger(double value);

/// Appends `value` in decimal.
void appendInteger(std::string& text, std::int64_t value);

/// Appends `value` in decimal, filled with zeros to `width` characters (at most 20), the minus sign
/// of a negative value among them.
void appendPadded(std::string& text, std::int64_t value, int width);

}  // namespace clipvane
