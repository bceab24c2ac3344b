// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "model/FoundEvent.h"

namespace clipvane {

/// The columns of an EDL's event line that are kept; views into the line.
struct EventLine {
    std::string_view number;
    std::string_view reel;
    std::string_view track;
    std::array<FoundTimecode, 4> timecodes;  ///< source in and out, record in and out
};

/// Reads `line` as
///
///     number reel track edit [duration] source-in source-out record-in record-out ...
///
/// with columns separated by white space, which may also come first. Number and duration are
/// decimal digits; timecodes are two digits a field with ":" between; anything may follow the last
/// one. Digits and white space are Unicode's. Columns may have any length.
std::optional<EventLine> matchEventLine(std::string_view line);

// The two ways that it tries, one after the other.

/// The straight way, for lines as nearly all are written: columns of graphic ASCII with blanks and
/// tabs between them, one between the timecodes. Nothing for any other line, event line or not.
std::optional<EventLine> matchPlainEventLine(std::string_view line);

/// The general way, which takes every line.
std::optional<EventLine> matchAnyEventLine(std::string_view line);

}  // namespace clipvane
