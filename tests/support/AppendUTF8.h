// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <unicode/utf8.h>

#include <cstdint>
#include <string>

namespace clipvane::test {

/// Appends one code point; U+FFFD for what is none, such as a surrogate.
inline void appendUTF8(std::string& text, char32_t codePoint) {
    std::uint8_t bytes[U8_MAX_LENGTH];
    std::int32_t length = 0;
    UBool failed = false;
    U8_APPEND(bytes, length, U8_MAX_LENGTH, static_cast<std::uint32_t>(codePoint), failed);
    if (failed) {
        text += "\uFFFD";
    } else {
        text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
    }
}

}  // namespace clipvane::test
