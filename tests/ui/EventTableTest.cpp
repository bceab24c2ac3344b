// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/EventTableView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <QTest>

#include "support/Records.h"
#include "support/ThrowingFatal.h"
#include "ui/ColourMixing.h"
#include "ui/Colours.h"
#include "ui/EventCell.h"
#include "ui/EventColumn.h"
#include "ui/EventTableModel.h"
#include "ui/SampleDocument.h"

namespace clipvane {
namespace {

using test::over;

class EventTableTest : public testing::Test {
  protected:
    EventTableTest() {
        view.setModel(&model);
        view.resize(946, 704);
        view.show();
    }

    void fill(unsigned count) {
        document.events = test::numberedEvents(count);
        model.allIsNew();
    }
    void removeRow(int row) {
        model.rowGoes(row, [&] { document.events.erase(static_cast<std::size_t>(row)); });
    }
    std::optional<std::size_t> selected() const {
        const auto rows = view.selectionModel()->selectedRows();
        if (rows.isEmpty()) return std::nullopt;
        return static_cast<std::size_t>(rows.first().row());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, key, modifiers);
    }
    /// The colour where no text and no line is, at the right end of the row's first cell.
    QColor background(int row) {
        const QImage image = view.viewport()->grab().toImage();
        const int y = row * EventTableView::rowHeight - view.verticalScrollBar()->value() + 4;
        return image.pixelColor(58, y);
    }

    TimelineDocument document;
    EventTableModel model{document};
    EventTableView view;
};

void expectAlmost(const QColor& colour, const QColor& expected) {
    EXPECT_NEAR(colour.red(), expected.red(), 1);
    EXPECT_NEAR(colour.green(), expected.green(), 1);
    EXPECT_NEAR(colour.blue(), expected.blue(), 1);
}

TEST_F(EventTableTest, Columns_InOrderWithTheirHeadersAndWidths) {
    const std::vector<std::tuple<std::string, std::string, int, QColor>> expected{
        {"eventNumber", "#", 64, colours::rgb(0.62, 0.82, 1.0)},
        {"clipName", "Clip Name", 280, colours::rgb(0.97, 0.98, 1.0)},
        {"reelID", "Reel ID", 140, colours::rgb(0.75, 0.92, 0.7)},
        {"sourceIn", "Source In", 132, colours::rgb(1.0, 0.84, 0.52)},
        {"sourceOut", "Source Out", 132, colours::rgb(1.0, 0.84, 0.52)},
        {"recordIn", "Record In", 132, colours::rgb(0.96, 0.65, 0.72)},
        {"recordOut", "Record Out", 132, colours::rgb(0.96, 0.65, 0.72)},
        {"format", "Type", 78, colours::secondaryText}};
    fill(1);
    ASSERT_EQ(model.columnCount(), static_cast<int>(expected.size()));
    for (int column = 0; column < model.columnCount(); ++column) {
        const auto& [identifier, title, width, colour] = expected[static_cast<std::size_t>(column)];
        EXPECT_EQ(eventColumns()[static_cast<std::size_t>(column)].identifier, identifier);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                  QString::fromStdString(title));
        EXPECT_EQ(view.columnWidth(column), width) << title;
        EXPECT_EQ(model.index(0, column).data(Qt::ForegroundRole).value<QColor>(), colour);
    }
}

TEST_F(EventTableTest, Cells_ShowTheStoredTexts) {
    fill(7);
    const QStringList expected{"007",         "Clip 007",    "R007",        "01:00:00:00",
                               "01:00:04:00", "02:00:00:00", "02:00:04:00", "EDL"};
    QStringList shown;
    for (int column = 0; column < model.columnCount(); ++column) {
        shown.append(model.index(6, column).data().toString());
    }
    EXPECT_EQ(shown.join('|'), expected.join('|'));
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
    test::edit(document.events, 1, [](auto& event) { event.highlighted = true; });
    EXPECT_TRUE(view.rowViewForRow(1).isMarked);
    EXPECT_FALSE(view.rowViewForRow(0).isMarked);
    EXPECT_FALSE(view.rowViewForRow(-1).isMarked);
    EXPECT_FALSE(view.rowViewForRow(2).isMarked);
}

