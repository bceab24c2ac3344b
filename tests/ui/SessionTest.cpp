// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QClipboard>

#include "ui/WindowUnderTest.h"

namespace clipvane {
namespace {

class SessionTest : public test::WindowTest {
  protected:
    void select(int row) { find<EventTableView>()->selectRow(row); }
    void type(const QString& text) { QTest::keyClicks(find<CommentsView>(), text); }
    std::optional<int> selected() {
        const auto rows = find<EventTableView>()->selectionModel()->selectedRows();
        return rows.isEmpty() ? std::nullopt : std::optional(rows.first().row());
    }
    void chooseRate(const QString& title) {
        auto* popup = find<FrameRatePopup>();
        popup->setCurrentIndex(popup->findText(title));
        Q_EMIT popup->activated(popup->currentIndex());
    }
};

TEST_F(SessionTest, OpenTimeline_FillsTheWindow) {
    open(writeEDL("cut.edl", 3));
    EXPECT_TRUE(answers.allGiven());
    EXPECT_EQ(answers.alerts,
              QStringList("Check Project Frame Rate: Please make sure to set the right project "
                          "frame rate. Incorrect frame rate might produce incorrect timecodes."));
    EXPECT_EQ(status(), "Loaded 3 events from cut.edl. FPS: 25 (File).");
    EXPECT_EQ(controller.window()->windowTitle(), "Clipvane");
    EXPECT_EQ(find<FrameRatePopup>()->currentText(), "25 fps");
    EXPECT_FALSE(label("Open a timeline file to view events")->isVisible());
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(
        details(),
        (QStringList{"Clip Name=Clip 001", "Reel ID=R1", "Track=V", "Source In=01:00:00:00",
                     "Source Out=01:00:04:00", "Source Dur=00:00:04:00 (100 frames)",
                     "Record In=02:00:00:00", "Record Out=02:00:04:00",
                     "Record Dur=00:00:04:00 (100 frames)", "FPS Source=File", "Format=EDL"}));
    EXPECT_NE(label("Event 001: Clip 001"), nullptr);
    EXPECT_FALSE(find<CommentsView>()->isReadOnly());
}

TEST_F(SessionTest, OpenTimeline_PanelCancelled_ChangesNothing) {
    open(writeEDL("cut.edl", 3));
    answers.cancelPanel();
    click("Open Timeline");
    EXPECT_TRUE(answers.allGiven());
    EXPECT_EQ(status(), "Loaded 3 events from cut.edl. FPS: 25 (File).");
    EXPECT_EQ(find<EventTableView>()->model()->rowCount(), 3);
}

TEST_F(SessionTest, OpenTimeline_Refused_KeepsTheOldTimeline) {
    open(writeEDL("cut.edl", 3));
    select(1);
    test::writeContent(folder / "<i>x.pdf", "x");
    open((folder / "<i>x.pdf").string());
    ASSERT_EQ(answers.alerts.size(), 2);
    EXPECT_TRUE(answers.alerts[1].startsWith("Could not open timeline: "));
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(status(), "Loaded 3 events from cut.edl. FPS: 25 (File).");
}

TEST_F(SessionTest, OpenTimeline_WithoutEvents_ShowsTheEmptyList) {
    open(writeEDL("cut.edl", 3));
    open(writeEDL("none.edl", 0));
    EXPECT_EQ(status(), "Loaded 0 events from none.edl. FPS: 25 (File).");
    EXPECT_TRUE(label("Open a timeline file to view events")->isVisible());
    EXPECT_NE(label("No event selected"), nullptr);
    EXPECT_TRUE(find<CommentsView>()->isReadOnly());
    EXPECT_EQ(find<CommentsView>()->comments(), "");
    EXPECT_EQ(answers.alerts.size(), 2);
}

TEST_F(SessionTest, OpenTimeline_SecondFileOfTheSameLength_ShowsItsFirstEvent) {
    open(writeEDL("one.edl", 3));
    select(2);
    type("of the first file");
    open(writeEDL("two.edl", 3));
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(find<CommentsView>()->comments(), "");
    select(2);
    EXPECT_EQ(find<CommentsView>()->comments(), "");
}

TEST_F(SessionTest, Comment_StaysWithItsEvent) {
    open(writeEDL("cut.edl", 3));
    type("first");
    select(1);
    EXPECT_EQ(find<CommentsView>()->comments(), "");
    type("second");
    select(0);
    EXPECT_EQ(find<CommentsView>()->comments(), "first");
    EXPECT_EQ(controller.document().events[0].comments, "first");
    EXPECT_EQ(controller.document().events[1].comments, "second");
    EXPECT_EQ(controller.document().events[2].comments, "");
}

TEST_F(SessionTest, Comment_Undone_IsStoredToo) {
    open(writeEDL("cut.edl", 2));
    type("x");
    find<CommentsView>()->undo();
    EXPECT_EQ(controller.document().events[0].comments, "");
}

TEST_F(SessionTest, RateChange_KeepsSelectionCommentAndUndo) {
    open(writeEDL("cut.edl", 3));
    select(2);
    type("note");
    chooseRate("50 fps");
    EXPECT_EQ(status(), "Converted 12 timecodes from 25 fps to 50 fps.");
    EXPECT_EQ(selected(), 2);
    EXPECT_EQ(find<CommentsView>()->comments(), "note");
    EXPECT_TRUE(find<CommentsView>()->document()->isUndoAvailable());
    EXPECT_TRUE(details().contains("FPS Source=Manual"));
    EXPECT_TRUE(details().contains("Source Dur=00:00:04:00 (200 frames)"));
}

TEST_F(SessionTest, RateChange_WaitCursorMeanwhile) {
    open(writeEDL("cut.edl", 3));
    auto seen = Qt::ArrowCursor;
    QMetaObject::invokeMethod(
        controller.window(),
        [&] {
            if (const auto* cursor = QApplication::overrideCursor()) seen = cursor->shape();
        },
        Qt::QueuedConnection);
    chooseRate("50 fps");
    EXPECT_EQ(seen, Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(SessionTest, RateChange_AnotherSlipsInBefore_BothCountFromWhatTheyFind) {
    open(writeEDL("cut.edl", 3));
    QMetaObject::invokeMethod(
        controller.window(), [&] { chooseRate("30 fps"); }, Qt::QueuedConnection);
    chooseRate("50 fps");
    EXPECT_EQ(status(), "Converted 12 timecodes from 30 fps to 50 fps.");
    EXPECT_TRUE(details().contains("Source Dur=00:00:04:00 (200 frames)"));
}

TEST_F(SessionTest, RemoveEvent_ReturnHeldDown_RemovesOne) {
    open(writeEDL("cut.edl", 4));
    auto* remove = button("Remove Event");
    for (const bool repeated : {false, true, true}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", repeated);
        QCoreApplication::sendEvent(remove, &press);
    }
    EXPECT_EQ(status(), "Removed event. 3 events remain for export.");
}

TEST_F(SessionTest, RateChosenAgain_IsManualNow) {
    open(writeEDL("cut.edl", 3));
    auto* popup = find<FrameRatePopup>();
    QTest::keyClick(popup, Qt::Key_Space);
    QTest::keyClick(popup->view(), Qt::Key_Return);
    EXPECT_EQ(status(), "Converted 0 timecodes from 25 fps to 25 fps.");
    EXPECT_TRUE(details().contains("FPS Source=Manual"));
}

TEST_F(SessionTest, RemoveEvent_SelectsTheNextOne) {
    open(writeEDL("cut.edl", 4));
    select(1);
    type("gone");
    click("Remove Event");
    EXPECT_EQ(status(), "Removed event. 3 events remain for export.");
    EXPECT_EQ(selected(), 1);
    EXPECT_NE(label("Event 003: Clip 003"), nullptr);
    EXPECT_EQ(find<CommentsView>()->comments(), "");
    EXPECT_EQ(controller.document().removedEvents.at(0).comments, "gone");
    select(2);
    click("Remove Event");
    EXPECT_EQ(selected(), 1);
    EXPECT_NE(label("Event 003: Clip 003"), nullptr);
}

TEST_F(SessionTest, RemoveEvent_LastOne_ShowsTheEmptyList) {
    open(writeEDL("cut.edl", 1));
    click("Remove Event");
    EXPECT_EQ(status(), "Removed event. 0 events remain for export.");
    EXPECT_TRUE(label("Open a timeline file to view events")->isVisible());
    EXPECT_NE(label("No event selected"), nullptr);
    EXPECT_TRUE(find<CommentsView>()->isReadOnly());
}

TEST_F(SessionTest, NothingSelected_CommandsEndSilently) {
    open(writeEDL("cut.edl", 2));
    QTest::mouseClick(find<EventTableView>()->viewport(), Qt::LeftButton, {}, {50, 400});
    EXPECT_EQ(selected(), std::nullopt);
    EXPECT_NE(label("No event selected"), nullptr);
    QGuiApplication::clipboard()->setText("before");
    click("Remove Event");
    click("Copy Info");
    EXPECT_EQ(status(), "Loaded 2 events from cut.edl. FPS: 25 (File).");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "before");
    EXPECT_EQ(find<EventTableView>()->model()->rowCount(), 2);
}

TEST_F(SessionTest, CopyInfo_PutsTenLinesOnTheClipboard) {
    open(writeEDL("cut.edl", 1));
    type("sound");
    click("Copy Info");
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "Event: 001\nClip Name: Clip 001\nReel ID: R1\nFPS: 25 fps (File)\n"
              "Source: 01:00:00:00 - 01:00:04:00\nSource Duration: 00:00:04:00 (100 frames)\n"
              "Record: 02:00:00:00 - 02:00:04:00\nRecord Duration: 00:00:04:00 (100 frames)\n"
              "Track: V\nComments: sound");
    EXPECT_EQ(status(), "Copied selected event information.");
}

TEST_F(SessionTest, Exports_PresetTheirNamesAndWriteTheFiles) {
    open(writeEDL("cut.edl", 2));
    answers.chooseFile((folder / "report").string());
    click("Export CSV");
    EXPECT_TRUE(answers.presetName.endsWith("/timeline-events.csv"));
    EXPECT_EQ(status(), "Exported report.");
    answers.chooseFile((folder / "out.edl").string());
    click("Export EDL");
    EXPECT_TRUE(answers.presetName.endsWith("/edited-timeline.edl"));
    EXPECT_EQ(status(), "Exported out.edl.");
    EXPECT_TRUE(answers.allGiven());
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"cut.edl", "out.edl", "report"}));
    EXPECT_THAT(test::contentOf(folder / "report"), testing::HasSubstr("Clip 002"));
}

TEST_F(SessionTest, Export_PanelCancelled_WritesNothing) {
    open(writeEDL("cut.edl", 2));
    type("kept");
    answers.cancelPanel();
    click("Export CSV");
    EXPECT_EQ(folder.names(), std::vector<std::string>{"cut.edl"});
    EXPECT_EQ(controller.document().events[0].comments, "kept");
    EXPECT_EQ(status(), "Loaded 2 events from cut.edl. FPS: 25 (File).");
}

TEST_F(SessionTest, Panels_StartInTheFolderUsedLast) {
    open(writeEDL("cut.edl", 1));
    answers.chooseFile((folder / "a.csv").string());
    click("Export CSV");
    EXPECT_EQ(answers.presetName.toStdString(), (folder / "timeline-events.csv").string());
}

}  // namespace
}  // namespace clipvane
