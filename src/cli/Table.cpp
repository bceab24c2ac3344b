// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Table.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "cli/Shown.h"

namespace clipvane::cli {
namespace {

constexpr std::size_t gap = 2;

/// The widest column that may become narrower; nothing when none may.
std::optional<std::size_t> widestOf(const std::vector<std::size_t>& widths,
                                    const std::vector<Table::Column>& columns) {
    std::optional<std::size_t> widest;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (widths[i] <= columns[i].least) continue;
        if (!widest || widths[i] > widths[*widest]) widest = i;
    }
    return widest;
}

void appendRow(std::string& text, const std::vector<std::string>& cells,
               const std::vector<std::size_t>& widths) {
    std::size_t blanks = 0;  // none are left behind the last cell
    for (std::size_t i = 0; i < cells.size(); ++i) {
        std::size_t used = columnsOf(cells[i]);
        if (!cells[i].empty()) {
            text.append(blanks, ' ');
            blanks = 0;
        }
        if (used <= widths[i]) {
            text += cells[i];
        } else {
            const std::string cell = elided(cells[i], std::max<std::size_t>(widths[i], 1));
            text += cell;
            used = columnsOf(cell);
        }
        blanks += widths[i] - used + gap;
    }
    text += '\n';
}

}  // namespace

Table::Table(std::vector<Column> columns) : columns(std::move(columns)) {
    std::vector<std::string> titles;
    for (const Column& column : this->columns) titles.push_back(column.title);
    addRow(std::move(titles));
}

void Table::addRow(std::vector<std::string> cells) {
    for (std::string& cell : cells) cell = shown(cell);
    rows.push_back(std::move(cells));
}

std::vector<std::size_t> Table::widths(std::optional<std::size_t> width) const {
    std::vector<std::size_t> result(columns.size());
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            result[i] = std::max(result[i], columnsOf(row[i]));
        }
    }
    if (!width) return result;
    std::size_t total = std::reduce(result.begin(), result.end()) + gap * (columns.size() - 1);
    // A name of a million characters must not take a million steps.
    for (std::size_t& column : result) {
        const std::size_t cut = column > *width ? column - *width : 0;
        column -= cut;
        total -= cut;
    }
    for (; total > *width; --total) {
        const auto widest = widestOf(result, columns);
        if (!widest) break;
        --result[*widest];
    }
    return result;
}

std::string Table::text(std::optional<std::size_t> width) const {
    const auto each = widths(width);
    std::string text;
    for (const auto& row : rows) appendRow(text, row, each);
    return text;
}

}  // namespace clipvane::cli
