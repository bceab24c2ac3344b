// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include <clipvane/Alert.h>
#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>
#include <clipvane/TimelineParseResult.h>

namespace clipvane {

// What the commands tell the user and the log, word by word. Counts never change the words: it is
// "1 events" too.

// Opening a timeline.
inline constexpr const char* openClickedLine = "Open Timeline clicked.";
/// The log's line about a file that was read: its path as chosen, its rate as the shortest decimal
/// that reads back to the same number, with a ".0" for whole numbers.
std::string parsedLine(const TimelineParseResult& parsed, const std::filesystem::path& url);
std::string openFailedLine(const Error& error);
std::string loadedStatus(const TimelineDocument& document, const std::filesystem::path& url);
Alert openFailedAlert(const Error& error);
Alert checkFrameRateAlert();

// The other commands. Rates are in frames per second.
std::string convertedStatus(std::size_t timecodes, double from, double to);
std::string removedStatus(std::size_t remaining);
inline constexpr const char* copiedStatus = "Copied selected event information.";
std::string exportedStatus(const std::filesystem::path& url);
Alert exportFailedAlert(const Error& error);

/// For commands that ran out of memory: made while there is some.
struct NoMemoryAlerts {
    const Alert toOpen{Alert::Style::warning, "Could not open timeline",
                       "There is not enough memory."};
    const Alert toExport{Alert::Style::warning, "Export failed", "There is not enough memory."};
    const Alert toChange{Alert::Style::warning, "Not enough memory",
                         "The action could not be carried out. Nothing was changed."};
    /// The rest of a command whose change is made already.
    const Alert toShow{Alert::Style::warning, "Not enough memory",
                       "The change was made, but the window may not show it."};
};

}  // namespace clipvane
