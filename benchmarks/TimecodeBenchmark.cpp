// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/TimelineParser.h>
#include <clipvane/TimelineRate.h>
#include "GeneratedTimeline.h"
#include "Ratio.h"

namespace clipvane {
namespace {

/// What the same events are as records in one array.
std::vector<TimelineEvent> recordsOf(const EventList& events) {
    std::vector<TimelineEvent> records;
    records.reserve(events.size());
    for (const EventView& event : events) records.push_back(event.record());
    return records;
}

/// The four timecodes of every event to another rate, against one pass over records that reads and
/// rewrites a byte of each.
void convertTimecodes(benchmark::State& state) {
    auto events = TimelineParser::parseEDL(generatedEDL(static_cast<std::size_t>(state.range(0))));
    auto records = recordsOf(events);
    double from = 24;
    double to = 25;
    measureAgainstFloor(
        state,
        [&] {
            convertTimecodes(events, from, to);
            std::swap(from, to);
        },
        [&] {
            // The hours' tens change between 0 and 1: still a timecode.
            for (TimelineEvent& event : records) {
                event.sourceIn[0] ^= 1;
                event.sourceOut[0] ^= 1;
                event.recordIn[0] ^= 1;
                event.recordOut[0] ^= 1;
            }
        });
}
BENCHMARK(convertTimecodes)
    ->Arg(1'000'000)
    ->UseManualTime()
    ->Iterations(7)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace clipvane
