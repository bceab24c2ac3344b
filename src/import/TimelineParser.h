// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "base/Error.h"
#include "model/TimelineParseResult.h"

namespace clipvane {

/// Reads timeline files. A namespace of operations without state.
///
/// Content never fails: lines and elements that cannot be used are skipped, a file without events
/// yields none, and a file without a frame rate gets the default. Hostile numbers can reach the
/// fatal cases of the arithmetic (`base/Number.h`).
class TimelineParser {
  public:
    TimelineParser() = delete;

    /// Reads the file at `url`: an EDL when its extension is edl or txt, an XML timeline when it is
    /// xml, fcpxml or xmeml, in any case. Fails with the system's error when the file cannot be
    /// read, and with domain "Clipvane", code 10, for any other extension.
    static Result<TimelineParseResult> parse(const std::filesystem::path& url);

    /// The frame rate, in frames per second, that a file's whole text (UTF-8) names, as written:
    /// neither rounded nor range-checked, but above zero or not a number. Nothing when it names
    /// none.
    static std::optional<double> detectFPS(std::string_view in);

    /// The events of a CMX-style EDL, in the order of their lines. `text` is UTF-8.
    static std::vector<TimelineEvent> parseEDL(std::string_view text);

    /// The events of an XMEML, FCPXML or generic XML document, in document order, with times at
    /// `fps` frames per second. `data` is the file's raw bytes, in any encoding that the document
    /// declares. Malformed XML yields the events before the error.
    static std::vector<TimelineEvent> parseXML(std::string_view data, double fps);
};

}  // namespace clipvane
