// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace clipvane::cli {

/// How a timeline is written down.
enum class TimelineFormat {
    edl,
    xml,
    jsonLines,  ///< what `list -f jsonl` prints
};

/// By the name's extension, in any case: an EDL for edl and txt, XML for xml, fcpxml and xmeml, and
/// for fcpxmld, which is a folder. Nothing for any other.
std::optional<TimelineFormat> formatOf(const std::filesystem::path& name);

/// Whether the name is that of a folder which is one timeline, "cut.fcpxmld".
bool isBundleName(const std::filesystem::path& name);

/// By its name in --from: "edl", "xml" or "jsonl".
std::optional<TimelineFormat> formatCalled(std::string_view name);

}  // namespace clipvane::cli
