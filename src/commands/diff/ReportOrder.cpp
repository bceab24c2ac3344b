// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/ReportOrder.h"

#include <algorithm>
#include <span>
#include <tuple>
#include <utility>

namespace clipvane::diff {
namespace {

using Index = std::uint32_t;
using Slot = std::size_t;  // how many events of its track's chain an event follows

/// An event that is not on its track's chain.
struct InSlot {
    Slot slot;
    Index event;
};

constexpr Words lost{Word::gone, Word::fewer};
constexpr Words withoutPartner{Word::gone, Word::fewer, Word::notCompared};

/// The events of OLD that bear one of the words, by track, in order.
std::vector<std::vector<InSlot>> inOldWith(Words words, const Cut& oldCut,
                                           const std::vector<TrackChain>& chains,
                                           const std::vector<OldEvent>& oldEvents) {
    std::vector<std::vector<InSlot>> found(chains.size());
    for (Index o = 0; o < oldEvents.size(); ++o) {
        if (!oldEvents[o].words.hasAny(words)) continue;
        const std::vector<ChainLink>& chain = chains[oldEvents[o].track].chain;
        const auto behind = std::ranges::lower_bound(
            chain, std::tuple(oldCut[o].recordIn, o), {},
            [](const ChainLink& link) { return std::tuple(link.oldFrom, link.partner); });
        found[oldEvents[o].track].push_back({static_cast<Slot>(behind - chain.begin()), o});
    }
    // An odd event has no place, and is told before all others.
    for (auto& track : found) std::ranges::stable_sort(track, {}, &InSlot::slot);
    return found;
}

/// The slot behind each event of NEW that is on its track's chain.
class SlotsBehind {
  public:
    SlotsBehind(const std::vector<TrackChain>& chains, std::size_t newCount) : slots(newCount) {
        for (const TrackChain& track : chains) {
            Index slot = 0;
            for (const ChainLink& link : track.chain) slots[link.event] = ++slot;
        }
    }

    bool has(Index event) const { return slots[event] != 0; }
    Slot of(Index event) const { return slots[event]; }

  private:
    std::vector<Index> slots;  // 0 for those that are not
};

/// The events in one slot. `events` come in the order of slots.
std::span<const InSlot> inSlot(const std::vector<InSlot>& events, Slot slot) {
    const auto first = std::ranges::lower_bound(events, slot, {}, &InSlot::slot);
    const auto last = std::ranges::upper_bound(events, slot, {}, &InSlot::slot);
    return {first, last};
}

/// Collects the lines of each track.
class Lines {
  public:
    Lines(const std::vector<std::vector<InSlot>>& left, const std::vector<TrackChain>& chains)
        : left(left), hasLeft(chains.size()), lines(chains.size()), orders(chains.size()) {
        for (Index track = 0; track < chains.size(); ++track) {
            hasLeft[track].resize(chains[track].chain.size() + 1);
            for (const InSlot& one : left[track]) hasLeft[track][one.slot] = true;
            addLeft(track, 0);
        }
    }

    void beginEvent(Index track) { ++orders[track]; }

    void add(ReportLine::Kind kind, Index track, Index event, std::int64_t longer = 0) {
        lines[track].push_back({kind, track, event, orders[track], longer});
    }

    void addLeft(Index track, Slot slot) {
        if (!hasLeft[track][slot]) return;
        for (const InSlot& one : inSlot(left[track], slot)) {
            add(ReportLine::Kind::ofOld, track, one.event);
        }
    }

    std::vector<ReportLine> result() && {
        if (lines.size() == 1) return std::move(lines.front());
        std::vector<ReportLine> all;
        for (const auto& track : lines) all.insert(all.end(), track.begin(), track.end());
        return all;
    }

  private:
    const std::vector<std::vector<InSlot>>& left;
    std::vector<std::vector<bool>> hasLeft;  // by slot: behind most of the chain nothing is left
    std::vector<std::vector<ReportLine>> lines;
    std::vector<Index> orders;  // of each track's latest event
};

}  // namespace

void findReplacements(const Cut& oldCut, const std::vector<TrackChain>& chains,
                      const std::vector<OldEvent>& oldEvents, std::vector<NewEvent>& newEvents) {
    const SlotsBehind slots(chains, newEvents.size());
    std::vector<Slot> passed(chains.size());
    std::vector<std::vector<InSlot>> others(chains.size());
    for (Index n = 0; n < newEvents.size(); ++n) {
        const NewEvent& event = newEvents[n];
        if (slots.has(n)) {
            ++passed[event.track];
        } else if (!event.words.has(Word::notCompared)) {
            others[event.track].push_back({passed[event.track], n});
        }
    }
    const auto lostEvents = inOldWith(lost, oldCut, chains, oldEvents);
    for (std::size_t track = 0; track < chains.size(); ++track) {
        for (const InSlot& other : others[track]) {
            const auto lostHere = inSlot(lostEvents[track], other.slot);
            const bool isAlone = inSlot(others[track], other.slot).size() == 1;
            NewEvent& event = newEvents[other.event];
            if (!isAlone || lostHere.size() != 1 || !event.words.has(Word::added)) continue;
            event.inPlaceOf = lostHere.front().event;
        }
    }
}

std::vector<ReportLine> makeReport(const Cut& oldCut, const std::vector<TrackChain>& chains,
                                   const std::vector<std::vector<BlackChange>>& black,
                                   const std::vector<NewEvent>& newEvents,
                                   const std::vector<OldEvent>& oldEvents) {
    using Kind = ReportLine::Kind;
    const SlotsBehind slots(chains, newEvents.size());
    const auto left = inOldWith(withoutPartner, oldCut, chains, oldEvents);
    auto changes = black;
    for (auto& track : changes) std::ranges::stable_sort(track, {}, &BlackChange::before);
    std::vector<std::size_t> nextChange(chains.size());

    Lines lines(left, chains);
    for (Index n = 0; n < newEvents.size(); ++n) {
        const NewEvent& event = newEvents[n];
        const Index track = event.track;
        lines.beginEvent(track);
        for (std::size_t& next = nextChange[track];
             next < changes[track].size() && changes[track][next].before == n; ++next) {
            lines.add(Kind::black, track, n, changes[track][next].longer);
        }
        if (!event.words.has(Word::same)) lines.add(Kind::event, track, n);
        if (slots.has(n)) lines.addLeft(track, slots.of(n));
    }
    return std::move(lines).result();
}

}  // namespace clipvane::diff
