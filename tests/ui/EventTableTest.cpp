// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "support/ThrowingFatal.h"
#include "ui/EventTableUnderTest.h"

namespace clipvane {
namespace {

using EventTableTest = test::EventTableFixture;

TEST_F(EventTableTest, Cells_ShowTheStoredTexts) {
    fill(7);
    for (int column = 0; column < test::columnCount; ++column) {
        const auto& expected = test::expectedColumns[static_cast<std::size_t>(column)];
        EXPECT_EQ(model.index(6, column).data().toString(), expected.seventh) << expected.title;
    }
}

TEST_F(EventTableTest, EmptyDocument_NoRows) {
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(EventTableTest, RowOutsideTheList_IsFatal) {
    fill(2);
    const QModelIndex stale = model.index(1, 0);
    document.events.erase(document.events.size() - 1);
    const test::ThrowingFatal fatal;
    EXPECT_THROW(static_cast<void>(stale.data()), test::ThrowingFatal::Reason);
}

TEST_F(EventTableTest, RowViewOfAStaleRow_IsUnmarked) {
    fill(2);
    edit(1, [](auto& event) { event.highlighted = true; });
    EXPECT_TRUE(view.rowViewForRow(1).isMarked);
    EXPECT_FALSE(view.rowViewForRow(0).isMarked);
    EXPECT_FALSE(view.rowViewForRow(-1).isMarked);
    EXPECT_FALSE(view.rowViewForRow(2).isMarked);
}

TEST_F(EventTableTest, Rows_Are48High) {
    fill(3);
    EXPECT_EQ(view.visualRect(model.index(2, 0)), QRect(0, 96, test::rightOf(0), 48));
    EXPECT_EQ(view.indexAt({test::leftOf(1) + 6, 95}), model.index(1, 1));
    EXPECT_EQ(view.indexAt({test::leftOf(1) + 6, 96}), model.index(2, 1));
}

TEST_F(EventTableTest, ClickBelowTheRows_ClearsTheSelection) {
    fill(2);
    view.selectRow(1);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 400});
    EXPECT_EQ(selected(), std::nullopt);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 20});
    EXPECT_EQ(selected(), 0U);
}

TEST_F(EventTableTest, RateChanged_SelectionAndScrollPositionStay) {
    fill(100);
    view.selectRow(60);
    view.verticalScrollBar()->setValue(1234);
    edit(60, [](auto& event) { event.sourceIn = "03:00:00:00"; });
    model.textsChanged();
    EXPECT_EQ(selected(), 60U);
    EXPECT_EQ(view.verticalScrollBar()->value(), 1234);
}

TEST_F(EventTableTest, RowRemoved_OnlyThatRowGoes) {
    fill(100);
    int resets = 0;
    QObject::connect(&model, &QAbstractItemModel::modelReset, &view, [&] { ++resets; });
    removeRow(3);
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(model.rowCount(), 99);
    EXPECT_EQ(textAt(3, "clipName"), "Clip 005");
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 99 * 48 - view.viewport()->height());
}

TEST_F(EventTableTest, WhileARowGoes_TheOthersCanStillBeRead) {
    fill(3);
    QStringList seen;
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, &view, [&] {
        for (int row = 0; row < model.rowCount(); ++row) seen << textAt(row, "eventNumber");
    });
    removeRow(1);
    EXPECT_EQ(seen, (QStringList{"001", "002", "003"}));
    EXPECT_EQ(textAt(1, "eventNumber"), "003");
}

TEST_F(EventTableTest, OtherFileOfTheSameLength_StartsAtItsTop) {
    fill(100);
    view.selectRow(60);
    document.events = test::numberedEvents(200);
    for (int i = 0; i < 100; ++i) document.events.erase(0);
    model.allIsNew();
    EXPECT_EQ(selected(), std::nullopt);
    EXPECT_EQ(textAt(0, "eventNumber"), "101");
}

}  // namespace
}  // namespace clipvane
