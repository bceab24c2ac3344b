// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include <clipvane/EventList.h>

namespace clipvane {

/// Converts the four timecodes of each event from one rate to another, in frames per second, and
/// tells how many of them were timecodes. The others stay as they are. Rates within 0.0001 of each
/// other are the same: nothing is converted, and the count is zero. Nothing is converted, either,
/// when memory runs out, which is thrown.
std::size_t convertTimecodes(EventList& events, double from, double to);

}  // namespace clipvane
