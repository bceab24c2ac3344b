// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/FoundEvent.h"

namespace clipvane::test {

/// What a reader found, as it was written.
inline std::string textOf(const FoundTimecode& timecode) {
    if (timecode.usual().isEmpty()) return std::string(timecode.oddText());
    std::string text(twoDigitLength, ' ');
    timecode.usual().packed().write(std::span<char, twoDigitLength>(text.data(), twoDigitLength));
    return text;
}

}  // namespace clipvane::test
