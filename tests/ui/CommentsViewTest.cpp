// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/CommentsView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "support/RowName.h"
#include "ui/Colours.h"
#include "ui/SampleDocument.h"

namespace clipvane {
namespace {

const UUID one = test::numberedEvent(1).id;
const UUID two = test::numberedEvent(2).id;

TEST(CommentsView, Shown_CountsAsUntouched) {
    CommentsView view;
    view.showComments(one, "a\r\nb");
    EXPECT_FALSE(view.isEdited());
    EXPECT_FALSE(view.isReadOnly());
}

TEST(CommentsView, NothingShown_EmptyAndReadOnly) {
    CommentsView view;
    EXPECT_TRUE(view.isReadOnly());
    view.showComments(one, "text");
    view.showNothing();
    EXPECT_TRUE(view.isReadOnly());
    EXPECT_EQ(view.comments(), "");
    QTest::keyClicks(&view, "x");
    EXPECT_EQ(view.comments(), "");
    EXPECT_FALSE(view.isEdited());
}

/// The colour of the middle of the upper edge.
QColor edgeOf(CommentsView& view) {
    const QImage image = view.grab().toImage();
    return image.pixelColor(image.width() / 2, 0);
}

TEST(CommentsView, ReadOnly_LooksItAndTellsHowToCommentAndTakesNoFocus) {
    CommentsView view;
    view.resize(362, 105);
    view.show();
    EXPECT_EQ(edgeOf(view), colours::panelEdge);
    EXPECT_EQ(view.placeholderText(), "Select an event to comment on it");
    EXPECT_EQ(view.palette().color(QPalette::PlaceholderText), colours::secondaryText);
    EXPECT_EQ(view.grab().toImage().pixelColor(180, 60), colours::editor);
    EXPECT_EQ(view.focusPolicy(), Qt::NoFocus);
    view.showComments(one, "");
    EXPECT_EQ(edgeOf(view), colours::fieldEdge);
    EXPECT_EQ(view.placeholderText(), "");
    EXPECT_EQ(view.focusPolicy(), Qt::StrongFocus);
    view.showNothing();
    EXPECT_EQ(edgeOf(view), colours::panelEdge);
    EXPECT_EQ(view.focusPolicy(), Qt::NoFocus);
}

struct LosslessRow {
    const char* name;
    const char* text;
    const char* read;
};

class CommentsViewLossless : public testing::TestWithParam<LosslessRow> {};

TEST_P(CommentsViewLossless, ReadBackAsItWas) {
    CommentsView view;
    view.showComments(one, GetParam().text);
    EXPECT_EQ(view.comments(), GetParam().read);
    view.moveCursor(QTextCursor::End);
    QTest::keyClicks(&view, "x");
    EXPECT_TRUE(view.isEdited());
    EXPECT_EQ(view.comments(), std::string(GetParam().read) + "x");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CommentsViewLossless,
    testing::Values(LosslessRow{"Blanks", "  two\n   lines \n", "  two\n   lines \n"},
                    LosslessRow{"NoBreakSpace", "a\u00A0b", "a\u00A0b"},
                    LosslessRow{"LineSeparator", "a\u2028b", "a\u2028b"},
                    LosslessRow{"Tab", "a\tb", "a\tb"}, LosslessRow{"Emoji", "😀 é", "😀 é"},
                    LosslessRow{"Markup", "<b>a</b> &amp;", "<b>a</b> &amp;"},
                    LosslessRow{"CarriageReturns", "a\rb\r\nc", "a\nb\nc"}),
    test::RowName());

TEST(CommentsView, ShiftReturn_TypesALineFeed) {
    CommentsView view;
    view.showComments(one, "a");
    view.moveCursor(QTextCursor::End);
    QTest::keyClick(&view, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&view, "b");
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(view.comments(), "a\nb\n");
}

TEST(CommentsView, SameEventShownAgain_KeepsUndo) {
    CommentsView view;
    view.showComments(one, "a");
    QTest::keyClicks(&view, "x");
    view.showComments(one, "xa");
    EXPECT_EQ(view.comments(), "xa");
    view.undo();
    EXPECT_EQ(view.comments(), "a");
    EXPECT_TRUE(view.isEdited()) << "what was stored while typing has to be stored anew";
}

TEST(CommentsView, OtherEventShown_UndoStaysWithin) {
    CommentsView view;
    view.showComments(one, "first");
    QTest::keyClicks(&view, "x");
    view.showComments(two, "second");
    view.undo();
    EXPECT_EQ(view.comments(), "second");
    EXPECT_FALSE(view.isEdited());
}

TEST(CommentsView, ShowingAndMovingTheCursor_EmitsNoChange) {
    CommentsView view;
    int changes = 0;
    QObject::connect(&view, &QPlainTextEdit::textChanged, &view, [&] { ++changes; });
    view.showComments(one, "some text");
    view.showNothing();
    view.showComments(two, "other text");
    view.moveCursor(QTextCursor::End);
    EXPECT_EQ(changes, 0);
    EXPECT_FALSE(view.isEdited());
}

TEST(CommentsView, Copying_KeepsEveryCharacter) {
    CommentsView view;
    view.showComments(one, "a\u00A0b\nc");
    view.selectAll();
    view.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("a\u00A0b\nc"));
}

TEST(CommentsView, EndlessWord_BreaksAnywhereInsteadOfTakingMinutes) {
    CommentsView view;
    view.resize(362, 105);
    view.show();
    view.showComments(one, "ordinary words");
    EXPECT_EQ(view.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    QGuiApplication::clipboard()->setText(QString(200'000, 'a'));
    view.paste();
    EXPECT_EQ(view.wordWrapMode(), QTextOption::WrapAnywhere);
    EXPECT_EQ(view.comments().size(), 200'014U);
    view.showComments(two, std::string(200'000, 'b'));
    EXPECT_EQ(view.wordWrapMode(), QTextOption::WrapAnywhere);
    const QString joined = QString("c\u00A0").repeated(5'000);  // no line may break there either
    view.showComments(one, joined.toStdString());
    EXPECT_EQ(view.wordWrapMode(), QTextOption::WrapAnywhere);
    view.showComments(two, "ordinary words");
    EXPECT_EQ(view.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST(CommentsView, LooksAsAnEditor) {
    const CommentsView view;
    EXPECT_EQ(view.font().pixelSize(), 16);
    EXPECT_EQ(view.palette().color(QPalette::Base), colours::rgb(0.08, 0.1, 0.12));
    EXPECT_TRUE(view.isUndoRedoEnabled());
    EXPECT_EQ(view.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_TRUE(view.tabChangesFocus());
}

}  // namespace
}  // namespace clipvane
