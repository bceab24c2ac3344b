// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/RecordingCommands.h"
#include "commands/SampleEvents.h"
#include "support/Records.h"

namespace clipvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class EventEditing : public testing::Test {
  protected:
    EventEditing() { fillWithSamples(commands.documentModel, 10); }

    std::string comments(std::size_t row) {
        return std::string(commands.document().events[row].comments);
    }

    RecordingCommands commands;
};

TEST_F(EventEditing, RemoveRow3Of10_TheNextEventIsSelected) {
    commands.selection = 3;
    const TimelineEvent removed = commands.document().events[3].record();
    const TimelineEvent next = commands.document().events[4].record();
    commands.removeSelectedEvent();
    EXPECT_THAT(commands.calls, ElementsAre("row 3 of 10 goes: 9, row 3 selected",
                                            "status: Removed event. 9 events remain for export."));
    ASSERT_THAT(commands.document().events, SizeIs(9));
    EXPECT_EQ(commands.document().events[3].record(), next);
    EXPECT_THAT(commands.document().removedEvents, ElementsAre(removed));
}

TEST_F(EventEditing, RemoveTheLastOf10_TheNewLastIsSelected) {
    commands.selection = 9;
    commands.removeSelectedEvent();
    EXPECT_THAT(commands.calls, ElementsAre("row 9 of 10 goes: 9, row 8 selected",
                                            "status: Removed event. 9 events remain for export."));
}

TEST_F(EventEditing, RemoveTheFirst_TheNewFirstIsSelected) {
    commands.selection = 0;
    commands.removeSelectedEvent();
    EXPECT_EQ(commands.selection, 0U);
    EXPECT_EQ(commands.document().events[0].eventNumber, "002");
}

TEST_F(EventEditing, RemoveTheOnlyEvent_TheEmptyListIsShown) {
    fillWithSamples(commands.documentModel, 1);
    commands.selection = 0;
    commands.removeSelectedEvent();
    EXPECT_THAT(commands.calls, ElementsAre("row 0 of 1 goes: 0, none selected",
                                            "status: Removed event. 0 events remain for export."));
    EXPECT_EQ(commands.selection, std::nullopt);
    EXPECT_THAT(commands.document().events, IsEmpty());
    EXPECT_THAT(commands.document().removedEvents, SizeIs(1));
}

TEST_F(EventEditing, OneEventRemains_TheWordStaysEvents) {
    fillWithSamples(commands.documentModel, 2);
    commands.selection = 0;
    commands.removeSelectedEvent();
    EXPECT_EQ(commands.status, "Removed event. 1 events remain for export.");
}

TEST_F(EventEditing, RemoveWithoutSelection_ChangesNothing) {
    commands.typedText = "typed";
    commands.removeSelectedEvent();
    EXPECT_THAT(commands.calls, IsEmpty());
    EXPECT_EQ(commands.status, "as before");
    EXPECT_THAT(commands.document().events, SizeIs(10));
    EXPECT_THAT(commands.document().removedEvents, IsEmpty());
}

TEST_F(EventEditing, RemoveFromAnEmptyList_ChangesNothing) {
    RecordingCommands empty;
    empty.removeSelectedEvent();
    EXPECT_THAT(empty.calls, IsEmpty());
}

TEST_F(EventEditing, RemovedEvents_InTheOrderOfRemoval) {
    for (const std::size_t row : {5U, 0U, 7U}) {
        commands.selection = row;
        commands.removeSelectedEvent();
    }
    const auto& removed = commands.document().removedEvents;
    ASSERT_THAT(removed, SizeIs(3));
    EXPECT_EQ(removed[0].eventNumber, "006");
    EXPECT_EQ(removed[1].eventNumber, "001");
    EXPECT_EQ(removed[2].eventNumber, "010");
}

TEST_F(EventEditing, CommentTypedJustBeforeRemoval_TravelsWithTheEvent) {
    commands.selection = 2;
    commands.typedText = "not this one";
    commands.removeSelectedEvent();
    ASSERT_THAT(commands.document().removedEvents, SizeIs(1));
    EXPECT_EQ(commands.document().removedEvents[0].comments, "not this one");
    EXPECT_EQ(comments(2), "");
}

