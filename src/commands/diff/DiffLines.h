// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "commands/diff/Phrases.h"

namespace clipvane::diff {

/// A line for each change, all fields in quotes, under a line of their names. What does not apply
/// is empty. docs/diff.md tells the fields; the names and their order stay.
std::string csvLines(const Compared& compared);

/// The same as a JSON object a line, null where a field does not apply, and one with the sums.
std::string jsonLines(const Compared& compared);

}  // namespace clipvane::diff
