// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
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

/// Eight characters as a number, the first in its lowest byte, so that they can be looked at at
/// once.
inline std::uint64_t eightCharacters(const char* from) {
    std::uint64_t characters = 0;
    std::memcpy(&characters, from, sizeof characters);
    if constexpr (std::endian::native == std::endian::big) {
        characters = __builtin_bswap64(characters);
    }
    return characters;
}

/// Eight characters of the form 00:00:00, read as three fields.
class ThreeFields {
  public:
    explicit ThreeFields(std::uint64_t characters) : values(characters ^ 0x3030'3A30'303A'3030) {}

    // Whatever is more than 9, or 1 for a separator, reaches its byte's highest bit.

    /// Whether they are digits with ":" or ";" between them.
    bool match() const { return staysBelow(0x7676'7E76'767E'7676); }
    /// Whether they are digits with ":" between them.
    bool matchColons() const { return staysBelow(0x7676'7F76'767F'7676); }
    bool holdSemicolon() const { return (values & 0x0000'0100'0001'0000) != 0; }
    std::int64_t field(unsigned index) const {
        const std::uint64_t digits = values >> 24 * index;
        return static_cast<std::int64_t>((digits & 0xFF) * 10 + (digits >> 8 & 0xFF));
    }
    /// The three fields in a byte each, the first in the lowest.
    std::uint32_t packed() const {
        // Of two digits, the first and its neighbour meet in the lower byte; no sum leaves a byte.
        const std::uint64_t fields = values * 10 + (values >> 8);
        return static_cast<std::uint32_t>((fields & 0xFF) | (fields >> 16 & 0xFF00) |
                                          (fields >> 32 & 0xFF'0000));
    }

  private:
    bool staysBelow(std::uint64_t distances) const {
        return ((values | (values + distances)) & 0x8080'8080'8080'8080) == 0;
    }

    std::uint64_t values;  ///< digits are 0 to 9, ":" is 0 and ";" is 1
};

/// A timecode of eleven characters, two ASCII digits a field and ":" or ";" between them.
struct TwoDigitTimecode {
    TimecodeFields fields;
    bool isDropFrame;  ///< holds ";"
};

/// `text`, if it has that form.
inline std::optional<TwoDigitTimecode> readTwoDigitTimecode(std::string_view text) {
    if (text.size() != twoDigitLength) return std::nullopt;
    const ThreeFields first(eightCharacters(text.data()));
    const ThreeFields last(eightCharacters(text.data() + 3));
    if (!first.match() || !last.match()) return std::nullopt;
    return TwoDigitTimecode{{first.field(0), first.field(1), first.field(2), last.field(2)},
                            first.holdSemicolon() || last.holdSemicolon()};
}

/// The fields of such a timecode.
inline std::optional<TimecodeFields> readTwoDigitFields(std::string_view text) {
    if (const auto read = readTwoDigitTimecode(text)) return read->fields;
    return std::nullopt;
}

/// Whether two digits a field are enough for `count` frames, counted on `base` frames a second.
constexpr bool fitsTwoDigitFields(std::int64_t count, std::int64_t base) {
    constexpr std::int64_t hundred = 100;
    return count >= 0 && base <= hundred && count < hundred * 3600 * base;
}

/// Hours, minutes, seconds and frames, each below 100.
using SmallFields = std::array<std::uint32_t, 4>;

/// The digits of the numbers below 100.
inline constexpr auto twoDigits = [] {
    std::array<std::array<char, 2>, 100> digits{};
    for (std::size_t number = 0; number < digits.size(); ++number) {
        digits[number] = {static_cast<char>('0' + number / 10),
                          static_cast<char>('0' + number % 10)};
    }
    return digits;
}();

/// Writes a timecode over `text`, with `separator` before the frames.
inline void writeFields(std::span<char, twoDigitLength> text, const SmallFields& fields,
                        char separator) {
    char* const to = text.data();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        std::memcpy(to + 3 * i, twoDigits[fields[i]].data(), 2);
    }
    to[2] = ':';
    to[5] = ':';
    to[8] = separator;
}

/// The fields of the timecode of `count` frames, which must fit.
inline SmallFields fieldsOf(std::int64_t count, std::int64_t base) {
    // For what fits, 32 bits are enough, and dividing them is several times as fast.
    const auto total = static_cast<std::uint32_t>(count);
    const auto divisor = static_cast<std::uint32_t>(base);
    const std::uint32_t seconds = total / divisor;
    const std::uint32_t minutes = seconds / 60;
    return {minutes / 60, minutes % 60, seconds % 60, total % divisor};
}

/// Writes the timecode of `count` frames, which must fit, over `text`, with `separator` before the
/// frames.
inline void writeTwoDigitFields(std::span<char, twoDigitLength> text, std::int64_t count,
                                std::int64_t base, char separator) {
    writeFields(text, fieldsOf(count, base), separator);
}

}  // namespace clipvane
