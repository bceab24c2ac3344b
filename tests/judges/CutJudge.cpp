// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "judges/CutJudge.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <tuple>

#include "judges/CutLayout.h"

namespace clipvane::test {
namespace {

using std::int64_t;
using std::size_t;
using std::string;
using namespace layout;

class Judge {
  public:
    explicit Judge(Layout layout) : olds(std::move(layout.olds)), news(std::move(layout.news)) {}

    CutVerdict verdict(size_t oldCount, size_t newCount) {
        findPartners();
        findChains();
        CutVerdict result;
        result.newRows.resize(newCount);
        result.oldRows.resize(oldCount);
        findReplacements();
        for (size_t n = 0; n < news.events.size(); ++n) {
            result.newRows[news.events[n].row] = describeNew(n);
        }
        for (size_t o = 0; o < olds.events.size(); ++o) {
            result.oldRows[olds.events[o].row] = describeOld(o);
        }
        result.black = blackChanges();
        result.sums = sums();
        for (const Event& event : news.events) result.stretches[event.track] = {};
        for (auto& [track, stretches] : result.stretches) stretches = stretchesOf(track);
        std::erase_if(result.stretches, [&](const auto& entry) { return overlaps(entry.first); });
        return result;
    }

  private:
    // --- who belongs to whom ---

    struct Bond {
        int64_t frames = 0;
        std::optional<int64_t> shift;
        std::set<int64_t> newPlaces;  // of what the two share
        std::set<int64_t> oldPlaces;
        bool isRetimed = false;
    };

    void findPartners() {
        std::map<std::pair<size_t, size_t>, Bond> bonds;
        for (const Unit& unit : news.units) {
            if (unit.mate == nobody) continue;
            const Unit& mate = olds.units[unit.mate];
            Bond& bond = bonds[{unit.event, mate.event}];
            bond.frames += unit.frames;
            if (!unit.place) continue;
            bond.shift = *unit.place - *mate.place;
            for (int64_t i = 0; i < std::max<int64_t>(unit.frames, 1); ++i) {
                bond.newPlaces.insert(*unit.place + i);
                bond.oldPlaces.insert(*mate.place + i);
            }
        }
        const auto rank = [&](size_t n, size_t o) {
            const Bond& bond = bonds[{n, o}];
            return std::tuple(-bond.frames, news.events[n].track != olds.events[o].track,
                              std::abs(bond.shift.value_or(0)));
        };
        const auto isBest = [&](size_t n, size_t o) {
            for (const auto& [pair, other] : bonds) {
                const auto& [n2, o2] = pair;
                if (n2 == n && std::tuple(rank(n, o2), o2) < std::tuple(rank(n, o), o))
                    return false;
                if (o2 == o && std::tuple(rank(n2, o), n2) < std::tuple(rank(n, o), n))
                    return false;
            }
            return true;
        };
        const auto pairs = bonds;
        for (const auto& [pair, bond] : pairs) {
            const auto& [n, o] = pair;
            int64_t both = 0;
            for (const Unit& unit : news.units) {
                if (unit.event != n) continue;
                for (const Unit& other : olds.units) {
                    const bool isEqual = other.event == o && other.axis == unit.axis &&
                                         other.position == unit.position;
                    if (isEqual) both += unit.frames;
                }
            }
            const int64_t shorter = std::min(news.events[n].frames(), olds.events[o].frames());
            if (2 * bond.frames < both) continue;
            if (2 * bond.frames < shorter && !isBest(n, o)) continue;
            partners[n][o] = bond;
        }
        findRetimed(Kind::whole, Kind::whole, true);
        findRetimed(Kind::whole, Kind::whole, false);
        findRetimed(Kind::whole, Kind::plain, true);
        findRetimed(Kind::whole, Kind::plain, false);
        for (const auto& [n, all] : partners) {
            for (const auto& [o, bond] : all) {
                newPartners[o].push_back(n);
                oldPartners[n].push_back(o);
            }
        }
        for (auto& [n, all] : oldPartners) {
            std::ranges::sort(all, {},
                              [&](size_t o) { return std::pair(olds.events[o].low(), o); });
        }
        for (auto& [o, all] : newPartners) {
            std::ranges::sort(all, {},
                              [&](size_t n) { return std::pair(news.events[n].low(), n); });
        }
    }

