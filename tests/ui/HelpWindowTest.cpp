// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/HelpWindow.h"

#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <cstdlib>

#include "ui/Colours.h"
#include "ui/HelpText.h"
#include "ui/WindowUnderTest.h"

namespace clipvane {
namespace {

class HelpWindowTest : public test::WindowTest {
  protected:
    std::vector<QWidget*> helpWindows() {
        std::vector<QWidget*> windows;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->windowTitle() == "Clipvane Help") windows.push_back(widget);
        }
        return windows;
    }
};

TEST_F(HelpWindowTest, PressedTwice_OneWindow) {
    EXPECT_TRUE(helpWindows().empty());
    click("Help");
    click("Help");
    ASSERT_EQ(helpWindows().size(), 1U);
    const QWidget& window = *helpWindows().front();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.parent(), nullptr);
    EXPECT_EQ(window.size(), QSize(620, 520));
    helpWindows().front()->resize(1, 1);
    EXPECT_EQ(window.frameSize(), QSize(520, 420));
    EXPECT_FALSE(window.windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_TRUE(window.windowFlags() & Qt::WindowCloseButtonHint);
}

TEST_F(HelpWindowTest, FirstOpened_InTheMiddleOfTheScreen) {
    controller.window()->move(300, 200);
    click("Help");
    const QWidget& window = *helpWindows().front();
    const QPoint off = window.frameGeometry().center() -
                       controller.window()->screen()->availableGeometry().center();
    EXPECT_LE(std::abs(off.x()), 1);
    EXPECT_LE(std::abs(off.y()), 1);
}

TEST_F(HelpWindowTest, Centred_FrameIncludedAndTitleBarInReach) {
    HelpWindow window;
    window.centre({100, 50, 1920, 1040}, {1, 24, 3, 2});
    EXPECT_EQ(window.pos(), QPoint(100 + (1920 - 624) / 2, 50 + (1040 - 546) / 2));
    window.centre({10, 20, 600, 500}, {1, 24, 3, 2});
    EXPECT_EQ(window.pos(), QPoint(10, 20));
}

TEST_F(HelpWindowTest, Reopened_IsAsItWasLeft) {
    click("Help");
    QWidget& window = *helpWindows().front();
    auto& text = *window.findChild<QPlainTextEdit*>();
    window.setGeometry(40, 50, 700, 450);
    text.verticalScrollBar()->setValue(3);
    auto cursor = text.textCursor();
    cursor.setPosition(20);
    cursor.setPosition(30, QTextCursor::KeepAnchor);
    text.setTextCursor(cursor);
    const int scrolled = text.verticalScrollBar()->value();
    window.close();
    EXPECT_FALSE(window.isVisible());
    click("Help");
    EXPECT_EQ(helpWindows().size(), 1U);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.geometry(), QRect(40, 50, 700, 450));
    EXPECT_EQ(text.verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(text.textCursor().selectionStart(), 20);
    EXPECT_EQ(text.textCursor().selectionEnd(), 30);
}

TEST_F(HelpWindowTest, EscapeInTheText_ClosesIt) {
    click("Help");
    QWidget& window = *helpWindows().front();
    QTest::keyClick(window.findChild<QPlainTextEdit*>(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(HelpWindowTest, Minimized_ComesBackAtOnce) {
    click("Help");
    QWidget& window = *helpWindows().front();
    window.showMinimized();
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(HelpWindowTest, Text_IsReadAndCopiedButNotEdited) {
    click("Help");
    auto& text = *helpWindows().front()->findChild<QPlainTextEdit*>();
    QTest::keyClicks(&text, "x");
    EXPECT_EQ(text.toPlainText().toStdString(), helpText());
    EXPECT_TRUE(text.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_EQ(text.font().pixelSize(), 15);
    EXPECT_EQ(text.palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(text.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(text.geometry(), QRect(18, 18, 584, 484));
    EXPECT_EQ(helpWindows().front()->grab().toImage().pixelColor(5, 5),
              colours::rgb(0.08, 0.09, 0.105));
}

TEST_F(HelpWindowTest, Text_StandsInsetAtEverySize) {
    click("Help");
    QWidget& window = *helpWindows().front();
    auto& text = *window.findChild<QPlainTextEdit*>();
    for (const QSize size : {QSize(620, 520), QSize(900, 700), QSize(540, 430)}) {
        window.resize(size);
        EXPECT_EQ(text.geometry(), window.rect().marginsRemoved(QMargins(18, 18, 18, 18)));
        // The first letter, a "C", begins within two pixels of the inset of 10.
        const QImage image = text.viewport()->grab().toImage();
        int left = 0;
        const auto ink = [&](int x) {
            for (int y = 10; y < 30; ++y) {
                if (image.pixelColor(x, y).lightness() > 128) return true;
            }
            return false;
        };
        while (left < 100 && !ink(left)) ++left;
        EXPECT_GE(left, 10);
        EXPECT_LE(left, 12);
    }
}

TEST_F(HelpWindowTest, MainWindowClosed_HelpStays) {
    click("Help");
    controller.window()->close();
    EXPECT_TRUE(helpWindows().front()->isVisible());
    EXPECT_TRUE(helpWindows().front()->testAttribute(Qt::WA_QuitOnClose));
}

}  // namespace
}  // namespace clipvane
