// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "ui/Colours.h"
#include "ui/ControlPainter.h"
#include "ui/EventTableView.h"

namespace clipvane {

void EventTableView::paintRow(QPainter& painter, int row, const QRect& dirty) const {
    const QRect area(0, row * rowHeight - verticalOffset(), viewport()->width(), rowHeight);
    const QRect touched = area & dirty;
    const HighlightRowView rowView = rowViewForRow(row);
    rowView.drawBackground(painter, touched);
    const bool selected = selectionModel()->isRowSelected(row);
    if (selected) rowView.drawSelection(painter, touched);

    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.state.setFlag(QStyle::State_Selected, selected);
    for (int column = 0; column < model()->columnCount(); ++column) {
        const QModelIndex index = model()->index(row, column);
        option.rect = visualRect(index);
        if (option.rect.intersects(dirty)) itemDelegate()->paint(&painter, option, index);
    }
}

/// The cell that Left and Right have gone to, while the keyboard is used.
void EventTableView::paintCurrentCell(QPainter& painter) const {
    constexpr int radius = 3;
    const QModelIndex index = currentIndex();
    if (!index.isValid() || !hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;
    const QRect ring = visualRect(index).adjusted(2, 2, -3, -2);  // clear of the line beside it
    paintBox(painter, ring, radius, Qt::NoBrush, colours::focusRing);
}

void EventTableView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRect dirty = event->rect();
    const int end = rowCount() * rowHeight - verticalOffset();
    if (dirty.bottom() >= end) {
        QRect below = dirty;
        below.setTop(std::max(dirty.top(), end));
        painter.fillRect(below, colours::table);
    }
    // Lines would run through the text that covers an empty list.
    if (rowCount() == 0) return;
    for (int row = firstRowIn(dirty); row <= lastRowIn(dirty); ++row) paintRow(painter, row, dirty);
    for (int column = 0; column < model()->columnCount(); ++column) {
        const int x = columnLeft(column) + columnWidth(column) - 1;
        painter.fillRect(QRect(x, dirty.top(), 1, dirty.height()), colours::tableGrid);
    }
    paintCurrentCell(painter);
}

}  // namespace clipvane
