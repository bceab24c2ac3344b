// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/CutPair.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "base/Number.h"
#include "commands/diff/TextNumbers.h"

namespace clipvane::diff {
namespace {

using Listed = std::vector<ListedEvent>;

/// Numbers for combinations of numbers, from 0.
template <class Key>
class Numbers {
  public:
    std::uint32_t of(const Key& key) {
        return numbers.try_emplace(key, static_cast<std::uint32_t>(numbers.size())).first->second;
    }

  private:
    std::map<Key, std::uint32_t> numbers;
};

/// Tells sources apart.
class Sources {
  public:
    Sources(By by, std::uint32_t ax, const Listed& oldEvents, const Listed& newEvents)
        : by(by), silentReels{0, ax} {
        findSilentReel(oldEvents);
        findSilentReel(newEvents);
    }

    std::uint32_t of(const ListedEvent& event) {
        const Told told = toldBy(event);
        return numbers.of(
            {told, told == Told::byName ? 0 : event.reel, told == Told::byReel ? 0 : event.name});
    }

  private:
    enum class Told { byReel, byName, byBoth };

    void findSilentReel(const Listed& events) {
        if (events.empty()) return;
        const std::uint32_t reel = events.front().reel;
        std::optional<std::uint32_t> name;
        bool hasSeveralNames = false;
        for (const ListedEvent& event : events) {
            if (event.reel != reel) return;
            if (event.name == 0) continue;
            if (!name) name = event.name;
            hasSeveralNames = hasSeveralNames || event.name != *name;
        }
        if (hasSeveralNames) silentReels.insert(reel);
    }

    Told toldBy(const ListedEvent& event) const {
        if (by == By::reelAndName) return Told::byBoth;
        if (by == By::name) return event.name != 0 ? Told::byName : Told::byReel;
        return silentReels.contains(event.reel) ? Told::byBoth : Told::byReel;
    }

    By by;
    std::set<std::uint32_t> silentReels;
    Numbers<std::tuple<Told, std::uint32_t, std::uint32_t>> numbers;
};

class PairMaker {
  public:
    PairMaker(const CutList& oldList, const CutList& newList, By by)
        : oldEvents(listEvents(oldList, texts)),
          newEvents(listEvents(newList, texts)),
          sources(by, texts.of("AX"), oldEvents, newEvents) {
        pair.by = by;
        numberTracks(oldList, newList);
    }

    CutPair make() && {
        pair.oldCut = makeCut(oldEvents);
        pair.newCut = makeCut(newEvents);
        return std::move(pair);
    }

  private:
    void numberTracks(const CutList& oldList, const CutList& newList) {
        std::set<std::uint32_t> inOld;
        for (const ListedEvent& event : oldEvents) inOld.insert(event.track);
        pair.comparesTracks = std::ranges::any_of(
            newEvents, [&](const ListedEvent& event) { return inOld.contains(event.track); });
        if (!pair.comparesTracks) {
            pair.tracks.emplace_back();
            return;
        }
        numberTracks(newList, newEvents);
        numberTracks(oldList, oldEvents);
    }

    void numberTracks(const CutList& list, const Listed& events) {
        for (const ListedEvent& event : events) {
            if (tracks.of(event.track) < pair.tracks.size()) continue;
            pair.tracks.emplace_back(list.events[event.row].track);
        }
    }

    Cut makeCut(const Listed& events) {
        Cut cut;
        cut.reserve(events.size());
        std::vector<std::int64_t> order;  // record in, or that of the row before an odd one
        order.reserve(events.size());
        for (const ListedEvent& listed : events) {
            const CutEvent event = makeEvent(listed);
            const std::int64_t before = order.empty() ? 0 : order.back();
            order.push_back(event.hasPlace() ? event.recordIn : before);
            cut.push_back(event);
        }
        return std::ranges::is_sorted(order) ? cut : inRecordOrder(cut, order);
    }

    static Cut inRecordOrder(const Cut& cut, const std::vector<std::int64_t>& order) {
        std::vector<std::uint32_t> indices(cut.size());
        for (std::uint32_t i = 0; i < indices.size(); ++i) indices[i] = i;
        std::ranges::stable_sort(indices, {}, [&](std::uint32_t i) { return order[i]; });
        Cut sorted;
        sorted.reserve(cut.size());
        for (const std::uint32_t i : indices) sorted.push_back(cut[i]);
        return sorted;
    }

    CutEvent makeEvent(const ListedEvent& listed) {
        CutEvent event;
        event.row = listed.row;
        event.track = pair.comparesTracks ? tracks.of(listed.track) : 0;
        event.name = pair.by == By::reel ? listed.name : 0;
        event.source = sources.of(listed);
        const auto& [sourceIn, sourceOut, recordIn, recordOut] = listed.times;
        if (!sourceIn || !sourceOut || !recordIn || !recordOut || *recordOut < *recordIn) {
            event.kind = Kind::odd;
            const std::uint32_t timecodes = oddTimecodes.of(listed.timecodes);
            event.content = contents.of({event.kind, event.source, timecodes, 0, 0});
            return event;
        }
        event.sourceIn = *sourceIn;
        event.sourceOut = *sourceOut;
        event.recordIn = *recordIn;
        event.recordOut = *recordOut;
        const std::int64_t length = subtractChecked(*recordOut, *recordIn);
        const std::int64_t sourceLength = subtractChecked(*sourceOut, *sourceIn);
        if (length == sourceLength && length > 0) {
            event.content = contents.of({event.kind, event.source, 0, 0, 0});
        } else {
            event.kind = length == 0 ? Kind::point : Kind::whole;
            event.content = contents.of({event.kind, event.source, *sourceIn, *sourceOut, length});
        }
        return event;
    }

    TextNumbers texts;
    Listed oldEvents;
    Listed newEvents;
    Sources sources;
    Numbers<std::uint32_t> tracks;
    Numbers<std::array<std::uint32_t, 4>> oddTimecodes;
    Numbers<std::tuple<Kind, std::uint32_t, std::int64_t, std::int64_t, std::int64_t>> contents;
    CutPair pair;
};

By usualBy(const CutList& oldList, const CutList& newList) {
    return isFromEDL(oldList) && isFromEDL(newList) ? By::reel : By::name;
}

}  // namespace

std::optional<std::uint32_t> findTrack(const std::vector<std::string>& tracks,
                                       std::string_view text) {
    const auto found = std::ranges::find_if(
        tracks, [&](const std::string& track) { return areEquivalent(track, text); });
    if (found == tracks.end()) return std::nullopt;
    return static_cast<std::uint32_t>(found - tracks.begin());
}

CutPair makeComparable(const CutList& oldList, const CutList& newList, std::optional<By> by) {
    return PairMaker(oldList, newList, by.value_or(usualBy(oldList, newList))).make();
}

}  // namespace clipvane::diff
