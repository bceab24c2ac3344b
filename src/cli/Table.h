// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace clipvane::cli {

/// Rows of cells as text in columns of even width, two blanks between them. Every cell is made fit
/// to be shown (see Shown.h).
class Table {
  public:
    struct Column {
        std::string title;
        std::size_t least = 0;  ///< columns of the terminal that it keeps when there are few
    };

    explicit Table(std::vector<Column> columns);

    void addRow(std::vector<std::string> cells);

    /// The lines, the titles first. Cells are elided in their middle where the lines would be wider
    /// than `width`, the widest columns first.
    std::string text(std::optional<std::size_t> width) const;

  private:
    std::vector<std::size_t> widths(std::optional<std::size_t> width) const;

    std::vector<Column> columns;
    std::vector<std::vector<std::string>> rows;
};

}  // namespace clipvane::cli
