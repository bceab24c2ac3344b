// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace clipvane {

/// "[2026-11-16 00:50:32 +0000] ", the message as it is, and a line feed; the time is in UTC
/// whatever the time zone and the locale. Nothing for a message that is not valid UTF-8.
std::optional<std::string> logLine(std::chrono::system_clock::time_point time,
                                   std::string_view message);

/// Appends `line` to the file at `path`, or creates the file with it. Every failure is silent.
///
/// The log lies where every user may write, so only a regular file of the current user, or the
/// user's own link to one, counts as writable. Nothing that somebody else put there is followed,
/// written or waited for. Two processes may write at once.
void appendLogLine(const std::filesystem::path& path, std::string_view line);

/// Appends the line of `message` at `time` to the log at `path`. Every failure is silent, lack of
/// memory included: a log is no reason to stop what it tells about.
void writeLogLine(const std::filesystem::path& path, std::chrono::system_clock::time_point time,
                  std::string_view message);

}  // namespace clipvane
