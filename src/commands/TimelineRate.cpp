// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineRate.h>

#include <cmath>

#include <clipvane/Timecode.h>

namespace clipvane {
namespace {

constexpr double sameRate = 0.0001;

}  // namespace

std::size_t convertTimecodes(EventList& events, double from, double to) {
    if (!(std::abs(from - to) > sameRate)) return 0;
    return events.convertTimecodes(TimecodeConversion(from, to));
}

}  // namespace clipvane
