// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FrameCount.h"

#include "timecode/FrameRate.h"
#include "timecode/Timecode.h"

namespace clipvane::diff {

std::optional<std::int64_t> countFrames(std::string_view timecode, const Counting& counting) {
    const auto count = frames(timecode, counting.fps);
    if (!count || !counting.dropsFrames) return count;
    const std::int64_t base = frameBase(counting.fps);
    const std::int64_t minutes = *count / (60 * base);
    return *count - base / 15 * (minutes - minutes / 10);
}

}  // namespace clipvane::diff
