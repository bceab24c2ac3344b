// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPixmap>

#include "support/RowName.h"
#include "ui/Colours.h"

namespace clipvane {
namespace {

struct IconRow {
    const char* name;
    int size;
    QPoint sourceClip, reelClip, recordClip;
};

class ApplicationIconSize : public testing::TestWithParam<IconRow> {};

TEST_P(ApplicationIconSize, HasADrawingOfItsOwn) {
    const auto& row = GetParam();
    const QIcon icon = QGuiApplication::windowIcon();
    EXPECT_THAT(icon.availableSizes(), testing::Contains(QSize(row.size, row.size)));
    const QImage image = icon.pixmap(row.size, row.size).toImage();
    ASSERT_EQ(image.size(), QSize(row.size, row.size));
    EXPECT_EQ(image.pixelColor(row.sourceClip), colours::sourceField);
    EXPECT_EQ(image.pixelColor(row.reelClip), colours::reelField);
    EXPECT_EQ(image.pixelColor(row.recordClip), colours::recordField);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ApplicationIconSize,
                         testing::Values(IconRow{"Pixels16", 16, {4, 12}, {8, 12}, {12, 12}},
                                         IconRow{"Pixels24", 24, {6, 16}, {12, 16}, {18, 16}},
                                         IconRow{"Pixels32", 32, {9, 22}, {17, 22}, {24, 22}},
                                         IconRow{"Pixels48", 48, {14, 33}, {28, 33}, {37, 33}},
                                         IconRow{"Pixels64", 64, {19, 44}, {36, 44}, {48, 44}},
                                         IconRow{"Pixels128", 128, {38, 88}, {72, 88}, {96, 88}},
                                         IconRow{
                                             "Pixels256", 256, {76, 176}, {144, 176}, {192, 176}}),
                         test::RowName{});

TEST(ApplicationIcon, Application_BearsIconAndTheDesktopEntrysName) {
    EXPECT_EQ(QGuiApplication::desktopFileName(), "clipvane");
    EXPECT_FALSE(QGuiApplication::windowIcon().isNull());
}

}  // namespace
}  // namespace clipvane
