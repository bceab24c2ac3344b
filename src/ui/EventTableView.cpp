// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/EventTableView.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "ui/EventCell.h"
#include "ui/EventColumn.h"
#include "ui/EventTableModel.h"
#include "ui/Fonts.h"

namespace clipvane {
namespace {

constexpr int widthStep = 20;  ///< by which a key widens a column, in logical pixels

int narrowest(int column) {
    return eventColumns()[static_cast<std::size_t>(column)].width;
}

}  // namespace

EventTableView::EventTableView(QWidget* parent)
    : QTableView(parent), headerStrip(new QWidget(this)) {
    setAccessibleName("Event Viewer");
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new EventCell(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setShowGrid(false);
    verticalHeader()->hide();
    if (auto* corner = findChild<QAbstractButton*>()) corner->hide();

    QHeaderView& header = *horizontalHeader();
    header.setParent(headerStrip);
    header.setAccessibleName("Event fields");
    header.setFont(systemFont(12, QFont::DemiBold));
    header.setFixedHeight(headerHeight);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setHighlightSections(false);
    header.setSectionsClickable(false);
    header.setMinimumSectionSize(narrowest(0));
    header.setResizeContentsPrecision(0);
    connect(&header, &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { keepMinimumWidth(column, width); });
}

void EventTableView::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    verticalHeader()->setModel(&noRows);
    fitting = true;
    for (int column = 0; column < model->columnCount(); ++column) {
        setColumnWidth(column, narrowest(column));
    }
    fitting = false;
    const auto layOut = [this] {
        updateGeometries();
        viewport()->update();
    };
    connect(model, &QAbstractItemModel::rowsRemoved, this, layOut);
    connect(model, &QAbstractItemModel::modelReset, this, layOut);
    // The toolkit looks for the changed rows in its own vertical header, which has none.
    connect(model, &QAbstractItemModel::dataChanged, viewport(), qOverload<>(&QWidget::update));
}

void EventTableView::setSelectionModel(QItemSelectionModel* selection) {
    QTableView::setSelectionModel(selection);
    // The header does not show the selection, and would be painted again with each change of it.
    horizontalHeader()->setSelectionModel(new QItemSelectionModel(model(), this));
}

int EventTableView::rowCount() const {
    return model() != nullptr ? model()->rowCount() : 0;
}

int EventTableView::verticalOffset() const {
    return verticalScrollBar()->value();
}

int EventTableView::horizontalOffset() const {
    return horizontalScrollBar()->value();
}

HighlightRowView EventTableView::rowViewForRow(int row) const {
    HighlightRowView view{.isMarked = false, .isAlternate = row % 2 != 0};
    if (row >= 0 && row < rowCount()) {
        view.isMarked = model()->index(row, 0).data(EventTableModel::highlightedRole).toBool();
    }
    return view;
}

// Places

QRect EventTableView::visualRect(const QModelIndex& index) const {
    if (!index.isValid() || index.model() != model()) return {};
    return {columnLeft(index.column()), index.row() * rowHeight - verticalOffset(),
            columnWidth(index.column()), rowHeight};
}

int EventTableView::columnLeft(int column) const {
    return horizontalHeader()->sectionPosition(column) - horizontalOffset();
}

QModelIndex EventTableView::indexAt(const QPoint& point) const {
    if (model() == nullptr) return {};
    const int y = point.y() + verticalOffset();
    const int column = horizontalHeader()->logicalIndexAt(point.x() + horizontalOffset());
    return y < 0 || column < 0 ? QModelIndex() : model()->index(y / rowHeight, column);
}

int EventTableView::firstRowIn(const QRect& area) const {
    return std::max(area.top() + verticalOffset(), 0) / rowHeight;
}

int EventTableView::lastRowIn(const QRect& area) const {
    return std::min((area.bottom() + verticalOffset()) / rowHeight, rowCount() - 1);
}

void EventTableView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid()) return;
    const int top = index.row() * rowHeight;
    const int page = viewport()->height();
    QScrollBar& bar = *verticalScrollBar();
    if (hint == PositionAtCenter) {
        bar.setValue(top - (page - rowHeight) / 2);
    } else if (hint == PositionAtTop || top < bar.value() || page < rowHeight) {
        bar.setValue(top);
    } else if (hint == PositionAtBottom || top + rowHeight > bar.value() + page) {
        bar.setValue(top + rowHeight - page);
    }
}

/// Only moving from column to column scrolls sideways; moving from row to row does not.
void EventTableView::showColumn(int column) {
    const int left = horizontalHeader()->sectionPosition(column);
    const int right = left + columnWidth(column);
    QScrollBar& bar = *horizontalScrollBar();
    if (right > bar.value() + viewport()->width()) bar.setValue(right - viewport()->width());
    if (left < bar.value()) bar.setValue(left);
}

/// The column one `step` from `column`, or from the nearest that is in view. Scrolls to
/// it, and on to the next column that is hidden on that side: each press shows something new.
int EventTableView::stepColumn(int column, int step) {
    const QHeaderView& header = *horizontalHeader();
    const int end = model()->columnCount() - 1;
    const int left = horizontalScrollBar()->value();
    const int right = left + viewport()->width();
    int first = 0;
    while (first < end && header.sectionPosition(first) < left) ++first;
    int last = first;
    const auto endOf = [&](int index) {
        return header.sectionPosition(index) + header.sectionSize(index);
    };
    while (last < end && endOf(last + 1) <= right) ++last;
    const int stepped = std::clamp(std::clamp(column, first, last) + step, 0, end);
    showColumn(std::clamp(step > 0 ? last + 1 : first - 1, 0, end));
    showColumn(stepped);
    return stepped;
}

