// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "judges/CutLayout.h"

namespace clipvane::test::layout {

/// What an event of NEW and one of OLD have in common.
struct Bond {
    std::int64_t frames = 0;
    std::optional<std::int64_t> shift;
    std::set<std::int64_t> newPlaces;  // of what the two share
    std::set<std::int64_t> oldPlaces;
    bool isRetimed = false;
};

/// Who belongs to whom.
struct Bonds {
    std::map<std::size_t, std::map<std::size_t, Bond>> partners;  // of NEW, of OLD
    std::map<std::size_t, std::vector<std::size_t>> olds;         // of an event of NEW, by source
    std::map<std::size_t, std::vector<std::size_t>> news;         // of an event of OLD, by source

    bool hasPartner(std::size_t n) const { return olds.contains(n); }
    const Bond& between(std::size_t n, std::size_t o) const { return partners.at(n).at(o); }
};

Bonds findBonds(const Layout& layout);

}  // namespace clipvane::test::layout
