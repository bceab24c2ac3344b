// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <clipvane/TimelineDocument.h>
#include "cli/Finding.h"

namespace clipvane::cli {

/// What the events' own timecodes tell: fields that no rate has, or that the document's rate does
/// not have, and which rates would; out-points before their in-points. Fatal for frame counts
/// beyond 64 bits.
Findings eventFindings(const TimelineDocument& document);

/// Where events of an EDL follow each other with a gap or overlap, on each record track by itself.
Findings trackFindings(const TimelineDocument& document);

}  // namespace clipvane::cli
