// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// A stretch of an event's content.
struct Stretch {
    std::uint32_t event = 0;  ///< index into its cut
    std::int64_t from = 0;
    std::int64_t to = 0;
};

// The stretches of either list that `runs` pair, by event, then position. The runs come by event of
// NEW, then position.
std::vector<Stretch> pairedOfOld(const std::vector<Run>& runs, std::size_t oldCount);
std::vector<Stretch> pairedOfNew(const std::vector<Run>& runs);

/// The parts of a cut that are not paired yet: longest stretches, by event, then position.
class FreeStretches {
  public:
    /// All of the cut but `taken`, by event, then position.
    FreeStretches(const Cut& cut, std::span<const Stretch> taken);

    /// Takes away `taken`: parts of the free stretches in the same order, each within one.
    void take(std::span<const Stretch> taken);

    const std::vector<Stretch>& stretches() const { return free; }
    bool empty() const { return free.empty(); }

  private:
    std::vector<Stretch> free;
};

}  // namespace clipvane::diff
