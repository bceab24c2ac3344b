// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "commands/diff/Chain.h"
#include "commands/diff/CutEvent.h"
#include "commands/diff/Partners.h"

namespace clipvane::diff {

/// An event of NEW on its track's chain.
struct ChainLink {
    std::uint32_t event = 0;
    std::uint32_t partner = 0;
    std::int64_t oldFrom = 0;  ///< where what the two share began in OLD
};

/// The events of NEW that stay in order on one track.
struct TrackChain {
    std::vector<ChainLink> chain;      ///< in order
    std::vector<std::uint32_t> moved;  ///< events of NEW that are past one of the chain
};

/// The chain of each of the tracks.
std::vector<TrackChain> findTrackChains(const PartneredCuts& cuts, std::size_t trackCount);

}  // namespace clipvane::diff
