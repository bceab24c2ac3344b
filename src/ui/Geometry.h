// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QSize>
#include <cstddef>
#include <vector>

namespace clipvane {

// Where things lie: pure functions of sizes. The unit is a logical pixel, the origin the bottom
// left corner of the surrounding area, and y grows upward.

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// `rect` as the toolkit wants it: in whole pixels, from the top left corner of an area
/// `outerHeight` high. The edges are rounded, not the sizes, so that a margin is the same wherever
/// it lies.
QRect flipped(const Rect& rect, double outerHeight);

inline constexpr QSize windowSize{1440, 860};         ///< of the main window's content at first
inline constexpr QSize windowMinimumSize{1180, 720};  ///< with the window's frame

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
inline constexpr int detailStackHeight = 640;
double detailStackWidth(double contentWidth);
DetailStackLayout detailStackLayout(double width, double titleHeight, std::size_t rowCount);

inline constexpr QSize detailRowSize{360, 26};  ///< that a row prefers; it is never narrower

struct DetailRowLayout {
    Rect key;
    Rect value;
};
DetailRowLayout detailRowLayout(double width);

inline constexpr QSize commentsBlockSize{360, 302};  ///< that the block prefers

struct CommentsBlockLayout {
    Rect title;
    Rect scroll;  ///< the framed editor
};
CommentsBlockLayout commentsBlockLayout(double width, double height);

}  // namespace clipvane
