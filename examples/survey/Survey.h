// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "base/Error.h"

/// A line of an EDL that holds four timecodes, in whatever notation, and is no event.
struct UnreadLine {
    std::size_t number =
        0;             ///< the first line of the file is 1; empty lines count, CR LF is one end
    std::string text;  ///< UTF-8
};

/// What one timeline file was read as.
struct Survey {
    const char* format = "";   ///< "EDL", "XMEML", "FCPXML" or "XML"
    std::string rate;          ///< in frames per second, as Clipvane labels it
    bool isRateNamed = false;  ///< by the file; otherwise Clipvane assumed it
    std::size_t events = 0;
    std::vector<UnreadLine> unreadLines;  ///< of an EDL
    double milliseconds = 0;              ///< that reading took, from the file's name to its events
};

/// Reads the timeline at `path`. Fails with the system's error, or with the reason for which the
/// program would stop on this file.
clipvane::Result<Survey> survey(const std::filesystem::path& path);
