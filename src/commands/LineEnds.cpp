// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/LineEnds.h"

#include <algorithm>
#include <optional>

namespace clipvane {
namespace {

constexpr bool isLineEnd(char c) {
    return c == '\n' || c == '\r';
}

std::string withCarriageReturns(std::string_view text) {
    std::string ended;
    ended.reserve(text.size() + static_cast<std::size_t>(std::ranges::count(text, '\n')));
    while (true) {
        const auto end = std::min(text.find('\n'), text.size());
        ended += text.substr(0, end);
        if (end == text.size()) return ended;
        if (end == 0 || text[end - 1] != '\r') ended += '\r';
        ended += '\n';
        text.remove_prefix(end + 1);
    }
}

}  // namespace

LineEnd lineEndOf(std::string_view text) {
    std::optional<LineEnd> only;
    for (auto at = std::ranges::find_if(text, isLineEnd); at != text.end();
         at = std::find_if(at, text.end(), isLineEnd)) {
        auto kind = LineEnd::lineFeed;
        if (*at++ == '\r') {
            kind = LineEnd::carriageReturn;
            if (at != text.end() && *at == '\n') {
                kind = LineEnd::carriageReturnLineFeed;
                ++at;
            }
        }
        if (only && *only != kind) return LineEnd::lineFeed;
        only = kind;
    }
    return only.value_or(LineEnd::lineFeed);
}

std::string withLineEnds(std::string text, LineEnd kind) {
    if (kind == LineEnd::carriageReturn) std::ranges::replace(text, '\n', '\r');
    if (kind == LineEnd::carriageReturnLineFeed) return withCarriageReturns(text);
    return text;
}

}  // namespace clipvane