void EventTableView::updateGeometries() {
    QHeaderView& header = *horizontalHeader();
    setViewportMargins(0, headerHeight, 0, 0);
    const QRect area = viewport()->geometry();
    headerStrip->setGeometry(area.left(), area.top() - headerHeight, area.width(), headerHeight);
    fitLastColumn();

    QScrollBar& vertical = *verticalScrollBar();
    vertical.setPageStep(area.height());
    vertical.setSingleStep(rowHeight);
    vertical.setRange(0, std::max(rowCount() * rowHeight - area.height(), 0));
    QScrollBar& horizontal = *horizontalScrollBar();
    horizontal.setPageStep(area.width());
    horizontal.setSingleStep(rowHeight);
    horizontal.setRange(0, std::max(header.length() - area.width(), 0));
    header.setGeometry(-horizontal.value(), 0, std::max(header.length(), area.width()),
                       headerHeight);
    QAbstractItemView::updateGeometries();
}

void EventTableView::scrollContentsBy(int dx, int dy) {
    if (dx != 0) horizontalHeader()->move(-horizontalOffset(), 0);
    viewport()->scroll(dx, dy);
}

// Columns

void EventTableView::keepMinimumWidth(int column, int width) {
    viewport()->update();
    if (fitting) return;
    const int kept = std::max(width, narrowest(column));
    if (column == model()->columnCount() - 1) chosenLastWidth = kept;
    fitting = true;
    setColumnWidth(column, kept);
    fitting = false;
    updateGeometries();
}

void EventTableView::changeWidth(int column, int change) {
    setColumnWidth(column, columnWidth(column) + change);
    showColumn(column);
}

void EventTableView::fitLastColumn() {
    if (fitting || model() == nullptr) return;
    const int last = model()->columnCount() - 1;
    const int rest = viewport()->width() - (horizontalHeader()->length() - columnWidth(last));
    fitting = true;
    setColumnWidth(last, std::max({rest, chosenLastWidth, narrowest(last)}));
    fitting = false;
}

int EventTableView::sizeHintForColumn(int column) const {
    if (model() == nullptr) return -1;
    int width = narrowest(column);
    const QRect area = viewport()->rect();
    for (int row = firstRowIn(area); row <= lastRowIn(area); ++row) {
        width = std::max(width, itemDelegate()->sizeHint({}, model()->index(row, column)).width());
    }
    return width;
}

// Selection

QModelIndex EventTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    const int last = rowCount() - 1;
    if (last < 0) return {};
    const QModelIndex current = currentIndex();
    if (!current.isValid()) {
        return model()->index(action == MoveEnd || action == MoveUp ? last : 0, 0);
    }
    const int page = std::max(viewport()->height() / rowHeight, 1);
    const int row = current.row();
    const int column = current.column();
    const auto at = [&](int wanted) { return model()->index(std::clamp(wanted, 0, last), column); };
    switch (action) {
        case MoveUp:
            return at(row - 1);
        case MoveDown:
            return at(row + 1);
        case MovePageUp:
            return at(row - page);
        case MovePageDown:
            return at(row + page);
        case MoveHome:
            return at(0);
        case MoveEnd:
            return at(last);
        case MoveLeft:
            return model()->index(row, stepColumn(column, -1));
        case MoveRight:
            return model()->index(row, stepColumn(column, 1));
        case MoveNext:
        case MovePrevious:
            break;
    }
    return current;
}

void EventTableView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
    const QModelIndex index = indexAt(rect.topLeft());
    if (selectionModel() == nullptr) return;
    selectionModel()->select(index.isValid() ? QItemSelection(index, index) : QItemSelection(),
                             command);
}

QRegion EventTableView::visualRegionForSelection(const QItemSelection& selection) const {
    QRegion region;
    const QRect area = viewport()->rect();
    for (const QItemSelectionRange& range : selection) {
        const int top = range.top() * rowHeight - verticalOffset();
        region += QRect(0, top, area.width(), range.height() * rowHeight) & area;
    }
    return region;
}

void EventTableView::mousePressEvent(QMouseEvent* event) {
    const bool beside = !indexAt(event->position().toPoint()).isValid();
    if (beside && event->button() == Qt::LeftButton) selectionModel()->clear();
    QTableView::mousePressEvent(event);
}

void EventTableView::keyPressEvent(QKeyEvent* event) {
    // The toolkit would put the current cell on the clipboard, over what the user has there.
    if (event->matches(QKeySequence::Copy)) return;
    const bool widens = event->key() == Qt::Key_Right;
    if (event->modifiers().testFlag(Qt::AltModifier) && (widens || event->key() == Qt::Key_Left)) {
        return changeWidth(std::max(currentIndex().column(), 0), widens ? widthStep : -widthStep);
    }
    QTableView::keyPressEvent(event);
}

void EventTableView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    if (focusFrame == nullptr) focusFrame = new QFocusFrame(this);
    focusFrame->setWidget(this);
}

void EventTableView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    // When another window comes to the front, the focus will be back.
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return;
    if (focusFrame != nullptr) focusFrame->setWidget(nullptr);
}

}  // namespace clipvane
