// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/HighlightRowView.h"

#include <QPainter>

#include "ui/Colours.h"

namespace clipvane {

void HighlightRowView::drawBackground(QPainter& painter, const QRect& dirtyRect) const {
    const bool isLighter = isAlternate && !isMarked;
    painter.fillRect(dirtyRect, isLighter ? colours::tableAlternate : colours::table);
    if (isMarked) painter.fillRect(dirtyRect, colours::markedRow);
}

void HighlightRowView::drawSelection(QPainter& painter, const QRect& dirtyRect) const {
    painter.fillRect(dirtyRect, colours::selectedRow);
}

}  // namespace clipvane
