// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include <clipvane/TimelineDocument.h>
#include "cli/Finding.h"

namespace clipvane::cli {

/// For people: the timeline called `file`, and its findings indented below.
std::string findingsText(std::string_view file, const TimelineDocument& document,
                         const Findings& findings);

/// For programs: a line of JSON for the file, and one for each finding.
std::string findingLines(std::string_view file, const TimelineDocument& document,
                         const Findings& findings);

}  // namespace clipvane::cli
