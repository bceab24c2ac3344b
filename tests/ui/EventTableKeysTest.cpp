// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QClipboard>

#include "ui/EventTableUnderTest.h"

namespace clipvane {
namespace {

using test::columnCount;
using test::lastColumn;
using test::leftOf;
using test::rightOf;

class EventTableKeysTest : public test::EventTableFixture {
  protected:
    static constexpr int leastWidth = 718;  ///< of the list, in the smallest window

    /// One event, in a list of the least width, with its row selected.
    void fillNarrow() {
        fill(1);
        view.resize(leastWidth, 530);
        view.selectRow(0);
    }
    int scrolled() const { return view.horizontalScrollBar()->value(); }
    int column() const { return view.currentIndex().column(); }
    void pressOften(Qt::Key key) {
        for (int i = 0; i < columnCount + 1; ++i) press(key);
    }
};

/// The first column of which the right end lies beyond `right`.
int firstBeyond(int right) {
    int column = 0;
    while (rightOf(column) <= right) ++column;
    return column;
}

/// The last column of which the left end lies before `left`.
int lastBefore(int left) {
    int column = lastColumn;
    while (leftOf(column) >= left) --column;
    return column;
}

struct KeyRow {
    Qt::Key key;
    std::size_t from;
    std::size_t to;
};

TEST_F(EventTableKeysTest, RowKeys_WalkTheList) {
    fill(100);
    view.selectRow(50);
    for (const auto& [key, from, to] :
         {KeyRow{Qt::Key_Down, 50, 51}, KeyRow{Qt::Key_Up, 51, 50}, KeyRow{Qt::Key_Home, 50, 0},
          KeyRow{Qt::Key_Up, 0, 0}, KeyRow{Qt::Key_PageDown, 0, 13}, KeyRow{Qt::Key_End, 13, 99},
          KeyRow{Qt::Key_Down, 99, 99}, KeyRow{Qt::Key_PageUp, 99, 86}}) {
        ASSERT_EQ(selected(), from);
        press(key);
        EXPECT_EQ(selected(), to) << key;
        EXPECT_TRUE(showsCurrentCell()) << key;
    }
}

TEST_F(EventTableKeysTest, Right_BringsTheLastColumnIntoView) {
    fill(100);
    view.selectRow(5);
    const int most = view.horizontalScrollBar()->maximum();
    pressOften(Qt::Key_Right);
    EXPECT_EQ(scrolled(), most);
    EXPECT_EQ(selected(), 5U);
    press(Qt::Key_Down);
    EXPECT_EQ(scrolled(), most);
    pressOften(Qt::Key_Left);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(EventTableKeysTest, RightAndLeft_EachPressMovesTheColumnAndScrolls) {
    fillNarrow();
    const int most = view.horizontalScrollBar()->maximum();
    ASSERT_GT(most, 300);
    int at = 0;
    while (scrolled() <
           most) {  // until the next hidden column, or as far as the current one allows
        const int hidden = firstBeyond(scrolled() + leastWidth);
        press(Qt::Key_Right);
        EXPECT_EQ(column(), ++at);
        ASSERT_EQ(scrolled(), std::min(rightOf(hidden) - leastWidth, leftOf(at)));
    }
    while (scrolled() > 0) {
        const int hidden = lastBefore(scrolled());
        press(Qt::Key_Left);
        EXPECT_EQ(column(), --at);
        ASSERT_EQ(scrolled(), std::max(leftOf(hidden), rightOf(at) - leastWidth));
    }
    EXPECT_EQ(selected(), 0U);
}

TEST_F(EventTableKeysTest, RightAndLeft_ReachEveryColumnInView) {
    fillNarrow();
    for (int next = 1; next < columnCount; ++next) {
        press(Qt::Key_Right);
        EXPECT_EQ(column(), next);
        EXPECT_TRUE(showsCurrentCell());
    }
    for (int next = lastColumn - 1; next >= 0; --next) {
        press(Qt::Key_Left);
        EXPECT_EQ(column(), next);
        EXPECT_TRUE(showsCurrentCell());
    }
}

TEST_F(EventTableKeysTest, ScrolledByMouse_LeftAndRightBeginWithWhatIsInView) {
    fillNarrow();
    QScrollBar& bar = *view.horizontalScrollBar();
    bar.setValue(bar.maximum());
    const int hiddenLeft = lastBefore(bar.maximum());
    press(Qt::Key_Left);
    EXPECT_EQ(scrolled(), leftOf(hiddenLeft));
    EXPECT_EQ(column(), hiddenLeft);
    pressOften(Qt::Key_Right);
    bar.setValue(0);
    const int hiddenRight = firstBeyond(leastWidth);
    press(Qt::Key_Right);
    EXPECT_EQ(scrolled(), rightOf(hiddenRight) - leastWidth);
    EXPECT_EQ(column(), hiddenRight);
}

TEST_F(EventTableKeysTest, ColumnWiderThanTheView_IsNoTrap) {
    fill(1);
    view.resize(300, 530);
    view.setColumnWidth(1, 900);
    view.selectRow(0);
    pressOften(Qt::Key_Right);
    EXPECT_EQ(scrolled(), view.horizontalScrollBar()->maximum());
    pressOften(Qt::Key_Left);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(EventTableKeysTest, CopyKeys_LeaveTheClipboardAlone) {
    QGuiApplication::clipboard()->setText("the user's");
    fill(2);
    view.selectRow(1);
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "the user's");
}

TEST_F(EventTableKeysTest, Typing_SearchesNothing) {
    fill(9);
    view.selectRow(0);
    QTest::keyClicks(&view, "005");
    EXPECT_EQ(selected(), 0U);
}

}  // namespace
}  // namespace clipvane
