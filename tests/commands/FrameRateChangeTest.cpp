// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clipvane/TimelineRate.h>
#include "commands/RecordingCommands.h"
#include "commands/SampleEvents.h"
#include "support/Records.h"
#include "support/RowName.h"

namespace clipvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrameRateChange : public testing::Test {
  protected:
    FrameRateChange() {
        fillWithSamples(commands.documentModel, 12);
        commands.selection = 3;
    }

    void choose(const std::string& title) {
        commands.chosenTitle = title;
        commands.fpsChanged();
    }

    EventView event(std::size_t row) { return commands.documentModel.events[row]; }

    void set(std::size_t row, std::string TimelineEvent::*field, const char* text) {
        edit(commands.documentModel.events, row, [&](auto& event) { event.*field = text; });
    }

    RecordingCommands commands;
};

TEST_F(FrameRateChange, OtherRate_StepByStep) {
    choose("24 fps");
    EXPECT_THAT(commands.calls, ElementsAre("busy", "idle", "texts: 12",
                                            "status: Converted 48 timecodes from 25 fps to 24 fps.",
                                            "pop-up: 24 fps, Manual", "details"));
    EXPECT_EQ(commands.selection, 3U);
}

TEST_F(FrameRateChange, OtherRate_ConvertsEveryTimecode) {
    set(2, &TimelineEvent::sourceIn, "01:00:00:05");
    set(2, &TimelineEvent::sourceOut, "01:00:00:10");
    set(2, &TimelineEvent::recordIn, "00:00:00:13");
    set(2, &TimelineEvent::recordOut, "00:00:00:24");
    choose("50 fps");
    EXPECT_EQ(event(2).sourceIn, "01:00:00:10");
    EXPECT_EQ(event(2).sourceOut, "01:00:00:20");
    EXPECT_EQ(event(2).recordIn, "00:00:00:26");
    EXPECT_EQ(event(2).recordOut, "00:00:00:48");
    EXPECT_EQ(commands.document().fps, 50.0);
    EXPECT_EQ(commands.document().fpsSource, "Manual");
}

TEST_F(FrameRateChange, TheCommentBeingTyped_IsStoredFirst) {
    commands.typedText = "typed";
    choose("24 fps");
    EXPECT_EQ(event(3).comments, "typed");
}

TEST_F(FrameRateChange, CurrentRate_NothingConvertedButManual) {
    set(0, &TimelineEvent::sourceIn, "1:2:3:4");
    choose("25 fps");
    EXPECT_EQ(commands.status, "Converted 0 timecodes from 25 fps to 25 fps.");
    EXPECT_EQ(event(0).sourceIn, "1:2:3:4");
    EXPECT_EQ(commands.document().fpsSource, "Manual");
    EXPECT_THAT(commands.calls, ElementsAre("busy", "idle", "texts: 12",
                                            "status: Converted 0 timecodes from 25 fps to 25 fps.",
                                            "pop-up: 25 fps, Manual", "details"));
}

TEST_F(FrameRateChange, RatesWithinATenThousandth_AreTheSame) {
    commands.documentModel.fps = 30000.0 / 1001;
    set(0, &TimelineEvent::sourceIn, "1:2:3:4");
    choose("29.97 fps");
    EXPECT_EQ(commands.status, "Converted 0 timecodes from 29.97 fps to 29.97 fps.");
    EXPECT_EQ(event(0).sourceIn, "1:2:3:4");
    EXPECT_EQ(commands.document().fps, 29.97);
    EXPECT_EQ(commands.document().fpsSource, "Manual");
}

TEST_F(FrameRateChange, SameBase_KeepsCountsAndNormalizesTheText) {
    commands.documentModel.fps = 29.97;
    set(0, &TimelineEvent::sourceIn, "1:2:3:4");
    choose("30 fps");
    EXPECT_EQ(commands.status, "Converted 48 timecodes from 29.97 fps to 30 fps.");
    EXPECT_EQ(event(0).sourceIn, "01:02:03:04");
    EXPECT_EQ(event(1).sourceIn, "01:00:00:00");
}

TEST_F(FrameRateChange, EmptyRecordOut_IsNotCountedAndStaysEmpty) {
    fillWithSamples(commands.documentModel, 1);
    commands.selection = 0;
    set(0, &TimelineEvent::recordOut, "");
    choose("24 fps");
    EXPECT_EQ(commands.status, "Converted 3 timecodes from 25 fps to 24 fps.");
    EXPECT_EQ(event(0).recordOut, "");
}

TEST_F(FrameRateChange, DropFrameTimecode_KeepsItsSeparator) {
    commands.documentModel.fps = 29.97;
    set(0, &TimelineEvent::sourceIn, "01:00:00;00");
    choose("25 fps");
    EXPECT_EQ(event(0).sourceIn, "01:00:00;00");
    EXPECT_EQ(event(0).sourceOut, "01:00:04:00");
}

