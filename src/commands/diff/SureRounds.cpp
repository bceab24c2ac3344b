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

namespace clipvane::diff {
namespace {

using Indices = std::span<const std::uint32_t>;

auto lane(const CutEvent& e) {
    return std::tuple(e.track, e.content);
}

/// All that the first round compares.
auto standing(const CutEvent& e) {
    return std::tuple(e.track, e.content, e.from(), e.to(), e.recordIn, e.name);
}

std::vector<std::uint32_t> sorted(const Cut& cut) {
    std::vector<std::uint32_t> order(cut.size());
    for (std::uint32_t i = 0; i < order.size(); ++i) order[i] = i;
    std::ranges::sort(order, [&](std::uint32_t a, std::uint32_t b) {
        return std::tuple(standing(cut[a]), a) < std::tuple(standing(cut[b]), b);
    });
    return order;
}

/// The events of the first track and content, which leave `all`.
Indices takeLane(Indices& all, const Cut& cut) {
    const auto first = lane(cut[all.front()]);
    const auto end = std::ranges::find_if(all, [&](auto i) { return lane(cut[i]) != first; });
    const Indices taken(all.begin(), end);
    all = all.subspan(taken.size());
    return taken;
}

/// The events of a lane that play the present position of a sweep.
class Playing {
  public:
    Playing(const Cut& cut, Indices lane) : cut(cut), coming(lane) {}

    std::optional<std::int64_t> nextChange() const {
        std::optional<std::int64_t> next;
        if (!coming.empty()) next = cut[coming.front()].from();
        if (!ends.empty()) next = std::min(next.value_or(ends.top().first), ends.top().first);
        return next;
    }

    void moveTo(std::int64_t position) {
        for (; !ends.empty() && ends.top().first == position; ends.pop()) sum -= ends.top().second;
        for (; !coming.empty() && cut[coming.front()].from() == position;
             coming = coming.subspan(1)) {
            sum += coming.front();
            ends.emplace(cut[coming.front()].to(), coming.front());
        }
    }

    bool isOne() const { return ends.size() == 1; }
    std::uint32_t one() const { return static_cast<std::uint32_t>(sum); }

  private:
    using End = std::pair<std::int64_t, std::uint32_t>;
    const Cut& cut;
    Indices coming;
    std::priority_queue<End, std::vector<End>, std::greater<>> ends;
    std::uint64_t sum = 0;  // of the playing events, so that of one it is that one
};

}  // namespace

SureRounds::SureRounds(const Cut& oldCut, const Cut& newCut)
    : oldCut(oldCut),
      newCut(newCut),
      oldOrder(sorted(oldCut)),
      newOrder(sorted(newCut)),
      isUnchanged(newCut.size()) {}

std::vector<Run> SureRounds::pairUnchanged() {
    std::vector<Run> runs;
    auto o = oldOrder.begin();
    for (const std::uint32_t n : newOrder) {
        const CutEvent& event = newCut[n];
        while (o != oldOrder.end() && standing(oldCut[*o]) < standing(event)) ++o;
        if (o == oldOrder.end()) break;
        if (standing(oldCut[*o]) != standing(event)) continue;
        runs.push_back({n, *o++, event.from(), event.to()});
        isUnchanged[n] = true;
    }
    return runs;
}

std::vector<Run> SureRounds::pairUnique() const {
    std::vector<Run> runs;
    Indices oldRest(oldOrder);
    Indices newRest(newOrder);
    while (!oldRest.empty() && !newRest.empty()) {
        const auto oldLane = lane(oldCut[oldRest.front()]);
        const auto newLane = lane(newCut[newRest.front()]);
        if (oldLane < newLane) {
            takeLane(oldRest, oldCut);
            continue;
        }
        if (newLane < oldLane) {
            takeLane(newRest, newCut);
            continue;
        }
        Playing oldPlaying(oldCut, takeLane(oldRest, oldCut));
        Playing newPlaying(newCut, takeLane(newRest, newCut));
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
