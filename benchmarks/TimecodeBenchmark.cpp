// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "GeneratedTimeline.h"
#include "Ratio.h"
#include "import/TimelineParser.h"
#include "timecode/Timecode.h"

namespace clipvane {
namespace {

template <class Action>
void forEachTimecode(std::vector<TimelineEvent>& events, Action action) {
    for (TimelineEvent& event : events) {
        action(event.sourceIn);
        action(event.sourceOut);
        action(event.recordIn);
        action(event.recordOut);
    }
}

/// The four timecodes of every event to another rate, against one pass that reads and rewrites a
/// byte of each.
void convertTimecodes(benchmark::State& state) {
    auto events = TimelineParser::parseEDL(generatedEDL(static_cast<std::size_t>(state.range(0))));
    double from = 24;
    double to = 25;
    measureAgainstFloor(
        state,
        [&] {
            const TimecodeConversion conversion(from, to);
            forEachTimecode(events, [&](std::string& timecode) { conversion.convert(timecode); });
            std::swap(from, to);
        },
        // The hours' tens change between 0 and 1: still a timecode.
        [&] { forEachTimecode(events, [](std::string& timecode) { timecode[0] ^= 1; }); });
}
BENCHMARK(convertTimecodes)
    ->Arg(1'000'000)
    ->UseManualTime()
    ->Iterations(9)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace clipvane
