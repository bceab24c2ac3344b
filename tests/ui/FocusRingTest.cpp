// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FocusRing.h"

#include "ui/Colours.h"
#include "ui/WindowUnderTest.h"

namespace clipvane {
namespace {

class FocusRingTest : public test::WindowTest {
  protected:
    FocusRingTest() {
        controller.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(controller.window()));
    }

    /// At the middle of the left edge; around the list the ring stands 3 away from it.
    bool hasRing(QWidget* control) {
        const int away = dynamic_cast<EventTableView*>(control) != nullptr ? 3 : 0;
        const QPoint edge =
            control->mapTo(controller.window(), QPoint(-away, control->height() / 2));
        return controller.window()->grab().toImage().pixelColor(edge) == colours::focusRing;
    }
    void pressKey(Qt::Key key) { QTest::keyClick(controller.window()->focusWidget(), key); }
    void clickBeside() {
        QTest::mouseClick(find<StatusLabel>(), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
};

TEST_F(FocusRingTest, EachControlThatTabReaches_IsRinged) {
    open(writeEDL("cut.edl", 2));
    controller.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window()));
    button("Open Timeline")->setFocus();
    QStringList reached;
    for (int i = 0; i < 9; ++i) {
        pressKey(Qt::Key_Tab);
        QWidget* control = controller.window()->focusWidget();
        const auto* pressed = dynamic_cast<const QPushButton*>(control);
        reached << (pressed ? pressed->text() : control->accessibleName());
        EXPECT_TRUE(hasRing(control)) << reached.last().toStdString();
    }
    EXPECT_EQ(reached,
              (QStringList{"Global FPS", "Remove Event", "Copy Info", "Export CSV", "Export EDL",
                           "Help", "Event Viewer", "Comments", "Open Timeline"}));
    EXPECT_FALSE(hasRing(find<EventTableView>()));
    EXPECT_FALSE(hasRing(button("Help")));
}

TEST_F(FocusRingTest, MouseUsedLast_HidesTheRingUntilTheNextKey) {
    for (QWidget* control : {static_cast<QWidget*>(button("Copy Info")),
                             static_cast<QWidget*>(find<EventTableView>())}) {
        control->setFocus();
        pressKey(Qt::Key_Escape);
        EXPECT_TRUE(hasRing(control));
        clickBeside();
        EXPECT_EQ(controller.window()->focusWidget(), control);
        EXPECT_FALSE(hasRing(control));
        pressKey(Qt::Key_Control);
        EXPECT_FALSE(hasRing(control)) << "a modifier may belong to a click";
        pressKey(Qt::Key_Escape);
        EXPECT_TRUE(hasRing(control));
    }
}

/// Counts how often a widget is painted.
class Paints : public QObject {
  public:
    explicit Paints(QWidget* widget) { widget->installEventFilter(this); }
    int count = 0;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
};

TEST_F(FocusRingTest, CurrentCellOfTheList_IsRingedWhileTheKeyboardIsUsed) {
    open(writeEDL("cut.edl", 3));
    controller.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window()));
    auto& list = *find<EventTableView>();
    const auto ringed = [&list] {
        const QImage image = list.viewport()->grab().toImage();
        QStringList cells;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            for (int column = 0; column < 4; ++column) {
                const QRect cell = list.visualRect(list.model()->index(row, column));
                const QColor edge = image.pixelColor(cell.left() + 2, cell.center().y());
                if (edge == colours::focusRing) cells << QString("%1,%2").arg(row).arg(column);
            }
        }
        return cells.join(' ').toStdString();
    };
    list.setFocus();
    pressKey(Qt::Key_Right);
    EXPECT_EQ(ringed(), "0,1");
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Right);
    EXPECT_EQ(ringed(), "1,2");
    click("Remove Event");
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(ringed(), "1,2") << "the row after it, in the same column";
    QCoreApplication::processEvents();
    const Paints paints(list.viewport());
    clickBeside();
    EXPECT_EQ(ringed(), "");
    EXPECT_GT(paints.count, 1) << "the screen shows it as well as the picture taken for the test";
    pressKey(Qt::Key_Escape);
    EXPECT_EQ(ringed(), "1,2");
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(ringed(), "");
}

TEST_F(FocusRingTest, WindowMadeAfterTheMouseWasUsed_HasNoRing) {
    const auto ringed = [] {
        QWidget window;
        auto* made = new QPushButton("Made now", &window);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        made->setFocus();
        return made->grab().toImage().pixelColor(0, made->height() / 2) == colours::focusRing;
    };
    clickBeside();
    EXPECT_FALSE(ringed());
    pressKey(Qt::Key_Escape);
    EXPECT_TRUE(ringed());
    controller.window()->hide();
    controller.window()->show();
    controller.window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window()));
    EXPECT_TRUE(hasRing(controller.window()->focusWidget()));
}

}  // namespace
}  // namespace clipvane
