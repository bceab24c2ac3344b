// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>

namespace clipvane {

/// A new EDL of the document's remaining events, renumbered from 1: UTF-8, three header lines, then
/// for each event its line, a FROM CLIP NAME line, a COMMENT line if it has a comment, and an empty
/// line. Columns are separated by fixed runs of blanks, neither padded nor cut.
std::string edlText(const TimelineDocument& document);

/// Writes `edlText` to `url` atomically; fails with the system's error.
Result<void> writeEDL(const TimelineDocument& document, const std::filesystem::path& url);

}  // namespace clipvane
