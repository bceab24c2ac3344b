// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "support/Random.h"

namespace clipvane::test {

/// A text that names frame rates in the forms of timeline files, or nearly does; valid UTF-8.
std::string generateFrameRateText(Random& random);

}  // namespace clipvane::test
