// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/FrameRatePopup.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>

#include "ui/Colours.h"

namespace clipvane {
namespace {

const QStringList standardTitles{"23.976 fps", "24 fps", "25 fps", "29.97 fps", "30 fps",
                                 "47.952 fps", "48 fps", "50 fps", "59.94 fps", "60 fps"};

QStringList titles(const QComboBox& popup) {
    QStringList result;
    for (int i = 0; i < popup.count(); ++i) result << popup.itemText(i);
    return result;
}

class FrameRatePopupTest : public testing::Test {
  protected:
    FrameRatePopupTest() {
        QObject::connect(&popup, &QComboBox::activated, &popup, [this] { ++chosen; });
        popup.showRate(24);
        popup.show();
        popup.setFocus();
    }

    FrameRatePopup popup;
    int chosen = 0;
};

TEST_F(FrameRatePopupTest, HoldsTheTenStandardRates) {
    EXPECT_EQ(titles(popup), standardTitles);
    EXPECT_EQ(popup.currentText(), "24 fps");
    EXPECT_EQ(popup.font().pixelSize(), 15);
    EXPECT_EQ(popup.font().weight(), QFont::Medium);
    EXPECT_EQ(popup.accessibleName(), "Global FPS");
}

TEST_F(FrameRatePopupTest, OtherRate_OneMoreEntryAtTheEnd) {
    popup.showRate(12.5);
    EXPECT_EQ(titles(popup), standardTitles + QStringList("12.5 fps"));
    EXPECT_EQ(popup.currentText(), "12.5 fps");
    popup.showRate(25);
    EXPECT_EQ(popup.count(), 11);
    EXPECT_EQ(popup.currentText(), "25 fps");
    popup.showRate(12.5);
    EXPECT_EQ(popup.count(), 11);
}

TEST_F(FrameRatePopupTest, RateWithAKnownTitle_SelectsThatEntry) {
    popup.showRate(24000.0 / 1001);
    EXPECT_EQ(popup.count(), 10);
    EXPECT_EQ(popup.currentText(), "23.976 fps");
    EXPECT_EQ(chosen, 0);
}

TEST_F(FrameRatePopupTest, WheelOverIt_ChoosesNothing) {
    QWheelEvent wheel({10, 10}, popup.mapToGlobal(QPointF(10, 10)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&popup, &wheel);
    EXPECT_EQ(popup.currentText(), "24 fps");
    EXPECT_EQ(chosen, 0);
}

TEST_F(FrameRatePopupTest, StrayKeys_ChooseNothing) {
    for (const auto key :
         {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_3, Qt::Key_6}) {
        QTest::keyClick(&popup, key);
        EXPECT_EQ(popup.currentText(), "24 fps") << key;
        EXPECT_FALSE(popup.view()->isVisible()) << key;
    }
    EXPECT_EQ(chosen, 0);
}

TEST_F(FrameRatePopupTest, ArrowsSpaceAndReturn_OpenTheList) {
    for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return}) {
        QTest::keyClick(&popup, key);
        EXPECT_TRUE(popup.view()->isVisible()) << key;
        EXPECT_EQ(popup.currentText(), "24 fps") << key;
        popup.hidePopup();
    }
    EXPECT_EQ(chosen, 0);
}

TEST_F(FrameRatePopupTest, OpenList_IsOneSurfaceWithAStraightEdge) {
    popup.showPopup();
    QWidget& list = *popup.view()->window();
    const QImage image = list.grab().toImage();
    const int right = image.width() - 1;
    const int bottom = image.height() - 1;
    for (const QPoint& corner :
         {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
        EXPECT_EQ(image.pixelColor(corner), colours::menuEdge) << corner.x() << ' ' << corner.y();
    }
    // Beside the entries' texts, from the upper edge to the lower.
    for (const int x : {2, right - 2}) {
        for (int y = 1; y < bottom; ++y) {
            ASSERT_EQ(image.pixelColor(x, y), colours::menu) << x << ' ' << y;
        }
    }
}

TEST_F(FrameRatePopupTest, OpenList_ItsEntriesAreAsWideAsTheList) {
    popup.showPopup();
    QAbstractItemView& list = *popup.view();
    const QRect entry = list.visualRect(list.model()->index(0, 0));
    EXPECT_EQ(entry.width(), list.viewport()->width());
    EXPECT_EQ(entry.height(), 30);
}

TEST_F(FrameRatePopupTest, CurrentEntryChosenAgain_Counts) {
    QTest::keyClick(&popup, Qt::Key_Space);
    QTest::qWait(1);
    QTest::keyClick(popup.view(), Qt::Key_Return);
    EXPECT_EQ(popup.currentText(), "24 fps");
    EXPECT_EQ(chosen, 1);
    EXPECT_FALSE(popup.view()->isVisible());
}

TEST_F(FrameRatePopupTest, EntryChosenByKeyboard_Counts) {
    QTest::keyClick(&popup, Qt::Key_Down);
    QTest::keyClick(popup.view(), Qt::Key_Down);
    QTest::keyClick(popup.view(), Qt::Key_Return);
    EXPECT_EQ(popup.currentText(), "25 fps");
    EXPECT_EQ(chosen, 1);
}

TEST_F(FrameRatePopupTest, KeyThatComesAgainWhereAssistiveTechnologyListens_ChoosesOnce) {
    QTest::keyClick(&popup, Qt::Key_Down);
    QTest::keyClick(popup.view(), Qt::Key_Return);
    ASSERT_EQ(chosen, 1);
    QKeyEvent late(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    QApplication::sendEvent(popup.view(), &late);
    EXPECT_EQ(chosen, 1);
    EXPECT_FALSE(popup.view()->isVisible());
}

}  // namespace
}  // namespace clipvane
