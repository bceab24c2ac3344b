// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/FrameRate.h>

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/Number.h"

namespace clipvane {

std::int64_t frameBase(double fps) {
    return std::max<std::int64_t>(roundToInteger(fps), 1);
}

std::string formatFPS(double fps) {
    const std::int64_t rounded = roundToInteger(fps);
    std::string label;
    if (std::abs(static_cast<double>(rounded) - fps) < 0.001) {
        appendInteger(label, rounded);
        return label;
    }
    // A rate within 64 bits has at most 19 digits before the point.
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), fps,
                                   std::chars_format::fixed, 3)
                         .ptr;
    label.assign(digits.data(), end);
    label.erase(label.find_last_not_of('0') + 1);  // a decimal stays: the rate is not that whole
    return label;
}

}  // namespace clipvane
