// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include <clipvane/diff/CutList.h>
#include "base/Number.h"

namespace clipvane::diff {

/// An event as it is compared. Texts are numbers here: equal numbers mean canonically equivalent
/// texts, in both lists.
///
/// What an event plays is a stretch `from()` ... `to()` of a content. The content of a plain event
/// is its source, and the stretch its source range; any other event is the one unit, 0 to 1, of a
/// content that only its equals share.
struct CutEvent {
    std::uint32_t row = 0;  ///< in its list, from 0
    std::uint32_t track = 0;
    std::uint32_t reel = 0;
    std::uint32_t name = 0;  ///< 0 when it has none
    std::uint32_t source = 0;
    std::uint32_t content = 0;
    Kind kind = Kind::plain;
    std::int64_t sourceIn = 0;  ///< in frames, as the other three; all 0 for an odd event
    std::int64_t sourceOut = 0;
    std::int64_t recordIn = 0;
    std::int64_t recordOut = 0;

    std::int64_t from() const { return kind == Kind::plain ? sourceIn : 0; }
    std::int64_t to() const { return kind == Kind::plain ? sourceOut : 1; }

    /// Place minus position in the content. The difference of two events' offsets is their shift.
    std::int64_t offset() const { return subtractChecked(recordIn, from()); }

    bool hasPlace() const { return kind != Kind::odd; }
    bool hasFrames() const { return kind == Kind::plain || kind == Kind::whole; }
    std::int64_t frames() const { return hasFrames() ? recordOut - recordIn : 0; }

    /// The record frames that a length of the content takes in this event. The one unit of a
    /// content that is no source is all of the event.
    std::int64_t framesOf(std::int64_t length) const {
        return kind == Kind::plain ? length : multiplyChecked(length, frames());
    }

    /// The source range in order, whichever way it is played, and never empty.
    std::int64_t sourceLow() const { return std::min(sourceIn, sourceOut); }
    std::int64_t sourceHigh() const {
        return std::max(std::max(sourceIn, sourceOut), addChecked(sourceLow(), 1));
    }
};

/// The events of a list that take part, in record order: by record in, then row. An odd event
/// stands behind the event of the row before it. An index into it tells two events' order.
using Cut = std::vector<CutEvent>;

/// A longest stretch of a content that an event of NEW shares with one of OLD, frame for frame.
struct Run {
    std::uint32_t newEvent = 0;  ///< index into the cut
    std::uint32_t oldEvent = 0;
    std::int64_t from = 0;
    std::int64_t to = 0;
};

/// Place in NEW minus place in OLD of the frames that two events share; 0 for odd events.
inline std::int64_t shiftBetween(const CutEvent& oldEvent, const CutEvent& newEvent) {
    if (!newEvent.hasPlace()) return 0;
    return subtractChecked(newEvent.offset(), oldEvent.offset());
}

}  // namespace clipvane::diff
