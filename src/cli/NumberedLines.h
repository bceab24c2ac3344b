// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "import/Lines.h"

namespace clipvane::cli {

/// The lines of a text as an editor counts them: a carriage return and its line feed are one end,
/// and what ends the last line begins no other.
class NumberedLines {
  public:
    struct Line {
        std::size_t number = 0;  ///< from 1
        std::string_view text;
    };

    explicit NumberedLines(std::string_view text) : text(text), lines(text) {}

    std::optional<Line> next() {
        while (const auto line = lines.next()) {
            if (isLineFeedOfPair(*line) || isEndOfText(*line)) continue;
            return Line{++number, *line};
        }
        return std::nullopt;
    }

  private:
    std::size_t positionOf(std::string_view line) const {
        return static_cast<std::size_t>(line.data() - text.data());
    }
    bool isLineFeedOfPair(std::string_view line) const {
        const std::size_t position = positionOf(line);
        return line.empty() && position > 0 && position < text.size() &&
               text[position - 1] == '\r' && text[position] == '\n';
    }
    bool isEndOfText(std::string_view line) const {
        return line.empty() && positionOf(line) == text.size();
    }

    std::string_view text;
    Lines lines;
    std::size_t number = 0;
};

}  // namespace clipvane::cli
