// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "judges/CutBonds.h"
#include "judges/CutChains.h"
#include "judges/CutLayout.h"

namespace clipvane::test::layout {

/// Frames of an event that are not paired.
struct Lack {
    std::int64_t lacking = 0;  // the other list does not use them
    std::int64_t further = 0;  // it does not use them as often
};

Lack lackOf(const Side& side, std::size_t event, const Side& other);

/// Whether the event holds no frame.
bool isThing(const Event& event);

/// What is said of each event of NEW, but for what it stands in place of: "of 3 shifted 12 (0 0
/// 0)".
std::vector<std::string> describeNews(const Layout& layout, const Bonds& bonds,
                                      const Chains& chains);

/// What is said of each event of OLD: "gone (50 0)", or " (0 0)" of one that has a partner.
std::vector<std::string> describeOlds(const Layout& layout, const Bonds& bonds);

}  // namespace clipvane::test::layout
