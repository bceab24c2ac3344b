// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/TimelineDocument.h>

namespace clipvane::cli {

/// How `list` writes the events of one timeline after another.
class ListFormat {
  public:
    ListFormat() = default;
    ListFormat(const ListFormat&) = delete;
    ListFormat& operator=(const ListFormat&) = delete;
    virtual ~ListFormat() = default;

    /// All that is written for a timeline: `file` is its path as reached, "-" for standard input.
    /// Fatal for frame counts beyond 64 bits, and has done nothing then.
    virtual std::string timeline(const TimelineDocument& document, std::string_view file) = 0;

    /// What follows the last one.
    virtual std::string end() { return {}; }
};

/// By its name in -f: "table", "csv", "tsv" or "jsonl"; for any other nothing. A table is elided to
/// `width` columns, if that is given.
std::unique_ptr<ListFormat> listFormat(const std::string& name, std::optional<std::size_t> width);

}  // namespace clipvane::cli
