// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <functional>
#include <map>
#include <tuple>

#include "judges/CutLayout.h"

namespace clipvane::test::layout {
namespace {

using std::int64_t;
using std::size_t;
using std::string;

class Rounds {
  public:
    explicit Rounds(Layout& layout) : olds(layout.olds), news(layout.news) {}

    void pairAll() {
        round(standing, standing);
        pairUnique();
        pairBeside(true);
        pairBeside(false);
        for (const bool onTrack : {true, false}) {
            const auto track = [=](const Side& side, const Unit& unit) {
                return onTrack ? eventOf(side, unit).track : string();
            };
            const Key inPlace = [=](const Side& side, const Unit& unit) -> std::optional<string> {
                const auto at = offset(side, unit, 0);
                if (!at) return std::nullopt;
                return track(side, unit) + '\x1e' + *at;
            };
            const Key wholeEvent = [=](const Side& side,
                                       const Unit& unit) -> std::optional<string> {
                if (!isFree(side, unit.event)) return std::nullopt;
                const Event& e = eventOf(side, unit);
                return join({track(side, unit), text(e.sourceIn), text(e.sourceOut)});
            };
            const Key any = [=](const Side& side, const Unit& unit) -> std::optional<string> {
                return track(side, unit);
            };
            round(inPlace, inPlace);
            round(wholeEvent, wholeEvent);
            round(any, any);
        }
    }

  private:
    using Key = std::function<std::optional<string>(const Side&, const Unit&)>;

    /// Sweeps all groups of free units with the same key, position by position.
    void round(const Key& oldKey, const Key& newKey) {
        using Group = std::map<int64_t, std::vector<size_t>>;  // units by position
        const auto groupsOf = [](const Side& side, const Key& key) {
            std::map<string, Group> groups;
            for (size_t u = 0; u < side.units.size(); ++u) {
                const Unit& unit = side.units[u];
                if (unit.mate != nobody) continue;
                if (const auto k = key(side, unit)) {
                    groups[unit.axis + '\x1e' + *k][unit.position].push_back(u);
                }
            }
            return groups;
        };
        const auto oldGroups = groupsOf(olds, oldKey);
        auto newGroups = groupsOf(news, newKey);
        for (const auto& [key, oldGroup] : oldGroups) {
            std::map<size_t, size_t> lasting;  // events of NEW and OLD paired at the last position
            int64_t last = 0;
            for (const auto& [position, oldUnits] : oldGroup) {
                const auto& newUnits = newGroups[key][position];
                std::map<size_t, size_t> oldHere;  // units by event, which is record order
                std::map<size_t, size_t> newHere;
                for (const size_t u : oldUnits) oldHere[olds.units[u].event] = u;
                for (const size_t u : newUnits) newHere[news.units[u].event] = u;
                std::map<size_t, size_t> now;
                const auto make = [&](size_t n, size_t o) {
                    news.units[newHere[n]].mate = oldHere[o];
                    olds.units[oldHere[o]].mate = newHere[n];
                    newHere.erase(n);
                    oldHere.erase(o);
                    now[n] = o;
                };
                if (position == last + 1) {
                    for (const auto& [n, o] : lasting) {
                        if (newHere.contains(n) && oldHere.contains(o)) make(n, o);
                    }
                }
                while (!newHere.empty() && !oldHere.empty()) {
                    make(newHere.begin()->first, oldHere.begin()->first);
                }
                lasting = now;
                last = position;
            }
        }
    }

    static const Event& eventOf(const Side& side, const Unit& unit) {
        return side.events[unit.event];
    }

    static std::optional<string> standing(const Side& side, const Unit& unit) {
        const Event& e = eventOf(side, unit);
        return join({e.track, e.name, text(e.sourceIn), text(e.sourceOut), text(e.recordIn),
                     text(e.recordOut)});
    }

    static std::optional<string> offset(const Side&, const Unit& unit, int64_t shift) {
        if (!unit.place) return std::nullopt;
        return text(*unit.place - shift - unit.position);
    }

    static bool isFree(const Side& side, size_t event) {
        return std::ranges::all_of(side.units, [&](const Unit& unit) {
            return unit.event != event || unit.mate == nobody;
        });
    }

    /// Pairs units that are used once on a track in each list.
    void pairUnique() {
        using Uses = std::map<std::tuple<string, string, int64_t>, std::vector<size_t>>;
        const auto usesOf = [](const Side& side) {
            Uses uses;
            for (size_t u = 0; u < side.units.size(); ++u) {
                const Unit& unit = side.units[u];
                uses[{eventOf(side, unit).track, unit.axis, unit.position}].push_back(u);
            }
            return uses;
        };
        auto oldUses = usesOf(olds);
        for (const auto& [frame, units] : usesOf(news)) {
            if (units.size() != 1 || oldUses[frame].size() != 1) continue;
            const size_t n = units.front();
            const size_t o = oldUses[frame].front();
            if (news.units[n].mate != nobody || olds.units[o].mate != nobody) continue;
            news.units[n].mate = o;
            olds.units[o].mate = n;
        }
    }

    void pairBeside(bool before) {
        std::vector<std::optional<int64_t>> shifts(news.units.size());
        std::map<string, int64_t> latest;
        for (size_t i = 0; i < news.units.size(); ++i) {
            const size_t u = before ? i : news.units.size() - 1 - i;
            const Unit& unit = news.units[u];
            const string& track = eventOf(news, unit).track;
            if (unit.mate != nobody && unit.frames > 0) {
                latest[track] = *unit.place - *olds.units[unit.mate].place;
            } else if (latest.contains(track)) {
                shifts[u] = latest[track];
            }
        }
        round(
            [](const Side& side, const Unit& unit) -> std::optional<string> {
                const auto at = offset(side, unit, 0);
                if (!at) return std::nullopt;
                return eventOf(side, unit).track + '\x1e' + *at;
            },
            [&](const Side& side, const Unit& unit) -> std::optional<string> {
                const auto shift = shifts[static_cast<size_t>(&unit - side.units.data())];
                const auto at = shift ? offset(side, unit, *shift) : std::nullopt;
                if (!at) return std::nullopt;
                return eventOf(side, unit).track + '\x1e' + *at;
            });
    }

    Side& olds;
    Side& news;
};

}  // namespace

void pairAll(Layout& layout) {
    Rounds(layout).pairAll();
}

}  // namespace clipvane::test::layout
