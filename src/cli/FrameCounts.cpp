// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/FrameCounts.h"

#include <clipvane/Timecode.h>
#include "base/Number.h"

namespace clipvane::cli {
namespace {

FrameCounts::Count between(FrameCounts::Count in, FrameCounts::Count out) {
    if (!in || !out) return std::nullopt;
    return subtractChecked(*out, *in);
}

}  // namespace

FrameCounts frameCounts(const EventView& event, double fps) {
    FrameCounts counts;
    counts.sourceIn = frames(event.sourceIn, fps);
    counts.sourceOut = frames(event.sourceOut, fps);
    counts.recordIn = frames(event.recordIn, fps);
    counts.recordOut = frames(event.recordOut, fps);
    counts.sourceDuration = between(counts.sourceIn, counts.sourceOut);
    counts.recordDuration = between(counts.recordIn, counts.recordOut);
    return counts;
}

}  // namespace clipvane::cli
