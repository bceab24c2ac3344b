// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>

#include <clipvane/detail/PackedTimecode.h>
#include <clipvane/detail/TwoDigitFields.h>
#include "base/Characters.h"
#include "import/EventLine.h"

namespace clipvane {
namespace {

constexpr std::size_t wordSize = sizeof(std::uint64_t);

constexpr std::uint64_t repeated(std::uint8_t byte) {
    return 0x0101'0101'0101'0101U * byte;
}

/// The number of characters before the first of eight that is not graphic ASCII: a blank, a control
/// character, or a byte of a longer one. Eight if there is none.
std::size_t graphicPrefix(std::uint64_t characters) {
    // Subtracting sets the highest bit of a byte below "!". Its borrow may spoil the bytes above
    // it, but only the first byte found counts.
    const std::uint64_t below = (characters - repeated('!')) & ~characters;
    const std::uint64_t others = (below | characters) & repeated(0x80);
    return static_cast<std::size_t>(std::countr_zero(others)) / 8;
}

/// The number of blanks before the first other of eight characters.
std::size_t spacePrefix(std::uint64_t characters) {
    return static_cast<std::size_t>(std::countr_zero(characters ^ repeated(' '))) / 8;
}

constexpr bool isPlainBlank(char c) {
    return c == ' ' || c == '\t';
}

bool areDigits(std::string_view text) {
    return std::ranges::all_of(text,
                               [](char c) { return isASCIIDigit(static_cast<unsigned char>(c)); });
}

/// Goes along a line's columns. A column that is not plain gives nothing. Eight bytes are looked at
/// together: before its last timecode a line always has that many.
class PlainColumns {
  public:
    explicit PlainColumns(std::string_view line) : at(line.data()), end(at + line.size()) {
        skipBlanks();
    }

    /// A column, and the blanks behind it.
    std::string_view take() {
        const char* const begin = at;
        std::size_t prefix = wordSize;
        while (prefix == wordSize) {
            if (left() < wordSize) return {};
            prefix = graphicPrefix(eightCharacters(at));
            at += prefix;
        }
        const std::string_view column(begin, static_cast<std::size_t>(at - begin));
        return skipBlanks() ? column : std::string_view();
    }

    std::string_view takeNumber() {
        const std::string_view column = take();
        return areDigits(column) ? column : std::string_view();
    }

    /// Whether a timecode comes rather than a duration, which is digits alone.
    bool isAtTimecode() const { return left() > 2 && at[2] == ':'; }

    /// The timecode after `index` others, with one blank between each two.
    std::optional<PackedTimecode> timecode(std::size_t index) const {
        constexpr std::size_t stride = twoDigitLength + 1;
        if (left() < index * stride + twoDigitLength) return std::nullopt;
        const char* const begin = at + index * stride;
        if (index > 0 && !isPlainBlank(begin[-1])) return std::nullopt;
        return PackedTimecode::pack(std::span<const char, twoDigitLength>(begin, twoDigitLength));
    }

  private:
    std::size_t left() const { return static_cast<std::size_t>(end - at); }

    bool skipBlanks() {
        const char* const begin = at;
        if (left() >= wordSize) at += spacePrefix(eightCharacters(at));
        while (at != end && isPlainBlank(*at)) ++at;
        return at != begin;
    }

    const char* at;
    const char* end;
};

}  // namespace

std::optional<EventLine> matchPlainEventLine(std::string_view line) {
    PlainColumns columns(line);
    EventLine event;
    event.number = columns.takeNumber();
    if (event.number.empty()) return std::nullopt;
    event.reel = columns.take();
    event.track = columns.take();
    const std::string_view editType = columns.take();
    if (event.reel.empty() || event.track.empty() || editType.empty()) return std::nullopt;

    if (!columns.isAtTimecode() && columns.takeNumber().empty()) return std::nullopt;
    for (std::size_t i = 0; i < event.timecodes.size(); ++i) {
        const auto timecode = columns.timecode(i);
        if (!timecode) return std::nullopt;
        event.timecodes[i] = *timecode;
    }
    return event;
}

}  // namespace clipvane
