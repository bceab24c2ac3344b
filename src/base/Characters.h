// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace clipvane {

// Classes of code points. The ASCII members decide nearly every call, so they stand inline.

/// Unicode's White_Space property, which a regular expression calls \s.
bool isWhiteSpaceBeyondASCII(char32_t c);
constexpr bool isASCIIWhiteSpace(char32_t c) {
    return c == U' ' || (c >= U'\t' && c <= U'\r');
}
inline bool isWhiteSpace(char32_t c) {
    return c < 0x80 ? isASCIIWhiteSpace(c) : isWhiteSpaceBeyondASCII(c);
}

/// Unicode's general category Nd, which a regular expression calls \d.
bool isDecimalDigitBeyondASCII(char32_t c);
constexpr bool isASCIIDigit(char32_t c) {
    return c >= U'0' && c <= U'9';
}
inline bool isDecimalDigit(char32_t c) {
    return c < 0x80 ? isASCIIDigit(c) : isDecimalDigitBeyondASCII(c);
}

/// ASCII without blanks and control characters.
constexpr bool isGraphicASCII(char32_t c) {
    return c > U' ' && c < 0x7F;
}

/// The characters that end a line: U+000A to U+000D, U+0085, U+2028 and U+2029.
constexpr bool isNewline(char32_t c) {
    return (c >= 0x0A && c <= 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029;
}

/// White space that does not end a line: TAB and the general category Zs (space separators).
constexpr bool isBlank(char32_t c) {
    return c == U'\t' || c == U' ' || c == 0xA0 || c == 0x1680 || (c >= 0x2000 && c <= 0x200A) ||
           c == 0x202F || c == 0x205F || c == 0x3000;
}

constexpr char asciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Whether `text` holds one of two characters. Looks at eight at a time: every field of a million
/// events is asked, and few hold one.
inline bool holdsEither(std::string_view text, char a, char b) {
    constexpr std::size_t step = 8;
    if (text.size() < step) {
        return std::ranges::any_of(text, [&](char c) { return c == a || c == b; });
    }
    constexpr std::uint64_t ones = 0x0101'0101'0101'0101;
    const std::uint64_t eachA = ones * static_cast<unsigned char>(a);
    const std::uint64_t eachB = ones * static_cast<unsigned char>(b);
    const std::size_t last = text.size() - step;
    for (std::size_t at = 0;; at = std::min(at + step, last)) {
        std::uint64_t characters = 0;
        std::memcpy(&characters, text.data() + at, step);
        const std::uint64_t fromA = characters ^ eachA;
        const std::uint64_t fromB = characters ^ eachB;
        // One less than a byte that is zero has the highest bit, which the byte has not.
        if ((((fromA - ones) & ~fromA) | ((fromB - ones) & ~fromB)) & ones << 7) return true;
        if (at == last) return false;
    }
}

/// `text` without the blanks and newlines, which together are the white space, at both ends.
std::string_view trimBlanksAndNewlines(std::string_view text);

}  // namespace clipvane
