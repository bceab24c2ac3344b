// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "cli/Finding.h"

namespace clipvane::cli {

/// What the lines of an EDL tell, whose bytes are given: lines that are skipped, by kind; lines
/// that look like events and are none; a first event that a byte-order mark hides; other encodings
/// than UTF-8; drop-frame counting.
Findings edlFindings(std::string_view bytes);

}  // namespace clipvane::cli
