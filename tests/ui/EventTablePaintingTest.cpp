// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <QHeaderView>
#include <QPaintEvent>

#include "ui/ColourMixing.h"
#include "ui/EventCell.h"
#include "ui/EventTableUnderTest.h"

namespace clipvane {
namespace {

using test::over;

class EventTablePaintingTest : public test::EventTableFixture {
  protected:
    /// The colour where no text and no line is, at the right end of the row's first cell.
    QColor background(int row) {
        const QImage image = view.viewport()->grab().toImage();
        const int y = row * EventTableView::rowHeight - view.verticalScrollBar()->value() + 4;
        return image.pixelColor(test::rightOf(0) - 6, y);
    }
    /// The brightest green in the cell's text.
    int brightestText(int row, int column) {
        const QRect cell = view.visualRect(model.index(row, column)).adjusted(8, 4, -8, -4);
        const QImage image = view.viewport()->grab(cell).toImage();
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                most = std::max(most, image.pixelColor(x, y).green());
            }
        }
        return most;
    }
    QString shownName(int width) const {
        return cell().shownText(model.index(0, test::columnOf("clipName")), width);
    }
    const EventCell& cell() const { return dynamic_cast<const EventCell&>(*view.itemDelegate()); }
};

/// What a widget paints when it handles what is waiting for it.
class PaintedArea : public QObject {
  public:
    explicit PaintedArea(QWidget& widget) {
        QCoreApplication::processEvents();
        widget.installEventFilter(this);
    }
    QRect afterwards() {
        area = {};
        QCoreApplication::processEvents();
        return area;
    }

  private:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) area |= static_cast<QPaintEvent*>(event)->rect();
        return false;
    }

    QRect area;
};

void expectAlmost(const QColor& colour, const QColor& expected) {
    EXPECT_NEAR(colour.red(), expected.red(), 1);
    EXPECT_NEAR(colour.green(), expected.green(), 1);
    EXPECT_NEAR(colour.blue(), expected.blue(), 1);
}

TEST_F(EventTablePaintingTest, Backgrounds_BaseAlternateAmberAndBlue) {
    fill(4);
    edit(2, [](auto& event) { event.highlighted = true; });
    edit(3, [](auto& event) { event.highlighted = true; });
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

TEST_F(EventTablePaintingTest, TextsChanged_AreShownAtOnce) {
    fill(100);
    PaintedArea painted(*view.viewport());
    model.textsChanged();
    EXPECT_EQ(painted.afterwards(), view.viewport()->rect());
    removeRow(3);
    EXPECT_EQ(painted.afterwards(), view.viewport()->rect());
    model.textsChanged();
    EXPECT_EQ(painted.afterwards(), view.viewport()->rect());
}

TEST_F(EventTablePaintingTest, SelectionWithoutFocus_StaysBlue) {
    fill(1);
    view.selectRow(0);
    view.setFocus();
    const QColor focused = background(0);
    view.clearFocus();
    EXPECT_EQ(background(0), focused);
}

TEST_F(EventTablePaintingTest, VerticalLines_AlsoBelowTheLastRow) {
    fill(1);
    const QImage image = view.viewport()->grab().toImage();
    const int line = test::rightOf(0) - 1;
    EXPECT_NE(image.pixelColor(line, 300), colours::table);
    EXPECT_EQ(image.pixelColor(line - 1, 300), colours::table);
    EXPECT_EQ(image.pixelColor(20, 47), image.pixelColor(20, 2)) << "no line between rows";
}

TEST_F(EventTablePaintingTest, EmptyList_HasNoLinesBehindItsText) {
    const QImage image = view.viewport()->grab().toImage();
    for (int x = 0; x < image.width(); ++x) {
        ASSERT_EQ(image.pixelColor(x, 300), colours::table) << x;
    }
}

TEST_F(EventTablePaintingTest, TypeOnASelectedRow_IsLighter) {
    fill(2);
    view.selectRow(0);
    view.resize(1400, 704);
    const int type = test::columnOf("format");
    EXPECT_NEAR(brightestText(0, type), colours::secondaryTextOnSelection.green(), 8);
    EXPECT_NEAR(brightestText(1, type), colours::secondaryText.green(), 8);
}

TEST_F(EventTablePaintingTest, LongClipName_LosesItsMiddle) {
    fill(1);
    edit(0,
         [](auto& event) { event.clipName = "A001_C001_a_very_long_name_of_a_clip_take_07.mov"; });
    const QString shown = shownName(280);
    EXPECT_TRUE(shown.startsWith("A001_C001"));
    EXPECT_TRUE(shown.endsWith("07.mov"));
    EXPECT_TRUE(shown.contains(u'…'));
    EXPECT_EQ(cell().font().pixelSize(), 14);
    EXPECT_EQ(cell().font().weight(), QFont::Medium);
}

TEST_F(EventTablePaintingTest, TextsThatJustFit_AreShownWhole) {
    fill(1);
    const QFontMetrics metrics(cell().font());
    for (const QString& name : {QString(31, 'x'), QString(31, 'W'), QString(30, 'x') + "é"}) {
        edit(0, [&](auto& event) { event.clipName = name.toStdString(); });
        const int width = metrics.horizontalAdvance(name) + 2 * EventCell::padding;
        EXPECT_EQ(shownName(width + 1), name);
        EXPECT_NE(shownName(width - 3), name);
    }
}

TEST_F(EventTablePaintingTest, SelectionChanged_HeaderIsNotPaintedAgainAsAWhole) {
    fill(2);
    view.selectRow(0);
    PaintedArea painted(*view.horizontalHeader()->viewport());
    view.selectRow(1);
    EXPECT_LE(painted.afterwards().width(), view.columnWidth(0));
    view.setColumnWidth(1, 300);
    EXPECT_GT(painted.afterwards().width(), view.columnWidth(1));
}

TEST_F(EventTablePaintingTest, NamesThatCouldBreakAView_AreShownAsText) {
    fill(1);
    for (const char* name : {"<b>bold</b>", "two\nlines", "שלום", "😀", "a\u0001b"}) {
        edit(0, [&](auto& event) { event.clipName = name; });
        EXPECT_FALSE(shownName(280).contains('\n'));
        view.grab();  // painting it neither fails nor hangs
    }
    edit(0, [](auto& event) { event.clipName = "<b>bold</b>"; });
    EXPECT_EQ(shownName(280), "<b>bold</b>");
}

}  // namespace
}  // namespace clipvane
