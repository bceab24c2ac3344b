// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include <clipvane/EventList.h>

// What the comparison of two cuts (clipvane/diff/CutDiff.h) is given.
namespace clipvane::diff {

/// What holds a list's events. Nothing here needs more of it than a size and events by row.
using Events = EventList;

/// How a list's timecodes are counted.
struct Counting {
    double fps = 0;
    bool dropsFrames = false;  ///< drop-frame timecode; `fps` then has the frame base 30 or 60
};

/// One of the two lists that are compared. The events stay the caller's.
struct CutList {
    const Events& events;
    Counting counting;
};

/// What tells one source from another.
enum class By { reel, name, reelAndName };

/// What an event is to the comparison, by its four timecodes.
enum class Kind : std::uint8_t {
    plain,  ///< source and record equally long, at least one frame: compared frame by frame
    whole,  ///< source of another length than the record (retimes, freezes): compared as one block
    point,  ///< record of no length (the first line of a dissolve): one thing without frames
    odd,  ///< a timecode that is none, or record out before in: one thing without frames and place
};

}  // namespace clipvane::diff
