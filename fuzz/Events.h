#pragma once

#include <tuple>
#include <vector>

#include "model/TimelineEvent.h"

namespace clipvane::fuzz {

/// Whether all fields but the identifier have the same bytes.
inline bool sameFields(const TimelineEvent& a, const TimelineEvent& b) {
    const auto fields = [](const TimelineEvent& e) {
        return std::tie(e.eventNumber, e.clipName, e.reelID, e.sourceIn, e.sourceOut, e.recordIn,
                        e.recordOut, e.format, e.track, e.comments, e.highlighted, e.rawText);
    };
    return fields(a) == fields(b);
}

inline bool sameFields(const std::vector<TimelineEvent>& a, const std::vector<TimelineEvent>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!sameFields(a[i], b[i])) return false;
    }
    return true;
}

}  // namespace clipvane::fuzz
