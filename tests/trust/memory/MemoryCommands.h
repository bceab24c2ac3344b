// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string>
#include <string_view>

#include <clipvane/DocumentCommands.h>
#include "base/LogFile.h"
#include "memory/FailingMemory.h"

namespace clipvane::test {

/// A short text that is kept without asking for memory.
class KeptText {
  public:
    void keep(std::string_view text) { length = text.copy(characters.data(), characters.size()); }
    std::string_view view() const { return {characters.data(), length}; }

  private:
    std::array<char, 400> characters;
    std::size_t length = 0;
};

/// The window's commands on a toolkit that needs no memory of its own, so that every allocation is
/// the commands'. The log is written as the window writes it.
class MemoryCommands : public DocumentCommands {
  public:
    explicit MemoryCommands(std::filesystem::path log) : log(std::move(log)) {}

    using DocumentCommands::documentModel;

    // What the user does.
    std::filesystem::path answer;
    std::string title;
    std::string typed;
    bool isTyped = false;
    std::optional<std::size_t> row;

    // What the user was told.
    std::size_t warnings = 0;
    KeptText warningReason;
    KeptText status;
    KeptText pasteboard;

  private:
    std::optional<std::filesystem::path> runOpenPanel() override { return answer; }
    std::optional<std::filesystem::path> runSavePanel(const std::string&) override {
        return answer;
    }
    void runAlert(const Alert& alert) override {
        if (alert.style != Alert::Style::warning) return;
        ++warnings;
        warningReason.keep(alert.information);
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
    void setStatus(const std::string& text) override { status.keep(text); }
    std::optional<std::string> editedComments() const override {
        return isTyped ? std::optional(typed) : std::nullopt;
    }
    std::optional<std::string> selectedFPSTitle() const override { return title; }
    void syncFPSPopup() override {}
    void setPasteboardText(const std::string& text) override { pasteboard.keep(text); }
    void writeLog(const std::string& message) override { writeLogLine(log, {}, message); }
    void whileBusy(const std::function<void()>& work) override { work(); }

    std::filesystem::path log;
};

}  // namespace clipvane::test
