// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Sweep.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <queue>
#include <span>
#include <tuple>

namespace clipvane::diff {
namespace {

using Candidates = std::span<const Candidate>;

struct ByEvent {
    bool operator()(const Stretch* a, const Stretch* b) const { return a->event > b->event; }
};

/// Stretches that have begun and are not paired, the first in record order on top. One that has
/// ended in the meantime is dropped when it comes to the top.
class Waiting {
  public:
    void add(const Stretch& stretch) { queue.push(&stretch); }

    const Stretch* first(std::int64_t position) {
        while (!queue.empty() && queue.top()->to <= position) queue.pop();
        return queue.empty() ? nullptr : queue.top();
    }
    void pop() { queue.pop(); }

  private:
    std::priority_queue<const Stretch*, std::vector<const Stretch*>, ByEvent> queue;
};

struct Pair {
    const Stretch* oldStretch;
    const Stretch* newStretch;
    std::int64_t from;

    std::int64_t end() const { return std::min(oldStretch->to, newStretch->to); }
};

struct ByEnd {
    bool operator()(const Pair& a, const Pair& b) const { return a.end() > b.end(); }
};

/// The sweep over one group. Every step handles all that happens at one position.
class GroupSweep {
  public:
    GroupSweep(Candidates oldOnes, Candidates newOnes, std::vector<Run>& runs)
        : oldOnes(oldOnes), newOnes(newOnes), runs(runs) {}

    void run() {
        while (const auto position = next()) {
            endPairs(*position);
            begin(oldOnes, waitingOld, *position);
            begin(newOnes, waitingNew, *position);
            makePairs(*position);
        }
    }

  private:
    std::optional<std::int64_t> next() const {
        std::optional<std::int64_t> position;
        const auto consider = [&](std::int64_t other) {
            position = position ? std::min(*position, other) : other;
        };
        if (!oldOnes.empty()) consider(oldOnes.front().stretch.from);
        if (!newOnes.empty()) consider(newOnes.front().stretch.from);
        if (!pairs.empty()) consider(pairs.top().end());
        return position;
    }

    void endPairs(std::int64_t position) {
        while (!pairs.empty() && pairs.top().end() == position) {
            const Pair pair = pairs.top();
            pairs.pop();
            runs.push_back({pair.newStretch->event, pair.oldStretch->event, pair.from, position});
            if (pair.oldStretch->to > position) waitingOld.add(*pair.oldStretch);
            if (pair.newStretch->to > position) waitingNew.add(*pair.newStretch);
        }
    }

    static void begin(Candidates& candidates, Waiting& waiting, std::int64_t position) {
        while (!candidates.empty() && candidates.front().stretch.from == position) {
            waiting.add(candidates.front().stretch);
            candidates = candidates.subspan(1);
        }
    }

    void makePairs(std::int64_t position) {
        while (true) {
            const Stretch* const oldStretch = waitingOld.first(position);
            const Stretch* const newStretch = waitingNew.first(position);
            if (oldStretch == nullptr || newStretch == nullptr) return;
            waitingOld.pop();
            waitingNew.pop();
            pairs.push({oldStretch, newStretch, position});
        }
    }

    Candidates oldOnes;  // those that have not begun, by their beginning
    Candidates newOnes;
    std::vector<Run>& runs;
    Waiting waitingOld;
    Waiting waitingNew;
    std::priority_queue<Pair, std::vector<Pair>, ByEnd> pairs;
};

void sort(std::vector<Candidate>& candidates) {
    std::ranges::sort(candidates, std::less(), [](const Candidate& c) {
        return std::tuple(c.key.fields(), c.stretch.from, c.stretch.event);
    });
}

/// The candidates of the first group, which leave `all`.
Candidates takeGroup(Candidates& all) {
    const auto end =
        std::ranges::find_if(all, [&](const Candidate& c) { return !(c.key == all.front().key); });
    const Candidates group(all.begin(), end);
    all = all.subspan(group.size());
    return group;
}

}  // namespace

void sweep(std::vector<Candidate> oldCandidates, std::vector<Candidate> newCandidates,
           std::vector<Run>& runs) {
    sort(oldCandidates);
    sort(newCandidates);
    Candidates oldOnes(oldCandidates);
    Candidates newOnes(newCandidates);
    while (!oldOnes.empty() && !newOnes.empty()) {
        const GroupKey& oldKey = oldOnes.front().key;
        const GroupKey& newKey = newOnes.front().key;
        if (oldKey < newKey) {
            takeGroup(oldOnes);
        } else if (newKey < oldKey) {
            takeGroup(newOnes);
        } else {
            GroupSweep(takeGroup(oldOnes), takeGroup(newOnes), runs).run();
        }
    }
}

}  // namespace clipvane::diff
