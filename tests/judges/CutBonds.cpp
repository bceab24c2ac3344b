// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutBonds.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;

class Finder {
  public:
    explicit Finder(const Layout& layout) : olds(layout.olds), news(layout.news) {}

    Bonds find() && {
        lookAtUnits();
        for (const auto& [pair, bond] : shared) {
            const auto& [n, o] = pair;
            if (arePartners(n, o)) bonds.partners[n][o] = bond;
        }
        for (const bool onTrack : {true, false}) findRetimed(Kind::whole, Kind::whole, onTrack);
        for (const bool onTrack : {true, false}) findRetimed(Kind::whole, Kind::plain, onTrack);
        sortBySource();
        return std::move(bonds);
    }

  private:
    void lookAtUnits() {
        for (const Unit& unit : news.units) {
            if (unit.mate == nobody) continue;
            const Unit& mate = olds.units[unit.mate];
            Bond& bond = shared[{unit.event, mate.event}];
            bond.frames += unit.frames;
            if (!unit.place) continue;
            bond.shift = *unit.place - *mate.place;
            for (int64_t i = 0; i < std::max<int64_t>(unit.frames, 1); ++i) {
                bond.newPlaces.insert(*unit.place + i);
                bond.oldPlaces.insert(*mate.place + i);
            }
        }
    }

    /// Frames of content that both hold, paired or not.
    int64_t heldByBoth(size_t n, size_t o) const {
        int64_t both = 0;
        for (const Unit& unit : news.units) {
            if (unit.event != n) continue;
            both += unit.frames * std::ranges::count_if(olds.units, [&](const Unit& other) {
                        return other.event == o && other.position == unit.position &&
                               other.axis == unit.axis;
                    });
        }
        return both;
    }

    bool arePartners(size_t n, size_t o) const {
        const int64_t frames = shared.at({n, o}).frames;
        const int64_t shorter = std::min(news.events[n].frames(), olds.events[o].frames());
        if (2 * frames < heldByBoth(n, o)) return false;
        return 2 * frames >= shorter || areBest(n, o);
    }

    auto rank(size_t n, size_t o) const {
        const Bond& bond = shared.at({n, o});
        return std::tuple(-bond.frames, news.events[n].track != olds.events[o].track,
                          std::abs(bond.shift.value_or(0)));
    }

    bool areBest(size_t n, size_t o) const {
        const auto own = rank(n, o);
        return std::ranges::none_of(shared, [&](const auto& entry) {
            const auto& [n2, o2] = entry.first;
            if (n2 == n) return std::tuple(rank(n, o2), o2) < std::tuple(own, o);
            if (o2 == o) return std::tuple(rank(n2, o), n2) < std::tuple(own, n);
            return false;
        });
    }

    static std::vector<size_t> bySource(const Side& side) {
        std::vector<size_t> events(side.events.size());
        for (size_t i = 0; i < events.size(); ++i) events[i] = i;
        std::ranges::sort(events, {}, [&](size_t i) { return std::pair(side.events[i].low(), i); });
        return events;
    }

    /// One of the two is of kind `a`, the other of kind `b`.
    void findRetimed(Kind a, Kind b, bool onTrack) {
        std::set<size_t> taken;
        for (const auto& [n, all] : bonds.partners) {
            for (const auto& [o, bond] : all) taken.insert(o);
        }
        const auto fit = [&](const Event& en, const Event& eo) {
            const bool haveKinds = (en.kind == a && eo.kind == b) || (en.kind == b && eo.kind == a);
            const bool overlap = en.low() < eo.high() && eo.low() < en.high();
            return haveKinds && overlap && en.source == eo.source &&
                   (!onTrack || en.track == eo.track);
        };
        for (const size_t n : bySource(news)) {
            if (bonds.partners.contains(n)) continue;
            for (const size_t o : bySource(olds)) {
                if (taken.contains(o) || !fit(news.events[n], olds.events[o])) continue;
                bonds.partners[n][o].isRetimed = true;
                taken.insert(o);
                break;
            }
        }
    }

    void sortBySource() {
        for (const auto& [n, all] : bonds.partners) {
            for (const auto& [o, bond] : all) {
                bonds.news[o].push_back(n);
                bonds.olds[n].push_back(o);
            }
        }
        const auto sort = [](std::vector<size_t>& events, const Side& side) {
            std::ranges::sort(events, {},
                              [&](size_t i) { return std::pair(side.events[i].low(), i); });
        };
        for (auto& [n, all] : bonds.olds) sort(all, olds);
        for (auto& [o, all] : bonds.news) sort(all, news);
    }

    const Side& olds;
    const Side& news;
    std::map<std::pair<size_t, size_t>, Bond> shared;
    Bonds bonds;
};

}  // namespace

Bonds findBonds(const Layout& layout) {
    return Finder(layout).find();
}

}  // namespace clipvane::test::layout
