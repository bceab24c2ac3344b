// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "commands/diff/CutEvent.h"
#include "commands/diff/Partners.h"
#include "commands/diff/TrackChains.h"

namespace clipvane::diff {

/// How much longer the black before an event of NEW has become.
struct BlackChange {
    std::uint32_t before = 0;  ///< event of NEW
    std::int64_t longer = 0;   ///< in frames, never 0
};

/// The changes of black, what no event of a track covers, between neighbours on each track's chain;
/// by track, in the chain's order.
std::vector<std::vector<BlackChange>> findBlackChanges(const PartneredCuts& cuts,
                                                       const std::vector<TrackChain>& chains);

}  // namespace clipvane::diff
