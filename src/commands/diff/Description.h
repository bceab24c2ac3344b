// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <clipvane/diff/CutDiff.h>
#include "commands/diff/CutEvent.h"
#include "commands/diff/Partners.h"
#include "commands/diff/TrackChains.h"

namespace clipvane::diff {

/// Describes each event of NEW. What it stands in place of comes later (ReportOrder.h).
std::vector<NewEvent> describeNew(const PartneredCuts& cuts, const std::vector<Run>& runs,
                                  const std::vector<TrackChain>& chains);

/// Describes each event of OLD.
std::vector<OldEvent> describeOld(const PartneredCuts& cuts, const std::vector<Run>& runs);

}  // namespace clipvane::diff
