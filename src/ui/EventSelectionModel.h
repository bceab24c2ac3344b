// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemSelectionModel>
#include <functional>
#include <utility>

namespace clipvane {

/// The list's selection. Calls `beforeChange` before each change, whoever makes it: assistive
/// technology can select a row without moving the focus.
class EventSelectionModel : public QItemSelectionModel {
  public:
    EventSelectionModel(QAbstractItemModel* model, QObject* parent,
                        std::function<void()> beforeChange)
        : QItemSelectionModel(model, parent), beforeChange(std::move(beforeChange)) {}

    using QItemSelectionModel::select;
    void select(const QItemSelection& selection, SelectionFlags command) override {
        beforeChange();
        QItemSelectionModel::select(selection, command);
    }

  private:
    std::function<void()> beforeChange;
};

}  // namespace clipvane
