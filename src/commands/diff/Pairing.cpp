// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Pairing.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

#include "commands/diff/ByIndex.h"
#include "commands/diff/FreeStretches.h"
#include "commands/diff/NeighbourShift.h"
#include "commands/diff/SureRounds.h"
#include "commands/diff/Sweep.h"

namespace clipvane::diff {
namespace {

enum class Tracks { same, any };

bool comesBefore(const Run& a, const Run& b) {
    return std::tuple(a.newEvent, a.from) < std::tuple(b.newEvent, b.from);
}

std::vector<Run> inNewOrder(std::vector<Run> runs, const Cut& newCut) {
    return sortedByIndex(
        std::move(runs), newCut.size(), [](const Run& run) { return run.newEvent; },
        [](const Run& a, const Run& b) { return a.from < b.from; });
}

class Rounds {
  public:
    /// Begins with the two rounds that need no look at what is free.
    Rounds(const Cut& oldCut, const Cut& newCut)
        : oldCut(oldCut),
          newCut(newCut),
          runs(inNewOrder(pairSurely(oldCut, newCut), newCut)),
          oldFree(oldCut, pairedOfOld(runs, oldCut.size())),
          newFree(newCut, pairedOfNew(runs)) {}

    /// At the shift of the nearest paired frame.
    void pairBeside(Neighbour neighbour) {
        if (isDone()) return;
        const auto& free = newFree.stretches();
        const auto shifts = neighbourShifts(oldCut, newCut, runs, free, neighbour);
        std::vector<Candidate> news;
        for (std::size_t i = 0; i < free.size(); ++i) {
            const CutEvent& event = newCut[free[i].event];
            if (!event.hasPlace() || !shifts[i]) continue;
            const std::int64_t offsetInOld = subtractChecked(event.offset(), *shifts[i]);
            news.push_back({{event.content, event.track, offsetInOld, 0}, free[i]});
        }
        pair(inPlace(oldCut, oldFree, Tracks::same), std::move(news));
    }

    void pairInPlace(Tracks tracks) {
        if (isDone()) return;
        pair(inPlace(oldCut, oldFree, tracks), inPlace(newCut, newFree, tracks));
    }

    void pairWholeEvents(Tracks tracks) {
        if (isDone()) return;
        pair(wholeEvents(oldCut, oldFree, tracks), wholeEvents(newCut, newFree, tracks));
    }

    void pairRest(Tracks tracks) {
        if (isDone()) return;
        pair(all(oldCut, oldFree, tracks), all(newCut, newFree, tracks));
    }

    /// All runs, of which neighbours become one.
    std::vector<Run> result() && {
        if (runs.empty()) return {};
        auto last = runs.begin();
        for (auto next = last + 1; next != runs.end(); ++next) {
            const bool continues = last->newEvent == next->newEvent &&
                                   last->oldEvent == next->oldEvent && last->to == next->from;
            if (continues) {
                last->to = next->to;
            } else {
                *++last = *next;
            }
        }
        runs.erase(last + 1, runs.end());
        return std::move(runs);
    }

  private:
    bool isDone() const { return oldFree.empty() || newFree.empty(); }

    static std::uint32_t trackOf(const CutEvent& event, Tracks tracks) {
        return tracks == Tracks::same ? event.track : 0;
    }

    static std::vector<Candidate> inPlace(const Cut& cut, const FreeStretches& free,
                                          Tracks tracks) {
        std::vector<Candidate> candidates;
        for (const Stretch& stretch : free.stretches()) {
            const CutEvent& event = cut[stretch.event];
            if (!event.hasPlace()) continue;
            candidates.push_back(
                {{event.content, trackOf(event, tracks), event.offset(), 0}, stretch});
        }
        return candidates;
    }

    static std::vector<Candidate> wholeEvents(const Cut& cut, const FreeStretches& free,
                                              Tracks tracks) {
        std::vector<Candidate> candidates;
        for (const Stretch& stretch : free.stretches()) {
            const CutEvent& event = cut[stretch.event];
            if (stretch.from != event.from() || stretch.to != event.to()) continue;
            candidates.push_back(
                {{event.content, trackOf(event, tracks), stretch.from, stretch.to}, stretch});
        }
        return candidates;
    }

    static std::vector<Candidate> all(const Cut& cut, const FreeStretches& free, Tracks tracks) {
        std::vector<Candidate> candidates;
        for (const Stretch& stretch : free.stretches()) {
            const CutEvent& event = cut[stretch.event];
            candidates.push_back({{event.content, trackOf(event, tracks), 0, 0}, stretch});
        }
        return candidates;
    }

    void pair(std::vector<Candidate> olds, std::vector<Candidate> news) {
        std::vector<Run> found;
        sweep(std::move(olds), std::move(news), found);
        keep(std::move(found));
    }

    void keep(std::vector<Run> found) {
        if (found.empty()) return;
        found = inNewOrder(std::move(found), newCut);
        oldFree.take(pairedOfOld(found, oldCut.size()));
        newFree.take(pairedOfNew(found));
        const auto middle = static_cast<std::ptrdiff_t>(runs.size());
        runs.insert(runs.end(), found.begin(), found.end());
        std::inplace_merge(runs.begin(), runs.begin() + middle, runs.end(), comesBefore);
    }

    const Cut& oldCut;
    const Cut& newCut;
    std::vector<Run> runs;  // by event of NEW, then position
    FreeStretches oldFree;
    FreeStretches newFree;
};

}  // namespace

std::vector<Run> pairFrames(const Cut& oldCut, const Cut& newCut) {
    Rounds rounds(oldCut, newCut);
    rounds.pairBeside(Neighbour::before);
    rounds.pairBeside(Neighbour::behind);
    for (const Tracks tracks : {Tracks::same, Tracks::any}) {
        rounds.pairInPlace(tracks);
        rounds.pairWholeEvents(tracks);
        rounds.pairRest(tracks);
    }
    return std::move(rounds).result();
}

}  // namespace clipvane::diff
