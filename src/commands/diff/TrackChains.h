// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "commands/diff/Chain.h"
#include "commands/diff/CutEvent.h"
#include "commands/diff/Partners.h"

namespace clipvane::diff {

/// The events of NEW that stay in order on one track.
struct TrackChain {
    std::vector<Link> chain;           ///< in order
    std::vector<std::uint32_t> moved;  ///< events of NEW that are past one of the chain
};

/// The chain of each of the tracks.
std::vector<TrackChain> findTrackChains(const Cut& oldCut, const Cut& newCut,
                                        const Partners& partners, std::size_t trackCount);

}  // namespace clipvane::diff
