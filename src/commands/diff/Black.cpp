// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Black.h"

#include <algorithm>
#include <optional>

#include "base/Number.h"
#include "commands/diff/Coverage.h"

namespace clipvane::diff {
namespace {

/// What an event of the chain and one of its partners share, in record frames of both lists.
struct Shared {
    std::int64_t newFrom;
    std::int64_t newTo;
    std::int64_t oldFrom;
    std::int64_t oldTo;
};

Coverage recordCoverage(const Cut& cut) {
    std::vector<AxisStretch> stretches;
    stretches.reserve(cut.size());
    for (const CutEvent& event : cut) {
        if (event.hasFrames()) stretches.push_back({event.track, event.recordIn, event.recordOut});
    }
    return Coverage(std::move(stretches));
}

std::int64_t blackWithin(const Coverage& coverage, const AxisStretch& stretch) {
    return subtractChecked(subtractChecked(stretch.to, stretch.from), coverage.within(stretch));
}

class Finder {
  public:
    Finder(const Cut& oldCut, const Cut& newCut, const Partners& partners)
        : oldCut(oldCut),
          newCut(newCut),
          partners(partners),
          oldCoverage(recordCoverage(oldCut)),
          newCoverage(recordCoverage(newCut)) {}

    std::vector<BlackChange> find(std::uint32_t track, const std::vector<Link>& chain) const {
        std::vector<BlackChange> changes;
        std::optional<Shared> last;
        for (const Link& link : chain) {
            forEachShared(link, [&](const Shared& next) {
                if (last && (next.newFrom < last->newTo || next.oldFrom < last->oldTo)) return;
                const std::int64_t longer = last ? change(track, *last, next) : 0;
                if (longer != 0) changes.push_back({link.event, longer});
                last = next;
            });
        }
        return changes;
    }

  private:
    std::int64_t change(std::uint32_t track, const Shared& a, const Shared& b) const {
        const bool touch = a.newTo == b.newFrom && a.oldTo == b.oldFrom;
        if (touch) return 0;
        return subtractChecked(blackWithin(newCoverage, {track, a.newTo, b.newFrom}),
                               blackWithin(oldCoverage, {track, a.oldTo, b.oldFrom}));
    }

    /// With each partner on the track, in record order.
    template <class Take>
    void forEachShared(const Link& link, Take take) const {
        const auto all = partners.ofNew(link.event);
        if (all.size() == 1) {
            take(sharedBy(all.front()));
            return;
        }
        std::vector<Shared> shared;
        for (const Partnership& p : all) {
            const bool isOnTrack = oldCut[p.oldEvent].track == newCut[p.newEvent].track;
            if (isOnTrack) shared.push_back(sharedBy(p));
        }
        std::ranges::sort(shared, {}, &Shared::newFrom);
        std::ranges::for_each(shared, take);
    }

    Shared sharedBy(const Partnership& p) const {
        const CutEvent& n = newCut[p.newEvent];
        const CutEvent& o = oldCut[p.oldEvent];
        if (p.isRetimed || n.kind != Kind::plain) {
            return {n.recordIn, n.recordOut, o.recordIn, o.recordOut};
        }
        return {n.offset() + p.from, n.offset() + p.to, o.offset() + p.from, o.offset() + p.to};
    }

    const Cut& oldCut;
    const Cut& newCut;
    const Partners& partners;
    Coverage oldCoverage;
    Coverage newCoverage;
};

}  // namespace

std::vector<std::vector<BlackChange>> findBlackChanges(const Cut& oldCut, const Cut& newCut,
                                                       const Partners& partners,
                                                       const std::vector<TrackChain>& chains) {
    const Finder finder(oldCut, newCut, partners);
    std::vector<std::vector<BlackChange>> changes;
    for (std::uint32_t track = 0; track < chains.size(); ++track) {
        changes.push_back(finder.find(track, chains[track].chain));
    }
    return changes;
}

}  // namespace clipvane::diff
