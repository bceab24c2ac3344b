// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/Black.h"

#include <algorithm>
#include <optional>

#include "base/Number.h"
#include "commands/diff/Coverage.h"

namespace clipvane::diff {
namespace {

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
    explicit Finder(const PartneredCuts& cuts)
        : cuts(cuts),
          oldCoverage(recordCoverage(cuts.oldCut)),
          newCoverage(recordCoverage(cuts.newCut)) {}

    std::vector<BlackChange> find(std::uint32_t track, const std::vector<ChainLink>& chain) const {
        std::vector<BlackChange> changes;
        std::optional<SharedPlace> last;
        for (const ChainLink& link : chain) {
            forEachShared(link, [&](const SharedPlace& next) {
                if (last && (next.newFrom < last->newTo || next.oldFrom < last->oldTo)) return;
                const std::int64_t longer = last ? change(track, *last, next) : 0;
                if (longer != 0) changes.push_back({link.event, longer});
                last = next;
            });
        }
        return changes;
    }

  private:
    std::int64_t change(std::uint32_t track, const SharedPlace& a, const SharedPlace& b) const {
        const bool touch = a.newTo == b.newFrom && a.oldTo == b.oldFrom;
        if (touch) return 0;
        return subtractChecked(blackWithin(newCoverage, {track, a.newTo, b.newFrom}),
                               blackWithin(oldCoverage, {track, a.oldTo, b.oldFrom}));
    }

    /// With each partner on the track, in record order.
    template <class Take>
    void forEachShared(const ChainLink& link, Take take) const {
        const auto all = cuts.partners.ofNew(link.event);
        if (all.size() == 1) {
            take(sharedBy(all.front()));
            return;
        }
        std::vector<SharedPlace> shared;
        for (const Partnership& p : all) {
            const bool isOnTrack = cuts.oldCut[p.oldEvent].track == cuts.newCut[p.newEvent].track;
            if (isOnTrack) shared.push_back(sharedBy(p));
        }
        std::ranges::sort(shared, {}, &SharedPlace::newFrom);
        std::ranges::for_each(shared, take);
    }

    SharedPlace sharedBy(const Partnership& p) const {
        return sharedPlace(p, cuts.oldCut[p.oldEvent], cuts.newCut[p.newEvent]);
    }

    PartneredCuts cuts;
    Coverage oldCoverage;
    Coverage newCoverage;
};

}  // namespace

std::vector<std::vector<BlackChange>> findBlackChanges(const PartneredCuts& cuts,
                                                       const std::vector<TrackChain>& chains) {
    const Finder finder(cuts);
    std::vector<std::vector<BlackChange>> changes;
    for (std::uint32_t track = 0; track < chains.size(); ++track) {
        changes.push_back(finder.find(track, chains[track].chain));
    }
    return changes;
}

}  // namespace clipvane::diff
