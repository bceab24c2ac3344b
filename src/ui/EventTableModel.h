// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <cstddef>
#include <optional>

#include "model/TimelineDocument.h"

namespace clipvane {

/// The document's remaining events as rows, their fields as the columns of `eventColumns`. Keeps
/// nothing for a row.
class EventTableModel : public QAbstractTableModel {
  public:
    /// The role of an event's marked state, a boolean.
    static constexpr int highlightedRole = Qt::UserRole;

    explicit EventTableModel(const TimelineDocument& document) : document(document) {}

    /// The document has changed, by one command. `selectedRow` was selected before.
    void reload(std::optional<std::size_t> selectedRow);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Fatal for a row that the document does not have.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const TimelineEvent& eventAt(int row) const;
    bool hasSameEvents() const;
    bool hasLostOneEvent() const;
    void remember();

    const TimelineDocument& document;
    int rows = 0;
    std::size_t removedEvents = 0;
    UUID firstEvent;
    std::optional<int> rowGone;  ///< while the views are told that it goes
};

}  // namespace clipvane
