// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Shown.h"

#include <unicode/uchar.h>

#include <algorithm>

#include "base/UTF8.h"

namespace clipvane::cli {
namespace {

constexpr std::string_view replacement = "\uFFFD";
constexpr std::string_view ellipsis = "\u2026";

/// Whether all is ASCII that is shown as it is, as most texts are.
bool isPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= 0x20 && c < 0x7F; });
}

/// Control and format characters, line and paragraph separators. The joiners stay: names in some
/// scripts are written with them.
bool isHidden(char32_t c) {
    if (c < 0x7F) return c < 0x20;
    if (c == 0x200C || c == 0x200D) return false;
    switch (u_charType(static_cast<UChar32>(c))) {
        case U_CONTROL_CHAR:
        case U_FORMAT_CHAR:
        case U_LINE_SEPARATOR:
        case U_PARAGRAPH_SEPARATOR:
            return true;
        default:
            return false;
    }
}

std::size_t columnsOfCharacter(char32_t c) {
    if (c < 0x300) return 1;
    const auto point = static_cast<UChar32>(c);
    switch (u_charType(point)) {
        case U_NON_SPACING_MARK:
        case U_ENCLOSING_MARK:
        case U_FORMAT_CHAR:
            return 0;
        default:
            break;
    }
    const int width = u_getIntPropertyValue(point, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

/// The longest beginning of `text` that fits.
std::string_view beginning(std::string_view text, std::size_t columns) {
    std::size_t end = 0;
    while (end < text.size()) {
        const CodePoint next = firstCodePoint(text.substr(end));
        const std::size_t width = columnsOfCharacter(next.value);
        if (width > columns) break;
        columns -= width;
        end += next.length;
    }
    return text.substr(0, end);
}

/// The longest end of `text` that fits and does not begin with a mark of what is left out.
std::string_view ending(std::string_view text, std::size_t columns) {
    std::size_t begin = text.size();
    std::size_t candidate = begin;
    while (candidate > 0) {
        const CodePoint last = lastCodePoint(text.substr(0, candidate));
        const std::size_t width = columnsOfCharacter(last.value);
        if (width > columns) break;
        columns -= width;
        candidate -= last.length;
        if (width > 0) begin = candidate;
    }
    return text.substr(begin);
}

}  // namespace

std::string shown(std::string_view text) {
    if (isPlain(text)) return std::string(text);
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const CodePoint next = firstCodePoint(text);
        // An ill-formed sequence reads as U+FFFD, too, but its bytes are others.
        const bool isReplaced = isHidden(next.value) || next.value == 0xFFFD;
        result += isReplaced ? replacement : text.substr(0, next.length);
        text.remove_prefix(next.length);
    }
    return result;
}

std::size_t columnsOf(std::string_view text) {
    if (isPlain(text)) return text.size();
    std::size_t columns = 0;
    while (!text.empty()) {
        const CodePoint next = firstCodePoint(text);
        columns += columnsOfCharacter(next.value);
        text.remove_prefix(next.length);
    }
    return columns;
}

std::string elided(std::string_view text, std::size_t columns) {
    if (columnsOf(text) <= columns) return std::string(text);
    const std::size_t kept = columns - 1;
    std::string result(beginning(text, kept - kept / 2));
    result += ellipsis;
    result += ending(text, kept / 2);
    return result;
}

}  // namespace clipvane::cli
