// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <bit>
#include <cstdint>

#include "base/Characters.h"
#include "import/EventLine.h"
#include "timecode/TwoDigitFields.h"

namespace clipvane {
namespace {

constexpr std::size_t wordSize = sizeof(std::uint64_t);

constexpr std::uint64_t repeated(std::uint8_t byte) {
    return 0x0101'0101'0101'0101U * byte;
}

/// The number of characters before the first of eight that is not graphic ASCII: a blank, a control
/// character, or a byte of a longer one. Eight if there is none.
std::size_t graphicPrefix(std::uint64_t characters) {
    // A byte below "!" borrows into its highest bit. The borrow may spoil the bytes above it, which
    // do not count any more.
    const std::uint64_t below = (characters - repeated('!')) & ~characters;
    const std::uint64_t others = (below | characters) & repeated(0x80);
    return static_cast<std::size_t>(std::countr_zero(others)) / 8;
}

constexpr bool isPlainBlank(char c) {
    return c == ' ' || c == '\t';
}

bool areDigits(std::string_view text) {
    return std::ranges::all_of(text,
                               [](char c) { return isASCIIDigit(static_cast<unsigned char>(c)); });
}

/// Takes the columns of a line one after the other; gives empty text where one is not plain.
class PlainColumns {
  public:
    explicit PlainColumns(std::string_view line) : rest(line) { skipBlanks(); }

    /// A column and the blanks behind it. Eight bytes are looked at together, which a line has
    /// behind every column but the last timecode.
    std::string_view take() {
        std::size_t size = 0;
        while (size + wordSize <= rest.size()) {
            const std::size_t prefix = graphicPrefix(eightCharacters(rest.data() + size));
            size += prefix;
            if (prefix < wordSize) return takeColumn(size);
        }
        return {};
    }

    std::string_view takeNumber() {
        const std::string_view column = take();
        return areDigits(column) ? column : std::string_view();
    }

    bool isAtTimecode() const {
        const auto timecode = readTwoDigitTimecode(rest.substr(0, twoDigitLength));
        return timecode && !timecode->isDropFrame;
    }

    std::string_view takeTimecode() {
        return isAtTimecode() ? takeColumn(twoDigitLength) : std::string_view();
    }
    std::string_view takeLastTimecode() const {
        return isAtTimecode() ? rest.substr(0, twoDigitLength) : std::string_view();
    }

  private:
    std::string_view takeColumn(std::size_t size) {
        const std::string_view column = rest.substr(0, size);
        rest.remove_prefix(size);
        return skipBlanks() ? column : std::string_view();
    }

    bool skipBlanks() {
        std::size_t count = 0;
        while (count < rest.size() && isPlainBlank(rest[count])) ++count;
        rest.remove_prefix(count);
        return count > 0;
    }

    std::string_view rest;
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

    event.sourceIn = columns.takeTimecode();
    event.sourceOut = columns.takeTimecode();
    event.recordIn = columns.takeTimecode();
    event.recordOut = columns.takeLastTimecode();
    const bool hasAll = !event.sourceIn.empty() && !event.sourceOut.empty() &&
                        !event.recordIn.empty() && !event.recordOut.empty();
    if (!hasAll) return std::nullopt;
    return event;
}

}  // namespace clipvane
