// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/EventTableModel.h"

#include "base/Fatal.h"
#include "ui/EventColumn.h"
#include "ui/Text.h"

namespace clipvane {

bool EventTableModel::hasSameEvents() const {
    return document.events.size() == static_cast<std::size_t>(rows) &&
           document.removedEvents.size() == removedEvents && rows > 0 &&
           document.events.front().id == firstEvent;
}

/// Opening a file empties the removed events, so that only a removal adds one.
bool EventTableModel::hasLostOneEvent() const {
    return document.events.size() + 1 == static_cast<std::size_t>(rows) &&
           document.removedEvents.size() == removedEvents + 1;
}

void EventTableModel::remember() {
    rows = static_cast<int>(document.events.size());
    removedEvents = document.removedEvents.size();
    firstEvent = rows > 0 ? document.events.front().id : UUID{};
}

void EventTableModel::reload(std::optional<std::size_t> selectedRow) {
    if (hasSameEvents()) {
        emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
    } else if (hasLostOneEvent() && selectedRow && *selectedRow < static_cast<std::size_t>(rows)) {
        rowGone = static_cast<int>(*selectedRow);
        beginRemoveRows({}, *rowGone, *rowGone);
        remember();
        rowGone.reset();
        endRemoveRows();
    } else {
        beginResetModel();
        remember();
        endResetModel();
    }
}

const TimelineEvent& EventTableModel::eventAt(int row) const {
    if (rowGone && row == *rowGone) return document.removedEvents.back();
    const auto position = static_cast<std::size_t>(rowGone && row > *rowGone ? row - 1 : row);
    if (row < 0 || position >= document.events.size()) fatal("a row outside the event list");
    return document.events[position];
}

int EventTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows;
}

int EventTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(eventColumns().size());
}

QVariant EventTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const auto& column = eventColumns()[static_cast<std::size_t>(index.column())];
    switch (role) {
        case Qt::DisplayRole:
            return toQt(eventAt(index.row()).*column.field);
        case Qt::AccessibleTextRole: {
            const auto& text = eventAt(index.row()).*column.field;
            return text.empty() ? QStringLiteral("-") : toQt(text);
        }
        case Qt::ForegroundRole:
            return column.colour;
        case highlightedRole:
            return eventAt(index.row()).highlighted;
        default:
            return {};
    }
}

QVariant EventTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) return section + 1;
    if (section < 0 || section >= columnCount()) return {};
    return QString::fromLatin1(eventColumns()[static_cast<std::size_t>(section)].title);
}

}  // namespace clipvane
