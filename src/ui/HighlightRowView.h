// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

class QPainter;
class QRect;

namespace clipvane {

/// Paints what lies behind the cells of one row.
class HighlightRowView {
  public:
    bool isMarked = false;
    bool isAlternate = false;  ///< every second row is a little lighter

    void drawBackground(QPainter& painter, const QRect& dirtyRect) const;
    /// On top of the background, for a selected row, marked or not.
    void drawSelection(QPainter& painter, const QRect& dirtyRect) const;
};

}  // namespace clipvane
