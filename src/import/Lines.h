// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace clipvane {

/// Walks through the lines of a UTF-8 text. Every newline character (`isNewline`) ends a line by
/// itself, so a carriage return and line feed have an empty line between them.
class Lines {
  public:
    explicit Lines(std::string_view text) : text(text) { findLineFeed(); }

    /// The next line without its newline, or nothing after the last one.
    std::optional<std::string_view> next();

  private:
    void findLineFeed();

    std::string_view text;
    std::size_t position = 0;  ///< where the next line begins
    std::size_t lineFeed = 0;  ///< the first one from there on, or the text's end
    bool isThrough = false;
};

}  // namespace clipvane
