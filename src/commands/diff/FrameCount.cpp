// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FrameCount.h"

#include <array>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>

namespace clipvane::diff {

// An unusual rate is looked at no sooner than a timecode asks for it.
FrameCounter::FrameCounter(const Counting& counting)
    : counting(counting),
      usualBase(counting.fps >= 1 && counting.fps <= PackedTimecode::mostBase
                    ? static_cast<std::uint32_t>(frameBase(counting.fps))
                    : 0) {}

std::optional<std::int64_t> FrameCounter::count(std::string_view timecode) const {
    if (const auto packed = PackedTimecode::pack(timecode)) return count(*packed);
    const auto all = frames(timecode, counting.fps);
    return all && counting.dropsFrames ? withoutDropped(*all) : all;
}

std::int64_t FrameCounter::countAtUnusualRate(PackedTimecode timecode) const {
    std::array<char, twoDigitLength> text;
    timecode.write(text);
    return frames({text.data(), text.size()}, counting.fps).value();
}

std::int64_t FrameCounter::withoutDropped(std::int64_t count) const {
    const std::int64_t base = frameBase(counting.fps);
    const std::int64_t minutes = count / (60 * base);
    return count - base / 15 * (minutes - minutes / 10);
}

}  // namespace clipvane::diff
