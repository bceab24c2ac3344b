// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "judges/CutBonds.h"
#include "judges/CutChains.h"
#include "judges/CutLayout.h"

namespace clipvane::test::layout {

/// The record frames that events of a track cover.
std::set<std::int64_t> covered(const Side& side, const std::string& track);

/// By how much the black before an event of NEW has become longer, where it has; in the order in
/// which an event's parts stand.
std::multimap<std::size_t, std::int64_t> blackChanges(const Layout& layout, const Bonds& bonds,
                                                      const Chains& chains);

}  // namespace clipvane::test::layout
