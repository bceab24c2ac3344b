// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <functional>

#include <clipvane/TimelineDocument.h>

namespace clipvane {

/// The document's remaining events as rows, their fields as the columns of `eventColumns`. Keeps
/// nothing for a row.
class EventTableModel : public QAbstractTableModel {
  public:
    /// The role of an event's marked state, a boolean.
    static constexpr int highlightedRole = Qt::UserRole;

    explicit EventTableModel(const TimelineDocument& document) : document(document) {}

    // What a command did to the document's events, as the views must hear it.

    /// They are others.
    void allIsNew();
    /// `row` goes by calling `erase`, which takes its event out of the document and cannot fail.
    void rowGoes(int row, const std::function<void()>& erase);
    /// They are the same, with other texts.
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
