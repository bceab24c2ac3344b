// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string_view>

namespace clipvane {

/// The program's diagnostic log: a text file. Starting up and opening a
/// timeline add lines to it, and nothing reads them.
class AppLog {
  public:
    AppLog() = delete;

    /// The log's fixed place, which the users' documents name.
    static const std::filesystem::path& url();

    /// Appends one line with the time and the message. Never fails visibly.
    static void write(std::string_view message);
};

}  // namespace clipvane
