// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/HighlightRowView.h"

#include <QPainter>

#include "ui/Colours.h"

namespace clipvane {

void HighlightRowView::drawBackground(QPainter& painter, const QRect& dirtyRect) const {
    painter.fillRect(dirtyRect, colours::table);
    if (isMarked) {
        painter.fillRect(dirtyRect, colours::markedRow);
    } else if (isAlternate) {
        painter.fillRect(dirtyRect, colours::tableAlternate);
    }
}

void HighlightRowView::drawSelection(QPainter& painter, const QRect& dirtyRect) const {
    painter.fillRect(dirtyRect, colours::selectedRow);
}

}  // namespace clipvane
