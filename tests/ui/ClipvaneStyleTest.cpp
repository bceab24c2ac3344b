// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/ClipvaneStyle.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTest>
#include <QTreeWidget>

#include "ui/Colours.h"

namespace clipvane {
namespace {

QImage imageOf(QWidget& widget) {
    widget.show();
    return widget.grab().toImage();
}

TEST(ClipvaneStyle, ProgramIsDark) {
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), colours::rgb(0.07, 0.08, 0.09));
    EXPECT_GT(QApplication::palette().color(QPalette::WindowText).lightness(), 200);
    EXPECT_FALSE(QApplication::desktopSettingsAware());
}

TEST(ClipvaneStyle, ToolkitsOwnQuestion_ShowsMarkupAsText) {
    QMessageBox box(QMessageBox::Warning, "Replace?", "<b>x</b>.csv already exists.");
    box.show();
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
}

TEST(ClipvaneStyle, ToolkitsOwnQuestion_LooksLikeAnAlert) {
    QMessageBox box(QMessageBox::Warning, "Export", "<i>a</i>.csv already exists.\nReplace it?",
                    QMessageBox::Yes | QMessageBox::No);
    box.show();
    EXPECT_EQ(box.text(), "<i>a</i>.csv already exists.");
    EXPECT_EQ(box.informativeText(), "Replace it?");
    for (const char* name : {"qt_msgbox_label", "qt_msgbox_informativelabel"}) {
        const auto* label = box.findChild<QLabel*>(name);
        ASSERT_NE(label, nullptr) << name;
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << name;
        EXPECT_GE(label->width(), 330) << name;
    }
    EXPECT_EQ(box.findChild<QLabel*>("qt_msgbox_label")->font().weight(), QFont::Bold);
    for (const auto* button : box.findChildren<QPushButton*>()) {
        EXPECT_GE(button->width(), 76);
        EXPECT_EQ(button->font().pixelSize(), 14);
    }
    const QImage image = box.grab().toImage();
    EXPECT_EQ(image.pixelColor(24 + 6, 24 + 20), colours::warning) << "the ground of the sign";
    EXPECT_EQ(image.pixelColor(24 + 20, 24 + 20), colours::window) << "its stem";
}

TEST(ClipvaneStyle, RowsOfFiles_Are26High) {
    QTreeWidget files;
    files.addTopLevelItem(new QTreeWidgetItem({"cut.edl"}));
    files.show();
    EXPECT_EQ(files.visualItemRect(files.topLevelItem(0)).height(), 26);
}

TEST(ClipvaneStyle, IconsOfTheFilePanel_AreGreyLinesOrBlueFolders) {
    for (const auto which :
         {QStyle::SP_ArrowBack, QStyle::SP_ArrowForward, QStyle::SP_FileDialogToParent,
          QStyle::SP_FileDialogNewFolder, QStyle::SP_FileDialogListView,
          QStyle::SP_FileDialogDetailedView, QStyle::SP_DirIcon, QStyle::SP_DirHomeIcon,
          QStyle::SP_FileIcon, QStyle::SP_ComputerIcon, QStyle::SP_DriveHDIcon,
          QStyle::SP_DesktopIcon, QStyle::SP_TrashIcon}) {
        const QIcon icon = QApplication::style()->standardIcon(which);
        for (const int size : {16, 24, 48}) {
            const QImage image = icon.pixmap(size, size).toImage();
            ASSERT_EQ(image.size(), QSize(size, size)) << which;
            int ink = 0;
            for (int y = 0; y < size; ++y) {
                for (int x = 0; x < size; ++x) {
                    const QColor colour = image.pixelColor(x, y);
                    if (colour.alpha() < 200) continue;
                    ++ink;
                    EXPECT_GE(colour.blue() + 2, colour.green()) << which << " is green there";
                    EXPECT_GE(colour.blue() + 2, colour.red()) << which << " is yellow there";
                }
            }
            EXPECT_GT(ink, size / 2) << which << " at " << size;
        }
    }
}

TEST(ClipvaneStyle, NothingToScroll_BarKeepsItsPlaceWithoutAThumb) {
    QWidget window;
    QScrollBar bar(Qt::Vertical, &window);
    bar.resize(12, 200);
    bar.setRange(0, 0);
    const QColor ground = imageOf(window).pixelColor(6, 20);
    bar.setRange(0, 100);
    bar.setPageStep(100);
    EXPECT_NE(imageOf(window).pixelColor(6, 20), ground);
    EXPECT_EQ(imageOf(window).pixelColor(6, 180), ground);
}

TEST(ClipvaneStyle, ThumbFollowsTheValue) {
    QScrollBar bar(Qt::Vertical);
    bar.resize(12, 200);
    bar.setRange(0, 100);
    bar.setPageStep(100);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.maximum = 100;
    option.pageStep = 100;
    const auto thumb = [&] {
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option,
                                           QStyle::SC_ScrollBarSlider, &bar);
    };
    EXPECT_EQ(thumb(), QRect(0, 0, 12, 100));
    option.sliderPosition = 100;
    EXPECT_EQ(thumb(), QRect(0, 100, 12, 100));
    option.maximum = 1'000'000'000;
    option.sliderPosition = 0;
    EXPECT_EQ(thumb().height(), 36);
}

TEST(ClipvaneStyle, FlatToolButton_IsRingedForTheKeyboardAlone) {
    const auto edge = [](QStyle::State state) {
        QStyleOptionToolButton option;
        option.rect = {0, 0, 32, 32};
        option.subControls = QStyle::SC_ToolButton;
        option.state =
            QStyle::State_Enabled | QStyle::State_AutoRaise | QStyle::State_Raised | state;
        QImage image(32, 32, QImage::Format_ARGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        QApplication::style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter);
        return image.pixelColor(16, 0);
    };
    EXPECT_EQ(edge(QStyle::State_None), QColor(Qt::black));
    EXPECT_EQ(edge(QStyle::State_HasFocus), QColor(Qt::black)) << "a click shows no ring";
    EXPECT_EQ(edge(QStyle::State_KeyboardFocusChange), QColor(Qt::black))
        << "another has the focus";
    EXPECT_EQ(edge(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange), colours::focusRing);
}

class ButtonLook : public testing::Test {
  protected:
    QColor fill(QStyle::State state) {
        QStyleOptionButton option;
        option.rect = {0, 0, 100, 32};
        option.state = QStyle::State_Enabled | state;
        QImage image(100, 32, QImage::Format_ARGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        QApplication::style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter);
        edge = image.pixelColor(50, 0);
        return image.pixelColor(50, 16);
    }
    QColor edge;
};

TEST_F(ButtonLook, HoverPressAndKeyboardFocus_Show) {
    const QColor plain = fill(QStyle::State_None);
    const QColor plainEdge = edge;
    EXPECT_GT(fill(QStyle::State_MouseOver).lightness(), plain.lightness());
    EXPECT_LT(fill(QStyle::State_Sunken).lightness(), plain.lightness());
    fill(QStyle::State_HasFocus);
    EXPECT_EQ(edge, plainEdge) << "a click shows no ring";
    fill(QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange);
    EXPECT_EQ(edge, colours::focusRing);
}

}  // namespace
}  // namespace clipvane
