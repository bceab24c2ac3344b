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

    /// Hours, minutes, seconds and frames, each below 100.
    static constexpr PackedTimecode ofFields(const SmallFields& fields) {
        return PackedTimecode(fields[0] | fields[1] << 8 | fields[2] << 16 | fields[3] << 24);
    }

    /// The timecode of `count` frames, counted on `base` frames a second, if it has that form.
    static std::optional<PackedTimecode> ofCount(std::int64_t count, std::int64_t base) {
        if (!fitsTwoDigitFields(count, base)) return std::nullopt;
        return ofFields(fieldsOf(count, base));
    }

    constexpr explicit PackedTimecode(std::uint32_t bits) : packed(bits) {}
    constexpr std::uint32_t bits() const { return packed; }

    /// The text that was packed.
    void write(std::span<char, twoDigitLength> text) const {
        writeFields(text, {hours(), packed >> 8 & 0xFF, packed >> 16 & 0xFF, frames()}, ':');
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

    /// What the counts below take, in frames a second.
    static constexpr std::uint32_t mostBase = 100;
    /// Frames, counted on `base` frames a second.
    constexpr std::uint32_t count(std::uint32_t base) const {
        const std::uint32_t minutes = hours() * 60 + (packed >> 8 & 0xFF);
        return (minutes * 60 + (packed >> 16 & 0xFF)) * base + frames();
    }

  private:
    std::uint32_t packed;
};

}  // namespace clipvane
