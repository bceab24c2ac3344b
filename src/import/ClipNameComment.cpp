// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/ClipNameComment.h"

#include <algorithm>

#include "base/Characters.h"
#include "import/ByteBlock.h"

namespace clipvane {
namespace {

constexpr std::string_view keyword = "from clip name";

/// How nearly every such comment begins.
constexpr std::string_view usualStart = "* FROM CLIP NAME:";

// Two characters outside ASCII have letters of the keyword as their upper case.
constexpr std::string_view dotlessI = "\u0131";    // I
constexpr std::string_view ligatureFF = "\uFB00";  // FF, of which the second may begin the keyword

/// Whether `rest` goes on with the keyword from its second letter.
bool continuesKeyword(std::string_view rest) {
    for (const char letter : keyword.substr(1)) {
        if (rest.empty()) return false;
        if (asciiLower(rest.front()) == letter) {
            rest.remove_prefix(1);
        } else if (letter == 'i' && rest.starts_with(dotlessI)) {
            rest.remove_prefix(dotlessI.size());
        } else {
            return false;
        }
    }
    return true;
}

/// Whether the letters R, O and M stand together somewhere, in either case. Most comments do not
/// hold them, and are through with that.
bool mayContainKeyword(std::string_view line) {
    constexpr std::size_t reach = sizeof(ByteBlock) + 2;
    if (line.size() < reach) return true;
    const std::size_t last = line.size() - reach;
    for (std::size_t position = 0;; position = std::min(position + sizeof(ByteBlock), last)) {
        const char* const bytes = line.data() + position;
        const bool isFound = holdsAnywhere(((loadBlock(bytes) | 0x20) == 'r') &
                                           ((loadBlock(bytes + 1) | 0x20) == 'o') &
                                           ((loadBlock(bytes + 2) | 0x20) == 'm'));
        if (isFound || position == last) return isFound;
    }
}

bool containsKeyword(std::string_view line) {
    if (!mayContainKeyword(line)) return false;
    const auto mayStart = [](char c) { return c == 'F' || c == 'f' || c == ligatureFF.front(); };
    while (line.size() >= keyword.size()) {
        const auto lastStart = line.end() - keyword.size() + 1;
        const auto start = std::find_if(line.begin(), lastStart, mayStart);
        if (start == lastStart) return false;
        line.remove_prefix(static_cast<std::size_t>(start - line.begin()));
        const std::size_t length = line.starts_with(ligatureFF) ? ligatureFF.size() : 1;
        const bool starts = length > 1 || line.front() != ligatureFF.front();
        line.remove_prefix(length);
        if (starts && continuesKeyword(line)) return true;
    }
    return false;
}

/// The text after the last colon, or all of it. The C library finds a colon faster from the front,
/// and few lines have another.
std::string_view afterLastColon(std::string_view text) {
    while (true) {
        const std::size_t colon = text.find(':');
        if (colon == std::string_view::npos) return text;
        text.remove_prefix(colon + 1);
    }
}

}  // namespace

std::optional<std::string_view> clipNameComment(std::string_view line) {
    if (line.starts_with(usualStart)) {
        line.remove_prefix(usualStart.size());
    } else if (!containsKeyword(line)) {
        return std::nullopt;
    }
    return trimBlanksAndNewlines(afterLastColon(line));
}

}  // namespace clipvane
