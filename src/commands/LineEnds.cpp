// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/LineEnds.h"

#include <algorithm>
#include <cstddef>

namespace clipvane {
namespace {

std::string withCarriageReturns(std::string_view text) {
    std::string ended;
    ended.reserve(text.size() + static_cast<std::size_t>(std::ranges::count(text, '\n')));
    for (const char c : text) {
        if (c == '\n' && !ended.ends_with('\r')) ended += '\r';
        ended += c;
    }
    return ended;
}

}  // namespace

LineEnd lineEndOf(std::string_view text) {
    const auto returns = std::ranges::count(text, '\r');
    const auto feeds = std::ranges::count(text, '\n');
    if (returns == 0) return LineEnd::lineFeed;
    if (feeds == 0) return LineEnd::carriageReturn;
    std::ptrdiff_t pairs = 0;
    for (auto at = text.find("\r\n"); at != text.npos; at = text.find("\r\n", at + 2)) ++pairs;
    const bool areAllPairs = pairs == returns && pairs == feeds;
    return areAllPairs ? LineEnd::carriageReturnLineFeed : LineEnd::lineFeed;
}

std::string withLineEnds(std::string text, LineEnd kind) {
    if (kind == LineEnd::carriageReturn) std::ranges::replace(text, '\n', '\r');
    if (kind == LineEnd::carriageReturnLineFeed) return withCarriageReturns(text);
    return text;
}

}  // namespace clipvane
