// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clipvane/CSVReport.h>
#include <clipvane/EditedEDL.h>
#include "commands/RecordingCommands.h"
#include "commands/SampleEvents.h"
#include "support/Records.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"
#include "support/WithoutPrivileges.h"

namespace clipvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct ExportRow {
    std::string name;
    void (DocumentCommands::*run)();
    std::string defaultName;
    std::string (*text)(const TimelineDocument&);
};

/// The flow that both exports share.
class Export : public testing::TestWithParam<ExportRow> {
  protected:
    Export() { fillWithSamples(commands.documentModel, 3); }

    void exportTo(const std::filesystem::path& url) {
        commands.savePanelAnswer = url;
        (commands.*GetParam().run)();
    }

    std::string savePanel() const { return "save panel: " + GetParam().defaultName; }

    const TemporaryFolder folder;
    RecordingCommands commands;
};

TEST_P(Export, StepByStep) {
    exportTo(folder / GetParam().defaultName);
    EXPECT_THAT(commands.calls, ElementsAre(savePanel(), "busy", "idle",
                                            "status: Exported " + GetParam().defaultName + "."));
    EXPECT_EQ(contentOf(folder / GetParam().defaultName), GetParam().text(commands.document()));
    EXPECT_THAT(commands.alerts, IsEmpty());
}

TEST_P(Export, PanelCancelled_NothingButTheCommentIsStored) {
    commands.selection = 1;
    commands.typedText = "typed";
    (commands.*GetParam().run)();
    EXPECT_THAT(commands.calls, ElementsAre(savePanel()));
    EXPECT_EQ(commands.status, "as before");
    EXPECT_THAT(folder.names(), IsEmpty());
    EXPECT_EQ(commands.document().events[1].comments, "typed");
}

TEST_P(Export, TheCommentBeingTyped_IsInTheFile) {
    commands.selection = 1;
    commands.typedText = "typed just now";
    exportTo(folder / "out");
    EXPECT_THAT(contentOf(folder / "out"), testing::HasSubstr("typed just now"));
}

TEST_P(Export, NameWithoutExtension_IsKept) {
    exportTo(folder / "report");
    EXPECT_THAT(folder.names(), ElementsAre("report"));
    EXPECT_EQ(commands.status, "Exported report.");
}

TEST_P(Export, OtherExtension_IsKept) {
    exportTo(folder / "report.final.doc");
    EXPECT_THAT(folder.names(), ElementsAre("report.final.doc"));
    EXPECT_EQ(commands.status, "Exported report.final.doc.");
}

TEST_P(Export, ExistingFile_IsReplacedWhole) {
    writeContent(folder / "out", std::string(100000, 'o'));
    exportTo(folder / "out");
    EXPECT_EQ(contentOf(folder / "out"), GetParam().text(commands.document()));
}

TEST_P(Export, EmptyDocument_TheFixedLines) {
    RecordingCommands empty;
    empty.savePanelAnswer = folder / "out";
    (empty.*GetParam().run)();
    EXPECT_EQ(empty.status, "Exported out.");
    EXPECT_EQ(contentOf(folder / "out"), GetParam().text(TimelineDocument()));
}

TEST_P(Export, RemovedEvents_AreNotInTheFile) {
    edit(commands.documentModel.events, 1, [](auto& event) { event.clipName = "unwanted"; });
    commands.selection = 1;
    commands.removeSelectedEvent();
    exportTo(folder / "out");
    EXPECT_THAT(contentOf(folder / "out"), testing::Not(testing::HasSubstr("unwanted")));
}

TEST_P(Export, ReadOnlyFolder_WarnsAndKeepsTheStatus) {
    const auto locked = folder / "locked";
    std::filesystem::create_directory(locked);
    std::filesystem::permissions(locked, std::filesystem::perms{0555});
    {
        const WithoutPrivileges user;
        exportTo(locked / "out.txt");
    }
    EXPECT_THAT(commands.calls, ElementsAre(savePanel(), "busy", "idle", "warning: Export failed"));
    EXPECT_THAT(
        commands.alerts,
        ElementsAre(Alert{Alert::Style::warning, "Export failed",
                          "The file \"out.txt\" could not be written: Permission denied."}));
    EXPECT_EQ(commands.status, "as before");
    EXPECT_TRUE(std::filesystem::is_empty(locked));
}

TEST_P(Export, MissingFolder_WarnsAndChangesNothing) {
    const auto events = records(commands.document().events);
    exportTo(folder / "nowhere" / "out.txt");
    EXPECT_THAT(commands.calls, ElementsAre(savePanel(), "busy", "idle", "warning: Export failed"));
    ASSERT_THAT(commands.alerts, SizeIs(1));
    EXPECT_EQ(commands.alerts[0].information,
              "The file \"out.txt\" could not be written: No such file or directory.");
    EXPECT_EQ(records(commands.document().events), events);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Export,
    testing::Values(ExportRow{"CSV", &DocumentCommands::exportCSV, "timeline-events.csv", csvText},
                    ExportRow{"EDL", &DocumentCommands::exportEDL, "edited-timeline.edl", edlText}),
    RowName());

}  // namespace
}  // namespace clipvane::test
