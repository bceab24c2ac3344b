// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace clipvane::diff {

/// How a list's timecodes are counted.
struct Counting {
    double fps = 0;
    bool dropsFrames = false;  ///< drop-frame timecode; `fps` then has the frame base 30 or 60
};

/// The frame count of a timecode, as `frames` (timecode/Timecode.h) reads it. In drop-frame
/// timecode each minute leaves out its first 2 frame numbers at base 30, 4 at base 60, but for
/// every tenth minute.
std::optional<std::int64_t> countFrames(std::string_view timecode, const Counting& counting);

}  // namespace clipvane::diff
