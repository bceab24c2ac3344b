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

std::string timecodeOf(std::int64_t frames, const Counting& counting) {
    if (!counting.dropsFrames) return timecode(frames, counting.fps, false);
    const std::int64_t base = frameBase(counting.fps);
    const std::int64_t dropped = base / 15;
    const std::int64_t tenMinutes = 600 * base - 9 * dropped;
    const std::int64_t minute = 60 * base - dropped;
    const std::int64_t tens = frames / tenMinutes;
    // The first minute of ten is the one that leaves nothing out.
    const std::int64_t rest = frames % tenMinutes;
    const std::int64_t minutes = rest < 60 * base ? 0 : (rest - dropped) / minute;
    return timecode(frames + dropped * (9 * tens + minutes), counting.fps, true);
}

}  // namespace clipvane::diff
