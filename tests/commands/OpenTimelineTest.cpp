// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <charconv>
#include <limits>

#include "commands/Messages.h"
#include "commands/RecordingCommands.h"
#include "commands/SampleEvents.h"
#include "support/Records.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view twoEventsAt25 =
    "TITLE: cut\n"
    "* FPS: 25\n"
    "001  A001 V C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00\n"
    "002  A002 V C        02:00:00:00 02:00:01:00 00:00:04:00 00:00:05:00\n";

class OpenTimeline : public testing::Test {
  protected:
    std::filesystem::path file(std::string_view name, std::string_view content) const {
        writeContent(folder / name, content);
        return folder / name;
    }

    /// Opens a file of the given content as the user does.
    void open(std::string_view name, std::string_view content) {
        commands.openPanelAnswer = file(name, content);
        commands.openTimeline();
    }

    const TemporaryFolder folder;
    RecordingCommands commands;
};

TEST_F(OpenTimeline, TwoEvents_StepByStep) {
    open("cut.edl", twoEventsAt25);
    const std::string path = (folder / "cut.edl").string();
    EXPECT_THAT(commands.calls,
                ElementsAre("log: Open Timeline clicked.", "open panel", "busy", "idle",
                            "log: Parsed 2 events from " + path + " at 25.0 fps.",
                            "pop-up: 25 fps, File", "new events: 2, row 0 selected",
                            "status: Loaded 2 events from cut.edl. FPS: 25 (File).",
                            "notice: Check Project Frame Rate"));
    EXPECT_THAT(commands.alerts,
                ElementsAre(Alert{Alert::Style::informational, "Check Project Frame Rate",
                                  "Please make sure to set the right project frame rate. Incorrect "
                                  "frame rate might produce incorrect timecodes."}));
}

TEST_F(OpenTimeline, TwoEvents_FillTheDocument) {
    open("cut.edl", twoEventsAt25);
    const TimelineDocument& document = commands.document();
    EXPECT_EQ(document.sourceURL, folder / "cut.edl");
    ASSERT_THAT(document.events, SizeIs(2));
    EXPECT_EQ(document.events[1].reelID, "A002");
    EXPECT_EQ(document.fps, 25.0);
    EXPECT_EQ(document.fpsSource, "File");
}

TEST_F(OpenTimeline, PanelCancelled_OnlyTheFirstLogLine) {
    fillWithSamples(commands.documentModel, 2);
    const auto events = records(commands.document().events);
    commands.selection = 1;
    commands.typedText = "half a thought";
    commands.openTimeline();
    EXPECT_THAT(commands.calls, ElementsAre("log: Open Timeline clicked.", "open panel"));
    EXPECT_EQ(records(commands.document().events), events);
    EXPECT_EQ(commands.document().sourceURL, std::nullopt);
    EXPECT_EQ(commands.status, "as before");
}

TEST_F(OpenTimeline, NoEvents_EmptyListShownAndStillReminded) {
    fillWithSamples(commands.documentModel, 2);
    commands.documentModel.removedEvents.push_back(sampleEvent());
    commands.selection = 1;
    open("x.edl", "TITLE: nothing\n");
    const std::string path = (folder / "x.edl").string();
    EXPECT_THAT(commands.calls,
                ElementsAre("log: Open Timeline clicked.", "open panel", "busy", "idle",
                            "log: Parsed 0 events from " + path + " at 24.0 fps.",
                            "pop-up: 24 fps, Default", "new events: 0, none selected",
                            "status: Loaded 0 events from x.edl. FPS: 24 (Default).",
                            "notice: Check Project Frame Rate"));
    EXPECT_THAT(commands.document().events, IsEmpty());
    EXPECT_THAT(commands.document().removedEvents, IsEmpty());
    EXPECT_EQ(commands.selection, std::nullopt);
}

TEST_F(OpenTimeline, SecondFile_ForgetsTheEventsRemovedFromTheFirst) {
    open("first.edl", twoEventsAt25);
    commands.removeSelectedEvent();
    ASSERT_THAT(commands.document().removedEvents, SizeIs(1));
    open("second.edl", twoEventsAt25);
    EXPECT_THAT(commands.document().removedEvents, IsEmpty());
    EXPECT_THAT(commands.document().events, SizeIs(2));
    EXPECT_EQ(commands.document().sourceURL, folder / "second.edl");
}

