// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FreeStretches.h"

#include <utility>

#include "commands/diff/ByIndex.h"

namespace clipvane::diff {

std::vector<Stretch> pairedOfOld(const std::vector<Run>& runs, std::size_t oldCount) {
    std::vector<Stretch> stretches;
    stretches.reserve(runs.size());
    for (const Run& run : runs) stretches.push_back({run.oldEvent, run.from, run.to});
    return sortedByIndex(
        std::move(stretches), oldCount, [](const Stretch& s) { return s.event; },
        [](const Stretch& a, const Stretch& b) { return a.from < b.from; });
}

std::vector<Stretch> pairedOfNew(const std::vector<Run>& runs) {
    std::vector<Stretch> stretches;
    stretches.reserve(runs.size());
    for (const Run& run : runs) stretches.push_back({run.newEvent, run.from, run.to});
    return stretches;
}

FreeStretches::FreeStretches(const Cut& cut) {
    free.reserve(cut.size());
    for (std::uint32_t i = 0; i < cut.size(); ++i) free.push_back({i, cut[i].from(), cut[i].to()});
}

void FreeStretches::take(std::span<const Stretch> taken) {
    if (taken.empty()) return;
    std::vector<Stretch> rest;
    auto next = taken.begin();
    for (Stretch stretch : free) {
        for (; next != taken.end() && next->event == stretch.event && next->from < stretch.to;
             ++next) {
            if (stretch.from < next->from)
                rest.push_back({stretch.event, stretch.from, next->from});
            stretch.from = next->to;
        }
        if (stretch.from < stretch.to) rest.push_back(stretch);
    }
    free = std::move(rest);
}

}  // namespace clipvane::diff
