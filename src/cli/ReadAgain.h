// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <clipvane/TimelineDocument.h>

namespace clipvane::cli {

/// What a reader makes of an EDL that was written from a list of events.
struct ReadAgain {
    std::size_t events = 0;  ///< of the list
    std::size_t kept = 0;    ///< of these, read again with reel, track, name and timecodes
    std::string reasons;     ///< why others are lost, the most frequent first; empty when none is
};

/// Reads `edl`, which was written from `document`. An event is kept when reel, track, name and the
/// four timecodes are read again; an empty reel or track may be read as AX or V.
ReadAgain readAgain(const TimelineDocument& document, std::string_view edl);

}  // namespace clipvane::cli
