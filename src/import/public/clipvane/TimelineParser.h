// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include <clipvane/Error.h>
#include <clipvane/TimelineParseResult.h>

namespace clipvane {

/// Reads timeline files. A namespace of operations without state.
///
/// Content never fails: lines and elements that cannot be used are skipped, a file without events
/// yields none, and a file without a frame rate gets the default. A number that no frame count can
/// hold is fatal (`Fatal.h`).
class TimelineParser {
  public:
    TimelineParser() = delete;

    /// Reads the file at `url`: an EDL when its extension is edl or txt, an XML timeline when it is
    /// xml, fcpxml or xmeml, in any case. Fails with the system's error when the file cannot be
    /// read, and with domain "Clipvane", code 10, for any other extension.
    static Result<TimelineParseResult> parse(const std::filesystem::path& url);

    // What `parse` is made of, for texts in memory. `in` and `text` are UTF-8, `data` is a file's
    // raw bytes, rates are frames per second; `import/FrameRateDetection.h`, `import/EDLReader.h`
    // and `import/XMLReader.h` have the contracts.
    static std::optional<double> detectFPS(std::string_view in);
    // The list of an EDL keeps a copy of its text.
    static EventList parseEDL(std::string_view text);
    static EventList parseXML(std::string_view data, double fps);
};

}  // namespace clipvane
