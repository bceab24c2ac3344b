// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/Characters.h"

#include <unicode/uchar.h>

#include "base/UTF8.h"

namespace clipvane {
namespace {

/// A character that nothing trims, seen without a closer look.
constexpr bool isGraphicASCII(char c) {
    return c > ' ' && c < '\x7F';
}

}  // namespace

bool isWhiteSpaceBeyondASCII(char32_t c) {
    return u_isUWhiteSpace(static_cast<UChar32>(c)) != 0;
}

bool isDecimalDigitBeyondASCII(char32_t c) {
    return u_isdigit(static_cast<UChar32>(c)) != 0;
}

std::string_view trimBlanksAndNewlines(std::string_view text) {
    if (!text.empty() && isGraphicASCII(text.front()) && isGraphicASCII(text.back())) return text;
    while (!text.empty()) {
        const CodePoint first = firstCodePoint(text);
        if (!isWhiteSpace(first.value)) break;
        text.remove_prefix(first.length);
    }
    while (!text.empty()) {
        const CodePoint last = lastCodePoint(text);
        if (!isWhiteSpace(last.value)) break;
        text.remove_suffix(last.length);
    }
    return text;
}

}  // namespace clipvane
