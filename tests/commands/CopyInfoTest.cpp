// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/CopyInfo.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/RecordingCommands.h"
#include "commands/SampleEvents.h"

namespace clipvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* tenLines =
    "Event: 001\n"
    "Clip Name: A001_C002\n"
    "Reel ID: A001\n"
    "FPS: 25 fps (File)\n"
    "Source: 01:00:00:00 - 01:00:04:00\n"
    "Source Duration: 00:00:04:00 (100 frames)\n"
    "Record: 00:00:00:00 - 00:00:04:00\n"
    "Record Duration: 00:00:04:00 (100 frames)\n"
    "Track: V\n"
    "Comments: ";

TEST(CopyInfoText, SampleEvent_TenLines) {
    EXPECT_EQ(copyInfoText(sampleEvent(), 25.0, "File"), tenLines);
}

TEST(CopyInfoText, EmptyEvent_LabelsAlone) {
    EXPECT_EQ(copyInfoText(TimelineEvent(), 24.0, "Default"),
              "Event: \nClip Name: \nReel ID: \nFPS: 24 fps (Default)\nSource:  - \n"
              "Source Duration: -\nRecord:  - \nRecord Duration: -\nTrack: \nComments: ");
}

TEST(CopyInfoText, EmptySourceTimecodes_ADashForTheDuration) {
    TimelineEvent event = sampleEvent();
    event.sourceIn = event.sourceOut = "";
    EXPECT_THAT(copyInfoText(event, 25.0, "File"),
                HasSubstr("\nSource:  - \nSource Duration: -\nRecord: 00:00:00:00"));
}

TEST(CopyInfoText, EndBeforeStart_NoFrames) {
    TimelineEvent event = sampleEvent();
    std::swap(event.sourceIn, event.sourceOut);
    EXPECT_THAT(copyInfoText(event, 25.0, "File"),
                HasSubstr("\nSource: 01:00:04:00 - 01:00:00:00\n"
                          "Source Duration: 00:00:00:00 (0 frames)\n"));
}

TEST(CopyInfoText, CommentOfTwoLines_AsItStands) {
    TimelineEvent event = sampleEvent();
    event.comments = "  one\ntwo\r\n";
    EXPECT_EQ(copyInfoText(event, 25.0, "File"), tenLines + std::string("  one\ntwo\r\n"));
}

TEST(CopyInfoText, FormatMarkAndRawText_AreNotPartOfIt) {
    TimelineEvent event = sampleEvent();
    event.format = "OTHER";
    event.highlighted = true;
    event.rawText = "raw";
    EXPECT_EQ(copyInfoText(event, 25.0, "File"), tenLines);
}

class CopyInfo : public testing::Test {
  protected:
    CopyInfo() { fillWithSamples(commands.documentModel, 3); }

    RecordingCommands commands;
};

TEST_F(CopyInfo, SelectedEvent_GoesToThePasteboard) {
    commands.selection = 0;
    commands.copySelectedInfo();
    EXPECT_THAT(commands.calls,
                ElementsAre("pasteboard", "status: Copied selected event information."));
    EXPECT_EQ(commands.pasteboard, tenLines);
}

TEST_F(CopyInfo, TheCommentBeingTyped_IsPartOfIt) {
    commands.selection = 0;
    commands.typedText = "typed";
    commands.copySelectedInfo();
    EXPECT_EQ(commands.pasteboard, tenLines + std::string("typed"));
    EXPECT_EQ(commands.document().events[0].comments, "typed");
}

TEST_F(CopyInfo, WithoutSelection_NothingHappens) {
    commands.copySelectedInfo();
    EXPECT_THAT(commands.calls, IsEmpty());
    EXPECT_EQ(commands.pasteboard, std::nullopt);
    EXPECT_EQ(commands.status, "as before");
}

TEST_F(CopyInfo, EmptyList_NothingHappens) {
    RecordingCommands empty;
    empty.copySelectedInfo();
    EXPECT_THAT(empty.calls, IsEmpty());
}

TEST_F(CopyInfo, AfterARateChange_TheNewRateByHand) {
    commands.selection = 1;
    commands.chosenTitle = "24 fps";
    commands.fpsChanged();
    commands.copySelectedInfo();
    ASSERT_TRUE(commands.pasteboard);
    EXPECT_THAT(*commands.pasteboard, HasSubstr("\nFPS: 24 fps (Manual)\n"));
    EXPECT_THAT(*commands.pasteboard, HasSubstr("\nSource Duration: 00:00:04:00 (96 frames)\n"));
}

TEST(CopyInfoDeathTest, RowBeyondTheEvents_StopsTheProgram) {
    RecordingCommands commands;
    fillWithSamples(commands.documentModel, 2);
    commands.selection = 2;
    EXPECT_DEATH(commands.copySelectedInfo(), "clipvane: the selected row lies beyond the events");
}

}  // namespace
}  // namespace clipvane::test
