// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "timecode/TwoDigitFields.h"

namespace clipvane {

/// A timecode of the form 01:00:00:00, ASCII digits with ":" between them, in four bytes: hours,
/// minutes, seconds and frames from the lowest, each below 100. No byte ever has its highest bit
/// set.
class PackedTimecode {
  public:
    /// `text`, if it has that form.
    static std::optional<PackedTimecode> pack(std::string_view text) {
        const auto read = readTwoDigitTimecode(text);
        if (!read || read->isDropFrame) return std::nullopt;
        const auto [hours, minutes, seconds, frames] = read->fields;
        return PackedTimecode(
            static_cast<std::uint32_t>(hours | minutes << 8 | seconds << 16 | frames << 24));
    }

    /// Four numbers below 100 in 16 bits each, the hours in the lowest.
    static PackedTimecode ofFields(std::uint64_t fields) {
        const std::uint64_t pairs = fields | fields >> 8;
        return PackedTimecode(
            static_cast<std::uint32_t>((pairs & 0xFFFF) | (pairs >> 16 & 0xFFFF'0000)));
    }

    constexpr explicit PackedTimecode(std::uint32_t bits) : packed(bits) {}
    constexpr std::uint32_t bits() const { return packed; }

    /// The text that was packed.
    void write(std::span<char, twoDigitLength> text) const {
        std::uint64_t fields = packed;
        fields = (fields | fields << 16) & 0x0000'FFFF'0000'FFFF;
        fields = (fields | fields << 8) & 0x00FF'00FF'00FF'00FF;
        writeFields(text, fields, ':');
    }

    constexpr std::uint32_t hours() const { return packed & 0xFF; }

    /// Frames, counted on `base` frames a second, which is at most 100.
    constexpr std::uint32_t count(std::uint32_t base) const {
        const std::uint32_t minutes = hours() * 60 + (packed >> 8 & 0xFF);
        return (minutes * 60 + (packed >> 16 & 0xFF)) * base + (packed >> 24);
    }

  private:
    std::uint32_t packed;
};

}  // namespace clipvane
