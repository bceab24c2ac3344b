// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace clipvane::cli {

/// Something that `check` has to say about a timeline.
struct Finding {
    enum class Weight { note, suspicious };

    std::string kind;  ///< one of the words that the man page lists
    Weight weight = Weight::note;
    std::optional<std::size_t> line;  ///< of the file, counted from 1
    std::optional<std::size_t> row;   ///< of the list of events, counted from 1
    std::string text;                 ///< a sentence without its full stop
};

using Findings = std::vector<Finding>;

}  // namespace clipvane::cli
