// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/EventTableModel.h"

#include <clipvane/Fatal.h>
#include "ui/EventColumn.h"
#include "ui/Text.h"

namespace clipvane {

void EventTableModel::allIsNew() {
    beginResetModel();
    endResetModel();
}

void EventTableModel::rowGoes(int row, const std::function<void()>& erase) {
    beginRemoveRows({}, row, row);
    erase();
    endRemoveRows();
}

void EventTableModel::textsChanged() {
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

EventView EventTableModel::eventAt(int row) const {
    if (row < 0 || row >= rowCount()) fatal("a row outside the event list");
    return document.events[static_cast<std::size_t>(row)];
}

int EventTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(document.events.size());
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
            const EventView event = eventAt(index.row());
            const std::string_view text = event.*column.field;
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
