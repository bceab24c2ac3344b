// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "judges/CutBonds.h"
#include "judges/CutChains.h"
#include "judges/CutLayout.h"

namespace clipvane::test::layout {

/// Which lost event of OLD each new event that alone takes its place stands for.
std::map<std::size_t, std::size_t> replacements(const Layout& layout, const Bonds& bonds,
                                                const Chains& chains);

/// The lines of the report that is made for reading, as "TRACK|OLD|NEW|", rows from 1. Behind it
/// stands "2 events shifted 12 later" where neighbours are one line, and "black 5 longer".
std::vector<std::string> linesOf(const Layout& layout, const Bonds& bonds, const Chains& chains);

}  // namespace clipvane::test::layout
