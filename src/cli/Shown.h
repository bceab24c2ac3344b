// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace clipvane::cli {

/// `text` for one line on the screen: valid UTF-8, with U+FFFD for each control character, line
/// ends and the characters that turn the writing direction among them. So a clip's name can
/// neither move the cursor nor hide its neighbours.
std::string shown(std::string_view text);

/// The columns that `text`, which is valid UTF-8, takes on a terminal: two for a wide character,
/// none for a mark that combines with the one before it.
std::size_t columnsOf(std::string_view text);

/// `text` in at most `columns` columns, at least 1: what does not fit is left out in its middle,
/// where an ellipsis stands.
std::string elided(std::string_view text, std::size_t columns);

}  // namespace clipvane::cli
