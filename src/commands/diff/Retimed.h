// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>
#include <vector>

#include "commands/diff/CutEvent.h"

namespace clipvane::diff {

/// Events of NEW and OLD without a partner, given by index, that are one shot at another speed: of
/// one source, with overlapping source ranges, at least one of the two whole. One to one: two whole
/// ones before a whole and a plain one, the same track before any, in source order the first with
/// the first.
std::vector<std::pair<std::uint32_t, std::uint32_t>> pairRetimed(
    const Cut& oldCut, const Cut& newCut, std::vector<std::uint32_t> oldEvents,
    std::vector<std::uint32_t> newEvents);

}  // namespace clipvane::diff
