// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/Error.h>
#include <clipvane/TimelineDocument.h>

namespace clipvane::cli {

/// A line for each event of `document`, read from the file called `file`: a JSON object with the
/// event's thirteen keys, then `file`, `row` (from 1), `fps`, `fpsSource` and six bare frame
/// counts, null where there is none, negative where a range is reversed. Fatal for counts beyond 64
/// bits.
std::string eventLines(const TimelineDocument& document, std::string_view file);

/// Reads such lines: of each the thirteen keys, `fps` and `fpsSource`; blank lines are skipped.
/// Lines of different `fps` are refused unless `fps` is given: they are to be read at it, and the
/// document has the rate of the first line that names another. Fails with the number of the first
/// line that is none.
Result<std::unique_ptr<TimelineDocument>> parseEventLines(std::string_view text,
                                                          std::optional<double> fps);

}  // namespace clipvane::cli
