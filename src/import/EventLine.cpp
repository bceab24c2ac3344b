// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EventLine.h"

#include "base/Characters.h"
#include "import/Scan.h"

namespace clipvane {
namespace {

// Function objects, so that the compiler can inline them in the scanning loop.
constexpr auto whiteSpace = [](char32_t c) { return isWhiteSpace(c); };
constexpr auto columnCharacter = [](char32_t c) { return !isWhiteSpace(c); };
constexpr auto digit = [](char32_t c) { return isDecimalDigit(c); };

bool takeSeparator(std::string_view& rest) {
    return !takeWhile(rest, whiteSpace).empty();
}

bool takeDigit(std::string_view& rest) {
    if (rest.empty()) return false;
    const CodePoint first = firstCodePoint(rest);
    if (!digit(first.value)) return false;
    rest.remove_prefix(first.length);
    return true;
}

bool takeTimecode(std::string_view& rest, FoundTimecode& timecode) {
    const std::string_view start = rest;
    for (int field = 0; field < 4; ++field) {
        if (field > 0 && !takeCharacter(rest, ':')) return false;
        if (!takeDigit(rest) || !takeDigit(rest)) return false;
    }
    timecode = start.substr(0, start.size() - rest.size());
    return true;
}

/// A column of digits, which a timecode is not: its first field ends at a colon.
void takeDuration(std::string_view& rest) {
    std::string_view after = rest;
    if (!takeWhile(after, digit).empty() && takeSeparator(after)) rest = after;
}

/// The first character of most other lines shows that they are no event lines.
bool beginsOtherwise(std::string_view line) {
    if (line.empty()) return true;
    const auto first = static_cast<unsigned char>(line.front());
    return isGraphicASCII(first) && !isASCIIDigit(first);
}

}  // namespace

std::optional<EventLine> matchEventLine(std::string_view line) {
    if (beginsOtherwise(line)) return std::nullopt;
    auto columns = matchPlainEventLine(line);
    if (!columns) columns = matchAnyEventLine(line);
    return columns;
}

// Every column is a run that cannot contain what follows it, so the longest run is the only one
// that can match: one pass decides, without going back.
std::optional<EventLine> matchAnyEventLine(std::string_view line) {
    std::string_view rest = line;
    EventLine columns;

    takeWhile(rest, whiteSpace);
    columns.number = takeWhile(rest, digit);
    if (columns.number.empty() || !takeSeparator(rest)) return std::nullopt;
    columns.reel = takeWhile(rest, columnCharacter);
    if (!takeSeparator(rest)) return std::nullopt;
    columns.track = takeWhile(rest, columnCharacter);
    if (!takeSeparator(rest)) return std::nullopt;
    takeWhile(rest, columnCharacter);  // the edit type
    if (!takeSeparator(rest)) return std::nullopt;
    takeDuration(rest);

    for (std::size_t i = 0; i < columns.timecodes.size(); ++i) {
        if (i > 0 && !takeSeparator(rest)) return std::nullopt;
        if (!takeTimecode(rest, columns.timecodes[i])) return std::nullopt;
    }
    return columns;
}

}  // namespace clipvane
