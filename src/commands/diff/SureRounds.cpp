// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/SureRounds.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <queue>
#include <span>
#include <tuple>
#include <utility>

#include "commands/diff/ByIndex.h"

namespace clipvane::diff {
namespace {

using IndexSpan = std::span<const std::uint32_t>;

/// All that the first round compares.
auto standing(const CutEvent& e) {
    return std::tuple(e.content, e.from(), e.to(), e.track, e.recordIn, e.name);
}

/// The events that have a place, or those that have none.
std::vector<std::uint32_t> withPlace(const Cut& cut, bool hasPlace) {
    std::vector<std::uint32_t> events;
    for (std::uint32_t i = 0; i < cut.size(); ++i) {
        if (cut[i].hasPlace() == hasPlace) events.push_back(i);
    }
    return events;
}

/// The events at the first place, which leave `all`.
IndexSpan takePlace(IndexSpan& all, const Cut& cut) {
    const std::int64_t place = cut[all.front()].recordIn;
    const auto end = std::ranges::find_if(all, [&](auto i) { return cut[i].recordIn != place; });
    const IndexSpan taken(all.begin(), end);
    all = all.subspan(taken.size());
    return taken;
}

/// Pairs events that are equal, the first with the first.
class EqualPairs {
  public:
    EqualPairs(const Cut& oldCut, const Cut& newCut) : oldCut(oldCut), newCut(newCut) {}

    void add(IndexSpan olds, IndexSpan news) {
        if (olds.size() == 1 && news.size() == 1) {
            if (standing(oldCut[olds.front()]) == standing(newCut[news.front()])) {
                pair(olds.front(), news.front());
            }
            return;
        }
        const auto oldOrder = sorted(olds, oldCut);
        auto o = oldOrder.begin();
        for (const std::uint32_t n : sorted(news, newCut)) {
            while (o != oldOrder.end() && standing(oldCut[*o]) < standing(newCut[n])) ++o;
            if (o == oldOrder.end()) return;
            if (standing(oldCut[*o]) == standing(newCut[n])) pair(*o++, n);
        }
    }

    std::vector<Run> result() && { return std::move(runs); }

  private:
    static std::vector<std::uint32_t> sorted(IndexSpan events, const Cut& cut) {
        std::vector<std::uint32_t> order(events.begin(), events.end());
        std::ranges::sort(order, [&](std::uint32_t a, std::uint32_t b) {
            return std::tuple(standing(cut[a]), a) < std::tuple(standing(cut[b]), b);
        });
        return order;
    }

    void pair(std::uint32_t o, std::uint32_t n) {
        runs.push_back({n, o, newCut[n].from(), newCut[n].to()});
    }

    const Cut& oldCut;
    const Cut& newCut;
    std::vector<Run> runs;
};

/// A stretch of a content on a track, which an event plays.
struct Use {
    std::uint32_t content;
    std::uint32_t track;
    std::uint32_t event;
    std::int64_t from;
    std::int64_t to;

    auto lane() const { return std::tuple(content, track); }
};

using Uses = std::span<const Use>;

/// The uses of a cut by content, track and position.
std::vector<Use> usesOf(const Cut& cut) {
    std::vector<Use> uses;
    uses.reserve(cut.size());
    std::uint32_t contents = 0;
    for (std::uint32_t i = 0; i < cut.size(); ++i) {
        const CutEvent& event = cut[i];
        uses.push_back({event.content, event.track, i, event.from(), event.to()});
        contents = std::max(contents, event.content + 1);
    }
    return sortedByIndex(
        std::move(uses), contents, [](const Use& use) { return use.content; },
        [](const Use& a, const Use& b) {
            return std::tuple(a.track, a.from) < std::tuple(b.track, b.from);
        });
}

/// The uses of the first content and track, which leave `all`.
Uses takeLane(Uses& all) {
    const auto first = all.front().lane();
    const auto end = std::ranges::find_if(all, [&](const Use& u) { return u.lane() != first; });
    const Uses taken(all.begin(), end);
    all = all.subspan(taken.size());
    return taken;
}

/// The events of a lane that play the present position of a sweep.
class Playing {
  public:
    explicit Playing(Uses lane) : coming(lane) {}

