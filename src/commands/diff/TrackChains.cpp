// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/TrackChains.h"

#include <algorithm>
#include <utility>

namespace clipvane::diff {
namespace {

Link makeLink(const Partnership& p, const CutEvent& oldEvent, const CutEvent& newEvent) {
    Link link{p.newEvent,        p.oldEvent,
              newEvent.recordIn, newEvent.recordOut,
              oldEvent.recordIn, oldEvent.recordOut,
              p.frames,          shiftBetween(oldEvent, newEvent) == 0};
    if (!p.isRetimed && newEvent.kind == Kind::plain) {
        link.newFrom = addChecked(newEvent.offset(), p.from);
        link.newTo = addChecked(newEvent.offset(), p.to);
        link.oldFrom = addChecked(oldEvent.offset(), p.from);
        link.oldTo = addChecked(oldEvent.offset(), p.to);
    }
    if (newEvent.kind == Kind::point) {
        link.newTo = addChecked(link.newFrom, 1);
        link.oldTo = addChecked(link.oldFrom, 1);
    }
    return link;
}

/// The links with these indices.
std::vector<Link> chosen(std::vector<Link> links, const std::vector<std::uint32_t>& indices) {
    if (indices.size() == links.size() && std::ranges::is_sorted(indices)) return links;
    std::vector<Link> some;
    some.reserve(indices.size());
    for (const std::uint32_t i : indices) some.push_back(links[i]);
    return some;
}

}  // namespace

std::vector<TrackChain> findTrackChains(const Cut& oldCut, const Cut& newCut,
                                        const Partners& partners, std::size_t trackCount) {
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

    std::vector<TrackChain> chains(trackCount);
    for (std::size_t track = 0; track < trackCount; ++track) {
        const auto chain = findChain(links[track]);
        const auto isMoved = findMoved(links[track], chain);
        for (std::size_t i = 0; i < isMoved.size(); ++i) {
            if (isMoved[i]) chains[track].moved.push_back(links[track][i].event);
        }
        chains[track].chain = chosen(std::move(links[track]), chain);
    }
    return chains;
}

}  // namespace clipvane::diff
