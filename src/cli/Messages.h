// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace clipvane::cli {

/// What the program says on standard error, a sentence a line. Nothing that a file or a name holds
/// reaches a terminal as a control character.
class Messages {
  public:
    /// Silences all but errors.
    void beQuiet() { quiet = true; }

    void error(std::string_view sentence);
    void note(std::string_view sentence);

    /// Shows on a terminal, once half a second has passed, which of `count` files is being worked
    /// on, `index` counted from zero.
    void progress(std::size_t index, std::size_t count, std::string_view name);

    /// Takes away what `progress` shows, before data go to the same terminal.
    void clearProgress();

  private:
    void say(std::string_view sentence, std::string_view colour);

    bool quiet = false;
    bool showsProgress = false;
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

}  // namespace clipvane::cli
