// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "commands/RecordingCommands.h"
#include "commands/SampleEvents.h"
#include "support/Records.h"
#include "support/RowName.h"
#include "support/TemporaryFolder.h"

namespace clipvane::test {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// The recording toolkit, with one operation that finds no memory.
class PoorCommands : public RecordingCommands {
  public:
    enum class Operation { none, log, work, pasteboard, status, alert };

    Operation poor = Operation::none;

  private:
    void need(Operation operation) const {
        if (operation == poor) throw std::bad_alloc();
    }
    void writeLog(const std::string&) override { need(Operation::log); }
    void whileBusy(const std::function<void()>& work) override {
        need(Operation::work);
        work();
    }
    void setPasteboardText(const std::string&) override { need(Operation::pasteboard); }
    void setStatus(const std::string& text) override {
        need(Operation::status);
        status = text;
    }
    void runAlert(const Alert& alert) override {
        need(Operation::alert);
        if (alert.style == Alert::Style::warning) alerts.push_back(alert);
    }
};

using Operation = PoorCommands::Operation;
using Command = void (DocumentCommands::*)();

/// Three sample events, the second selected, a file to open, and one that an export replaces.
class NoMemory : public testing::Test {
  protected:
    NoMemory() {
        fillWithSamples(commands.documentModel, 3);
        commands.selection = 1;
        commands.chosenTitle = "50 fps";
        writeContent(folder / "cut.edl", "* FPS: 30\n");
        writeContent(folder / "out", "earlier\n");
        commands.openPanelAnswer = folder / "cut.edl";
        commands.savePanelAnswer = folder / "out";
    }

    const TemporaryFolder folder;
    PoorCommands commands;
};

struct KeptRow {
    std::string name;
    Command command;
    Operation poor;
    std::string message;
};

class NoMemoryKept : public NoMemory, public testing::WithParamInterface<KeptRow> {};

TEST_P(NoMemoryKept, UserIsToldAndAllIsAsBefore) {
    const auto events = records(commands.document().events);
    commands.poor = GetParam().poor;
    (commands.*GetParam().command)();
    ASSERT_THAT(commands.alerts, SizeIs(1));
    EXPECT_EQ(commands.alerts[0].message, GetParam().message);
    EXPECT_EQ(records(commands.document().events), events);
    EXPECT_THAT(commands.document().removedEvents, SizeIs(0));
    EXPECT_EQ(commands.document().fps, 25.0);
    EXPECT_EQ(commands.status, "as before");
    EXPECT_EQ(contentOf(folder / "out"), "earlier\n");
    EXPECT_THAT(folder.names(), ElementsAre("cut.edl", "out"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NoMemoryKept,
    testing::Values(
        KeptRow{"OpenAtItsFirstLogLine", &DocumentCommands::openTimeline, Operation::log,
                "Could not open timeline"},
        KeptRow{"OpenBeforeReading", &DocumentCommands::openTimeline, Operation::work,
                "Could not open timeline"},
        KeptRow{"RateChange", &DocumentCommands::fpsChanged, Operation::work, "Not enough memory"},
        KeptRow{"Copy", &DocumentCommands::copySelectedInfo, Operation::pasteboard,
                "Not enough memory"},
        KeptRow{"ExportCSV", &DocumentCommands::exportCSV, Operation::work, "Export failed"},
        KeptRow{"ExportEDL", &DocumentCommands::exportEDL, Operation::work, "Export failed"}),
    RowName());

TEST_F(NoMemory, RateChange_PopUpShowsTheRateThatIsKept) {
    commands.poor = Operation::work;
    commands.fpsChanged();
    EXPECT_EQ(commands.calls.back(), "pop-up: 25 fps, File");
}

struct DoneRow {
    std::string name;
    Command command;
};

class NoMemoryToShow : public NoMemory, public testing::WithParamInterface<DoneRow> {};

TEST_P(NoMemoryToShow, ChangeIsMadeWholeAndTheUserIsTold) {
    PoorCommands undisturbed;
    undisturbed.documentModel.events = commands.document().events;
    undisturbed.documentModel.fps = commands.document().fps;
    undisturbed.selection = commands.selection;
    undisturbed.chosenTitle = commands.chosenTitle;
    undisturbed.openPanelAnswer = commands.openPanelAnswer;
    undisturbed.savePanelAnswer = folder / "expected";
    (undisturbed.*GetParam().command)();

    commands.poor = Operation::status;
    (commands.*GetParam().command)();
    EXPECT_THAT(commands.alerts,
                ElementsAre(Alert{Alert::Style::warning, "Not enough memory",
                                  "The change was made, but the window may not show it."}));
    EXPECT_EQ(records(commands.document().events), records(undisturbed.document().events));
    EXPECT_EQ(commands.document().removedEvents, undisturbed.document().removedEvents);
    EXPECT_EQ(commands.document().fps, undisturbed.document().fps);
    const bool isExport = std::filesystem::exists(folder / "expected");
    EXPECT_EQ(contentOf(folder / "out"), isExport ? contentOf(folder / "expected") : "earlier\n");
}

INSTANTIATE_TEST_SUITE_P(Rows, NoMemoryToShow,
                         testing::Values(DoneRow{"Open", &DocumentCommands::openTimeline},
                                         DoneRow{"RateChange", &DocumentCommands::fpsChanged},
                                         DoneRow{"Remove", &DocumentCommands::removeSelectedEvent},
                                         DoneRow{"Copy", &DocumentCommands::copySelectedInfo},
                                         DoneRow{"ExportEDL", &DocumentCommands::exportEDL}),
                         RowName());

TEST_F(NoMemory, NotEvenForTheAlert_TheCommandJustEnds) {
    commands.poor = Operation::alert;
    commands.openPanelAnswer = folder / "gone.edl";
    EXPECT_NO_THROW(commands.openTimeline());
    EXPECT_THAT(commands.document().events, SizeIs(3));
}

/// Other exceptions are programming errors, which nothing hides.
TEST_F(NoMemory, AnotherException_IsNotTakenForIt) {
    class Broken : public RecordingCommands {
        void whileBusy(const std::function<void()>&) override { throw std::logic_error("broken"); }
    };
    Broken broken;
    broken.openPanelAnswer = folder / "cut.edl";
    EXPECT_THROW(broken.openTimeline(), std::logic_error);
}

}  // namespace
}  // namespace clipvane::test
