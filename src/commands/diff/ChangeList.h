// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <clipvane/Error.h>
#include "commands/diff/Phrases.h"

namespace clipvane::diff {

/// A longest stretch of NEW's record time that plays OLD's same track at one shift.
struct ChangeStretch {
    std::int64_t from = 0;  ///< record frames of NEW
    std::int64_t to = 0;
    std::int64_t oldFrom = 0;  ///< where it begins in OLD

    bool operator==(const ChangeStretch&) const = default;
};

/// The stretches of a track (an index into CutDiff::tracks), in order: across events, and across
/// black that both lists have at that shift. The track's events must not overlap in NEW.
std::vector<ChangeStretch> changeStretches(const CutDiff& diff, std::uint32_t track);

/// The stretches as an EDL that conforms OLD's finished track to NEW: source is the place in OLD,
/// reel OLDCUT. It begins with "* FPS: " and `rate`. What is not in OLD is a gap and a comment.
///
/// Fails with a reason where an EDL cannot say it: events of the track that overlap in NEW, a
/// timecode below 0 or from 100 hours, more than 100 frames a second, a drop-frame list, a track
/// that is no column.
Result<std::string> changeList(const Compared& compared, std::uint32_t track,
                               std::string_view rate);

}  // namespace clipvane::diff
