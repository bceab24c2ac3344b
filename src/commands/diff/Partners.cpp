// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Partners.h"

#include <algorithm>
#include <span>
#include <tuple>
#include <utility>

#include "commands/diff/ByIndex.h"
#include "commands/diff/Retimed.h"

namespace clipvane::diff {
namespace {

/// Where the elements of each of `count` owners begin in `sorted`, and where the last ones end.
template <class OwnerOf>
std::vector<std::uint32_t> startsOf(const std::vector<Partnership>& sorted, std::size_t count,
                                    OwnerOf ownerOf) {
    std::vector<std::uint32_t> starts(count + 1);
    for (const Partnership& p : sorted) ++starts[ownerOf(p) + 1];
    for (std::size_t i = 0; i < count; ++i) starts[i + 1] += starts[i];
    return starts;
}

/// What two events share, all of it: one for each two that have a run in common.
std::vector<Partnership> sharedBy(const std::vector<Run>& runs, const Cut& newCut) {
    std::vector<Partnership> shared;
    shared.reserve(runs.size());
    for (const Run& run : runs) {
        shared.push_back({run.newEvent, run.oldEvent,
                          newCut[run.newEvent].framesOf(run.to - run.from), run.from, run.to});
    }
    shared = sortedByIndex(
        std::move(shared), newCut.size(), [](const Partnership& p) { return p.newEvent; },
        [](const Partnership& a, const Partnership& b) {
            return std::tuple(a.oldEvent, a.from) < std::tuple(b.oldEvent, b.from);
        });
    std::size_t merged = 0;
    for (const Partnership& p : shared) {
        Partnership* const last = merged == 0 ? nullptr : &shared[merged - 1];
        if (last != nullptr && last->newEvent == p.newEvent && last->oldEvent == p.oldEvent) {
            last->frames += p.frames;
            last->to = p.to;
        } else {
            shared[merged++] = p;
        }
    }
    shared.resize(merged);
    return shared;
}

class Finder {
  public:
    Finder(const Cut& oldCut, const Cut& newCut, const std::vector<Run>& runs)
        : oldCut(oldCut), newCut(newCut), shared(sharedBy(runs, newCut)) {}

    Partners find() && {
        std::vector<bool> isPartnership(shared.size());
        for (std::size_t i = 0; i < shared.size(); ++i) {
            isPartnership[i] = arePartners(shared[i]);
        }
        std::vector<Partnership> all = std::move(shared);
        std::size_t kept = 0;
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (isPartnership[i]) all[kept++] = all[i];
        }
        all.resize(kept);
        addRetimed(all);
        return arranged(std::move(all));
    }

  private:
    bool arePartners(const Partnership& p) {
        const CutEvent& o = oldCut[p.oldEvent];
        const CutEvent& n = newCut[p.newEvent];
        const std::int64_t both =
            n.framesOf(std::min(o.to(), n.to()) - std::max(o.from(), n.from()));
        const auto isHalfOf = [&](std::int64_t whole) { return p.frames >= whole - p.frames; };
        if (!isHalfOf(both)) return false;
        if (isHalfOf(std::min(o.frames(), n.frames()))) return true;
        findBest();
        return bestOfNew[p.newEvent] == &p && bestOfOld[p.oldEvent] == &p;
    }

    auto rank(const Partnership& p) const {
        const CutEvent& o = oldCut[p.oldEvent];
        const CutEvent& n = newCut[p.newEvent];
        const std::int64_t shift = shiftBetween(o, n);
        return std::tuple(-p.frames, o.track != n.track,
                          shift < 0 ? subtractChecked(0, shift) : shift);
    }

    /// Looks at the shared in the order of NEW, then OLD, so that the earliest stays the best.
    void findBest() {
        if (!bestOfNew.empty()) return;
        bestOfNew.assign(newCut.size(), nullptr);
        bestOfOld.assign(oldCut.size(), nullptr);
        for (const Partnership& p : shared) {
            for (const Partnership** best : {&bestOfNew[p.newEvent], &bestOfOld[p.oldEvent]}) {
                if (*best == nullptr || rank(p) < rank(**best)) *best = &p;
            }
        }
    }

    void addRetimed(std::vector<Partnership>& all) const {
        std::vector<bool> oldTaken(oldCut.size());
        std::vector<bool> newTaken(newCut.size());
        for (const Partnership& p : all) oldTaken[p.oldEvent] = newTaken[p.newEvent] = true;
        const auto free = [](const Cut& cut, const std::vector<bool>& taken) {
            std::vector<std::uint32_t> events;
            for (std::uint32_t i = 0; i < cut.size(); ++i) {
                if (!taken[i]) events.push_back(i);
            }
            return events;
        };
        for (const auto& [n, o] :
             pairRetimed(oldCut, newCut, free(oldCut, oldTaken), free(newCut, newTaken))) {
            all.push_back({n, o, 0, 0, 0});
        }
    }

    Partners arranged(std::vector<Partnership> all) const {
        all = sortedByIndex(
            std::move(all), newCut.size(), [](const Partnership& p) { return p.newEvent; },
            [&](const Partnership& a, const Partnership& b) {
                return std::tuple(oldCut[a.oldEvent].sourceLow(), a.oldEvent) <
                       std::tuple(oldCut[b.oldEvent].sourceLow(), b.oldEvent);
            });
        return {oldCut, newCut, std::move(all)};
    }

    const Cut& oldCut;
    const Cut& newCut;
    std::vector<Partnership> shared;
    std::vector<const Partnership*> bestOfNew;  // empty until somebody asks, as is the next
    std::vector<const Partnership*> bestOfOld;
};

}  // namespace

SharedPlace sharedPlace(const Partnership& p, const CutEvent& oldEvent, const CutEvent& newEvent) {
    if (p.isRetimed() || newEvent.kind != Kind::plain) {
        return {newEvent.recordIn, newEvent.recordOut, oldEvent.recordIn, oldEvent.recordOut};
    }
    const std::int64_t newOffset = newEvent.offset();
    const std::int64_t oldOffset = oldEvent.offset();
    return {addChecked(newOffset, p.from), addChecked(newOffset, p.to),
            addChecked(oldOffset, p.from), addChecked(oldOffset, p.to)};
}

Partners::Partners(const Cut& oldCut, const Cut& newCut, std::vector<Partnership> sorted)
    : all(std::move(sorted)),
      newStarts(startsOf(all, newCut.size(), [](const Partnership& p) { return p.newEvent; })),
      oldStarts(startsOf(all, oldCut.size(), [](const Partnership& p) { return p.oldEvent; })) {
    pieces.resize(all.size());
    std::vector<std::uint32_t> next = oldStarts;
    for (const Partnership& p : all) pieces[next[p.oldEvent]++] = p.newEvent;
    for (std::uint32_t o = 0; o < oldCut.size(); ++o) {
        const std::span ofOne(pieces.data() + oldStarts[o], pieces.data() + oldStarts[o + 1]);
        if (ofOne.size() < 2) continue;
        std::ranges::sort(ofOne, {},
                          [&](std::uint32_t n) { return std::tuple(newCut[n].sourceLow(), n); });
    }
}

Partners findPartners(const Cut& oldCut, const Cut& newCut, const std::vector<Run>& runs) {
    return Finder(oldCut, newCut, runs).find();
}

}  // namespace clipvane::diff
