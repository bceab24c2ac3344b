// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

namespace clipvane {

// Where things lie: pure functions of sizes. The unit is a logical pixel, the origin the bottom
// left corner of the surrounding area, and y grows upward; `flipped` gives them to the toolkit.

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect&) const = default;
};

inline constexpr double windowWidth = 1440;  ///< of the main window's content at first
inline constexpr double windowHeight = 860;
inline constexpr double windowMinimumWidth = 1180;  ///< with the window's frame
inline constexpr double windowMinimumHeight = 720;

/// The four regions of the main window.
struct MainLayout {
    Rect toolbar;
    Rect status;
    Rect leftPanel;
    Rect rightPanel;
};
MainLayout mainLayout(double width, double height);

/// A panel: its title, and its content below that. The margins are 14.
struct PanelLayout {
    Rect title;
    Rect content;
};
PanelLayout panelLayout(double width, double height);
inline constexpr double panelCornerRadius = 8;

/// The stack of the detail panel: the title, the rows, the comments block, from the top. Its height
/// is fixed; the comments block takes what the others leave.
struct DetailStackLayout {
    Rect title;
    std::vector<Rect> rows;
    Rect comments;
};
inline constexpr double detailStackHeight = 640;
double detailStackWidth(double contentWidth);
DetailStackLayout detailStackLayout(double width, double titleHeight, std::size_t rowCount);

inline constexpr double detailWidth = 360;  ///< of rows and comments block, at least
inline constexpr double detailRowHeight = 26;

struct DetailRowLayout {
    Rect key;
    Rect value;
};
DetailRowLayout detailRowLayout(double width);

inline constexpr double commentsBlockHeight = 302;  ///< that the block prefers

struct CommentsBlockLayout {
    Rect title;
    Rect scroll;  ///< the framed editor
};
CommentsBlockLayout commentsBlockLayout(double width, double height);

}  // namespace clipvane
