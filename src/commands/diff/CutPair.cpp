// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/CutPair.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "base/Number.h"
#include "commands/diff/ListedEvent.h"
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

/// Numbers for small numbers: a table where a map would be slow.
class Table {
  public:
    /// The number of `key`, which `make` gives when it is first asked for.
    template <class Make>
    std::uint32_t of(std::uint32_t key, Make make) {
        if (key >= numbers.size()) numbers.resize(key + std::size_t{1}, none);
        if (numbers[key] == none) numbers[key] = make();
        return numbers[key];
    }

  private:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
    std::vector<std::uint32_t> numbers;
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
        const auto next = [&] { return count++; };
        switch (toldBy(event)) {
            case Told::byReel:
                return byReel.of(event.reel, next);
            case Told::byName:
                return byName.of(event.name, next);
            case Told::byBoth:
                break;
        }
        return byBoth.of(pairs.of({event.reel, event.name}), next);
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
    Table byReel;
    Table byName;
    Table byBoth;
    Numbers<std::pair<std::uint32_t, std::uint32_t>> pairs;
    std::uint32_t count = 0;
};

class PairMaker {
    /// Kind, source, and what else must be equal.
    using Thing = std::tuple<Kind, std::uint32_t, std::int64_t, std::int64_t, std::int64_t>;

  public:
    PairMaker(const CutList& oldList, const CutList& newList, std::optional<By> by)
        : oldListed(listEvents(oldList, texts)),
          newListed(listEvents(newList, texts)),
          sources(by.value_or(usualBy()), texts.of("AX"), oldListed.events, newListed.events) {
        pair.by = by.value_or(usualBy());
        numberTracks(oldList, newList);
    }

    CutPair make() && {
        pair.oldCut = makeCut(oldListed.events);
        pair.newCut = makeCut(newListed.events);
        return std::move(pair);
    }

  private:
    By usualBy() const { return oldListed.isFromEDL && newListed.isFromEDL ? By::reel : By::name; }

    void numberTracks(const CutList& oldList, const CutList& newList) {
        numberTracks(newList, newListed.events);
        const std::size_t inNew = pair.tracks.size();
        numberTracks(oldList, oldListed.events);
        const bool isOneEmpty = oldListed.events.empty() != newListed.events.empty();
        const auto isInNew = [&](const ListedEvent& event) { return trackOf(event) < inNew; };
        pair.comparesTracks = isOneEmpty || std::ranges::any_of(oldListed.events, isInNew);
        if (!pair.comparesTracks) pair.tracks = {""};
    }

    void numberTracks(const CutList& list, const Listed& events) {
        for (const ListedEvent& event : events) {
            trackNumbers.of(event.track, [&] {
                pair.tracks.emplace_back(list.events[event.row].track);
                return static_cast<std::uint32_t>(pair.tracks.size() - 1);
            });
        }
    }

    std::uint32_t trackOf(const ListedEvent& event) {
        return trackNumbers.of(event.track, [] { return std::uint32_t{0}; });
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
        event.track = pair.comparesTracks ? trackOf(listed) : 0;
        event.name = pair.by == By::reel ? listed.name : 0;
        event.source = sources.of(listed);
        const auto& [sourceIn, sourceOut, recordIn, recordOut] = listed.times;
        if (!sourceIn || !sourceOut || !recordIn || !recordOut || *recordOut < *recordIn) {
            event.kind = Kind::odd;
            const std::uint32_t timecodes = oddTimecodes.of(listed.timecodes);
            event.content = contentOf({event.kind, event.source, timecodes, 0, 0});
            return event;
        }
        event.sourceIn = *sourceIn;
        event.sourceOut = *sourceOut;
        event.recordIn = *recordIn;
        event.recordOut = *recordOut;
        const std::int64_t length = subtractChecked(*recordOut, *recordIn);
        const std::int64_t sourceLength = subtractChecked(*sourceOut, *sourceIn);
        if (length == sourceLength && length > 0) {
            event.content = plainContents.of(event.source, [&] { return contentCount++; });
        } else {
            event.kind = length == 0 ? Kind::point : Kind::whole;
            event.content = contentOf({event.kind, event.source, *sourceIn, *sourceOut, length});
        }
        return event;
    }

    /// The content of an event that is compared as one thing.
    std::uint32_t contentOf(const Thing& thing) {
        return thingContents.of(things.of(thing), [&] { return contentCount++; });
    }

    TextNumbers texts;
    ListedEvents oldListed;
    ListedEvents newListed;
    Sources sources;
    Table trackNumbers;
    Table plainContents;
    Table thingContents;
    Numbers<std::array<std::uint32_t, 4>> oddTimecodes;
    Numbers<Thing> things;
    std::uint32_t contentCount = 0;
    CutPair pair;
};

}  // namespace

std::optional<std::uint32_t> findTrack(const std::vector<std::string>& tracks,
                                       std::string_view text) {
    const auto found = std::ranges::find_if(
        tracks, [&](const std::string& track) { return areEquivalent(track, text); });
    if (found == tracks.end()) return std::nullopt;
    return static_cast<std::uint32_t>(found - tracks.begin());
}

CutPair makeComparable(const CutList& oldList, const CutList& newList, std::optional<By> by) {
    return PairMaker(oldList, newList, by).make();
}

}  // namespace clipvane::diff
