// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>
#include <optional>

#include "support/Records.h"
#include "ui/EventTableModel.h"
#include "ui/EventTableView.h"
#include "ui/ExpectedColumns.h"
#include "ui/SampleDocument.h"

namespace clipvane::test {

/// The event list alone, as large as in a window of 1440 x 860.
class EventTableFixture : public testing::Test {
  protected:
    EventTableFixture() {
        view.setModel(&model);
        view.resize(946, 704);
        view.show();
    }

    void fill(unsigned count) {
        document.events = numberedEvents(count);
        model.allIsNew();
    }
    template <class Change>
    void edit(std::size_t row, Change change) {
        test::edit(document.events, row, change);
    }
    void removeRow(int row) {
        model.rowGoes(row, [&] { document.events.erase(static_cast<std::size_t>(row)); });
    }
    QString textAt(int row, std::string_view identifier) const {
        return model.index(row, columnOf(identifier)).data().toString();
    }
    std::optional<std::size_t> selected() const {
        const auto rows = view.selectionModel()->selectedRows();
        if (rows.isEmpty()) return std::nullopt;
        return static_cast<std::size_t>(rows.first().row());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, key, modifiers);
    }
    /// The cell that the keys are at stands whole in the view.
    bool showsCurrentCell() const {
        return view.viewport()->rect().contains(view.visualRect(view.currentIndex()));
    }

    TimelineDocument document;
    EventTableModel model{document};
    EventTableView view;
};

}  // namespace clipvane::test
