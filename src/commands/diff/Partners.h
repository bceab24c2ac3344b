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
    bool isRetimed = false;   ///< the two share no frame, but source range and retiming
    std::int64_t frames = 0;  ///< paired between the two
    std::int64_t from = 0;    ///< first frame of the content that the two share
    std::int64_t to = 0;      ///< behind the last one
};

/// All partnerships of two cuts, looked at from either side.
class Partners {
  public:
    explicit Partners(std::size_t oldCount, std::size_t newCount,
                      std::vector<Partnership> inNewOrder, std::vector<Partnership> inOldOrder);

    /// The partners of an event of NEW, by their source; the first is *the* partner.
    std::span<const Partnership> ofNew(std::uint32_t event) const {
        return of(byNew, newStarts, event);
    }

    /// The partners of an event of OLD, by their source.
    std::span<const Partnership> ofOld(std::uint32_t event) const {
        return of(byOld, oldStarts, event);
    }

  private:
    static std::span<const Partnership> of(const std::vector<Partnership>& all,
                                           const std::vector<std::uint32_t>& starts,
                                           std::uint32_t event) {
        return {all.data() + starts[event], starts[event + 1] - starts[event]};
    }

    std::vector<Partnership> byNew;
    std::vector<Partnership> byOld;
    std::vector<std::uint32_t>
        newStarts;  // where an event's partnerships begin; one more at the end
    std::vector<std::uint32_t> oldStarts;
};

/// Partners are two events that pair at least half of the content that both hold, and either at
/// least half of the shorter of the two, or they are each other's best: most frames, then same
/// track, smallest shift, earliest. Among those that then have none, a whole event and another of
/// the same source whose source ranges overlap are partners, one to one.
///
/// `runs` come by event of NEW, then position.
Partners findPartners(const Cut& oldCut, const Cut& newCut, const std::vector<Run>& runs);

}  // namespace clipvane::diff
