// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// The two rounds that decide most of a usual pair of lists. They look at the whole cuts, and pair,
/// in no order,
///
/// - events that stand in OLD as they are: equal in content, range, name, track and place; of
///   several equal ones the first with the first;
/// - frames that each list uses once on a track, without those events.
std::vector<Run> pairSurely(const Cut& oldCut, const Cut& newCut);

}  // namespace clipvane::diff
