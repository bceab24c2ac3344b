// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "judges/CutBonds.h"
#include "judges/CutLayout.h"

namespace clipvane::test::layout {

/// " trimmed HEAD TAIL INSIDE" for an event of NEW that has partners; empty where it is as long.
std::string trimOf(const Layout& layout, const Bonds& bonds, std::size_t n);

}  // namespace clipvane::test::layout
