#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace clipvane {

// The form in which nearly every timecode is written, two digits a field: read and written without
// a detour, and inline, since a rate change does so millions of times. Other forms are their
// callers' business.

/// Hours, minutes, seconds and frames.
using TimecodeFields = std::array<std::int64_t, 4>;

/// The length of HH:MM:SS:FF.
inline constexpr std::size_t twoDigitLength = 11;

/// The fields of `text` if it has eleven characters, two ASCII digits a field and ":" or ";"
/// between them.
inline std::optional<TimecodeFields> readTwoDigitFields(std::string_view text) {
    if (text.size() != twoDigitLength) return std::nullopt;
    const char* const from = text.data();
    TimecodeFields fields{};
    bool matches = true;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::size_t at = i * 3;
        const auto tens = static_cast<unsigned>(from[at] - '0');
        const auto ones = static_cast<unsigned>(from[at + 1] - '0');
        matches &= tens <= 9 && ones <= 9;
        matches &= i == 0 || from[at - 1] == ':' || from[at - 1] == ';';
        fields[i] = tens * 10 + ones;
    }
    if (!matches) return std::nullopt;
    return fields;
}

/// Whether two digits a field are enough for `count` frames, counted on `base` frames a second.
constexpr bool fitsTwoDigitFields(std::int64_t count, std::int64_t base) {
    constexpr std::int64_t hundred = 100;
    return count >= 0 && base <= hundred && count < hundred * 3600 * base;
}

/// Writes `value`, below 100, over two characters.
constexpr void writeTwoDigits(char* text, std::uint32_t value) {
    text[0] = static_cast<char>('0' + value / 10);
    text[1] = static_cast<char>('0' + value % 10);
}

/// Writes the timecode of `count` frames, which must fit, over `text`, with `separator` before the
/// frames.
inline void writeTwoDigitFields(std::span<char, twoDigitLength> text, std::int64_t count,
                                std::int64_t base, char separator) {
    // For what fits, 32 bits are enough, and dividing them is several times as fast.
    const auto total = static_cast<std::uint32_t>(count);
    const auto divisor = static_cast<std::uint32_t>(base);
    const std::uint32_t seconds = total / divisor;
    const std::uint32_t minutes = seconds / 60;
    char* const to = text.data();
    writeTwoDigits(to, minutes / 60);
    to[2] = ':';
    writeTwoDigits(to + 3, minutes % 60);
    to[5] = ':';
    writeTwoDigits(to + 6, seconds % 60);
    to[8] = separator;
    writeTwoDigits(to + 9, total % divisor);
}

}  // namespace clipvane
