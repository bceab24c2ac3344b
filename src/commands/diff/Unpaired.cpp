// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Unpaired.h"

#include "commands/diff/Coverage.h"

namespace clipvane::diff {
namespace {

/// What `other` uses of the free stretches. These are few in most lists, so that only the uses that
/// touch one are kept and sorted.
Coverage usesOf(const Cut& other, const Cut& cut, const std::vector<Stretch>& free) {
    std::vector<AxisStretch> asked;
    asked.reserve(free.size());
    for (const Stretch& stretch : free) {
        asked.push_back({cut[stretch.event].content, stretch.from, stretch.to});
    }
    const Coverage askedAbout(std::move(asked));
    std::vector<AxisStretch> uses;
    for (const CutEvent& event : other) {
        const AxisStretch use{event.content, event.from(), event.to()};
        if (askedAbout.within(use) > 0) uses.push_back(use);
    }
    return Coverage(std::move(uses));
}

}  // namespace

std::vector<Unpaired> countUnpaired(const Cut& cut, const std::vector<Stretch>& paired,
                                    const Cut& other) {
    const FreeStretches free(cut, paired);
    const Coverage uses = usesOf(other, cut, free.stretches());
    std::vector<Unpaired> all;
    for (const Stretch& stretch : free.stretches()) {
        const CutEvent& event = cut[stretch.event];
        const std::int64_t used = uses.within({event.content, stretch.from, stretch.to});
        if (all.empty() || all.back().event != stretch.event) all.push_back({stretch.event, 0, 0});
        all.back().further += event.framesOf(used);
        all.back().lacking += event.framesOf(stretch.to - stretch.from - used);
    }
    return all;
}

}  // namespace clipvane::diff
