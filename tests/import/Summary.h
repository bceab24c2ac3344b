// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/TimelineParseResult.h"

namespace clipvane::test {

/// All fields of the event but its identifier, each with a bar behind.
inline std::string summary(const TimelineEvent& e) {
    std::string text;
    for (const auto& field : {e.eventNumber, e.clipName, e.reelID, e.sourceIn, e.sourceOut,
                              e.recordIn, e.recordOut, e.format, e.track, e.comments, e.rawText}) {
        text += field + "|";
    }
    return text + (e.highlighted ? "yes" : "no");
}

}  // namespace clipvane::test
