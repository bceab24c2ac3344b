// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include "model/TimelineEvent.h"

namespace clipvane {

/// Makes room for the events of a text of `total` bytes, the first `soFar` of which gave `events`.
/// A large list that grew by doubling would be written twice and more. A wrong guess costs address
/// space or time, nothing else; lack of memory is not reported, as there may still be room for the
/// events that really come.
void reserveForRest(std::vector<TimelineEvent>& events, std::size_t soFar, std::size_t total);

}  // namespace clipvane
