// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include <clipvane/diff/CutDiff.h>
#include "commands/diff/Black.h"
#include "commands/diff/CutEvent.h"
#include "commands/diff/TrackChains.h"

namespace clipvane::diff {

/// Tells each new event that alone takes the place of a lost one: between two neighbours of the
/// chain, or before the first, or behind the last, NEW has this one and OLD lost that one.
void findReplacements(const Cut& oldCut, const std::vector<TrackChain>& chains,
                      const std::vector<OldEvent>& oldEvents, std::vector<NewEvent>& newEvents);

/// The lines of the report: track by track, in record order. An event of OLD stands behind the one
/// of the chain that it followed; what is the same has no line.
std::vector<ReportLine> makeReport(const Cut& oldCut, const std::vector<TrackChain>& chains,
                                   const std::vector<std::vector<BlackChange>>& black,
                                   const std::vector<NewEvent>& newEvents,
                                   const std::vector<OldEvent>& oldEvents);

}  // namespace clipvane::diff
