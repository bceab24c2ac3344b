// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <functional>

#include <clipvane/TimelineDocument.h>

namespace clipvane {

/// The document's remaining events as rows, their fields as the columns of `eventColumns`. Stores
/// nothing per row.
class EventTableModel : public QAbstractTableModel {
  public:
    /// The role of an event's marked state, a boolean.
    static constexpr int highlightedRole = Qt::UserRole;

    explicit EventTableModel(const TimelineDocument& document) : document(document) {}

    // What a command did to the document's events. The views have to be told.

    /// All events are new.
    void allIsNew();
    /// Removes `row`: calls `erase`, which takes its event out of the document and cannot fail.
    void rowGoes(int row, const std::function<void()>& erase);
    /// The same events have other texts.
    void textsChanged();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Fatal for a row that the document does not have.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    EventView eventAt(int row) const;

    const TimelineDocument& document;
};

}  // namespace clipvane
