// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/ReportOrder.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace clipvane::diff {
namespace {

using Index = std::uint32_t;

bool isLost(const OldEvent& event) {
    return event.words.has(Word::gone) || event.words.has(Word::fewer);
}

/// The events of each track, in record order.
template <class Event>
std::vector<std::vector<Index>> byTrack(const std::vector<Event>& events, std::size_t tracks) {
    std::vector<std::vector<Index>> result(tracks);
    for (Index i = 0; i < events.size(); ++i) result[events[i].track].push_back(i);
    return result;
}

/// How many events of a chain an event of OLD follows there.
std::size_t slotOf(Index event, const Cut& oldCut, const std::vector<Link>& chain) {
    const auto behind = std::ranges::lower_bound(
        chain, std::tuple(oldCut[event].recordIn, event), {},
        [](const Link& link) { return std::tuple(link.oldFrom, link.partner); });
    return static_cast<std::size_t>(behind - chain.begin());
}

/// The lost events of a track by their slot.
std::vector<std::vector<Index>> lostBySlot(const std::vector<Index>& track, const Cut& oldCut,
                                           const std::vector<Link>& chain,
                                           const std::vector<OldEvent>& oldEvents) {
    std::vector<std::vector<Index>> slots(chain.size() + 1);
    for (const Index o : track) {
        if (isLost(oldEvents[o])) slots[slotOf(o, oldCut, chain)].push_back(o);
    }
    return slots;
}

/// Where on a chain each event of NEW stands.
class Slots {
  public:
    explicit Slots(const std::vector<Link>& chain) {
        for (std::size_t i = 0; i < chain.size(); ++i) events.emplace_back(chain[i].event, i);
        std::ranges::sort(events);
    }

    /// How many events of the chain stand before it.
    std::size_t of(Index event) const {
        return static_cast<std::size_t>(firstFrom(event) - events.begin());
    }

    /// Its index on the chain.
    std::optional<std::size_t> onChain(Index event) const {
        const auto found = firstFrom(event);
        if (found == events.end() || found->first != event) return std::nullopt;
        return found->second;
    }

  private:
    using Member = std::pair<Index, std::size_t>;  // event, index on the chain

    std::vector<Member>::const_iterator firstFrom(Index event) const {
        return std::ranges::lower_bound(events, event, {}, &Member::first);
    }

    std::vector<Member> events;
};

}  // namespace

void findReplacements(const Cut& oldCut, const std::vector<TrackChain>& chains,
                      const std::vector<OldEvent>& oldEvents, std::vector<NewEvent>& newEvents) {
    const auto oldByTrack = byTrack(oldEvents, chains.size());
    const auto newByTrack = byTrack(newEvents, chains.size());
    for (std::size_t track = 0; track < chains.size(); ++track) {
        const auto& chain = chains[track].chain;
        const auto lost = lostBySlot(oldByTrack[track], oldCut, chain, oldEvents);
        const Slots slots(chain);
        std::vector<std::vector<Index>> others(chain.size() + 1);
        for (const Index n : newByTrack[track]) {
            const bool isOther = !slots.onChain(n) && !newEvents[n].words.has(Word::notCompared);
            if (isOther) others[slots.of(n)].push_back(n);
        }
        for (std::size_t slot = 0; slot < lost.size(); ++slot) {
            if (lost[slot].size() != 1 || others[slot].size() != 1) continue;
            NewEvent& event = newEvents[others[slot].front()];
            if (event.words.has(Word::added)) event.inPlaceOf = lost[slot].front();
        }
    }
}

std::vector<ReportLine> makeReport(const Cut& oldCut, const std::vector<TrackChain>& chains,
                                   const std::vector<std::vector<BlackChange>>& black,
                                   const std::vector<NewEvent>& newEvents,
                                   const std::vector<OldEvent>& oldEvents) {
    using Kind = ReportLine::Kind;
    std::vector<ReportLine> lines;
    const auto oldByTrack = byTrack(oldEvents, chains.size());
    const auto newByTrack = byTrack(newEvents, chains.size());
    for (Index track = 0; track < chains.size(); ++track) {
        const auto& chain = chains[track].chain;
        const auto lost = lostBySlot(oldByTrack[track], oldCut, chain, oldEvents);
        const Slots slots(chain);
        std::vector<BlackChange> changes = black[track];
        std::ranges::stable_sort(changes, {}, &BlackChange::before);
        auto change = changes.begin();
        Index order = 0;
        const auto addLost = [&](std::size_t slot) {
            for (const Index o : lost[slot]) lines.push_back({Kind::lost, track, o, order, 0});
        };
        addLost(0);
        for (const Index n : newByTrack[track]) {
            ++order;
            for (; change != changes.end() && change->before == n; ++change) {
                lines.push_back({Kind::black, track, n, order, change->longer});
            }
            const Words words = newEvents[n].words;
            const bool hasLine = !words.has(Word::same) && !words.has(Word::notCompared);
            if (hasLine) lines.push_back({Kind::event, track, n, order, 0});
            if (const auto i = slots.onChain(n)) addLost(*i + 1);
        }
    }
    return lines;
}

}  // namespace clipvane::diff
