// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "commands/diff/CutEvent.h"
#include "commands/diff/FreeStretches.h"

namespace clipvane::diff {

/// Frames of an event that are not paired.
struct Unpaired {
    std::uint32_t event = 0;   ///< index into its cut
    std::int64_t lacking = 0;  ///< the other list does not use them at all: new, or gone
    std::int64_t further = 0;  ///< the other list uses them, not as often: again, or fewer
};

/// The unpaired frames of the events of `cut` that have some, in its order, given what of it is
/// paired: by event, then position.
std::vector<Unpaired> countUnpaired(const Cut& cut, const std::vector<Stretch>& paired,
                                    const Cut& other);

}  // namespace clipvane::diff