TEST_F(EventEditing, TypedComment_IsStoredByteForByte) {
    const std::string typed = "  two blanks\nand a line break \u00a0\t\n";
    commands.selection = 4;
    commands.typedText = typed;
    commands.textDidChange();
    EXPECT_EQ(comments(4), typed);
    EXPECT_THAT(commands.calls, IsEmpty());
}

TEST_F(EventEditing, EmptiedComment_StoresTheEmptyText) {
    edit(commands.documentModel.events, 4, [](auto& event) { event.comments = "old"; });
    commands.selection = 4;
    commands.typedText = "";
    commands.textDidChange();
    EXPECT_EQ(comments(4), "");
}

TEST_F(EventEditing, UntouchedComment_StaysAsItWasRead) {
    const std::string read = "a\rb\u2028c\u00a0d\r\ne\n";
    edit(commands.documentModel.events, 4, [&](auto& event) { event.comments = read; });
    commands.selection = 4;
    commands.saveCurrentComment();
    EXPECT_EQ(comments(4), read);
}

TEST_F(EventEditing, SaveWithoutSelection_ChangesNothing) {
    commands.typedText = "typed";
    commands.saveCurrentComment();
    for (const auto& event : commands.document().events) EXPECT_EQ(event.comments, "");
}

TEST_F(EventEditing, SaveWithAStaleRow_ChangesNothing) {
    commands.selection = 10;
    commands.typedText = "typed";
    commands.saveCurrentComment();
    for (const auto& event : commands.document().events) EXPECT_EQ(event.comments, "");
}

TEST_F(EventEditing, SaveIntoAnEmptyList_ChangesNothing) {
    RecordingCommands empty;
    empty.selection = 0;
    empty.typedText = "typed";
    empty.saveCurrentComment();
    EXPECT_THAT(empty.document().events, IsEmpty());
}

TEST_F(EventEditing, TypingInAnEventOfCRLF_KeepsItsLineEnds) {
    edit(commands.documentModel.events, 4, [](auto& event) { event.comments = "one\r\ntwo"; });
    commands.selection = 4;
    commands.typedText = "one\ntwo\nthree";
    commands.textDidChange();
    EXPECT_EQ(comments(4), "one\r\ntwo\r\nthree");
    commands.typedText = "one\ntwo\nthree\n";
    commands.textDidChange();
    EXPECT_EQ(comments(4), "one\r\ntwo\r\nthree\r\n");
}

TEST_F(EventEditing, RemovingTheOnlyLineEndAndUndoingThat_KeepsItsKind) {
    edit(commands.documentModel.events, 4, [](auto& event) { event.comments = "one\r\ntwo"; });
    commands.selection = 4;
    for (const char* typed : {"onetwo", "one\ntwo"}) {
        commands.typedText = typed;
        commands.textDidChange();
    }
    EXPECT_EQ(comments(4), "one\r\ntwo");
}

TEST_F(EventEditing, TypingInAnotherEvent_HasItsOwnLineEnds) {
    edit(commands.documentModel.events, 4, [](auto& event) { event.comments = "one\rtwo"; });
    edit(commands.documentModel.events, 5, [](auto& event) { event.comments = "one\ntwo"; });
    for (const std::size_t row : {4U, 5U, 6U, 4U}) {
        commands.selection = row;
        commands.typedText = "1\n2";
        commands.textDidChange();
    }
    EXPECT_EQ(comments(4), "1\r2");
    EXPECT_EQ(comments(5), "1\n2");
    EXPECT_EQ(comments(6), "1\n2");
}

TEST_F(EventEditing, MixedLineEnds_TypingMakesThemLineFeeds) {
    edit(commands.documentModel.events, 4,
         [](auto& event) { event.comments = "one\r\ntwo\rthree"; });
    commands.selection = 4;
    commands.typedText = "one\ntwo\nthree.";
    commands.textDidChange();
    EXPECT_EQ(comments(4), "one\ntwo\nthree.");
}

TEST(EventEditingDeathTest, RemoveARowBeyondTheEvents_StopsTheProgram) {
    RecordingCommands commands;
    fillWithSamples(commands.documentModel, 2);
    commands.selection = 2;
    EXPECT_DEATH(commands.removeSelectedEvent(),
                 "clipvane: the selected row lies beyond the events");
}

}  // namespace
}  // namespace clipvane::test
