// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The window's commands without the window: opens a timeline and exports it to each path given, and
// prints what the window would show.
//
//     open_and_export TIMELINE [PATH.csv | PATH.edl ...]
//
// An alert is printed as "alert: MESSAGE | INFORMATIVE TEXT", the status line's text as
// "status: TEXT". Status 0, whatever the alerts say; 2 for a wrong call.

#include <cstdio>

#include <clipvane/DocumentCommands.h>

namespace {

using namespace clipvane;

class CommandLine : public DocumentCommands {
  public:
    void open(const std::filesystem::path& timeline) {
        answer = timeline;
        openTimeline();
    }
    void exportTo(const std::filesystem::path& path) {
        answer = path;
        if (path.extension() == ".csv") {
            exportCSV();
        } else {
            exportEDL();
        }
    }

  private:
    std::optional<std::filesystem::path> runOpenPanel() override { return answer; }
    std::optional<std::filesystem::path> runSavePanel(const std::string&) override {
        return answer;
    }
    void runAlert(const Alert& alert) override {
        std::printf("alert: %s | %s\n", alert.message.c_str(), alert.information.c_str());
        std::fflush(stdout);
    }
    std::optional<std::size_t> selectedRow() const override { return row; }
    void showNewEvents(std::optional<std::size_t> selected) override { row = selected; }
    void removeRow(std::size_t, const std::function<void()>& erase,
                   std::optional<std::size_t> selected) override {
        erase();
        row = selected;
    }
    void refreshTexts() override {}
    void refreshDetails() override {}
    void setStatus(const std::string& text) override {
        std::printf("status: %s\n", text.c_str());
        std::fflush(stdout);
    }
    std::optional<std::string> editedComments() const override { return std::nullopt; }
    std::optional<std::string> selectedFPSTitle() const override { return std::nullopt; }
    void syncFPSPopup() override {}
    void setPasteboardText(const std::string&) override {}
    void writeLog(const std::string&) override {}
    void whileBusy(const std::function<void()>& work) override { work(); }

    std::filesystem::path answer;
    std::optional<std::size_t> row;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: open_and_export TIMELINE [PATH.csv | PATH.edl ...]\n", stderr);
        return 2;
    }
    CommandLine commands;
    commands.open(argv[1]);
    for (int i = 2; i < argc; ++i) commands.exportTo(argv[i]);
}
