// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/TrackChains.h"

namespace clipvane::diff {
namespace {

Link makeLink(const Partnership& p, const CutEvent& oldEvent, const CutEvent& newEvent) {
    const auto place = sharedPlace(p, oldEvent, newEvent);
    Link link{p.newEvent,    p.oldEvent,  place.newFrom, place.newTo,
              place.oldFrom, place.oldTo, p.frames,      shiftBetween(oldEvent, newEvent) == 0};
    if (newEvent.kind == Kind::point) {
        link.newTo = addChecked(link.newFrom, 1);
        link.oldTo = addChecked(link.oldFrom, 1);
    }
    return link;
}

TrackChain makeChain(const std::vector<Link>& links) {
    TrackChain track;
    const auto chain = findChain(links);
    const auto isMoved = findMoved(links, chain);
    track.chain.reserve(chain.size());
    for (const std::uint32_t i : chain) {
        track.chain.push_back({links[i].event, links[i].partner, links[i].oldFrom});
    }
    for (std::size_t i = 0; i < isMoved.size(); ++i) {
        if (isMoved[i]) track.moved.push_back(links[i].event);
    }
    return track;
}

}  // namespace

std::vector<TrackChain> findTrackChains(const PartneredCuts& cuts, std::size_t trackCount) {
    const auto& [oldCut, newCut, partners] = cuts;
    std::vector<std::size_t> events(trackCount);
    for (const CutEvent& event : newCut) ++events[event.track];
    std::vector<std::vector<Link>> links(trackCount);
    for (std::size_t track = 0; track < trackCount; ++track) links[track].reserve(events[track]);
    for (std::uint32_t n = 0; n < newCut.size(); ++n) {
        const auto all = partners.ofNew(n);
        if (all.empty() || !newCut[n].hasPlace()) continue;
        const CutEvent& partner = oldCut[all.front().oldEvent];
        if (partner.track != newCut[n].track) continue;
        links[partner.track].push_back(makeLink(all.front(), partner, newCut[n]));
    }
    std::vector<TrackChain> chains;
    chains.reserve(trackCount);
    for (const auto& ofTrack : links) chains.push_back(makeChain(ofTrack));
    return chains;
}

}  // namespace clipvane::diff