    /// One of the two is of kind `a`, the other of kind `b`.
    void findRetimed(Kind a, Kind b, bool onTrack) {
        const auto bySource = [](const Side& side) {
            std::vector<size_t> events(side.events.size());
            for (size_t i = 0; i < events.size(); ++i) events[i] = i;
            std::ranges::sort(events, {},
                              [&](size_t i) { return std::pair(side.events[i].low(), i); });
            return events;
        };
        std::set<size_t> taken;
        for (const auto& [n, all] : partners) {
            for (const auto& [o, bond] : all) taken.insert(o);
        }
        for (const size_t n : bySource(news)) {
            if (partners.contains(n)) continue;
            const Event& en = news.events[n];
            for (const size_t o : bySource(olds)) {
                const Event& eo = olds.events[o];
                const bool fits = (en.kind == a && eo.kind == b) || (en.kind == b && eo.kind == a);
                const bool overlap = en.low() < eo.high() && eo.low() < en.high();
                if (!fits || !overlap || taken.contains(o) || en.source != eo.source) continue;
                if (onTrack && en.track != eo.track) continue;
                partners[n][o].isRetimed = true;
                taken.insert(o);
                break;
            }
        }
    }

    // --- chains ---

    struct Stay {
        size_t n = 0;
        size_t o = 0;
        int64_t newFrom = 0, newTo = 0, oldFrom = 0, oldTo = 0;
        int64_t frames = 0;
        bool inPlace = false;
    };

    int64_t shiftOf(size_t n, size_t o) const {
        const Bond& bond = partners.at(n).at(o);
        if (bond.isRetimed) return news.events[n].recordIn - olds.events[o].recordIn;
        return bond.shift.value_or(0);
    }

