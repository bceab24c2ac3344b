// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>

#include <clipvane/EventView.h>

namespace clipvane::cli {

/// An event's times in bare frames; nothing where a timecode is none. Durations are negative where
/// a range is reversed.
struct FrameCounts {
    using Count = std::optional<std::int64_t>;

    Count sourceIn;
    Count sourceOut;
    Count recordIn;
    Count recordOut;
    Count sourceDuration;
    Count recordDuration;
};

/// The counts at `fps` frames a second. Fatal for what leaves 64 bits.
FrameCounts frameCounts(const EventView& event, double fps);

}  // namespace clipvane::cli
