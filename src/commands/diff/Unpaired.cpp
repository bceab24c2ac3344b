// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Unpaired.h"

#include <algorithm>

#include "commands/diff/Coverage.h"

namespace clipvane::diff {
namespace {

/// What `other` uses of the contents that `free` asks about.
Coverage usesOf(const Cut& other, const Cut& cut, const std::vector<Stretch>& free) {
    std::uint32_t last = 0;
    for (const CutEvent& event : cut) last = std::max(last, event.content);
    std::vector<bool> isAsked(last + 1);
    for (const Stretch& stretch : free) isAsked[cut[stretch.event].content] = true;
    std::vector<AxisStretch> uses;
    for (const CutEvent& event : other) {
        if (event.content > last || !isAsked[event.content]) continue;
        uses.push_back({event.content, event.from(), event.to()});
    }
    return Coverage(std::move(uses));
}

}  // namespace

std::vector<Unpaired> countUnpaired(const Cut& cut, const std::vector<Stretch>& paired,
                                    const Cut& other) {
    FreeStretches free(cut);
    free.take(paired);
    const Coverage uses = usesOf(other, cut, free.stretches());
    std::vector<Unpaired> all(cut.size());
    for (const Stretch& stretch : free.stretches()) {
        const CutEvent& event = cut[stretch.event];
        const std::int64_t used = uses.within({event.content, stretch.from, stretch.to});
        all[stretch.event].further += event.framesOf(used);
        all[stretch.event].lacking += event.framesOf(stretch.to - stretch.from - used);
    }
    return all;
}

}  // namespace clipvane::diff
