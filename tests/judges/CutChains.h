// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "judges/CutBonds.h"
#include "judges/CutLayout.h"

namespace clipvane::test::layout {

/// Where an event of NEW and a partner stand: the record frames that they share, or all of them.
struct Stay {
    std::size_t n = 0;
    std::size_t o = 0;
    std::int64_t newFrom = 0, newTo = 0, oldFrom = 0, oldTo = 0;
    std::int64_t frames = 0;
    bool inPlace = false;
};

Stay stayOf(const Layout& layout, const Bonds& bonds, std::size_t n, std::size_t o);

struct Chains {
    std::map<std::string, std::vector<Stay>> byTrack;
    std::set<std::size_t> members;  // events of NEW
    std::set<std::size_t> moved;    // events of NEW
};

Chains findChains(const Layout& layout, const Bonds& bonds);

}  // namespace clipvane::test::layout
