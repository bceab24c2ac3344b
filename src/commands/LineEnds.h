// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace clipvane {

/// What ends the lines of a text.
enum class LineEnd { lineFeed, carriageReturn, carriageReturnLineFeed };

/// The kind of all line ends in `text`; `lineFeed` when it has none or mixes them.
LineEnd lineEndOf(std::string_view text);

/// `text` with line ends of `kind` for its line feeds. What is of that kind already stays.
std::string withLineEnds(std::string text, LineEnd kind);

}  // namespace clipvane
