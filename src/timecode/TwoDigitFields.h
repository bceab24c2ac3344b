#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace clipvane {

// The form in which nearly every timecode is written, two digits a field: read and written without
// a detour. Other forms are their callers' business.

/// Hours, minutes, seconds and frames.
using TimecodeFields = std::array<std::int64_t, 4>;

/// HH:MM:SS:FF.
using TwoDigitTimecode = std::array<char, 11>;

/// The fields of `text` if it has eleven characters, two ASCII digits a field and ":" or ";"
/// between them.
std::optional<TimecodeFields> readTwoDigitFields(std::string_view text);

/// The timecode of `count` frames, counted on `base` frames a second, with `separator` before the
/// frames, if two digits a field are enough for it.
std::optional<TwoDigitTimecode> writeTwoDigitFields(std::int64_t count, std::int64_t base,
                                                    char separator);

}  // namespace clipvane
