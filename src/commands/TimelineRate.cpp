#include "commands/TimelineRate.h"

#include <cmath>

#include "timecode/Timecode.h"

namespace clipvane {
namespace {

constexpr double sameRate = 0.0001;

}  // namespace

std::size_t convertTimecodes(std::vector<TimelineEvent>& events, double from, double to) {
    if (!(std::abs(from - to) > sameRate)) return 0;
    const TimecodeConversion conversion(from, to);
    std::size_t count = 0;
    for (TimelineEvent& event : events) {
        for (std::string* timecode :
             {&event.sourceIn, &event.sourceOut, &event.recordIn, &event.recordOut}) {
            if (conversion.convert(*timecode)) ++count;
        }
    }
    return count;
}

}  // namespace clipvane
