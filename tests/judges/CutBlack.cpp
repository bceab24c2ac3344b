// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutBlack.h"

#include <algorithm>
#include <optional>

#include "judges/CutWords.h"

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;

int64_t blackWithin(const std::set<int64_t>& covered, int64_t from, int64_t to) {
    int64_t count = 0;
    for (int64_t f = from; f < to; ++f) count += covered.contains(f) ? 0 : 1;
    return count;
}

/// What an event of the chain shares with each partner on its track, in record order.
std::vector<Stay> sharedBy(const Layout& layout, const Bonds& bonds, size_t n) {
    const Event& event = layout.news.events[n];
    std::vector<Stay> shared;
    for (const size_t o : bonds.olds.at(n)) {
        if (layout.olds.events[o].track != event.track) continue;
        Stay stay = stayOf(layout, bonds, n, o);
        if (isThing(event)) {
            stay.newTo = stay.newFrom;
            stay.oldTo = stay.oldFrom;
        }
        shared.push_back(stay);
    }
    std::ranges::sort(shared, {}, &Stay::newFrom);
    return shared;
}

}  // namespace

std::set<int64_t> covered(const Side& side, const std::string& track) {
    std::set<int64_t> frames;
    for (const Event& e : side.events) {
        if (e.track != track || isThing(e)) continue;
        for (int64_t f = e.recordIn; f < e.recordOut; ++f) frames.insert(f);
    }
    return frames;
}

std::multimap<size_t, int64_t> blackChanges(const Layout& layout, const Bonds& bonds,
                                            const Chains& chains) {
    std::multimap<size_t, int64_t> changes;
    for (const auto& [track, chain] : chains.byTrack) {
        const auto oldCovered = covered(layout.olds, track);
        const auto newCovered = covered(layout.news, track);
        std::optional<Stay> last;
        for (const Stay& link : chain) {
            for (const Stay& next : sharedBy(layout, bonds, link.n)) {
                if (last && (next.newFrom < last->newTo || next.oldFrom < last->oldTo)) continue;
                const int64_t longer = last ? blackWithin(newCovered, last->newTo, next.newFrom) -
                                                  blackWithin(oldCovered, last->oldTo, next.oldFrom)
                                            : 0;
                if (longer != 0) changes.emplace(link.n, longer);
                last = next;
            }
        }
    }
    return changes;
}

}  // namespace clipvane::test::layout