    std::optional<std::int64_t> nextChange() const {
        std::optional<std::int64_t> next;
        if (!coming.empty()) next = coming.front().from;
        if (!ends.empty()) next = std::min(next.value_or(ends.top().first), ends.top().first);
        return next;
    }

    void moveTo(std::int64_t position) {
        for (; !ends.empty() && ends.top().first == position; ends.pop()) sum -= ends.top().second;
        for (; !coming.empty() && coming.front().from == position; coming = coming.subspan(1)) {
            sum += coming.front().event;
            ends.emplace(coming.front().to, coming.front().event);
        }
    }

    bool isOne() const { return ends.size() == 1; }
    std::uint32_t one() const { return static_cast<std::uint32_t>(sum); }

  private:
    using End = std::pair<std::int64_t, std::uint32_t>;
    Uses coming;
    std::priority_queue<End, std::vector<End>, std::greater<>> ends;
    std::uint64_t sum = 0;  // of the playing events, so that of one it is that one
};

}  // namespace

SureRounds::SureRounds(const Cut& oldCut, const Cut& newCut)
    : oldCut(oldCut), newCut(newCut), isUnchanged(newCut.size()) {}

std::vector<Run> SureRounds::pairUnchanged() {
    EqualPairs pairs(oldCut, newCut);
    pairs.add(withPlace(oldCut, false), withPlace(newCut, false));
    // Equal events stand at one place, and both cuts come in the order of places.
    const auto oldPlaced = withPlace(oldCut, true);
    const auto newPlaced = withPlace(newCut, true);
    IndexSpan olds(oldPlaced);
    IndexSpan news(newPlaced);
    while (!olds.empty() && !news.empty()) {
        const std::int64_t oldPlace = oldCut[olds.front()].recordIn;
        const std::int64_t newPlace = newCut[news.front()].recordIn;
        if (oldPlace < newPlace) {
            takePlace(olds, oldCut);
        } else if (newPlace < oldPlace) {
            takePlace(news, newCut);
        } else {
            pairs.add(takePlace(olds, oldCut), takePlace(news, newCut));
        }
    }
    std::vector<Run> runs = std::move(pairs).result();
    for (const Run& run : runs) isUnchanged[run.newEvent] = true;
    return runs;
}

std::vector<Run> SureRounds::pairUnique() const {
    std::vector<Run> runs;
    const auto oldUses = usesOf(oldCut);
    const auto newUses = usesOf(newCut);
    Uses oldRest(oldUses);
    Uses newRest(newUses);
    while (!oldRest.empty() && !newRest.empty()) {
        const auto oldLane = oldRest.front().lane();
        const auto newLane = newRest.front().lane();
        if (oldLane < newLane) {
            takeLane(oldRest);
            continue;
        }
        if (newLane < oldLane) {
            takeLane(newRest);
            continue;
        }
        Playing oldPlaying(takeLane(oldRest));
        Playing newPlaying(takeLane(newRest));
        std::int64_t from = 0;
        while (true) {
            const auto oldNext = oldPlaying.nextChange();
            const auto newNext = newPlaying.nextChange();
            if (!oldNext || !newNext) break;
            const std::int64_t position = std::min(*oldNext, *newNext);
            // An event of NEW that stands unchanged is paired with the one of OLD that plays here.
            if (oldPlaying.isOne() && newPlaying.isOne() && !isUnchanged[newPlaying.one()]) {
                runs.push_back({newPlaying.one(), oldPlaying.one(), from, position});
            }
            oldPlaying.moveTo(position);
            newPlaying.moveTo(position);
            from = position;
        }
    }
    return runs;
}

}  // namespace clipvane::diff
