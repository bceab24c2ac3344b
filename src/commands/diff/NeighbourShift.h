// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "commands/diff/CutEvent.h"
#include "commands/diff/FreeStretches.h"

namespace clipvane::diff {

/// Which paired frame a free one takes after.
enum class Neighbour { before, behind };

/// For each free stretch of NEW the shift of the nearest paired frame before or behind it on its
/// track, in record order; nothing where there is none. `runs` and `free` come by event, then
/// position, and share no frame. Points are things without frames: they have no say.
std::vector<std::optional<std::int64_t>> neighbourShifts(const Cut& oldCut, const Cut& newCut,
                                                         const std::vector<Run>& runs,
                                                         const std::vector<Stretch>& free,
                                                         Neighbour neighbour);

}  // namespace clipvane::diff
