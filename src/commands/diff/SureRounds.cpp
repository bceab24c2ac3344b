// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/SureRounds.h"

#include <algorithm>
#include <functional>
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

/// Goes through the events of a cut place by place.
class Places {
  public:
    explicit Places(const Cut& cut) : cut(cut) { passOdd(); }

    bool atEnd() const { return next == cut.size(); }
    std::int64_t place() const { return cut[next].recordIn; }

    void pass() {
        ++next;
        passOdd();
    }

    /// Passes all events at the present place, and gives them until it is called again.
    IndexSpan take() {
        here.clear();
        const std::int64_t taken = place();
        for (; !atEnd() && place() == taken; pass()) here.push_back(next);
        return here;
    }

    /// The events without a place that were passed.
    IndexSpan odd() const { return withoutPlace; }

  private:
    void passOdd() {
        for (; !atEnd() && !cut[next].hasPlace(); ++next) withoutPlace.push_back(next);
    }

    const Cut& cut;
    std::uint32_t next = 0;
    std::vector<std::uint32_t> here;
    std::vector<std::uint32_t> withoutPlace;
};

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
    std::uint32_t group;  // uses come by group, and in a group by track and position
    std::int64_t from;
    std::int64_t to;

    auto lane() const { return std::tuple(content, track); }
};

using Uses = std::span<const Use>;

/// Groups uses for sorting: by content, and the uses of a content in as many steps of equal width
/// as there are. So there is little left to compare. With several tracks a group is a content.
class Groups {
  public:
    explicit Groups(const Cut& cut) {
        for (const CutEvent& event : cut) {
            if (event.content >= contents.size()) contents.resize(event.content + std::size_t{1});
            Content& content = contents[event.content];
            if (content.uses++ == 0) {
                content.track = event.track;
                content.lowest = content.highest = event.from();
            }
            content.isOnOneTrack = content.isOnOneTrack && event.track == content.track;
            content.lowest = std::min(content.lowest, event.from());
            content.highest = std::max(content.highest, event.from());
        }
        for (Content& content : contents) {
            content.first = count;
            count += content.uses;
        }
    }

    std::uint32_t of(const CutEvent& event) const {
        const Content& content = contents[event.content];
        const auto lowest = static_cast<double>(content.lowest);
        const double width = static_cast<double>(content.highest) - lowest;
        if (!content.isOnOneTrack || width <= 0) return content.first;
        const double into = (static_cast<double>(event.from()) - lowest) / width;
        return content.first + static_cast<std::uint32_t>(into * (content.uses - 1));
    }

    std::uint32_t size() const { return count; }

  private:
    struct Content {
        std::uint32_t first = 0;
        std::uint32_t uses = 0;
        std::uint32_t track = 0;
        bool isOnOneTrack = true;
        std::int64_t lowest = 0;
        std::int64_t highest = 0;
    };

    std::vector<Content> contents;
    std::uint32_t count = 0;
};

/// The uses of a cut by content, track and position.
std::vector<Use> usesOf(const Cut& cut) {
    const Groups groups(cut);
    std::vector<Use> uses;
    uses.reserve(cut.size());
    for (std::uint32_t i = 0; i < cut.size(); ++i) {
        const CutEvent& event = cut[i];
        uses.push_back({event.content, event.track, i, groups.of(event), event.from(), event.to()});
    }
    return sortedByIndex(
        std::move(uses), groups.size(), [](const Use& use) { return use.group; },
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
    explicit Playing(Uses lane) : coming(lane) { lookAhead(); }

    /// Whether nothing begins or ends any more.
    bool atEnd() const { return coming.empty() && ends.empty(); }
    std::int64_t nextChange() const { return next; }

    /// Goes on to a position that is not behind the next change.
    void moveTo(std::int64_t position) {
        if (atEnd() || position != next) return;
        for (; !ends.empty() && ends.top().first == position; ends.pop()) sum -= ends.top().second;
        for (; !coming.empty() && coming.front().from == position; coming = coming.subspan(1)) {
            sum += coming.front().event;
            ends.emplace(coming.front().to, coming.front().event);
        }
        lookAhead();
    }

    bool isOne() const { return ends.size() == 1; }
    std::uint32_t one() const { return static_cast<std::uint32_t>(sum); }

  private:
    using End = std::pair<std::int64_t, std::uint32_t>;

    void lookAhead() {
        if (!coming.empty()) next = coming.front().from;
        if (!ends.empty())
            next = coming.empty() ? ends.top().first : std::min(next, ends.top().first);
    }

    Uses coming;
    std::priority_queue<End, std::vector<End>, std::greater<>> ends;
    std::uint64_t sum = 0;  // of the playing events, so that of one it is that one
    std::int64_t next = 0;
};

std::vector<Run> pairUnchanged(const Cut& oldCut, const Cut& newCut) {
    EqualPairs pairs(oldCut, newCut);
    // Equal events stand at one place, and both cuts come in the order of places.
    Places olds(oldCut);
    Places news(newCut);
    while (!olds.atEnd() && !news.atEnd()) {
        if (olds.place() < news.place()) {
            olds.pass();
        } else if (news.place() < olds.place()) {
            news.pass();
        } else {
            pairs.add(olds.take(), news.take());
        }
    }
    while (!olds.atEnd()) olds.pass();
    while (!news.atEnd()) news.pass();
    pairs.add(olds.odd(), news.odd());
    return std::move(pairs).result();
}

/// Pairs the frames that either list uses once on a track, but for those of some events of NEW.
class UniquePairs {
  public:
    UniquePairs(std::vector<bool> isLeftOut, std::vector<Run>& runs)
        : isLeftOut(std::move(isLeftOut)), runs(runs) {}

    void add(Uses oldLane, Uses newLane) {
        Playing olds(oldLane);
        Playing news(newLane);
        std::int64_t from = 0;
        while (!olds.atEnd() && !news.atEnd()) {
            const std::int64_t position = std::min(olds.nextChange(), news.nextChange());
            if (olds.isOne() && news.isOne() && !isLeftOut[news.one()]) {
                runs.push_back({news.one(), olds.one(), from, position});
            }
            olds.moveTo(position);
            news.moveTo(position);
            from = position;
        }
    }

  private:
    std::vector<bool> isLeftOut;
    std::vector<Run>& runs;
};

}  // namespace

std::vector<Run> pairSurely(const Cut& oldCut, const Cut& newCut) {
    std::vector<Run> runs = pairUnchanged(oldCut, newCut);
    runs.reserve(newCut.size());
    std::vector<bool> isUnchanged(newCut.size());
    for (const Run& run : runs) isUnchanged[run.newEvent] = true;

    // An event of NEW that stands unchanged is paired with the one of OLD that plays there.
    UniquePairs pairs(std::move(isUnchanged), runs);
    const auto oldUses = usesOf(oldCut);
    const auto newUses = usesOf(newCut);
    Uses olds(oldUses);
    Uses news(newUses);
    while (!olds.empty() && !news.empty()) {
        if (olds.front().lane() < news.front().lane()) {
            takeLane(olds);
        } else if (news.front().lane() < olds.front().lane()) {
            takeLane(news);
        } else {
            pairs.add(takeLane(olds), takeLane(news));
        }
    }
    return runs;
}

}  // namespace clipvane::diff