TEST_F(OpenTimeline, SecondFile_EndsTheManualRate) {
    open("first.edl", twoEventsAt25);
    commands.chosenTitle = "50 fps";
    commands.fpsChanged();
    open("second.edl", twoEventsAt25);
    EXPECT_EQ(commands.document().fps, 25.0);
    EXPECT_EQ(commands.document().fpsSource, "File");
}

TEST_F(OpenTimeline, MissingFile_LogsAndWarns) {
    commands.openPanelAnswer = folder / "gone.edl";
    commands.openTimeline();
    const std::string reason =
        "The file \"gone.edl\" could not be read: No such file or directory.";
    EXPECT_THAT(commands.calls, ElementsAre("log: Open Timeline clicked.", "open panel", "busy",
                                            "idle", "log: Open timeline failed: " + reason,
                                            "warning: Could not open timeline"));
    EXPECT_THAT(commands.alerts,
                ElementsAre(Alert{Alert::Style::warning, "Could not open timeline", reason}));
}

struct UnreadableRow {
    std::string name;
    std::string file;
    void (*make)(const std::filesystem::path&);
};

class OpenTimelineFails : public OpenTimeline, public testing::WithParamInterface<UnreadableRow> {};

TEST_P(OpenTimelineFails, TheEarlierTimelineStaysWhole) {
    open("cut.edl", twoEventsAt25);
    commands.removeSelectedEvent();
    edit(commands.documentModel.events, 0, [](auto& event) { event.comments = "mine"; });
    const TimelineEvent event = commands.document().events[0].record();
    const TimelineEvent removed = commands.document().removedEvents[0];
    const std::string status = commands.status;
    commands.alerts.clear();
    commands.calls.clear();

    GetParam().make(folder / GetParam().file);
    commands.openPanelAnswer = folder / GetParam().file;
    commands.openTimeline();

    ASSERT_THAT(commands.alerts, SizeIs(1));
    const Alert alert = commands.alerts[0];
    EXPECT_EQ(alert.style, Alert::Style::warning);
    EXPECT_EQ(alert.message, "Could not open timeline");
    EXPECT_NE(alert.information, "");
    EXPECT_THAT(commands.calls,
                ElementsAre("log: Open Timeline clicked.", "open panel", "busy", "idle",
                            "log: Open timeline failed: " + alert.information,
                            "warning: Could not open timeline"));
    EXPECT_THAT(records(commands.document().events), ElementsAre(event));
    EXPECT_THAT(commands.document().removedEvents, ElementsAre(removed));
    EXPECT_EQ(commands.document().sourceURL, folder / "cut.edl");
    EXPECT_EQ(commands.document().fps, 25.0);
    EXPECT_EQ(commands.document().fpsSource, "File");
    EXPECT_EQ(commands.selection, 0U);
    EXPECT_EQ(commands.status, status);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OpenTimelineFails,
    testing::Values(
        UnreadableRow{"MissingFile", "gone.edl", [](const auto&) {}},
        UnreadableRow{"UnsupportedExtension", "cut.pdf",
                      [](const auto& path) { writeContent(path, twoEventsAt25); }},
        UnreadableRow{"NoExtension", "cut",
                      [](const auto& path) { writeContent(path, twoEventsAt25); }},
        UnreadableRow{"Folder", "folder.edl",
                      [](const auto& path) { std::filesystem::create_directory(path); }},
        UnreadableRow{"FIFO", "fifo.edl",
                      [](const auto& path) { EXPECT_EQ(::mkfifo(path.c_str(), 0600), 0); }}),
    RowName());

TEST_F(OpenTimeline, UnusualRate_ThePopUpIsTold) {
    open("slow.edl", "* FPS: 12.5\n");
    EXPECT_THAT(commands.calls, testing::Contains("pop-up: 12.5 fps, File"));
    EXPECT_EQ(commands.status, "Loaded 0 events from slow.edl. FPS: 12.5 (File).");
}

