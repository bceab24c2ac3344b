// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/Messages.h"

#include <unistd.h>

#include "cli/Descriptors.h"
#include "cli/Shown.h"
#include "cli/Terminal.h"

namespace clipvane::cli {
namespace {

using namespace std::chrono_literals;
constexpr auto patience = 500ms;

constexpr std::string_view red = "\x1b[31m";
constexpr std::string_view plain = "\x1b[0m";
constexpr std::string_view clearLine = "\r\x1b[K";

/// What cannot be said there cannot be said anywhere.
void write(std::string_view text) {
    static_cast<void>(writeStream(STDERR_FILENO, text));
}

}  // namespace

void Messages::error(std::string_view sentence) {
    say(sentence, quiet ? "" : red);
}

void Messages::note(std::string_view sentence) {
    if (!quiet) say(sentence, "");
}

void Messages::say(std::string_view sentence, std::string_view colour) {
    clearProgress();
    std::string line = "clipvane-cli: " + shown(sentence);
    if (!colour.empty() && mayDecorate(STDERR_FILENO)) {
        line = std::string(colour) + line + std::string(plain);
    }
    write(line + '\n');
}

void Messages::progress(std::size_t index, std::size_t count, std::string_view name) {
    if (quiet || count < 2 || !mayDecorate(STDERR_FILENO)) return;
    if (std::chrono::steady_clock::now() - start < patience) return;
    const std::string text =
        std::to_string(index + 1) + " of " + std::to_string(count) + ": " + shown(name);
    write(std::string(clearLine) + elided(text, terminalColumns(STDERR_FILENO).value_or(80) - 1));
    showsProgress = true;
}

void Messages::clearProgress() {
    if (!showsProgress) return;
    write(clearLine);
    showsProgress = false;
}

}  // namespace clipvane::cli