    Stay stayOf(size_t n, size_t o) const {
        const Bond& bond = partners.at(n).at(o);
        const Event& en = news.events[n];
        const Event& eo = olds.events[o];
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

    void findChains() {
        std::map<string, std::vector<Stay>> byTrack;
        for (const auto& [n, all] : oldPartners) {
            const size_t o = all.front();
            const bool sameTrack = news.events[n].track == olds.events[o].track;
            if (sameTrack && news.events[n].kind != Kind::odd) {
                byTrack[news.events[n].track].push_back(stayOf(n, o));
            }
        }
        for (auto& [track, stays] : byTrack) {
            std::ranges::sort(stays, {}, [](const Stay& s) { return std::pair(s.newFrom, s.n); });
            const std::vector<Stay> chain = bestChain(stays);
            for (const Stay& link : chain) onChain.insert(link.n);
            chains[track] = chain;
            for (const Stay& stay : stays) {
                for (const Stay& link : chain) {
                    const bool wasBehind = stay.newTo <= link.newFrom && stay.oldFrom >= link.oldTo;
                    const bool wasBefore = stay.newFrom >= link.newTo && stay.oldTo <= link.oldFrom;
                    if (wasBehind || wasBefore) moved.insert(stay.n);
                }
            }
            for (const Stay& link : chain) moved.erase(link.n);
        }
    }

    /// Tries every selection.
    static std::vector<Stay> bestChain(const std::vector<Stay>& stays) {
        using Place = std::tuple<int64_t, size_t, size_t>;
        using Rank = std::tuple<int64_t, int64_t, int64_t>;
        std::vector<Stay> best;
        Rank bestRank{-1, -1, -1};
        std::vector<Place> bestTail;
        for (size_t set = 0; set < (size_t{1} << stays.size()); ++set) {
            std::vector<Stay> chosen;
            std::vector<Place> places;
            Rank rank{0, 0, 0};
            for (size_t i = 0; i < stays.size(); ++i) {
                if ((set >> i & 1) == 0) continue;
                const Stay& s = stays[i];
                chosen.push_back(s);
                places.emplace_back(s.oldFrom, s.o, s.n);
                std::get<0>(rank) += s.inPlace ? s.frames : 0;
                std::get<1>(rank) += s.frames;
                std::get<2>(rank) += 1;
            }
            if (!std::ranges::is_sorted(places)) continue;
            std::ranges::reverse(places);  // each link, from the last, takes the earliest in OLD
            if (rank < bestRank || (rank == bestRank && places >= bestTail)) continue;
            best = chosen;
            bestRank = rank;
            bestTail = places;
        }
        return best;
    }

    // --- words ---

    struct Lack {
        int64_t lacking = 0;
        int64_t further = 0;
    };

    static Lack lackOf(const Side& side, size_t event, const Side& other) {
        Lack lack;
        for (const Unit& unit : side.units) {
            if (unit.event != event || unit.mate != nobody) continue;
            const bool isUsed = std::ranges::any_of(other.units, [&](const Unit& u) {
                return u.axis == unit.axis && u.position == unit.position;
            });
            (isUsed ? lack.further : lack.lacking) += unit.frames;
        }
        return lack;
    }

    static bool isThing(const Event& e) { return e.kind == Kind::point || e.kind == Kind::odd; }

    /// The first of `pieces`, in order, that ends last.
    static size_t furthest(const Side& side, const std::vector<size_t>& pieces) {
        size_t best = pieces.front();
        for (const size_t p : pieces) {
            if (side.events[p].sourceOut > side.events[best].sourceOut) best = p;
        }
        return best;
    }

    static std::set<int64_t> framesOf(const Event& e) {
        std::set<int64_t> frames;
        for (int64_t f = e.sourceIn; f < e.sourceOut; ++f) frames.insert(f);
        return frames;
    }

    /// What `pieces` repeat (positive) or leave out (negative) before the one `until` begins.
    static int64_t seam(const Side& side, const std::vector<size_t>& pieces, size_t until) {
        std::set<int64_t> before;
        for (const size_t p : pieces) {
            if (p == until) break;
            before.merge(framesOf(side.events[p]));
        }
        const std::set<int64_t> own = framesOf(side.events[until]);
        if (*own.begin() > *before.rbegin()) return *before.rbegin() + 1 - *own.begin();
        return std::ranges::count_if(own, [&](int64_t f) { return before.contains(f); });
    }

    string trim(size_t n) const {
        const auto& parts = oldPartners.at(n);
        const Event& event = news.events[n];
        if (event.kind != Kind::plain || partners.at(n).at(parts.front()).isRetimed) return "";
        const size_t o = parts.front();
        const auto& pieces = newPartners.at(o);
        const int64_t head =
            pieces.front() == n ? olds.events[o].sourceIn - event.sourceIn : seam(news, pieces, n);
        const size_t lastPart = furthest(olds, parts);
        const bool isLast = furthest(news, newPartners.at(lastPart)) == n;
        const int64_t tail = isLast ? event.sourceOut - olds.events[lastPart].sourceOut : 0;
        int64_t inside = 0;
        for (size_t i = 1; i < parts.size(); ++i) inside -= seam(olds, parts, parts[i]);
        if (head == 0 && tail == 0 && inside == 0) return "";
        return " trimmed " + text(head) + ' ' + text(tail) + ' ' + text(inside);
    }

    string describeNew(size_t n) const {
        const Event& event = news.events[n];
        const Lack lack = lackOf(news, n, olds);
        if (!oldPartners.contains(n)) {
            if (isThing(event)) return "not compared";
            string words = lack.lacking > 0 ? "new" : "again";
            words += frames(n, lack);
            if (replaces.contains(n)) words += " in place of " + text(replaces.at(n));
            return words;
        }
        const size_t o = oldPartners.at(n).front();
        const Event& partner = olds.events[o];
        const Bond& bond = partners.at(n).at(o);
        const auto& pieces = newPartners.at(o);
        const size_t parts = oldPartners.at(n).size();

        string words;
        if (pieces.size() > 1) {
            const auto piece = std::ranges::find(pieces, n) - pieces.begin() + 1;
            words += " split " + text(piece) + '/' + text(static_cast<int64_t>(pieces.size()));
        }
        if (parts > 1) words += " joined " + text(static_cast<int64_t>(parts));
        const bool slipped = pieces.size() == 1 && parts == 1 && event.kind == Kind::plain &&
                             partner.kind == Kind::plain && event.frames() == partner.frames() &&
                             event.sourceIn != partner.sourceIn && bond.shift != 0;
        if (bond.isRetimed) {
            words += " retimed";
        } else if (slipped) {
            words += " slipped " + text(event.sourceIn - partner.sourceIn);
        } else {
            words += trim(n);
        }
        const int64_t shift = slipped ? event.recordIn - partner.recordIn : shiftOf(n, o);
        if (event.track != partner.track) {
            words += " track " + text(shift);
        } else if (shift != 0) {
            words += (moved.contains(n) ? " moved " : " shifted ") + text(shift);
        }
        if (!event.name.empty() && !partner.name.empty() && event.name != partner.name) {
            words += " renamed";
        }
        if (words.empty()) words = bond.frames == event.frames() ? " same" : " partly";
        return "of " + text(static_cast<int64_t>(partner.row)) + words + frames(n, lack);
    }

    string frames(size_t n, const Lack& lack) const {
        int64_t elsewhere = news.events[n].frames() - lack.lacking - lack.further;
        if (partners.contains(n)) {
            for (const auto& [o, bond] : partners.at(n)) elsewhere -= bond.frames;
        }
        return " (" + text(lack.lacking) + ' ' + text(lack.further) + ' ' + text(elsewhere) + ')';
    }

    string describeOld(size_t o) const {
        const Lack lack = lackOf(olds, o, news);
        string words;
        if (!newPartners.contains(o)) {
            words = isThing(olds.events[o]) ? "not compared" : lack.lacking > 0 ? "gone" : "fewer";
        }
        return words + " (" + text(lack.lacking) + ' ' + text(lack.further) + ')';
    }

    // --- what explains ---

    void findReplacements() {
        std::set<string> tracks;
        for (const Event& e : news.events) tracks.insert(e.track);
        for (const string& track : tracks) {
            const auto& chain = chains[track];
            std::map<size_t, std::vector<size_t>> lost;    // by slot
            std::map<size_t, std::vector<size_t>> others;  // by slot
            for (size_t o = 0; o < olds.events.size(); ++o) {
                const Event& e = olds.events[o];
                if (e.track != track || newPartners.contains(o) || isThing(e)) continue;
                const auto before = std::ranges::count_if(chain, [&](const Stay& s) {
                    return std::pair(s.oldFrom, s.o) < std::pair(e.recordIn, o);
                });
                lost[static_cast<size_t>(before)].push_back(o);
            }
            for (size_t n = 0; n < news.events.size(); ++n) {
                const Event& e = news.events[n];
                if (e.track != track || onChain.contains(n)) continue;
                if (isThing(e) && !oldPartners.contains(n)) continue;
                const auto before =
                    std::ranges::count_if(chain, [&](const Stay& s) { return s.n < n; });
                others[static_cast<size_t>(before)].push_back(n);
            }
            for (const auto& [slot, here] : others) {
                if (here.size() != 1 || lost[slot].size() != 1) continue;
                const size_t n = here.front();
                const bool isNew = !oldPartners.contains(n) && lackOf(news, n, olds).lacking > 0;
                if (isNew) {
                    replaces[n] = static_cast<int64_t>(olds.events[lost[slot].front()].row);
                }
            }
        }
    }

    bool overlaps(const string& track) const {
        int64_t frames = 0;
        for (const Event& event : news.events) {
            if (event.track == track) frames += event.frames();
        }
        return frames != static_cast<int64_t>(covered(news, track).size());
    }

    std::vector<std::array<int64_t, 3>> stretchesOf(const string& track) const {
        std::map<int64_t, int64_t> played;  // places in OLD by places in NEW
        for (const Unit& unit : news.units) {
            if (unit.mate == nobody || news.events[unit.event].track != track) continue;
            const Unit& mate = olds.units[unit.mate];
            if (olds.events[mate.event].track != track) continue;
            for (int64_t i = 0; i < unit.frames; ++i) played[*unit.place + i] = *mate.place + i;
        }
        const auto oldCovered = covered(olds, track);
        const auto newCovered = covered(news, track);
        std::vector<std::array<int64_t, 3>> stretches;
        for (const auto& [place, oldPlace] : played) {
            bool continues =
                !stretches.empty() && stretches.back()[0] - stretches.back()[2] == place - oldPlace;
            for (int64_t f = continues ? stretches.back()[1] : place; f < place; ++f) {
                continues = continues && !newCovered.contains(f) &&
                            !oldCovered.contains(f - (place - oldPlace));
            }
            if (!continues) stretches.push_back({place, place, oldPlace});
            stretches.back()[1] = place + 1;
        }
        return stretches;
    }

    static std::set<int64_t> covered(const Side& side, const string& track) {
        std::set<int64_t> frames;
        for (const Event& e : side.events) {
            if (e.track != track || isThing(e)) continue;
            for (int64_t f = e.recordIn; f < e.recordOut; ++f) frames.insert(f);
        }
        return frames;
    }

    static int64_t blackWithin(const std::set<int64_t>& covered, int64_t from, int64_t to) {
        int64_t count = 0;
        for (int64_t f = from; f < to; ++f) count += covered.contains(f) ? 0 : 1;
        return count;
    }

    std::vector<string> blackChanges() const {
        std::vector<string> changes;
        for (const auto& [track, chain] : chains) {
            const auto oldCovered = covered(olds, track);
            const auto newCovered = covered(news, track);
            std::optional<Stay> last;
            for (const Stay& link : chain) {
                std::vector<Stay> shared;
                for (const size_t o : oldPartners.at(link.n)) {
                    if (olds.events[o].track != track) continue;
                    Stay stay = stayOf(link.n, o);
                    if (isThing(news.events[link.n])) {
                        stay.newTo = stay.newFrom;
                        stay.oldTo = stay.oldFrom;
                    }
                    shared.push_back(stay);
                }
                std::ranges::sort(shared, {}, &Stay::newFrom);
                for (const Stay& next : shared) {
                    if (last && (next.newFrom < last->newTo || next.oldFrom < last->oldTo)) {
                        continue;
                    }
                    if (last) {
                        const int64_t longer = blackWithin(newCovered, last->newTo, next.newFrom) -
                                               blackWithin(oldCovered, last->oldTo, next.oldFrom);
                        if (longer != 0) {
                            changes.push_back("before " +
                                              text(static_cast<int64_t>(news.events[link.n].row)) +
                                              ": " + text(longer));
                        }
                    }
                    last = next;
                }
            }
        }
        return changes;
    }

    string sums() const {
        const auto countOf = [](const Side& side, const Side& other) {
            std::map<std::pair<string, int64_t>, std::pair<int64_t, int64_t>> uses;
            std::map<std::pair<string, int64_t>, int64_t> weight;
            for (const Unit& u : side.units) {
                ++uses[{u.axis, u.position}].first;
                weight[{u.axis, u.position}] = u.frames;
            }
            for (const Unit& u : other.units) ++uses[{u.axis, u.position}].second;
            int64_t kept = 0, lacking = 0, further = 0;
            for (const auto& [unit, count] : uses) {
                const auto [own, others] = count;
                kept += std::min(own, others) * weight[unit];
                if (own > others)
                    (others == 0 ? lacking : further) += (own - others) * weight[unit];
            }
            return std::tuple(kept, lacking, further);
        };
        const auto [kept, added, again] = countOf(news, olds);
        const auto [keptInOld, gone, fewer] = countOf(olds, news);
        const auto length = [](const Side& side) {
            std::optional<int64_t> first, last;
            for (const Event& e : side.events) {
                if (isThing(e)) continue;
                first = std::min(first.value_or(e.recordIn), e.recordIn);
                last = std::max(last.value_or(e.recordOut), e.recordOut);
            }
            return first ? *last - *first : 0;
        };
        std::ostringstream out;
        out << "kept " << kept << ' ' << keptInOld << " new " << added << " again " << again
            << " gone " << gone << " fewer " << fewer << " longer " << length(news) - length(olds);
        return out.str();
    }

    Side olds;
    Side news;
    std::map<size_t, std::map<size_t, Bond>> partners;  // of NEW, of OLD
    std::map<size_t, std::vector<size_t>> oldPartners;  // of an event of NEW, by source
    std::map<size_t, std::vector<size_t>> newPartners;  // of an event of OLD, by source
    std::map<string, std::vector<Stay>> chains;
    std::set<size_t> onChain;
    std::set<size_t> moved;
    std::map<size_t, int64_t> replaces;
};

}  // namespace

CutVerdict judgeCuts(const std::vector<JudgedEvent>& oldList,
                     const std::vector<JudgedEvent>& newList, JudgedBy by) {
    Layout layout = layOut(oldList, newList, by);
    pairAll(layout);
    return Judge(std::move(layout)).verdict(oldList.size(), newList.size());
}

}  // namespace clipvane::test
