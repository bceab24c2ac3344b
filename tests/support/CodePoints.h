// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "support/Scale.h"

namespace clipvane::test {

inline constexpr char32_t lastCodePoint = 0x10FFFF;

/// The code point to look at after `c`: the next one that is no surrogate. A sanitizer build, in
/// which all take minutes, leaves out fifteen of sixteen beyond U+3000, the last of the blanks.
constexpr char32_t nextCodePoint(char32_t c) {
    c += isInstrumented && c > 0x3000 ? 16 : 1;
    return c >= 0xD800 && c <= 0xDFFF ? 0xE000 : c;
}

}  // namespace clipvane::test
