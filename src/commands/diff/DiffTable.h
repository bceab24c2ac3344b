// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "commands/diff/Phrases.h"

namespace clipvane::diff {

/// The columns of the report that is made for reading. Rows count from 1.
inline constexpr std::array<std::string_view, 9> tableColumns{
    "Track",         "Old row", "New row", "Change", "Record in OLD",
    "Record in NEW", "Source",  "Reel",    "Name"};

using TableRow = std::array<std::string, tableColumns.size()>;

enum class Detail {
    /// Neighbours that are shifted, or moved, by the same amount are one row; what is not compared
    /// has none.
    usual,
    everyEvent  ///< each has a row
};

/// The rows of the report: by track, in record order, what was lost where it would stand. Texts are
/// as they stand in the lists.
std::vector<TableRow> tableRows(const Compared& compared, Detail detail);

}  // namespace clipvane::diff
