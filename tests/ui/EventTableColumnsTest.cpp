// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QHeaderView>

#include "ui/EventColumn.h"
#include "ui/EventTableUnderTest.h"

namespace clipvane {
namespace {

using test::columnOf;
using test::lastColumn;
using test::leftOf;
using test::widthOf;

using EventTableColumnsTest = test::EventTableFixture;

TEST_F(EventTableColumnsTest, InOrder_WithTheirHeadersWidthsAndColours) {
    fill(1);
    ASSERT_EQ(model.columnCount(), test::columnCount);
    for (int column = 0; column < test::columnCount; ++column) {
        const auto& expected = test::expectedColumns[static_cast<std::size_t>(column)];
        EXPECT_EQ(eventColumns()[static_cast<std::size_t>(column)].identifier, expected.identifier);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                  expected.title);
        EXPECT_EQ(view.columnWidth(column), expected.width) << expected.title;
        EXPECT_EQ(model.index(0, column).data(Qt::ForegroundRole).value<QColor>(), expected.colour)
            << expected.title;
    }
}

TEST_F(EventTableColumnsTest, Narrowed_TheyKeepTheirLeastWidth) {
    fill(1);
    const int sourceIn = columnOf("sourceIn");
    view.setColumnWidth(sourceIn, 20);
    EXPECT_EQ(view.columnWidth(sourceIn), widthOf(sourceIn));
    view.setColumnWidth(sourceIn, 200);
    EXPECT_EQ(view.columnWidth(sourceIn), 200);
}

TEST_F(EventTableColumnsTest, ListWidened_OnlyTheLastColumnTakesTheRoom) {
    fill(1);
    view.resize(1400, 704);
    EXPECT_EQ(view.columnWidth(lastColumn), 1400 - leftOf(lastColumn));
    for (int column = 0; column < lastColumn; ++column) {
        EXPECT_EQ(view.columnWidth(column), widthOf(column));
    }
    view.resize(946, 704);
    EXPECT_EQ(view.columnWidth(lastColumn), widthOf(lastColumn));
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), leftOf(test::columnCount) - 946);
}

TEST_F(EventTableColumnsTest, LastColumnWidened_KeepsWhatTheUserGaveIt) {
    fill(1);
    view.resize(946, 704);
    view.setColumnWidth(lastColumn, 300);
    EXPECT_EQ(view.columnWidth(lastColumn), 300);
    view.resize(1000, 704);
    EXPECT_EQ(view.columnWidth(lastColumn), 300);
    view.resize(1400, 704);
    EXPECT_EQ(view.columnWidth(lastColumn), 1400 - leftOf(lastColumn));
}

TEST_F(EventTableColumnsTest, AltLeftAndRight_NarrowAndWidenTheCurrentColumn) {
    fill(3);
    view.selectRow(1);
    press(Qt::Key_Right);
    press(Qt::Key_Right, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(view.columnWidth(1), widthOf(1) + 40);
    EXPECT_EQ(selected(), 1U);
    for (int i = 0; i < 9; ++i) press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(view.columnWidth(1), widthOf(1)) << "no narrower than at first";
    EXPECT_EQ(view.currentIndex().column(), 1);
}

TEST_F(EventTableColumnsTest, ScrolledSideways_HeaderAndCellsAndLinesStayTogether) {
    fill(3);
    QScrollBar& bar = *view.horizontalScrollBar();
    for (const int offset : {0, 100, bar.maximum()}) {
        bar.setValue(offset);
        const QHeaderView& header = *view.horizontalHeader();
        EXPECT_EQ(header.mapTo(&view, QPoint()).x(), -offset);
        const QImage image = view.grab().toImage();
        for (const char* identifier : {"reelID", "sourceIn", "sourceOut"}) {
            const int column = columnOf(identifier);
            const int left = header.sectionPosition(column) - offset;
            EXPECT_EQ(view.visualRect(model.index(0, column)).left(), left);
            EXPECT_EQ(view.indexAt({left + 1, 5}).column(), column);
            EXPECT_EQ(view.indexAt({left - 1, 5}).column(), column - 1);
            // The divider of the header stands over the line between the cells.
            EXPECT_NE(image.pixelColor(left - 1, 16), image.pixelColor(left - 3, 16)) << left;
            EXPECT_NE(image.pixelColor(left - 1, 500), image.pixelColor(left - 3, 500)) << left;
        }
        EXPECT_NE(image.pixelColor(view.viewport()->width() + 4, 16), colours::tableHeader)
            << "over the scroll bar there is no header";
    }
}

TEST_F(EventTableColumnsTest, HeaderEdgeDoubleClicked_ColumnFitsItsContents) {
    fill(3);
    const int name = columnOf("clipName");
    edit(1, [&](auto& event) { event.clipName = std::string(60, 'W'); });
    view.resizeColumnToContents(name);
    EXPECT_GT(view.columnWidth(name), 60 * 8);
    edit(1, [](auto& event) { event.clipName = "short"; });
    view.resizeColumnToContents(name);
    EXPECT_EQ(view.columnWidth(name), widthOf(name));
}

}  // namespace
}  // namespace clipvane
