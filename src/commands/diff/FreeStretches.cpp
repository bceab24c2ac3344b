// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FreeStretches.h"

#include <utility>

namespace clipvane::diff {

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
