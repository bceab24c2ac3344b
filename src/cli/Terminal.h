// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>

namespace clipvane::cli {

/// The columns of the terminal that `descriptor` leads to, at least 2; nothing when it is none.
std::optional<std::size_t> terminalColumns(int descriptor);

/// Whether progress and colour may be shown there: on a terminal that understands them, unless the
/// environment has a NO_COLOR that is not empty.
bool mayDecorate(int descriptor);

}  // namespace clipvane::cli
