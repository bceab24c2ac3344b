// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include "commands/RecordingCommands.h"
#include "commands/SampleEvents.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

/// All that a session says and writes: log lines, status texts, the copied text, both exports.
std::string sessionReport(const TemporaryFolder& folder) {
    RecordingCommands commands;
    commands.openPanelAnswer = folder / "cut.edl";
    commands.openTimeline();
    for (int n = 0; n < 1100; ++n) commands.documentModel.events.push_back(sampleEvent());
    commands.chosenTitle = "47.952 fps";
    commands.fpsChanged();
    commands.copySelectedInfo();
    std::string report;
    for (const std::string& call : commands.calls) report += call + "\n";
    return report + commands.pasteboard.value_or("") + csvText(commands.document()) +
           edlText(commands.document());
}

TEST(Commands, UnderEveryLocale_GiveTheSameBytes) {
    const TemporaryFolder folder;
    writeContent(folder / "cut.edl",
                 "FPS: 23.976\n"
                 "001  A001 V C        01:00:00:00 01:00:04:00 00:00:00:00 00:00:04:00\n"
                 "from clip name: Interior\n");
    const std::string expected = sessionReport(folder);
    EXPECT_NE(expected.find("at 23.976 fps."), std::string::npos);
    EXPECT_NE(expected.find("FPS: 47.952 fps (Manual)"), std::string::npos);
    EXPECT_NE(expected.find("Converted 4404 timecodes"), std::string::npos);
    EXPECT_NE(expected.find("Clip Name: Interior"), std::string::npos);
    for (const char* name : localesOfTests) {
        const ScopedLocale locale(name);
        ASSERT_TRUE(locale.isSet()) << name << " is missing in LOCPATH; run the tests with ctest";
        EXPECT_EQ(sessionReport(folder), expected) << name;
    }
}

}  // namespace
}  // namespace clipvane::test
