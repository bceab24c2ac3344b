// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "commands/diff/CutEvent.h"
#include "commands/diff/Partners.h"

namespace clipvane::diff {

/// How much longer an event of NEW is in the source than what it was in OLD, in frames; negative
/// where it is shorter. The pieces of a shot count as one: its head is that of the first, its tail
/// that of the one that reaches furthest. What is left out between two (shorter) or used twice
/// (longer) stands at the head of the later.
struct Trim {
    std::int64_t head = 0;
    std::int64_t tail = 0;
    std::int64_t inside = 0;  ///< between joined parts: what neither had, less what both had
};

/// The trim of each event of NEW.
std::vector<Trim> findTrims(const PartneredCuts& cuts);

}  // namespace clipvane::diff
