// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/FreeStretches.h"

#include <utility>

#include "commands/diff/ByIndex.h"

namespace clipvane::diff {
namespace {

/// Takes stretches away from others that come in the same order.
class Taking {
  public:
    Taking(std::span<const Stretch> taken, std::vector<Stretch>& rest)
        : next(taken.begin()), end(taken.end()), rest(rest) {}

    /// Adds what is left of `stretch` to the rest.
    void passOn(Stretch stretch) {
        for (; next != end && next->event == stretch.event && next->from < stretch.to; ++next) {
            if (stretch.from < next->from)
                rest.push_back({stretch.event, stretch.from, next->from});
            stretch.from = next->to;
        }
        if (stretch.from < stretch.to) rest.push_back(stretch);
    }

  private:
    std::span<const Stretch>::iterator next;
    std::span<const Stretch>::iterator end;
    std::vector<Stretch>& rest;
};

}  // namespace

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

FreeStretches::FreeStretches(const Cut& cut, std::span<const Stretch> taken) {
    Taking taking(taken, free);
    for (std::uint32_t i = 0; i < cut.size(); ++i) taking.passOn({i, cut[i].from(), cut[i].to()});
}

void FreeStretches::take(std::span<const Stretch> taken) {
    if (taken.empty()) return;
    std::vector<Stretch> rest;
    Taking taking(taken, rest);
    for (const Stretch& stretch : free) taking.passOn(stretch);
    free = std::move(rest);
}

}  // namespace clipvane::diff
