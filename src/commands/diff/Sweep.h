// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <tuple>
#include <vector>

#include "commands/diff/CutEvent.h"
#include "commands/diff/FreeStretches.h"

namespace clipvane::diff {

/// What the members of a group have in common. What the numbers are is each round's affair.
struct GroupKey {
    std::uint32_t content = 0;
    std::uint32_t track = 0;
    std::int64_t first = 0;
    std::int64_t second = 0;

    auto fields() const { return std::tuple(content, track, first, second); }
    bool operator==(const GroupKey& other) const { return fields() == other.fields(); }
    bool operator<(const GroupKey& other) const { return fields() < other.fields(); }
};

/// A free stretch that takes part in a round.
struct Candidate {
    GroupKey key;
    Stretch stretch;
};

/// Pairs the candidates of each group, in any order, and appends what it finds to `runs`.
///
/// A group is swept in the content's order: a pair once made lasts until one of its two stretches
/// ends; what is free is paired first with first, in record order.
void sweep(std::vector<Candidate> oldCandidates, std::vector<Candidate> newCandidates,
           std::vector<Run>& runs);

}  // namespace clipvane::diff