TEST_F(OpenTimeline, LinkedFile_PathAsChosen) {
    file("cut.edl", twoEventsAt25);
    std::filesystem::create_symlink(folder / "cut.edl", folder / "link.edl");
    commands.openPanelAnswer = folder / "link.edl";
    commands.openTimeline();
    EXPECT_EQ(commands.document().sourceURL, folder / "link.edl");
    EXPECT_EQ(commands.calls[4],
              "log: Parsed 2 events from " + (folder / "link.edl").string() + " at 25.0 fps.");
    EXPECT_EQ(commands.status, "Loaded 2 events from link.edl. FPS: 25 (File).");
}

TEST_F(OpenTimeline, NameThatIsNoUTF8_IsShownWithReplacements) {
    open("cut\xFF.edl", twoEventsAt25);
    EXPECT_EQ(commands.status, "Loaded 2 events from cut\uFFFD.edl. FPS: 25 (File).");
    EXPECT_EQ(commands.calls[4], "log: Parsed 2 events from " + folder.path().string() +
                                     "/cut\uFFFD.edl at 25.0 fps.");
}

/// The comment was stored as it was typed; opening does not store it again.
TEST_F(OpenTimeline, TextInTheCommentsField_DoesNotReachTheNewEvents) {
    fillWithSamples(commands.documentModel, 1);
    commands.selection = 0;
    commands.typedText = "old";
    open("cut.edl", twoEventsAt25);
    EXPECT_EQ(commands.document().events[0].comments, "");
}

struct RateRow {
    std::string name;
    double fps;
    std::string text;
};

class ParsedLineRate : public testing::TestWithParam<RateRow> {};

TEST_P(ParsedLineRate, ReadsBack) {
    TimelineParseResult parsed;
    parsed.fps = GetParam().fps;
    EXPECT_EQ(parsedLine(parsed, "/data/cut.edl"),
              "Parsed 0 events from /data/cut.edl at " + GetParam().text + " fps.");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParsedLineRate,
    testing::Values(RateRow{"Whole", 25.0, "25.0"}, RateRow{"ThreeDecimals", 23.976, "23.976"},
                    RateRow{"Quotient", 24000.0 / 1001, "23.976023976023978"},
                    RateRow{"OtherQuotient", 30000.0 / 1001, "29.97002997002997"},
                    RateRow{"Half", 12.5, "12.5"}, RateRow{"NearlyWhole", 24.0004, "24.0004"},
                    RateRow{"Thousands_NoExponent", 100000.0, "100000.0"},
                    RateRow{"LargeInPositionalNotation", 1e15, "1000000000000000.0"},
                    RateRow{"SmallInPositionalNotation", 0.0001, "0.0001"},
                    RateRow{"Infinity", std::numeric_limits<double>::infinity(), "inf"}),
    RowName());

TEST(ParsedLine, TwelveEvents) {
    TimelineParseResult parsed{std::vector<TimelineEvent>(12), 25.0, "File"};
    EXPECT_EQ(parsedLine(parsed, "/data/cut.edl"),
              "Parsed 12 events from /data/cut.edl at 25.0 fps.");
}

TEST(ParsedLine, LargestAndSmallestDouble_ReadBack) {
    for (const double fps :
         {std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min(), 1.0 / 3}) {
        TimelineParseResult parsed;
        parsed.fps = fps;
        const std::string line = parsedLine(parsed, "x");
        const std::string before = "Parsed 0 events from x at ";
        ASSERT_TRUE(line.starts_with(before)) << line;
        double read = 0;
        std::from_chars(line.data() + before.size(), line.data() + line.size(), read);
        EXPECT_EQ(read, fps) << line;
    }
}

TEST(OpenTimelineDeathTest, RateBeyondAllCounts_StopsTheProgram) {
    const TemporaryFolder folder;
    writeContent(folder / "hostile.edl", "* FPS: 99999999999999999999\n");
    RecordingCommands commands;
    commands.openPanelAnswer = folder / "hostile.edl";
    EXPECT_DEATH(commands.openTimeline(), "clipvane: ");
}

}  // namespace
}  // namespace clipvane::test
