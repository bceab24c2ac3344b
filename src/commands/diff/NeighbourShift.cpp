// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/NeighbourShift.h"

#include <algorithm>
#include <tuple>

namespace clipvane::diff {
namespace {

/// Walks over runs and free stretches in one order and keeps each track's latest run.
class Walk {
  public:
    Walk(const Cut& oldCut, const Cut& newCut) : oldCut(oldCut), newCut(newCut) {
        std::uint32_t tracks = 0;
        for (const CutEvent& event : newCut) tracks = std::max(tracks, event.track + 1);
        latest.resize(tracks);
    }

    void pass(const Run& run) {
        const CutEvent& event = newCut[run.newEvent];
        if (event.hasFrames()) latest[event.track] = &run;
    }
    std::optional<std::int64_t> shiftAt(const Stretch& stretch) const {
        const Run* const run = latest[newCut[stretch.event].track];
        if (run == nullptr) return std::nullopt;
        return shiftBetween(oldCut[run->oldEvent], newCut[run->newEvent]);
    }

  private:
    const Cut& oldCut;
    const Cut& newCut;
    std::vector<const Run*> latest;  // of each track
};

bool isBefore(const Run& run, const Stretch& stretch) {
    return std::tuple(run.newEvent, run.from) < std::tuple(stretch.event, stretch.from);
}

}  // namespace

std::vector<std::optional<std::int64_t>> neighbourShifts(const Cut& oldCut, const Cut& newCut,
                                                         const std::vector<Run>& runs,
                                                         const std::vector<Stretch>& free,
                                                         Neighbour neighbour) {
    std::vector<std::optional<std::int64_t>> shifts(free.size());
    Walk walk(oldCut, newCut);
    if (neighbour == Neighbour::before) {
        auto run = runs.begin();
        for (std::size_t i = 0; i < free.size(); ++i) {
            for (; run != runs.end() && isBefore(*run, free[i]); ++run) walk.pass(*run);
            shifts[i] = walk.shiftAt(free[i]);
        }
    } else {
        auto run = runs.rbegin();
        for (std::size_t i = free.size(); i-- > 0;) {
            for (; run != runs.rend() && !isBefore(*run, free[i]); ++run) walk.pass(*run);
            shifts[i] = walk.shiftAt(free[i]);
        }
    }
    return shifts;
}

}  // namespace clipvane::diff
