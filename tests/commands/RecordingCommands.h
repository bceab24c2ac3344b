// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <clipvane/DocumentCommands.h>
#include <clipvane/FrameRate.h>

namespace clipvane::test {

/// Commands on a toolkit that writes down each call, and answers as the test wants.
class RecordingCommands : public DocumentCommands {
  public:
    using DocumentCommands::documentModel;

    // What the user does.
    std::optional<std::filesystem::path> openPanelAnswer;
    std::optional<std::filesystem::path> savePanelAnswer;
    std::optional<std::size_t> selection;
    std::optional<std::string> typedText;
    std::optional<std::string> chosenTitle;

    std::vector<std::string> calls;
    std::string status = "as before";
    std::optional<std::string> pasteboard;
    std::vector<Alert> alerts;

  private:
    std::optional<std::filesystem::path> runOpenPanel() override {
        calls.push_back("open panel");
        return openPanelAnswer;
    }
    std::optional<std::filesystem::path> runSavePanel(const std::string& defaultName) override {
        calls.push_back("save panel: " + defaultName);
        return savePanelAnswer;
    }
    void runAlert(const Alert& alert) override {
        const bool isWarning = alert.style == Alert::Style::warning;
        calls.push_back((isWarning ? "warning: " : "notice: ") + alert.message);
        alerts.push_back(alert);
    }
    std::optional<std::size_t> selectedRow() const override { return selection; }
    void showNewEvents(std::optional<std::size_t> selected) override {
        calls.push_back("new events: " + listWith(selected));
    }
    void removeRow(std::size_t row, const std::function<void()>& erase,
                   std::optional<std::size_t> selected) override {
        const std::size_t before = documentModel.events.size();
        erase();
        calls.push_back("row " + std::to_string(row) + " of " + std::to_string(before) +
                        " goes: " + listWith(selected));
    }
    void refreshTexts() override {
        calls.push_back("texts: " + std::to_string(documentModel.events.size()));
    }
    void refreshDetails() override {
        calls.push_back("details");
        typedText.reset();
    }
    /// What the list and the details show then.
    std::string listWith(std::optional<std::size_t> selected) {
        selection = selected;
        typedText.reset();
        return std::to_string(documentModel.events.size()) + ", " +
               (selected ? "row " + std::to_string(*selected) : "none") + " selected";
    }
    void setStatus(const std::string& text) override {
        calls.push_back("status: " + text);
        status = text;
    }
    std::optional<std::string> editedComments() const override { return typedText; }
    std::optional<std::string> selectedFPSTitle() const override { return chosenTitle; }
    void syncFPSPopup() override {
        calls.push_back("pop-up: " + formatFPS(documentModel.fps) + " fps, " +
                        documentModel.fpsSource);
    }
    void setPasteboardText(const std::string& text) override {
        calls.push_back("pasteboard");
        pasteboard = text;
    }
    void writeLog(const std::string& message) override { calls.push_back("log: " + message); }
    void whileBusy(const std::function<void()>& work) override {
        calls.push_back("busy");
        work();
        calls.push_back("idle");
    }
};

}  // namespace clipvane::test
