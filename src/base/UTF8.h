// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace clipvane {

/// One code point and the number of bytes it was read from.
struct CodePoint {
    char32_t value = 0;
    std::size_t length = 0;
};

/// `firstCodePoint` of a text whose first byte is not ASCII.
CodePoint firstCodePointBeyondASCII(std::string_view text);

/// The first code point of `text`, which must not be empty. An ill-formed sequence is read as
/// U+FFFD over its maximal subpart, as Unicode recommends.
inline CodePoint firstCodePoint(std::string_view text) {
    const auto byte = static_cast<unsigned char>(text.front());
    return byte < 0x80 ? CodePoint{byte, 1} : firstCodePointBeyondASCII(text);
}

/// The last code point of `text`, which must not be empty, by the same rule.
CodePoint lastCodePoint(std::string_view text);

/// True when `text` holds bytes below 0x80 only.
bool isASCII(std::string_view text);

/// The number of bytes before the first ill-formed sequence: all of them for valid UTF-8.
std::size_t validUTF8Prefix(std::string_view bytes);

/// A copy of `bytes` with one U+FFFD for each maximal subpart of an ill-formed sequence. A
/// byte-order mark and NULs stay.
std::string replaceInvalidUTF8(std::string_view bytes);

}  // namespace clipvane
