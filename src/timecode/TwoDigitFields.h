#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace clipvane {

// The form in which nearly every timecode is written, two digits a field: read and written without
// a detour. Other forms are their callers' business.

/// Hours, minutes, seconds and frames.
using TimecodeFields = std::array<std::int64_t, 4>;

/// The length of HH:MM:SS:FF.
inline constexpr std::size_t twoDigitLength = 11;

/// The fields of `text` if it has eleven characters, two ASCII digits a field and ":" or ";"
/// between them.
std::optional<TimecodeFields> readTwoDigitFields(std::string_view text);

/// Whether two digits a field are enough for `count` frames, counted on `base` frames a second.
constexpr bool fitsTwoDigitFields(std::int64_t count, std::int64_t base) {
    constexpr std::int64_t hundred = 100;
    return count >= 0 && base <= hundred && count < hundred * 3600 * base;
}

/// Writes the timecode of `count` frames, which must fit, over `text`, with `separator` before the
/// frames.
void writeTwoDigitFields(std::span<char, twoDigitLength> text, std::int64_t count,
                         std::int64_t base, char separator);

}  // namespace clipvane
