// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// The two rounds that decide most of a usual pair of lists. They look at the whole cuts.
class SureRounds {
  public:
    SureRounds(const Cut& oldCut, const Cut& newCut);

    /// Events that stand in OLD as they are: equal in content, range, name, track and place; of
    /// several equal ones the first with the first.
    std::vector<Run> pairUnchanged();

    /// Frames that each list uses once on a track, without the events that `pairUnchanged` paired.
    std::vector<Run> pairUnique() const;

  private:
    const Cut& oldCut;
    const Cut& newCut;
    std::vector<bool> isUnchanged;  // events of NEW
};

}  // namespace clipvane::diff
