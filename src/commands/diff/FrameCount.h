// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include <clipvane/detail/PackedTimecode.h>
#include <clipvane/diff/CutList.h>

namespace clipvane::diff {

/// Counts the frames of timecodes, as `frames` (clipvane/Timecode.h) reads them. In drop-frame
/// timecode each minute leaves out its first 2 frame numbers at base 30, 4 at base 60, but for
/// every tenth minute.
class FrameCounter {
  public:
    explicit FrameCounter(const Counting& counting);

    /// Nothing when the text is no timecode.
    std::optional<std::int64_t> count(std::string_view timecode) const;

    std::int64_t count(PackedTimecode timecode) const {
        const std::int64_t all =
            usualBase != 0 ? timecode.count(usualBase) : countAtUnusualRate(timecode);
        return counting.dropsFrames ? withoutDropped(all) : all;
    }

  private:
    std::int64_t countAtUnusualRate(PackedTimecode timecode) const;
    std::int64_t withoutDropped(std::int64_t count) const;

    Counting counting;
    std::uint32_t usualBase;  ///< 0 for a rate that `PackedTimecode` does not count at
};

}  // namespace clipvane::diff
