// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// Pairs the frames of two cuts one to one: as many as can be, in ten rounds from the surest to the
/// least sure, so that ranges stay together. The runs come by event of NEW and position in its
/// content; neighbours of the same two events are one.
std::vector<Run> pairFrames(const Cut& oldCut, const Cut& newCut);

}  // namespace clipvane::diff
