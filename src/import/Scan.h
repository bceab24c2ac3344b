#pragma once

#include <string_view>

#include "base/UTF8.h"

namespace clipvane {

/// Removes the longest run of code points in `isMember` from the front of `rest` and returns it.
template <class Predicate>
std::string_view takeWhile(std::string_view& rest, Predicate isMember) {
    std::size_t length = 0;
    while (length < rest.size()) {
        const auto byte = static_cast<unsigned char>(rest[length]);
        const CodePoint next =
            byte < 0x80 ? CodePoint{byte, 1} : firstCodePoint(rest.substr(length));
        if (!isMember(next.value)) break;
        length += next.length;
    }
    const std::string_view taken = rest.substr(0, length);
    rest.remove_prefix(length);
    return taken;
}

/// Removes `c` from the front of `rest`, if it stands there.
inline bool takeCharacter(std::string_view& rest, char c) {
    if (!rest.starts_with(c)) return false;
    rest.remove_prefix(1);
    return true;
}

}  // namespace clipvane
