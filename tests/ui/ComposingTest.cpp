// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QClipboard>
#include <QInputMethodEvent>
#include <QTextBlock>
#include <QTextLayout>

#include "ui/WindowUnderTest.h"

// Text that an input method is still composing, as for Japanese or for accents, belongs to the
// event that it is typed for, whatever the user does next.

namespace clipvane {
namespace {

const std::string composed = "あめ";

class ComposingTest : public test::WindowTest {
  protected:
    ComposingTest() {
        open(writeEDL("cut.edl", 3));
        controller.window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(controller.window()));
        comments().setFocus();
    }

    CommentsView& comments() { return *find<CommentsView>(); }
    EventTableView& list() { return *find<EventTableView>(); }
    std::string stored(std::size_t row) {
        return std::string(controller.document().events[row].comments);
    }
    /// What an input method sends with each key, before anything is decided.
    void compose(const std::string& text) {
        QInputMethodEvent event(QString::fromStdString(text), {});
        QCoreApplication::sendEvent(&comments(), &event);
    }
    void composeAfter(const QString& typed) {
        QTest::keyClicks(&comments(), typed);
        compose(composed);
    }
    void expectNothingComposedIn(std::size_t row) {
        EXPECT_EQ(stored(row), "") << row;
        EXPECT_EQ(comments().textCursor().block().layout()->preeditAreaText(), "");
    }
};

TEST_F(ComposingTest, Meanwhile_NothingIsStored) {
    composeAfter("rain: ");
    EXPECT_EQ(stored(0), "rain: ");
    compose("");
    EXPECT_EQ(stored(0), "rain: ");
    EXPECT_EQ(comments().comments(), "rain: ");
}

TEST_F(ComposingTest, Decided_IsTyped) {
    composeAfter("rain: ");
    QInputMethodEvent decided;
    decided.setCommitString("雨");
    QCoreApplication::sendEvent(&comments(), &decided);
    EXPECT_EQ(stored(0), "rain: 雨");
}

TEST_F(ComposingTest, GivenUp_LeavesUntouchedCommentsAsTheyWere) {
    int edits = 0;
    QObject::connect(&comments(), &QPlainTextEdit::textChanged, &comments(), [&] {
        if (comments().isEdited()) ++edits;
    });
    compose(composed);
    compose("");
    EXPECT_EQ(edits, 0) << "line ends of several kinds would become one";
    EXPECT_FALSE(comments().isEdited());
    composeAfter("x");
    compose("");
    EXPECT_TRUE(comments().isEdited());
}

TEST_F(ComposingTest, OpenTimelineCancelled_StaysWithItsEvent) {
    composeAfter("rain: ");
    answers.cancelPanel();
    click("Open Timeline");
    EXPECT_EQ(stored(0), "rain: " + composed);
    EXPECT_EQ(comments().comments(), "rain: " + composed);
}

TEST_F(ComposingTest, AnotherFileOpened_DoesNotComeAlong) {
    composeAfter("");
    open(writeEDL("other.edl", 2));
    expectNothingComposedIn(0);
    EXPECT_EQ(comments().comments(), "");
}

TEST_F(ComposingTest, RemoveEvent_GoesWithItsEvent) {
    composeAfter("");
    click("Remove Event");
    EXPECT_EQ(controller.document().removedEvents.at(0).comments, composed);
    expectNothingComposedIn(0);
    EXPECT_EQ(comments().comments(), "");
}

TEST_F(ComposingTest, CopyInfo_HoldsIt) {
    composeAfter("rain: ");
    click("Copy Info");
    EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
                testing::EndsWith("Comments: rain: " + composed));
    EXPECT_EQ(stored(0), "rain: " + composed);
}

TEST_F(ComposingTest, Exports_HoldIt) {
    for (const char* title : {"Export CSV", "Export EDL"}) {
        composeAfter("");
        answers.chooseFile((folder / title).string());
        click(title);
    }
    EXPECT_THAT(test::contentOf(folder / "Export CSV"), testing::HasSubstr(composed));
    EXPECT_THAT(test::contentOf(folder / "Export EDL"), testing::HasSubstr(composed + composed));
}

TEST_F(ComposingTest, RateChosen_StaysWithItsEvent) {
    composeAfter("");
    auto& popup = *find<FrameRatePopup>();
    QTest::mouseClick(&popup, Qt::LeftButton);
    QTest::keyClick(popup.view(), Qt::Key_Down);
    QTest::keyClick(popup.view(), Qt::Key_Return);
    EXPECT_EQ(status(), "Converted 12 timecodes from 25 fps to 29.97 fps.");
    EXPECT_EQ(stored(0), composed);
    EXPECT_EQ(comments().comments(), composed);
}

TEST_F(ComposingTest, Help_TakesItAsTyped) {
    composeAfter("");
    click("Help");
    EXPECT_EQ(stored(0), composed);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->windowTitle() == "Clipvane Help") window->close();
    }
}

TEST_F(ComposingTest, RowClicked_StaysWithItsEvent) {
    composeAfter("");
    const QRect row = list().visualRect(list().model()->index(2, 0));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(stored(0), composed);
    expectNothingComposedIn(2);
    EXPECT_EQ(comments().comments(), "");
}

TEST_F(ComposingTest, RowChosenByAssistiveTechnology_StaysWithItsEvent) {
    composeAfter("");
    list().selectionModel()->select(
        list().model()->index(1, 0),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ASSERT_NE(label("Event 002: Clip 002"), nullptr);
    EXPECT_EQ(stored(0), composed);
    expectNothingComposedIn(1);
}

TEST_F(ComposingTest, SelectionCleared_StaysWithItsEvent) {
    composeAfter("");
    list().selectionModel()->clear();
    EXPECT_TRUE(comments().isReadOnly());
    EXPECT_EQ(stored(0), composed);
}

TEST_F(ComposingTest, FocusMovedOn_IsTyped) {
    composeAfter("");
    QTest::keyClick(&comments(), Qt::Key_Tab);
    EXPECT_EQ(stored(0), composed);
    comments().undo();
    EXPECT_EQ(stored(0), "") << "it can be undone as what is typed can";
}

}  // namespace
}  // namespace clipvane
