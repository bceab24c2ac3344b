// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/XMLText.h"

#include <string>

#include "base/Characters.h"

namespace clipvane {
namespace {

std::string replacingAll(std::string_view text, std::string_view what, std::string_view with) {
    std::string replaced;
    replaced.reserve(text.size());
    while (true) {
        const std::size_t found = text.find(what);
        replaced += text.substr(0, found);
        if (found == std::string_view::npos) return replaced;
        replaced += with;
        text.remove_prefix(found + what.size());
    }
}

/// Whether a text may hold what is replaced. Most are short numbers, and hold neither character.
bool mayNeedReplacing(std::string_view text) {
    return holdsEither(text, '%', ':') &&
           (text.find('%') != std::string_view::npos || text.find("//") != std::string_view::npos);
}

}  // namespace

ViewOrCopy cleanedXMLText(std::string_view text) {
    if (!mayNeedReplacing(text)) return trimBlanksAndNewlines(text);
    const std::string replaced = replacingAll(replacingAll(text, "file://", ""), "%20", " ");
    return std::string(trimBlanksAndNewlines(replaced));
}

}  // namespace clipvane