TEST_F(EventTableTest, Backgrounds_BaseAlternateAmberAndBlue) {
    fill(4);
    test::edit(document.events, 2, [](auto& event) { event.highlighted = true; });
    test::edit(document.events, 3, [](auto& event) { event.highlighted = true; });
    const QColor amber = over(colours::rgb(0.34, 0.27, 0.08, 0.8), colours::table);
    const QColor blue = colours::rgb(0.17, 0.33, 0.5, 0.95);
    expectAlmost(background(0), colours::table);
    expectAlmost(background(1), colours::tableAlternate);
    expectAlmost(background(2), amber);
    expectAlmost(background(3), amber);
    view.selectRow(1);
    expectAlmost(background(1), over(blue, colours::tableAlternate));
    view.selectRow(3);
    expectAlmost(background(3), over(blue, amber));
    expectAlmost(background(1), colours::tableAlternate);
}

TEST_F(EventTableTest, SelectionWithoutFocus_StaysBlue) {
    fill(1);
    view.selectRow(0);
    view.setFocus();
    const QColor focused = background(0);
    view.clearFocus();
    EXPECT_EQ(background(0), focused);
}

TEST_F(EventTableTest, VerticalLines_AlsoBelowTheLastRow) {
    fill(1);
    const QImage image = view.viewport()->grab().toImage();
    EXPECT_NE(image.pixelColor(63, 300), colours::table);
    EXPECT_EQ(image.pixelColor(62, 300), colours::table);
    EXPECT_EQ(image.pixelColor(20, 47), image.pixelColor(20, 2)) << "no line between rows";
}

TEST_F(EventTableTest, EmptyList_HasNoLinesBehindItsText) {
    const QImage image = view.viewport()->grab().toImage();
    for (int x = 0; x < image.width(); ++x) {
        ASSERT_EQ(image.pixelColor(x, 300), colours::table) << x;
    }
}

TEST_F(EventTableTest, TypeOnASelectedRow_IsLighter) {
    fill(2);
    view.selectRow(0);
    const auto brightest = [this](int row) {
        const QRect cell = view.visualRect(model.index(row, 7)).adjusted(8, 4, -8, -4);
        const QImage image = view.viewport()->grab(cell).toImage();
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                most = std::max(most, image.pixelColor(x, y).green());
            }
        }
        return most;
    };
    view.resize(1400, 704);
    EXPECT_NEAR(brightest(0), colours::secondaryTextOnSelection.green(), 8);
    EXPECT_NEAR(brightest(1), colours::secondaryText.green(), 8);
}

TEST_F(EventTableTest, LongClipName_LosesItsMiddle) {
    fill(1);
    test::edit(document.events, 0, [](auto& event) {
        event.clipName = "A001_C001_a_very_long_name_of_a_clip_take_07.mov";
    });
    const auto& cell = dynamic_cast<const EventCell&>(*view.itemDelegate());
    const QString shown = cell.shownText(model.index(0, 1), 280);
    EXPECT_TRUE(shown.startsWith("A001_C001"));
    EXPECT_TRUE(shown.endsWith("07.mov"));
    EXPECT_TRUE(shown.contains(u'…'));
    EXPECT_EQ(cell.font().pixelSize(), 14);
    EXPECT_EQ(cell.font().weight(), QFont::Medium);
}

TEST_F(EventTableTest, Rows_Are48High) {
    fill(3);
    EXPECT_EQ(view.visualRect(model.index(2, 0)), QRect(0, 96, 64, 48));
    EXPECT_EQ(view.indexAt({70, 95}), model.index(1, 1));
}

TEST_F(EventTableTest, Narrowed_ColumnsKeepTheirLeastWidth) {
    fill(1);
    view.setColumnWidth(3, 20);
    EXPECT_EQ(view.columnWidth(3), 132);
    view.setColumnWidth(3, 200);
    EXPECT_EQ(view.columnWidth(3), 200);
}

TEST_F(EventTableTest, Widened_OnlyTheLastColumnTakesTheRoom) {
    fill(1);
    view.resize(1400, 704);
    EXPECT_EQ(view.columnWidth(7), 1400 - (1090 - 78));
    EXPECT_EQ(view.columnWidth(1), 280);
    view.resize(946, 704);
    EXPECT_EQ(view.columnWidth(7), 78);
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 1090 - 946);
}

TEST_F(EventTableTest, LastColumnWidened_KeepsWhatTheUserGaveIt) {
    fill(1);
    view.resize(946, 704);
    view.setColumnWidth(7, 300);
    EXPECT_EQ(view.columnWidth(7), 300);
    view.resize(1000, 704);
    EXPECT_EQ(view.columnWidth(7), 300);
    view.resize(1400, 704);
    EXPECT_EQ(view.columnWidth(7), 1400 - (1090 - 78));
}

