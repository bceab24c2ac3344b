// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <clipvane/Timecode.h>
#include "cli/Counted.h"
#include "cli/EventFindings.h"

namespace clipvane::cli {
namespace {

/// Where an event plays, in frames.
struct Stretch {
    std::int64_t in = 0;
    std::int64_t out = 0;
    std::size_t row = 0;
};

using Tracks = std::map<std::string, std::vector<Stretch>, std::less<>>;

/// Events without length, such as the first line of a dissolve, play nowhere; nor do reversed ones.
Tracks tracksOf(const TimelineDocument& document) {
    Tracks tracks;
    std::size_t row = 0;
    for (const auto& event : document.events) {
        ++row;
        const auto in = frames(event.recordIn, document.fps);
        const auto out = frames(event.recordOut, document.fps);
        if (in && out && *in < *out) tracks[std::string(event.track)].push_back({*in, *out, row});
    }
    for (auto& [track, stretches] : tracks) {
        std::ranges::stable_sort(stretches, {}, &Stretch::in);
    }
    return tracks;
}

void tell(Findings& found, std::string kind, Finding::Weight weight, std::size_t row,
          std::string text) {
    found.push_back({std::move(kind), weight, std::nullopt, row, std::move(text)});
}

void lookAtTrack(const std::string& track, const std::vector<Stretch>& stretches, Findings& found) {
    const Stretch* last = nullptr;  // of those so far, the one that plays longest
    for (const Stretch& stretch : stretches) {
        if (last != nullptr && stretch.in > last->out) {
            tell(found, "gap", Finding::Weight::note, stretch.row,
                 "track " + track + " is empty for " + counted(stretch.in - last->out, "frame") +
                     " before it");
        } else if (last != nullptr && stretch.in < last->out) {
            const std::int64_t both = std::min(stretch.out, last->out) - stretch.in;
            const auto [earlier, later] = std::minmax(stretch.row, last->row);
            tell(found, "overlap", Finding::Weight::suspicious, later,
                 "it overlaps row " + std::to_string(earlier) + " by " + counted(both, "frame") +
                     " on track " + track);
        }
        if (last == nullptr || stretch.out > last->out) last = &stretch;
    }
}

}  // namespace

Findings trackFindings(const TimelineDocument& document) {
    Findings found;
    for (const auto& [track, stretches] : tracksOf(document)) {
        lookAtTrack(track, stretches, found);
    }
    return found;
}

}  // namespace clipvane::cli
