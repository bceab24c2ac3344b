// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FrameCount.h"

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include <clipvane/detail/PackedTimecode.h>

namespace clipvane::diff {

// An unusual rate is looked at no sooner than a timecode asks for it.
FrameCounter::FrameCounter(const Counting& counting)
    : counting(counting),
      usualBase(counting.fps >= 1 && counting.fps <= 100
                    ? static_cast<std::uint32_t>(frameBase(counting.fps))
                    : 0) {}

std::optional<std::int64_t> FrameCounter::count(std::string_view timecode) const {
    const auto count = countAll(timecode);
    if (!count || !counting.dropsFrames) return count;
    const std::int64_t base = frameBase(counting.fps);
    const std::int64_t minutes = *count / (60 * base);
    return *count - base / 15 * (minutes - minutes / 10);
}

std::optional<std::int64_t> FrameCounter::countAll(std::string_view timecode) const {
    if (usualBase != 0) {
        if (const auto packed = PackedTimecode::pack(timecode)) return packed->count(usualBase);
    }
    return frames(timecode, counting.fps);
}

}  // namespace clipvane::diff
