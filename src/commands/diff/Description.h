// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <clipvane/diff/CutDiff.h>
#include "commands/diff/CutEvent.h"
#include "commands/diff/Partners.h"
#include "commands/diff/TrackChains.h"

namespace clipvane::diff {

/// What is to be said of each event of NEW, but for what it stands in place of.
std::vector<NewEvent> describeNew(const Cut& oldCut, const Cut& newCut,
                                  const std::vector<Run>& runs, const Partners& partners,
                                  const std::vector<TrackChain>& chains);

/// What is to be said of each event of OLD.
std::vector<OldEvent> describeOld(const Cut& oldCut, const Cut& newCut,
                                  const std::vector<Run>& runs, const Partners& partners);

}  // namespace clipvane::diff
