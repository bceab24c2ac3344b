// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "judges/CutLayout.h"

namespace clipvane::test::layout {

/// "kept 100 100 new 12 again 0 gone 0 fewer 0 longer 12", by counting uses.
std::string sumsOf(const Layout& layout);

/// For each track on which no events of NEW overlap, its stretches of NEW that play OLD's same
/// track: from, to, and where they begin in OLD.
std::map<std::string, std::vector<std::array<std::int64_t, 3>>> stretchesOf(const Layout& layout);

}  // namespace clipvane::test::layout
