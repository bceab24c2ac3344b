// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/Number.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <limits>

#include "base/Characters.h"

namespace clipvane {
namespace {

/// Whether an unsigned literal that `from_chars` called out of range is too large rather than too
/// small: whether its first non-zero digit, moved by the exponent, stands left of the point.
bool isTooLarge(std::string_view literal, bool hexadecimal) {
    const char exponentMark = hexadecimal ? 'p' : 'e';
    const auto isMark = [&](char c) { return asciiLower(c) == exponentMark; };
    const auto markAt = std::find_if(literal.begin(), literal.end(), isMark);
    const std::string_view mantissa(literal.begin(), markAt);

    const std::size_t pointAt = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t leadAt = mantissa.find_first_not_of("0.");
    if (leadAt == std::string_view::npos) return false;
    const double places = static_cast<double>(pointAt) - static_cast<double>(leadAt);

    double exponent = 0;
    if (markAt != literal.end()) {
        std::string_view digits(markAt + 1, literal.end());
        const bool negative = digits.starts_with('-');
        if (negative || digits.starts_with('+')) digits.remove_prefix(1);
        for (const char c : digits) exponent = exponent * 10 + (c - '0');
        if (negative) exponent = -exponent;
    }
    return places * (hexadecimal ? 4 : 1) + exponent > 0;
}

/// The value of up to fifteen digits, which a double holds exactly; -1 for any other text.
std::int64_t parseShortDigits(std::string_view text) {
    constexpr std::size_t exactDigits = std::numeric_limits<double>::digits10;
    if (text.empty() || text.size() > exactDigits) return -1;
    std::int64_t value = 0;
    for (const char c : text) {
        if (!isASCIIDigit(static_cast<unsigned char>(c))) return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

std::optional<double> parseUnsigned(std::string_view text) {
    const bool hexadecimal = text.size() > 2 && text[0] == '0' && asciiLower(text[1]) == 'x';
    if (hexadecimal) text.remove_prefix(2);
    // from_chars would also take a sign of its own, "nan(...)", and names behind "0x".
    if (text.starts_with('-') || text.ends_with(')')) return std::nullopt;
    if (hexadecimal && text[0] != '.' && !std::isxdigit(static_cast<unsigned char>(text[0]))) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), value,
                        hexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (end != text.data() + text.size()) return std::nullopt;
    if (error == std::errc::result_out_of_range) {
        return isTooLarge(text, hexadecimal) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    if (error != std::errc()) return std::nullopt;
    return value;
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    if (const std::int64_t digits = parseShortDigits(text); digits >= 0) {
        return negative ? -static_cast<double>(digits) : static_cast<double>(digits);
    }
    const auto value = parseUnsigned(text);
    if (value && negative) return -*value;
    return value;
}

std::optional<std::int64_t> parseInteger(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::string shortestDecimal(double value) {
    std::array<char, 400> digits;  // a double has at most 309 before the point and 341 behind it
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                            std::chars_format::fixed);
    return {digits.data(), end};
}

void appendInteger(std::string& text, std::int64_t value) {
    appendPadded(text, value, 1);
}

void appendPadded(std::string& text, std::int64_t value, int width) {
    if (width == 2 && value >= 0 && value < 100) {  // nearly every field of a timecode
        text += static_cast<char>('0' + value / 10);
        text += static_cast<char>('0' + value % 10);
        return;
    }
    std::array<char, 20> digits;  // 19 digits and a sign
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    const std::string_view written(digits.data(), static_cast<std::size_t>(end - digits.data()));
    const auto wanted = static_cast<std::size_t>(width);
    const bool negative = value < 0;
    if (negative) text += '-';
    if (written.size() < wanted) text.append(wanted - written.size(), '0');
    text += written.substr(negative ? 1 : 0);
}

}  // namespace clipvane
