#include "commands/TimelineRate.h"

#include <cmath>

#include "timecode/Timecode.h"

namespace clipvane {
namespace {

constexpr double sameRate = 0.0001;

template <class Action>
void forEachTimecode(std::vector<TimelineEvent>& events, Action action) {
    for (TimelineEvent& event : events) {
        for (std::string* timecode :
             {&event.sourceIn, &event.sourceOut, &event.recordIn, &event.recordOut}) {
            action(*timecode);
        }
    }
}

}  // namespace

std::size_t convertTimecodes(std::vector<TimelineEvent>& events, double from, double to) {
    if (!(std::abs(from - to) > sameRate)) return 0;
    const TimecodeConversion conversion(from, to);
    forEachTimecode(events, [&](std::string& timecode) { conversion.makeRoom(timecode); });
    std::size_t count = 0;
    forEachTimecode(events, [&](std::string& timecode) {
        if (conversion.convert(timecode)) ++count;
    });
    return count;
}

}  // namespace clipvane
