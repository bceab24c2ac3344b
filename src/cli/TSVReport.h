// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/TimelineDocument.h>

namespace clipvane::cli {

/// The titles: File, those of the CSV report, and six of frame counts.
std::string tsvHeader();

/// A line for each event with its file's name, the fields of the CSV report and six frame counts,
/// which are empty where there is none. Fields are not quoted: a blank stands for each tab and each
/// character that ends a line. Fatal for frame counts beyond 64 bits.
std::string tsvRows(const TimelineDocument& document, std::string_view file);

}  // namespace clipvane::cli
