// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <clipvane/detail/PackedTimecode.h>

namespace clipvane {

/// One of a row's timecodes: packed, if it has the usual form; otherwise nothing, or the number of
/// a text that the list keeps.
class RowTimecode {
  public:
    constexpr RowTimecode() = default;
    constexpr RowTimecode(PackedTimecode packed) : bits(packed.bits()) {}
    static constexpr RowTimecode ofText(std::uint32_t number) {
        return RowTimecode(textBit | number);
    }
    static constexpr std::uint32_t mostTexts = 0x7FFF'FFFF;

    constexpr bool isEmpty() const { return bits == empty; }
    constexpr bool isPacked() const { return (bits & textBit) == 0; }
    constexpr PackedTimecode packed() const { return PackedTimecode(bits); }
    constexpr std::uint32_t textNumber() const { return bits & ~textBit; }

  private:
    static constexpr std::uint32_t textBit = 0x8000'0000;  // never set in a packed timecode
    static constexpr std::uint32_t empty = 0xFFFF'FFFF;
    constexpr explicit RowTimecode(std::uint32_t bits) : bits(bits) {}

    std::uint32_t bits = empty;
};

/// An event's timecodes: source in and out, record in and out.
using RowTimecodes = std::array<RowTimecode, 4>;

/// A piece of a text, in bytes. Where sixteen bits are not enough, the row is a wide one.
struct Span {
    static constexpr std::size_t most = 0xFFFF;

    std::uint16_t begin = 0;
    std::uint16_t size = 0;

    std::string_view of(const char* text) const { return {text + begin, size}; }
};

/// An event in 40 bytes, but for its timecodes, which a change of rate goes through alone. Its
/// texts lie elsewhere, as a rule in the file as it was read:
///
///     lines ─┐
///     texts ─┴► 001  A012C003 V     C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00 ⏎
///               * FROM CLIP NAME: Pier_take_one ⏎
///     columns   ▔▔▔  ▔▔▔▔▔▔▔▔ ▔       ▔▔▔▔▔▔▔▔▔▔▔▔▔
///
/// A made name, such as "Clip 001", lies nowhere in the lines: then the four columns were copied
/// together, and `texts` is where to.
struct EventRow {
    enum class Format : std::uint8_t { edl, xml, other };

    const char* texts = nullptr;  ///< where the columns begin to count
    const char* lines = nullptr;  ///< from the first of the event's lines to the end of the last
    std::array<Span, 4> columns;  ///< number, clip name, reel, track
    std::uint16_t linesSize = 0;
    Format format = Format::other;
    bool isHighlighted = false;
    bool isJoined = false;     ///< between `lines` stand some that are not the event's
    bool hasComments = false;  ///< the list has the comments
    bool isWide = false;       ///< the list has the texts and the format
};

/// The format's name, but for `other`.
constexpr std::string_view formatText(EventRow::Format format) {
    return format == EventRow::Format::edl ? "EDL" : "XML";
}

}  // namespace clipvane
