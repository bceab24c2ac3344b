// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <string_view>
#include <vector>

#include "ui/Colours.h"

namespace clipvane::test {

struct ExpectedColumn {
    std::string_view identifier;
    const char* title;
    int width;
    QColor colour;
    const char* seventh;  ///< its text for `numberedEvent(7)`
};

/// What the user is promised of the event list's columns, from the left. Written out here and not
/// asked of the program: a new column is one more line.
inline const std::vector<ExpectedColumn> expectedColumns{
    {"eventNumber", "#", 64, colours::rgb(0.62, 0.82, 1.0), "007"},
    {"clipName", "Clip Name", 280, colours::rgb(0.97, 0.98, 1.0), "Clip 007"},
    {"reelID", "Reel ID", 140, colours::rgb(0.75, 0.92, 0.7), "R007"},
    {"sourceIn", "Source In", 132, colours::rgb(1.0, 0.84, 0.52), "01:00:00:00"},
    {"sourceOut", "Source Out", 132, colours::rgb(1.0, 0.84, 0.52), "01:00:04:00"},
    {"recordIn", "Record In", 132, colours::rgb(0.96, 0.65, 0.72), "02:00:00:00"},
    {"recordOut", "Record Out", 132, colours::rgb(0.96, 0.65, 0.72), "02:00:04:00"},
    {"format", "Type", 78, colours::secondaryText, "EDL"}};

inline const int columnCount = static_cast<int>(expectedColumns.size());
inline const int lastColumn = columnCount - 1;

/// The index of the column `identifier`; a test that asks for an unknown one fails.
inline int columnOf(std::string_view identifier) {
    for (int column = 0; column < columnCount; ++column) {
        if (expectedColumns[static_cast<std::size_t>(column)].identifier == identifier)
            return column;
    }
    ADD_FAILURE() << "there is no column " << identifier;
    return -1;
}

inline int widthOf(int column) {
    return expectedColumns[static_cast<std::size_t>(column)].width;
}

/// Where a column begins while all are as wide as at first and nothing is scrolled. Of
/// `columnCount`, the width of all.
inline int leftOf(int column) {
    int left = 0;
    for (int before = 0; before < column; ++before) left += widthOf(before);
    return left;
}

/// Where a column ends: the next one's first pixel.
inline int rightOf(int column) {
    return leftOf(column + 1);
}

}  // namespace clipvane::test
