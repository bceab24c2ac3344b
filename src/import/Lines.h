// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace clipvane {

/// Goes through the lines of a UTF-8 text. Every newline character (`isNewline`) ends a line, so
/// there is an empty line between a carriage return and a line feed.
class Lines {
  public:
    explicit Lines(std::string_view text) : text(text) { findLineFeed(); }

    /// The next line without its newline, or nothing after the last one.
    std::optional<std::string_view> next() {
        if (isThrough) return std::nullopt;
        if (lineFeed > lookedAt) lookAhead();
        if (mayHoldOthers) return nextAtAnyNewline();
        const std::string_view line(text.data() + position, lineFeed - position);
        passLineFeed();
        return line;
    }

  private:
    /// The C library finds line feeds fastest.
    void findLineFeed() { lineFeed = std::min(text.find('\n', position), text.size()); }
    void passLineFeed() {
        isThrough = lineFeed == text.size();
        position = lineFeed + 1;
        if (!isThrough) findLineFeed();
    }
    void lookAhead();
    std::string_view nextAtAnyNewline();

    std::string_view text;
    std::size_t position = 0;  ///< where the next line begins
    std::size_t lineFeed = 0;  ///< the first one from there on, or the text's end
    std::size_t lookedAt = 0;  ///< to here it is known whether there may be other newlines
    bool mayHoldOthers = false;
    bool isThrough = false;
};

}  // namespace clipvane
