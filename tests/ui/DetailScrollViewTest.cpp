// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailScrollView.h"

#include <QInputMethodEvent>
#include <QScrollBar>

#include "ui/DetailStackView.h"
#include "ui/WindowUnderTest.h"

namespace clipvane {
namespace {

/// The window at its smallest, where the details are higher than their view.
class DetailScrollViewTest : public test::WindowTest {
  protected:
    DetailScrollViewTest() {
        open(writeEDL("cut.edl", 3));
        controller.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(controller.window()));
        controller.window()->resize(1, 1);
        settle();
    }

    void settle() { QTest::qWait(1); }
    int scrolled() { return find<DetailScrollView>()->verticalScrollBar()->value(); }
    int end() { return find<DetailScrollView>()->verticalScrollBar()->maximum(); }
    void scrollTo(int value) { find<DetailScrollView>()->verticalScrollBar()->setValue(value); }
    CommentsView& editor() { return *find<CommentsView>(); }
    void focusByKey() {
        editor().setFocus(Qt::TabFocusReason);
        settle();
    }
    void type(const QString& text) { QTest::keyClicks(&editor(), text); }

    bool isSeen(const QWidget& widget, const QRect& rect) {
        return widget.visibleRegion().contains(rect) &&
               widget.visibleRegion().boundingRect().contains(rect);
    }
    bool seesBlock() {
        const QWidget& block = *editor().parentWidget();
        return isSeen(*editor().viewport(), editor().viewport()->rect()) &&
               isSeen(block, block.childrenRect());
    }
    bool seesCaret() { return isSeen(*editor().viewport(), editor().cursorRect()); }
};

TEST_F(DetailScrollViewTest, Opened_ShowsTheTitle) {
    EXPECT_GT(end(), 50);
    EXPECT_EQ(scrolled(), 0);
    EXPECT_FALSE(seesCaret());
}

TEST_F(DetailScrollViewTest, KeyboardGoesToTheComments_TheyAreSeenWhole) {
    find<EventTableView>()->setFocus();
    QTest::keyClick(find<EventTableView>(), Qt::Key_Tab);
    settle();
    ASSERT_EQ(controller.window()->focusWidget(), &editor());
    EXPECT_TRUE(seesBlock());
    EXPECT_TRUE(seesCaret());
}

TEST_F(DetailScrollViewTest, TypedLineForLine_TheCaretIsSeen) {
    focusByKey();
    for (int line = 0; line < 12; ++line) {
        type("a line");
        EXPECT_TRUE(seesCaret()) << line;
        QTest::keyClick(&editor(), Qt::Key_Return);
        EXPECT_TRUE(seesCaret()) << line;
    }
}

TEST_F(DetailScrollViewTest, ScrolledAway_EveryKeyThatWorksInTheCommentsComesBack) {
    focusByKey();
    type("some text");
    for (const Qt::Key key :
         {Qt::Key_X, Qt::Key_Home, Qt::Key_Delete, Qt::Key_Return, Qt::Key_Up}) {
        scrollTo(0);
        ASSERT_FALSE(seesCaret());
        QTest::keyClick(&editor(), key);
        EXPECT_TRUE(seesCaret()) << key;
    }
}

TEST_F(DetailScrollViewTest, ScrolledAway_ComposingComesBack) {
    focusByKey();
    for (int line = 0; line < 3; ++line) QTest::keyClick(&editor(), Qt::Key_Return);
    scrollTo(0);
    const QString text = QString("composed ").repeated(12);
    const int end = static_cast<int>(text.size());
    QInputMethodEvent composing(text, {{QInputMethodEvent::Cursor, end, 1, {}}});
    QCoreApplication::sendEvent(&editor(), &composing);
    settle();
    EXPECT_TRUE(seesCaret());
}

TEST_F(DetailScrollViewTest, WindowBecomesLow_TheCaretStaysSeen) {
    controller.window()->resize(1180, 860);
    focusByKey();
    for (int line = 0; line < 5; ++line) QTest::keyClick(&editor(), Qt::Key_Return);
    ASSERT_EQ(end(), 0);
    controller.window()->resize(1180, 1);
    settle();
    EXPECT_TRUE(seesCaret());
    EXPECT_TRUE(seesBlock());
}

TEST_F(DetailScrollViewTest, ViewLowerThanTheComments_TheCaretIsSeenAllTheSame) {
    find<DetailScrollView>()->resize(find<DetailScrollView>()->width(), 60);
    focusByKey();
    for (int line = 0; line < 3; ++line) QTest::keyClick(&editor(), Qt::Key_Return);
    EXPECT_TRUE(seesCaret());
    for (int line = 0; line < 3; ++line) {
        QTest::keyClick(&editor(), Qt::Key_Up);
        EXPECT_TRUE(seesCaret()) << line;
    }
}

TEST_F(DetailScrollViewTest, TitleBecomesLonger_TheCaretStaysSeen) {
    focusByKey();
    for (int line = 0; line < 8; ++line) QTest::keyClick(&editor(), Qt::Key_Return);
    const int height = editor().height();
    find<DetailStackView>()->setTitle("Event 001: " + QString("name ").repeated(20));
    settle();
    ASSERT_LT(editor().height(), height);
    EXPECT_TRUE(seesCaret());
}

TEST_F(DetailScrollViewTest, AnotherEvent_NothingScrolls) {
    find<EventTableView>()->setFocus();
    for (const int place : {0, 37, end()}) {
        scrollTo(place);
        QTest::keyClick(find<EventTableView>(), Qt::Key_Down);
        settle();
        EXPECT_EQ(scrolled(), place);
    }
    focusByKey();
    type("typed");
    scrollTo(5);
    click("Remove Event");
    settle();
    EXPECT_EQ(scrolled(), 5);
}

TEST_F(DetailScrollViewTest, AnotherTimeline_BeginsAtItsTop) {
    scrollTo(end());
    open(writeEDL("next.edl", 2));
    settle();
    EXPECT_EQ(scrolled(), 0);
    scrollTo(end());
    open(writeEDL("empty.edl", 0));
    settle();
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(DetailScrollViewTest, ClickedInHalf_MovesNoMoreThanItMust) {
    focusByKey();
    type("one");
    QTest::keyClick(&editor(), Qt::Key_Return);
    find<EventTableView>()->setFocus();
    // One line of the editor is in view.
    const int top = editor().mapTo(find<DetailStackView>(), QPoint(0, 0)).y();
    scrollTo(top + 30 - find<DetailScrollView>()->viewport()->height());
    const int before = scrolled();
    ASSERT_LT(before, end());
    QTest::mouseClick(editor().viewport(), Qt::LeftButton, {}, {15, 14});
    settle();
    EXPECT_EQ(controller.window()->focusWidget(), &editor());
    EXPECT_TRUE(seesCaret());
    EXPECT_EQ(scrolled(), before);
}

TEST_F(DetailScrollViewTest, AltWithThePageKeys_ReachAllOfTheDetails) {
    for (QWidget* focused :
         {static_cast<QWidget*>(button("Help")), static_cast<QWidget*>(find<EventTableView>()),
          static_cast<QWidget*>(&editor())}) {
        focused->setFocus();
        settle();
        scrollTo(0);
        QTest::keyClick(focused, Qt::Key_PageDown, Qt::AltModifier);
        EXPECT_EQ(scrolled(), end());
        QTest::keyClick(focused, Qt::Key_PageUp, Qt::AltModifier);
        EXPECT_EQ(scrolled(), 0);
    }
    EXPECT_EQ(find<EventTableView>()->currentIndex().row(), 0);
    EXPECT_EQ(editor().comments(), "");
}

}  // namespace
}  // namespace clipvane
