// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// Where an event of NEW and its partner on the same track stand: the record frames that they
/// share, or all of them if they share none. A point counts as one frame.
struct Link {
    std::uint32_t event = 0;  ///< of NEW
    std::uint32_t partner = 0;
    std::int64_t newFrom = 0;
    std::int64_t newTo = 0;
    std::int64_t oldFrom = 0;
    std::int64_t oldTo = 0;
    std::int64_t frames = 0;  ///< paired between the two
    bool isInPlace = false;   ///< these have shift 0
};

/// Which links of one track form its chain. They are in the same order in NEW and in OLD, and have,
/// in this order, the most frames of shift 0, the most paired frames, the most links. Of equals
/// each link follows the one earliest in OLD. The indices come in order.
std::vector<std::uint32_t> findChain(const std::vector<Link>& links);

/// Which of the links are wholly past one of the chain: before it in one list and behind it in the
/// other. None of the chain's own is.
std::vector<bool> findMoved(const std::vector<Link>& links,
                            const std::vector<std::uint32_t>& chain);

}  // namespace clipvane::diff
