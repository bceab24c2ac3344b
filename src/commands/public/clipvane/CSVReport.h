// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>

namespace clipvane {

/// The CSV report of the document's remaining events: UTF-8, a header line, then a line an event
/// with fifteen quoted fields, each line ended by a line feed. Quotes are doubled, line feeds in a
/// field become blanks. Without events an empty line follows the header.
std::string csvText(const TimelineDocument& document);

/// Writes `csvText` to `url` atomically; fails with the system's error.
Result<void> writeCSV(const TimelineDocument& document, const std::filesystem::path& url);

}  // namespace clipvane
