// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// An event of NEW and one of OLD that are the same shot.
struct Partnership {
    std::uint32_t newEvent = 0;
    std::uint32_t oldEvent = 0;
    std::int64_t frames = 0;  ///< paired between the two
    std::int64_t from = 0;    ///< first frame of the content that the two share
    std::int64_t to = 0;      ///< behind the last one

    /// Whether the two share nothing of a content, but source range and retiming.
    bool isRetimed() const { return from == to; }
};

/// Where the frames that two partners share stand, in record frames of both lists.
struct SharedPlace {
    std::int64_t newFrom = 0;
    std::int64_t newTo = 0;
    std::int64_t oldFrom = 0;
    std::int64_t oldTo = 0;
};

/// The place of what the two share; all of both events if that is no stretch of a source.
SharedPlace sharedPlace(const Partnership& p, const CutEvent& oldEvent, const CutEvent& newEvent);

/// All partnerships of two cuts, looked at from either side.
class Partners {
  public:
    /// `all` come by event of NEW, then source of OLD.
    Partners(const Cut& oldCut, const Cut& newCut, std::vector<Partnership> all);

    /// The partners of an event of NEW, by their source; the first is *the* partner.
    std::span<const Partnership> ofNew(std::uint32_t event) const {
        return of(all, newStarts, event);
    }

    /// *The* partner's partnership of an event of NEW that has one.
    const Partnership& first(std::uint32_t event) const { return ofNew(event).front(); }

    /// The partners of an event of OLD, events of NEW, by their source.
    std::span<const std::uint32_t> ofOld(std::uint32_t event) const {
        return of(pieces, oldStarts, event);
    }

  private:
    template <class T>
    static std::span<const T> of(const std::vector<T>& sorted,
                                 const std::vector<std::uint32_t>& starts, std::uint32_t event) {
        return {sorted.data() + starts[event], starts[event + 1] - starts[event]};
    }

    std::vector<Partnership> all;       // by event of NEW
    std::vector<std::uint32_t> pieces;  // events of NEW, by event of OLD
    // Where those of an event begin; one more at the end.
    std::vector<std::uint32_t> newStarts;
    std::vector<std::uint32_t> oldStarts;
};

/// Two cuts and who belongs to whom in them. They stay the caller's.
struct PartneredCuts {
    const Cut& oldCut;
    const Cut& newCut;
    const Partners& partners;
};

/// Partners are two events that pair at least half of the content that both hold, and either at
/// least half of the shorter of the two, or they are each other's best: most frames, then same
/// track, smallest shift, earliest. Among those that then have none, a whole event and another of
/// the same source whose source ranges overlap are partners, one to one.
///
/// `runs` come by event of NEW, then position.
Partners findPartners(const Cut& oldCut, const Cut& newCut, const std::vector<Run>& runs);

}  // namespace clipvane::diff
