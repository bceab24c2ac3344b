// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFocusFrame>
#include <QStringListModel>
#include <QTableView>

#include "ui/HighlightRowView.h"

namespace clipvane {

/// The event list. Selects whole rows, one at a time.
///
/// All rows have the same height, so places are computed, not stored: a list of a million events
/// opens as fast as one of ten. The toolkit's own vertical header would store every row's height.
class EventTableView : public QTableView {
  public:
    static constexpr int rowHeight = 48;  ///< in logical pixels: 44, and 4 between two rows
    static constexpr int headerHeight = 32;

    explicit EventTableView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;
    void setSelectionModel(QItemSelectionModel* selection) override;
    /// The background of `row`; unmarked if there is no such row.
    HighlightRowView rowViewForRow(int row) const;

    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    /// Typing in the list does not search it.
    void keyboardSearch(const QString&) override {}

  protected:
    void updateGeometries() override;
    int verticalOffset() const override;
    int horizontalOffset() const override;
    void scrollContentsBy(int dx, int dy) override;
    int sizeHintForColumn(int column) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    int rowCount() const;
    int firstRowIn(const QRect& area) const;
    int lastRowIn(const QRect& area) const;
    int columnLeft(int column) const;
    void showColumn(int column);
    int stepColumn(int column, int step);
    void changeWidth(int column, int change);
    void keepMinimumWidth(int column, int width);
    void fitLastColumn();
    void paintRow(QPainter& painter, int row, const QRect& dirty) const;
    void paintCurrentCell(QPainter& painter) const;

    /// Clips the header, which is as wide as all its columns and moves when the list scrolls:
    /// assistive technology takes the left edge of the header for that of the first column.
    QWidget* headerStrip;
    QFocusFrame* focusFrame = nullptr;  ///< around the list and its header
    QStringListModel noRows;            ///< the vertical header's model
    int chosenLastWidth = 0;            ///< given to the last column by the user
    bool fitting = false;
};

}  // namespace clipvane
