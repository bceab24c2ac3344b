// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "base/Characters.h"

#include <unicode/uchar.h>

#include "base/UTF8.h"

namespace clipvane {
bool isWhiteSpaceBeyondASCII(char32_t c) {
    return u_isUWhiteSpace(static_cast<UChar32>(c)) != 0;
}

bool isDecimalDigitBeyondASCII(char32_t c) {
    return u_isdigit(static_cast<UChar32>(c)) != 0;
}

std::string_view trimBlanksAndNewlines(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);  // most of what there is to trim
    const auto stays = [](char c) { return isGraphicASCII(static_cast<unsigned char>(c)); };
    if (!text.empty() && stays(text.front()) && stays(text.back())) return text;
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
