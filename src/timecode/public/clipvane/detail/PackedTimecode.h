// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include <clipvane/detail/TwoDigitFields.h>

namespace clipvane {

/// A timecode of the form 01:00:00:00, ASCII digits with ":" between them, in four bytes: hours,
/// minutes, seconds and frames from the lowest, each below 100. No byte ever has its highest bit
/// set.
class PackedTimecode {
  public:
    /// `text`, if it has that form.
    static std::optional<PackedTimecode> pack(std::string_view text) {
        if (text.size() != twoDigitLength) return std::nullopt;
        return pack(std::span<const char, twoDigitLength>(text.data(), twoDigitLength));
    }
    static std::optional<PackedTimecode> pack(std::span<const char, twoDigitLength> text) {
        const ThreeFields first(eightCharacters(text.data()));
        const ThreeFields last(eightCharacters(text.data() + 3));
        if (!first.matchColons() || !last.matchColons()) return std::nullopt;
        return PackedTimecode(first.packed() | (last.packed() & 0xFF'0000) << 8);
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
    constexpr std::uint32_t frames() const { return packed >> 24; }
    constexpr PackedTimecode withFrames(std::uint32_t frames) const {
        return PackedTimecode((packed & 0x00FF'FFFF) | frames << 24);
    }
    /// Whether minutes and seconds are below 60.
    constexpr bool isOnTheClock() const {
        constexpr std::uint32_t reach = 0x80 - 60;  // takes sixty to its byte's highest bit
        return ((packed + (reach << 8 | reach << 16)) & 0x0080'8000) == 0;
    }

    /// Frames, counted on `base` frames a second, which is at most 100.
    constexpr std::uint32_t count(std::uint32_t base) const {
        const std::uint32_t minutes = hours() * 60 + (packed >> 8 & 0xFF);
        return (minutes * 60 + (packed >> 16 & 0xFF)) * base + frames();
    }

  private:
    std::uint32_t packed;
};

}  // namespace clipvane
