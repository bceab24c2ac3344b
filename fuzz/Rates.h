// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstring>
#include <string_view>

#include <clipvane/FrameRate.h>

namespace clipvane::fuzz {

/// Takes a byte that chooses a rate from the front of `bytes`: one of the ten that users meet, by
/// its digit, or for 0xFF any double, from the next eight bytes.
inline double takeRate(std::string_view& bytes) {
    if (bytes.empty()) return standardFPSValues[0];
    const auto choice = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    double fps = 0;
    if (choice != 0xFF || bytes.size() < sizeof fps) {
        return standardFPSValues[(choice + 2U) % standardFPSValues.size()];
    }
    std::memcpy(&fps, bytes.data(), sizeof fps);
    bytes.remove_prefix(sizeof fps);
    return fps;
}

}  // namespace clipvane::fuzz
