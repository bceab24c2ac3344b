// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commands/RecordingCommands.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

using testing::SizeIs;

struct TimelineRow {
    std::string name;
    std::string file;
    std::string content;
};

/// The same three events at 25 frames per second in each format that can be opened.
class Session : public testing::TestWithParam<TimelineRow> {};

TEST_P(Session, OpenCommentConvertRemoveCopyExport) {
    const TemporaryFolder folder;
    writeContent(folder / GetParam().file, GetParam().content);
    RecordingCommands user;

    user.openPanelAnswer = folder / GetParam().file;
    user.openTimeline();
    EXPECT_EQ(user.status, "Loaded 3 events from " + GetParam().file + ". FPS: 25 (File).");
    ASSERT_THAT(user.document().events, SizeIs(3));

    user.selection = 2;
    user.typedText = "Use the second half.\nCheck the sound.";
    user.textDidChange();
    user.chosenTitle = "50 fps";
    user.fpsChanged();
    EXPECT_EQ(user.status, "Converted 12 timecodes from 25 fps to 50 fps.");
    user.selection = 0;
    user.removeSelectedEvent();
    EXPECT_EQ(user.status, "Removed event. 2 events remain for export.");

    user.selection = 1;
    user.copySelectedInfo();
    EXPECT_THAT(user.pasteboard.value_or(""), testing::HasSubstr("\nClip Name: Pier\n"));
    EXPECT_THAT(user.pasteboard.value_or(""),
                testing::EndsWith("\nComments: Use the second half.\nCheck the sound."));

    user.savePanelAnswer = folder / "report.csv";
    user.exportCSV();
    EXPECT_THAT(contentOf(folder / "report.csv"),
                testing::HasSubstr(R"("50","Manual","00:00:12:00","00:00:16:24",)"
                                   R"~("00:00:04:24 (224 frames)",)~"));
    user.savePanelAnswer = folder / "edited.edl";
    user.exportEDL();
    EXPECT_EQ(user.status, "Exported edited.edl.");

    // What was exported opens again.
    user.openPanelAnswer = folder / "edited.edl";
    user.openTimeline();
    EXPECT_EQ(user.status, "Loaded 2 events from edited.edl. FPS: 24 (Default).");
    ASSERT_THAT(user.document().events, SizeIs(2));
    EXPECT_EQ(user.document().events[1].eventNumber, "002");
    EXPECT_EQ(user.document().events[1].clipName, "Pier");
    EXPECT_EQ(user.document().events[1].sourceOut, "00:00:16:24");
}

const std::string edl =
    "TITLE: Harbour\n"
    "* FPS: 25\n"
    "001  A001 V C        00:00:00:00 00:00:04:00 00:00:00:00 00:00:04:00\n"
    "* FROM CLIP NAME: Gulls\n"
    "002  A001 V C        00:00:06:00 00:00:10:00 00:00:04:00 00:00:08:00\n"
    "* FROM CLIP NAME: Boats\n"
    "003  A002 V C        00:00:12:00 00:00:16:12 00:00:08:00 00:00:12:12\n"
    "* FROM CLIP NAME: Pier\n";

std::string clipItem(const std::string& name, const std::string& in, const std::string& out) {
    return "<clipitem><name>" + name + "</name><start>0</start><end>100</end><in>" + in +
           "</in><out>" + out + "</out></clipitem>";
}

const std::string xmeml =
    "<?xml version=\"1.0\"?><!DOCTYPE xmeml><xmeml version=\"4\"><sequence>"
    "<rate><timebase>25</timebase></rate><media><video><track>" +
    clipItem("Gulls", "0", "100") + clipItem("Boats", "150", "250") +
    clipItem("Pier", "300", "412") + "</track></video></media></sequence></xmeml>";

const std::string fcpxml =
    "<?xml version=\"1.0\"?><fcpxml version=\"1.9\"><resources>"
    "<format id=\"r1\" frameDuration=\"1/25s\"/></resources><spine>"
    "<asset-clip name=\"Gulls\" offset=\"0s\" start=\"0s\" duration=\"4s\"/>"
    "<asset-clip name=\"Boats\" offset=\"4s\" start=\"6s\" duration=\"4s\"/>"
    "<asset-clip name=\"Pier\" offset=\"8s\" start=\"12s\" duration=\"112/25s\"/>"
    "</spine></fcpxml>";

INSTANTIATE_TEST_SUITE_P(Formats, Session,
                         testing::Values(TimelineRow{"EDL", "harbour.edl", edl},
                                         TimelineRow{"Text", "harbour.TXT", edl},
                                         TimelineRow{"XMEML", "harbour.xml", xmeml},
                                         TimelineRow{"FCPXML", "harbour.fcpxml", fcpxml}),
                         RowName());

}  // namespace
}  // namespace clipvane::test
