// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Retimed.h"

#include <algorithm>
#include <tuple>

namespace clipvane::diff {
namespace {

using Indices = std::vector<std::uint32_t>;
using Pairs = std::vector<std::pair<std::uint32_t, std::uint32_t>>;

enum class Tracks { same, any };

class Matching {
  public:
    Matching(const Cut& oldCut, const Cut& newCut, Indices oldEvents, Indices newEvents)
        : oldCut(oldCut),
          newCut(newCut),
          oldEvents(std::move(oldEvents)),
          newEvents(std::move(newEvents)) {}

    void match(Kind oldKind, Kind newKind, Tracks tracks) {
        const Indices olds = take(oldCut, oldEvents, oldKind, tracks);
        const Indices news = take(newCut, newEvents, newKind, tracks);
        auto o = olds.begin();
        for (const std::uint32_t n : news) {
            const CutEvent& event = newCut[n];
            // What ends before this one's source ends before that of all that follow.
            while (o != olds.end() && isPast(oldCut[*o], event, tracks)) ++o;
            if (o == olds.end()) break;
            if (group(oldCut[*o], tracks) != group(event, tracks)) continue;
            if (oldCut[*o].sourceLow() >= event.sourceHigh()) continue;
            pairs.emplace_back(n, *o);
            ++o;
        }
        forgetPaired();
    }

    Pairs result() && { return std::move(pairs); }

  private:
    using Group = std::tuple<std::uint32_t, std::uint32_t>;

    static Group group(const CutEvent& event, Tracks tracks) {
        return {event.source, tracks == Tracks::same ? event.track : 0};
    }

    static bool isPast(const CutEvent& oldEvent, const CutEvent& newEvent, Tracks tracks) {
        const auto oldGroup = group(oldEvent, tracks);
        const auto newGroup = group(newEvent, tracks);
        if (oldGroup != newGroup) return oldGroup < newGroup;
        return oldEvent.sourceHigh() <= newEvent.sourceLow();
    }

    static Indices take(const Cut& cut, const Indices& events, Kind kind, Tracks tracks) {
        Indices taken;
        for (const std::uint32_t i : events) {
            if (cut[i].kind == kind) taken.push_back(i);
        }
        std::ranges::sort(taken, [&](std::uint32_t a, std::uint32_t b) {
            return std::tuple(group(cut[a], tracks), cut[a].sourceLow(), a) <
                   std::tuple(group(cut[b], tracks), cut[b].sourceLow(), b);
        });
        return taken;
    }

    void forgetPaired() {
        Indices oldPaired;
        Indices newPaired;
        for (const auto& [n, o] : pairs) {
            oldPaired.push_back(o);
            newPaired.push_back(n);
        }
        const auto forget = [](Indices& events, Indices& paired) {
            std::ranges::sort(paired);
            std::erase_if(events,
                          [&](std::uint32_t i) { return std::ranges::binary_search(paired, i); });
        };
        forget(oldEvents, oldPaired);
        forget(newEvents, newPaired);
    }

    const Cut& oldCut;
    const Cut& newCut;
    Indices oldEvents;  // without a partner
    Indices newEvents;
    Pairs pairs;
};

}  // namespace

Pairs pairRetimed(const Cut& oldCut, const Cut& newCut, Indices oldEvents, Indices newEvents) {
    Matching matching(oldCut, newCut, std::move(oldEvents), std::move(newEvents));
    for (const Tracks tracks : {Tracks::same, Tracks::any}) {
        matching.match(Kind::whole, Kind::whole, tracks);
    }
    for (const Tracks tracks : {Tracks::same, Tracks::any}) {
        matching.match(Kind::whole, Kind::plain, tracks);
        matching.match(Kind::plain, Kind::whole, tracks);
    }
    return std::move(matching).result();
}

}  // namespace clipvane::diff
