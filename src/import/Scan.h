// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "base/UTF8.h"

namespace clipvane {

/// Removes the longest run of code points in `isMember` from the front of `rest` and returns it.
template <class Predicate>
std::string_view takeWhile(std::string_view& rest, Predicate isMember) {
    std::string_view after = rest;
    while (!after.empty()) {
        const CodePoint next = firstCodePoint(after);
        if (!isMember(next.value)) break;
        after.remove_prefix(next.length);
    }
    const std::string_view taken(rest.data(), rest.size() - after.size());
    rest = after;
    return taken;
}

/// Removes `c` from the front of `rest`, if it stands there.
inline bool takeCharacter(std::string_view& rest, char c) {
    if (!rest.starts_with(c)) return false;
    rest.remove_prefix(1);
    return true;
}

}  // namespace clipvane
