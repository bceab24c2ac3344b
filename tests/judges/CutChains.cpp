// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutChains.h"

#include <algorithm>
#include <tuple>

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;

/// Tries every selection that keeps the order of OLD.
class BestChain {
  public:
    explicit BestChain(const std::vector<Stay>& stays) : stays(stays) {}

    std::vector<Stay> find() && {
        extend(0, {});
        std::vector<Stay> chain;
        for (const size_t i : best) chain.push_back(stays[i]);
        return chain;
    }

  private:
    using Place = std::tuple<int64_t, size_t, size_t>;
    using Rank = std::tuple<int64_t, int64_t, int64_t>;

    static Place placeInOld(const Stay& stay) { return {stay.oldFrom, stay.o, stay.n}; }

    void extend(size_t next, const Rank& rank) {
        if (next == stays.size()) {
            keepIfBetter(rank);
            return;
        }
        extend(next + 1, rank);
        const Stay& stay = stays[next];
        const bool isBehind = chosen.empty() || placeInOld(stays[chosen.back()]) < placeInOld(stay);
        if (!isBehind) return;
        const auto& [inPlace, frames, events] = rank;
        chosen.push_back(next);
        extend(next + 1,
               {inPlace + (stay.inPlace ? stay.frames : 0), frames + stay.frames, events + 1});
        chosen.pop_back();
    }

    void keepIfBetter(const Rank& rank) {
        std::vector<Place> places;
        for (const size_t i : chosen) places.push_back(placeInOld(stays[i]));
        std::ranges::reverse(places);  // each link, from the last, takes the earliest in OLD
        if (rank < bestRank || (rank == bestRank && places >= bestPlaces)) return;
        best = chosen;
        bestRank = rank;
        bestPlaces = places;
    }

    const std::vector<Stay>& stays;
    std::vector<size_t> chosen;
    std::vector<size_t> best;
    Rank bestRank{-1, -1, -1};
    std::vector<Place> bestPlaces;
};

/// Whether one is wholly before the other in NEW, and behind it in OLD.
bool haveCrossed(const Stay& a, const Stay& b) {
    return a.newTo <= b.newFrom && a.oldFrom >= b.oldTo;
}

}  // namespace

Stay stayOf(const Layout& layout, const Bonds& bonds, size_t n, size_t o) {
    const Bond& bond = bonds.between(n, o);
    const Event& en = layout.news.events[n];
    const Event& eo = layout.olds.events[o];
    Stay stay{n, o, en.recordIn, en.recordOut, eo.recordIn, eo.recordOut, bond.frames, false};
    if (!bond.newPlaces.empty()) {
        stay.newFrom = *bond.newPlaces.begin();
        stay.newTo = *bond.newPlaces.rbegin() + 1;
        stay.oldFrom = *bond.oldPlaces.begin();
        stay.oldTo = *bond.oldPlaces.rbegin() + 1;
    }
    stay.inPlace = bond.shift == 0;
    return stay;
}

Chains findChains(const Layout& layout, const Bonds& bonds) {
    std::map<std::string, std::vector<Stay>> byTrack;
    for (const auto& [n, all] : bonds.olds) {
        const Event& event = layout.news.events[n];
        const size_t o = all.front();
        if (event.track != layout.olds.events[o].track || event.kind == Kind::odd) continue;
        byTrack[event.track].push_back(stayOf(layout, bonds, n, o));
    }
    Chains chains;
    for (auto& [track, stays] : byTrack) {
        std::ranges::sort(stays, {}, [](const Stay& s) { return std::pair(s.newFrom, s.n); });
        const std::vector<Stay> chain = BestChain(stays).find();
        for (const Stay& stay : stays) {
            for (const Stay& link : chain) {
                if (haveCrossed(stay, link) || haveCrossed(link, stay)) chains.moved.insert(stay.n);
            }
        }
        for (const Stay& link : chain) {
            chains.members.insert(link.n);
            chains.moved.erase(link.n);
        }
        chains.byTrack[track] = chain;
    }
    return chains;
}

}  // namespace clipvane::test::layout
