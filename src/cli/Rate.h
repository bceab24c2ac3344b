// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace clipvane::cli {

/// The largest rate that can be given, in frames per second.
inline constexpr double largestRate = 1000;

/// The rate that `text` says, taken literally: digits with optional decimals ("23.976"), or a
/// fraction of two whole numbers ("24000/1001"). Nothing for anything else, for zero and for what
/// is above `largestRate`.
std::optional<double> parseRate(std::string_view text);

}  // namespace clipvane::cli