struct KeyRow {
    Qt::Key key;
    std::size_t from;
    std::size_t to;
};

TEST_F(EventTableTest, Keys_WalkTheList) {
    fill(100);
    view.selectRow(50);
    for (const auto& [key, from, to] :
         {KeyRow{Qt::Key_Down, 50, 51}, KeyRow{Qt::Key_Up, 51, 50}, KeyRow{Qt::Key_Home, 50, 0},
          KeyRow{Qt::Key_Up, 0, 0}, KeyRow{Qt::Key_PageDown, 0, 13}, KeyRow{Qt::Key_End, 13, 99},
          KeyRow{Qt::Key_Down, 99, 99}, KeyRow{Qt::Key_PageUp, 99, 86}}) {
        ASSERT_EQ(selected(), from);
        press(key);
        EXPECT_EQ(selected(), to) << key;
        EXPECT_TRUE(view.viewport()->rect().contains(
            view.visualRect(view.currentIndex()).adjusted(0, 0, -1000, 0).adjusted(0, 0, 999, 0)))
            << key;
    }
}

TEST_F(EventTableTest, RightKey_BringsTheLastColumnIntoView) {
    fill(100);
    view.selectRow(5);
    for (int i = 0; i < 7; ++i) press(Qt::Key_Right);
    EXPECT_EQ(view.horizontalScrollBar()->value(), view.horizontalScrollBar()->maximum());
    EXPECT_EQ(selected(), 5U);
    press(Qt::Key_Down);
    EXPECT_EQ(view.horizontalScrollBar()->value(), view.horizontalScrollBar()->maximum());
    for (int i = 0; i < 7; ++i) press(Qt::Key_Left);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
}

TEST_F(EventTableTest, RightAndLeftKeys_EachPressMovesTheColumnAndScrolls) {
    fill(1);
    view.resize(718, 530);  // as at the window's least width
    view.selectRow(0);
    const QScrollBar& bar = *view.horizontalScrollBar();
    int column = 0;
    for (const int scrolled : {30, 162, 294, 372}) {
        press(Qt::Key_Right);
        EXPECT_EQ(bar.value(), scrolled);
        EXPECT_EQ(view.currentIndex().column(), ++column);
    }
    ASSERT_EQ(bar.maximum(), 372);
    for (const int scrolled : {344, 64, 0}) {
        press(Qt::Key_Left);
        EXPECT_EQ(bar.value(), scrolled);
        EXPECT_EQ(view.currentIndex().column(), --column);
    }
    EXPECT_EQ(selected(), 0U);
}

TEST_F(EventTableTest, RightAndLeftKeys_ReachEveryColumnInView) {
    fill(1);
    view.resize(718, 530);
    view.selectRow(0);
    for (int column = 1; column < 8; ++column) {
        press(Qt::Key_Right);
        EXPECT_EQ(view.currentIndex().column(), column);
        EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
    }
    for (int column = 6; column >= 0; --column) {
        press(Qt::Key_Left);
        EXPECT_EQ(view.currentIndex().column(), column);
        EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())));
    }
}

TEST_F(EventTableTest, ScrolledByMouse_LeftAndRightKeysBeginWithWhatIsInView) {
    fill(1);
    view.resize(718, 530);
    view.selectRow(0);
    QScrollBar& bar = *view.horizontalScrollBar();
    bar.setValue(bar.maximum());
    press(Qt::Key_Left);
    EXPECT_EQ(bar.value(), 344);
    EXPECT_EQ(view.currentIndex().column(), 2);
    for (int i = 0; i < 7; ++i) press(Qt::Key_Right);
    bar.setValue(0);
    press(Qt::Key_Right);
    EXPECT_EQ(bar.value(), 30);
    EXPECT_EQ(view.currentIndex().column(), 4);
}

TEST_F(EventTableTest, ColumnWiderThanTheView_IsNoTrapForTheKeys) {
    fill(1);
    view.resize(300, 530);
    view.setColumnWidth(1, 900);
    view.selectRow(0);
    for (int i = 0; i < 9; ++i) press(Qt::Key_Right);
    EXPECT_EQ(view.horizontalScrollBar()->value(), view.horizontalScrollBar()->maximum());
    for (int i = 0; i < 9; ++i) press(Qt::Key_Left);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
}

