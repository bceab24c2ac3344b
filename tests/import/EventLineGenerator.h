// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "support/Random.h"

namespace clipvane::test {

/// An event line of an EDL, or something that nearly is one; valid UTF-8. About half of them match.
std::string generateEventLine(Random& random);

}  // namespace clipvane::test