TEST_F(FrameRateChange, RemovedEvents_KeepTheirTimecodes) {
    commands.documentModel.removedEvents = {sampleEvent()};
    commands.documentModel.removedEvents[0].sourceIn = "00:00:00:24";
    choose("50 fps");
    EXPECT_EQ(commands.document().removedEvents[0].sourceIn, "00:00:00:24");
}

TEST_F(FrameRateChange, FromAnUnusualRate_ThePopUpIsToldTheChosenOne) {
    commands.documentModel.fps = 12.5;
    choose("25 fps");
    EXPECT_EQ(commands.calls[4], "pop-up: 25 fps, Manual");
    EXPECT_EQ(commands.status, "Converted 48 timecodes from 12.5 fps to 25 fps.");
}

TEST_F(FrameRateChange, ThereAndBack_IsLossy) {
    set(0, &TimelineEvent::sourceIn, "00:00:00:12");
    choose("24 fps");
    EXPECT_EQ(event(0).sourceIn, "00:00:00:12");  // 11.52
    choose("25 fps");
    EXPECT_EQ(event(0).sourceIn, "00:00:00:13");  // 12.5
}

TEST_F(FrameRateChange, NothingChosen_ChangesNothing) {
    commands.typedText = "typed";
    commands.fpsChanged();
    EXPECT_THAT(commands.calls, IsEmpty());
    EXPECT_EQ(event(3).comments, "");
    EXPECT_EQ(commands.document().fpsSource, "File");
}

TEST_F(FrameRateChange, NoEvents_ZeroTimecodes) {
    RecordingCommands empty;
    empty.chosenTitle = "25 fps";
    empty.fpsChanged();
    EXPECT_EQ(empty.status, "Converted 0 timecodes from 24 fps to 25 fps.");
    EXPECT_EQ(empty.document().fps, 25.0);
    EXPECT_EQ(empty.document().fpsSource, "Manual");
}

struct TitleRow {
    std::string name;
    std::string title;
    std::optional<double> fps;
};

class FrameRateTitle : public testing::TestWithParam<TitleRow> {};

TEST_P(FrameRateTitle, IsReadOrChangesNothing) {
    RecordingCommands commands;
    commands.chosenTitle = GetParam().title;
    commands.fpsChanged();
    EXPECT_EQ(commands.document().fps, GetParam().fps.value_or(24.0));
    EXPECT_EQ(commands.document().fpsSource, GetParam().fps ? "Manual" : "Default");
    EXPECT_EQ(commands.calls.empty(), !GetParam().fps);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FrameRateTitle,
    testing::Values(TitleRow{"Fraction", "23.976 fps", 23.976}, TitleRow{"Whole", "60 fps", 60.0},
                    TitleRow{"WithoutUnit", "50", 50.0}, TitleRow{"UnitTwice", "50 fps fps", 50.0},
                    TitleRow{"UnitInside", "5 fps0", 50.0}, TitleRow{"Exponent", "1e2 fps", 100.0},
                    TitleRow{"Words", "fast", std::nullopt}, TitleRow{"Empty", "", std::nullopt},
                    TitleRow{"UnitAlone", " fps", std::nullopt},
                    TitleRow{"UnitWithoutBlank", "25fps", std::nullopt},
                    TitleRow{"UnitInCapitals", "25 FPS", std::nullopt},
                    TitleRow{"BlankInFront", " 25 fps", std::nullopt},
                    TitleRow{"DecimalComma", "23,976 fps", std::nullopt}),
    RowName());

TEST(ConvertTimecodes, CountsTimecodesOfAllFourFields) {
    std::vector<TimelineEvent> records(3);
    records[0].sourceIn = "00:00:00:01";
    records[1].sourceOut = "none";
    records[1].recordIn = "00:00:00:01";
    records[2].recordOut = "00:00:00:01";
    EventList events(records);
    EXPECT_EQ(convertTimecodes(events, 25, 50), 3U);
    EXPECT_EQ(events[0].sourceIn, "00:00:00:02");
    EXPECT_EQ(events[1].sourceOut, "none");
    EXPECT_EQ(events[2].recordOut, "00:00:00:02");
}

struct DifferenceRow {
    std::string name;
    double from;
    double to;
    bool converts;
};

class RateDifference : public testing::TestWithParam<DifferenceRow> {};

TEST_P(RateDifference, DecidesWhetherToConvert) {
    TimelineEvent event;
    event.sourceIn = "1:2:3:4";
    EventList events({event});
    EXPECT_EQ(convertTimecodes(events, GetParam().from, GetParam().to),
              GetParam().converts ? 1U : 0U);
    EXPECT_EQ(events[0].sourceIn == "1:2:3:4", !GetParam().converts);
}

INSTANTIATE_TEST_SUITE_P(Rows, RateDifference,
                         testing::Values(DifferenceRow{"Same", 25, 25, false},
                                         DifferenceRow{"JustBelow", 25, 25.00009, false},
                                         DifferenceRow{"JustAbove", 25, 25.00011, true},
                                         DifferenceRow{"JustAboveDownwards", 25, 24.99989, true},
                                         DifferenceRow{"Other", 25, 24, true}),
                         RowName());

}  // namespace
}  // namespace clipvane::test