TEST_F(EventTableTest, AltLeftAndRight_NarrowAndWidenTheCurrentColumn) {
    fill(3);
    view.selectRow(1);
    press(Qt::Key_Right);
    press(Qt::Key_Right, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(view.columnWidth(1), 280 + 40);
    EXPECT_EQ(selected(), 1U);
    for (int i = 0; i < 9; ++i) press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(view.columnWidth(1), 280) << "no narrower than at first";
    EXPECT_EQ(view.currentIndex().column(), 1);
}

TEST_F(EventTableTest, ScrolledSideways_HeaderAndCellsAndLinesStayTogether) {
    fill(3);
    QScrollBar& bar = *view.horizontalScrollBar();
    for (const int offset : {0, 100, bar.maximum()}) {
        bar.setValue(offset);
        const QHeaderView& header = *view.horizontalHeader();
        const QPoint corner = header.mapTo(&view, QPoint());
        EXPECT_EQ(corner.x(), -offset);
        const QImage image = view.grab().toImage();
        for (const int column : {2, 3, 4}) {
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

TEST_F(EventTableTest, HeaderEdgeDoubleClicked_ColumnFitsItsContents) {
    fill(3);
    test::edit(document.events, 1, [&](auto& event) { event.clipName = std::string(60, 'W'); });
    view.resizeColumnToContents(1);
    EXPECT_GT(view.columnWidth(1), 60 * 8);
    test::edit(document.events, 1, [](auto& event) { event.clipName = "short"; });
    view.resizeColumnToContents(1);
    EXPECT_EQ(view.columnWidth(1), 280);
}

TEST_F(EventTableTest, ClickBelowTheRows_ClearsTheSelection) {
    fill(2);
    view.selectRow(1);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 400});
    EXPECT_EQ(selected(), std::nullopt);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 20});
    EXPECT_EQ(selected(), 0U);
}

TEST_F(EventTableTest, CopyKeys_LeaveTheClipboardAlone) {
    QGuiApplication::clipboard()->setText("the user's");
    fill(2);
    view.selectRow(1);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "the user's");
}

TEST_F(EventTableTest, Typing_SearchesNothing) {
    fill(9);
    view.selectRow(0);
    QTest::keyClicks(&view, "005");
    EXPECT_EQ(selected(), 0U);
}

TEST_F(EventTableTest, RateChanged_SelectionAndScrollPositionStay) {
    fill(100);
    view.selectRow(60);
    view.verticalScrollBar()->setValue(1234);
    test::edit(document.events, 60, [](auto& event) { event.sourceIn = "03:00:00:00"; });
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
    EXPECT_EQ(model.index(3, 1).data().toString(), "Clip 005");
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 99 * 48 - view.viewport()->height());
}

TEST_F(EventTableTest, WhileARowGoes_TheOthersCanStillBeRead) {
    fill(3);
    QStringList seen;
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, &view, [&] {
        for (int row = 0; row < model.rowCount(); ++row)
            seen << model.index(row, 0).data().toString();
    });
    removeRow(1);
    EXPECT_EQ(seen, (QStringList{"001", "002", "003"}));
    EXPECT_EQ(model.index(1, 0).data().toString(), "003");
}

TEST_F(EventTableTest, OtherFileOfTheSameLength_StartsAtItsTop) {
    fill(100);
    view.selectRow(60);
    document.events = test::numberedEvents(200);
    for (int i = 0; i < 100; ++i) document.events.erase(0);
    model.allIsNew();
    EXPECT_EQ(selected(), std::nullopt);
    EXPECT_EQ(model.index(0, 0).data().toString(), "101");
}

TEST_F(EventTableTest, NamesThatCouldBreakAView_AreShownAsText) {
    fill(1);
    const auto& cell = dynamic_cast<const EventCell&>(*view.itemDelegate());
    for (const char* name : {"<b>bold</b>", "two\nlines", "שלום", "😀", "a\u0001b"}) {
        test::edit(document.events, 0, [&](auto& event) { event.clipName = name; });
        EXPECT_FALSE(cell.shownText(model.index(0, 1), 280).contains('\n'));
        view.grab();  // painting it neither fails nor hangs
    }
    test::edit(document.events, 0, [](auto& event) { event.clipName = "<b>bold</b>"; });
    EXPECT_EQ(cell.shownText(model.index(0, 1), 280), "<b>bold</b>");
}

}  // namespace
}  // namespace clipvane
