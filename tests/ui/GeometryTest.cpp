// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/Geometry.h"

#include <gtest/gtest.h>

#include "support/RowName.h"

namespace clipvane {
namespace {

void expectNear(const Rect& rect, const Rect& expected) {
    EXPECT_NEAR(rect.x, expected.x, 1e-9);
    EXPECT_NEAR(rect.y, expected.y, 1e-9);
    EXPECT_NEAR(rect.width, expected.width, 1e-9);
    EXPECT_NEAR(rect.height, expected.height, 1e-9);
}

struct LayoutRow {
    const char* name;
    double width;
    double height;
    Rect toolbar;
    Rect status;
    Rect left;
    Rect right;
};

class MainLayoutTest : public testing::TestWithParam<LayoutRow> {};

TEST_P(MainLayoutTest, PlacesTheFourRegions) {
    const LayoutRow& row = GetParam();
    const MainLayout layout = mainLayout(row.width, row.height);
    expectNear(layout.toolbar, row.toolbar);
    expectNear(layout.status, row.status);
    expectNear(layout.leftPanel, row.left);
    expectNear(layout.rightPanel, row.right);
}

INSTANTIATE_TEST_SUITE_P(Sizes, MainLayoutTest,
                         testing::Values(LayoutRow{"Smallest",
                                                   1180,
                                                   700,
                                                   {16, 642, 1148, 42},
                                                   {16, 16, 1148, 20},
                                                   {16, 48, 746, 582},
                                                   {774, 48, 390, 582}},
                                         LayoutRow{"Initial",
                                                   1440,
                                                   860,
                                                   {16, 802, 1408, 42},
                                                   {16, 16, 1408, 20},
                                                   {16, 48, 973.6, 742},
                                                   {1001.6, 48, 422.4, 742}},
                                         LayoutRow{"Wide",
                                                   2000,
                                                   1000,
                                                   {16, 942, 1968, 42},
                                                   {16, 16, 1968, 20},
                                                   {16, 48, 1486, 882},
                                                   {1514, 48, 470, 882}},
                                         LayoutRow{"JustBelow1300",
                                                   1331,
                                                   860,
                                                   {16, 802, 1299, 42},
                                                   {16, 16, 1299, 20},
                                                   {16, 48, 897, 742},
                                                   {925, 48, 390, 742}},
                                         LayoutRow{"TooNarrow",
                                                   31,
                                                   860,
                                                   {16, 802, 0, 42},
                                                   {16, 16, 0, 20},
                                                   {16, 48, 0, 742},
                                                   {28, 48, 390, 742}},
                                         LayoutRow{"TooLow",
                                                   1440,
                                                   50,
                                                   {16, -8, 1408, 42},
                                                   {16, 16, 1408, 20},
                                                   {16, 48, 973.6, 0},
                                                   {1001.6, 48, 422.4, 0}}),
                         test::RowName());

TEST(Panel, ContentFillsWhatItsMarginsAndItsTitleLeave) {
    expectNear(panelLayout(746, 582).title, {14, 549, 718, 24});
    expectNear(panelLayout(746, 582).content, {14, 14, 718, 530});
    expectNear(panelLayout(20, 40).title, {14, 19, 0, 24});
    expectNear(panelLayout(20, 40).content, {14, 14, 0, 0});
}

TEST(DetailStack, OneLineTitle_CommentsTakeWhatIsLeft) {
    const DetailStackLayout layout = detailStackLayout(374.4, 27, 11);
    expectNear(layout.title, {0, 605, 362.4, 27});
    ASSERT_EQ(layout.rows.size(), 11U);
    expectNear(layout.rows.front(), {0, 565, 362.4, 26});
    expectNear(layout.rows.back(), {0, 165, 362.4, 26});
    expectNear(layout.comments, {0, 12, 362.4, 139});
}

TEST(DetailStack, TwoLineTitle_CommentsGiveWay) {
    EXPECT_EQ(detailStackLayout(374, 54, 11).comments.height, 112);
}

TEST(DetailStack, NarrowPanel_RowsStay360Wide) {
    EXPECT_EQ(detailStackWidth(362), 360);
    EXPECT_EQ(detailStackLayout(360, 27, 11).rows[0].width, 360);
    EXPECT_EQ(detailStackWidth(442), 422);
    EXPECT_EQ(detailStackLayout(422, 27, 11).rows[0].width, 410);
}

TEST(DetailRow, KeyAndValueHaveTheirFrames) {
    expectNear(detailRowLayout(360).key, {0, 3, 104, 20});
    expectNear(detailRowLayout(360).value, {116, 1, 244, 23});
    expectNear(detailRowLayout(100).value, {116, 1, 0, 23});
}

TEST(CommentsBlock, TitleAboveTheEditor) {
    expectNear(commentsBlockLayout(360, 302).title, {0, 278, 360, 20});
    expectNear(commentsBlockLayout(360, 302).scroll, {0, 0, 360, 268});
    expectNear(commentsBlockLayout(360, 139).scroll, {0, 0, 360, 105});
    expectNear(commentsBlockLayout(360, 20).scroll, {0, 0, 360, 0});
}

TEST(FlippedRect, RoundsEdges_MarginsStayExact) {
    const MainLayout layout = mainLayout(1440, 860);
    EXPECT_EQ(flipped(layout.toolbar, 860), QRect(16, 16, 1408, 42));
    EXPECT_EQ(flipped(layout.status, 860), QRect(16, 824, 1408, 20));
    EXPECT_EQ(flipped(layout.leftPanel, 860), QRect(16, 70, 974, 742));
    EXPECT_EQ(flipped(layout.rightPanel, 860), QRect(1002, 70, 422, 742));
}

}  // namespace
}  // namespace clipvane
