// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <clipvane/Error.h>
#include "cli/Finding.h"
#include "cli/TimelineReading.h"

namespace clipvane::cli {

/// A timeline as it was read, and what there is to say about it.
struct CheckedTimeline {
    ReadTimeline timeline;
    Findings findings;
};

/// Reads the timeline in `content`, at `fps` frames a second if that is given. Fails as
/// `readTimeline` does.
Result<CheckedTimeline> check(const InputBytes& content, std::optional<double> fps);

}  // namespace clipvane::cli
