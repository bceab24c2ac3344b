// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/CutPair.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "commands/diff/ListedEvent.h"
#include "commands/diff/TextNumbers.h"

namespace clipvane::diff {
namespace {

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

/// Tells sources apart, by reels and given names.
class Sources {
  public:
    Sources(By by, std::uint32_t ax, const Cut& oldCut, const Cut& newCut)
        : by(by), silentReels{0, ax} {
        findSilentReel(oldCut);
        findSilentReel(newCut);
    }

    std::uint32_t of(const CutEvent& event) {
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

    void findSilentReel(const Cut& cut) {
        if (cut.empty()) return;
        const std::uint32_t reel = cut.front().reel;
        std::optional<std::uint32_t> name;
        bool hasSeveralNames = false;
        for (const CutEvent& event : cut) {
            if (event.reel != reel) return;
            if (event.name == 0) continue;
            if (!name) name = event.name;
            hasSeveralNames = hasSeveralNames || event.name != *name;
        }
        if (hasSeveralNames) silentReels.push_back(reel);
    }

    Told toldBy(const CutEvent& event) const {
        if (by == By::reelAndName) return Told::byBoth;
        if (by == By::name) return event.name != 0 ? Told::byName : Told::byReel;
        const bool isSilent = std::ranges::find(silentReels, event.reel) != silentReels.end();
        return isSilent ? Told::byBoth : Told::byReel;
    }

    By by;
    std::vector<std::uint32_t> silentReels;  // at most four
    Table byReel;
    Table byName;
    Table byBoth;
    Numbers<std::pair<std::uint32_t, std::uint32_t>> pairs;
    std::uint32_t count = 0;
};

/// Gives the events of both lists their sources and contents.
class Numbering {
    /// Kind, source, and what else must be equal.
    using Thing = std::tuple<Kind, std::uint32_t, std::int64_t, std::int64_t, std::int64_t>;

  public:
    explicit Numbering(Sources sources) : sources(std::move(sources)) {}

    void number(ListedEvents& listed) {
        auto odd = listed.odd.begin();
        for (CutEvent& event : listed.cut) {
            event.source = sources.of(event);
            if (event.kind == Kind::plain) {
                event.content = plainContents.of(event.source, [&] { return contentCount++; });
            } else if (event.kind == Kind::odd) {
                const std::uint32_t timecodes = oddTimecodes.of(*odd++);
                event.content = contentOf({event.kind, event.source, timecodes, 0, 0});
            } else {
                event.content = contentOf({event.kind, event.source, event.sourceIn,
                                           event.sourceOut, event.recordOut - event.recordIn});
            }
        }
    }

  private:
    /// The content of an event that is compared as one thing.
    std::uint32_t contentOf(const Thing& thing) {
        return thingContents.of(things.of(thing), [&] { return contentCount++; });
    }

    Sources sources;
    Table plainContents;
    Table thingContents;
    Numbers<OddTimecodes> oddTimecodes;
    Numbers<Thing> things;
    std::uint32_t contentCount = 0;
};

/// The events by record in, then row; an odd one behind that of the row before it.
Cut inRecordOrder(Cut cut) {
    std::vector<std::int64_t> places;
    places.reserve(cut.size());
    for (const CutEvent& event : cut) {
        const std::int64_t before = places.empty() ? 0 : places.back();
        places.push_back(event.hasPlace() ? event.recordIn : before);
    }
    if (std::ranges::is_sorted(places)) return cut;
    std::vector<std::uint32_t> indices(cut.size());
    for (std::uint32_t i = 0; i < indices.size(); ++i) indices[i] = i;
    std::ranges::stable_sort(indices, {}, [&](std::uint32_t i) { return places[i]; });
    Cut sorted;
    sorted.reserve(cut.size());
    for (const std::uint32_t i : indices) sorted.push_back(cut[i]);
    return sorted;
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
    TextNumbers texts;
    TrackNumbers tracks;
    ListedEvents news = listEvents(newList, texts, tracks);
    const std::size_t inNew = tracks.all().size();
    ListedEvents olds = listEvents(oldList, texts, tracks);

    CutPair pair;
    pair.by = by.value_or(olds.isFromEDL && news.isFromEDL ? By::reel : By::name);
    pair.tracks = tracks.all();
    const bool isOneEmpty = olds.cut.empty() != news.cut.empty();
    const auto isInNew = [&](const CutEvent& event) { return event.track < inNew; };
    pair.comparesTracks = isOneEmpty || std::ranges::any_of(olds.cut, isInNew);
    if (!pair.comparesTracks) {
        pair.tracks = {""};
        for (Cut* const cut : {&olds.cut, &news.cut}) {
            for (CutEvent& event : *cut) event.track = 0;
        }
    }
    Numbering numbering({pair.by, texts.of("AX"), olds.cut, news.cut});
    numbering.number(olds);
    numbering.number(news);
    pair.oldCut = inRecordOrder(std::move(olds.cut));
    pair.newCut = inRecordOrder(std::move(news.cut));
    return pair;
}

}  // namespace clipvane::diff
