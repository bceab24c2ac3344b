// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/ListedEvent.h"

#include <cstddef>
#include <limits>
#include <optional>

#include "commands/diff/FrameCount.h"

namespace clipvane::diff {
namespace {

constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

bool isBlack(const Events& events, std::size_t row, const KeptEvent& event) {
    if (event.isFromEDL) return event.reelID == "BL" || event.reelID == "BLK";
    return events[row].rawText() == "gap";
}

/// Reads the times of one list's events.
class TimeReader {
  public:
    TimeReader(const CutList& list, TextNumbers& texts)
        : events(list.events), counter(list.counting), texts(texts) {}

    /// Sets kind and times, and tells whether the event is odd.
    bool read(const KeptEvent& from, CutEvent& event) const {
        const auto& [sourceIn, sourceOut, recordIn, recordOut] = from.timecodes;
        const bool areTimes = set(event.sourceIn, sourceIn) && set(event.sourceOut, sourceOut) &&
                              set(event.recordIn, recordIn) && set(event.recordOut, recordOut);
        if (!areTimes || event.recordOut < event.recordIn) {
            event.sourceIn = event.sourceOut = event.recordIn = event.recordOut = 0;
            event.kind = Kind::odd;
            return true;
        }
        const std::int64_t length = subtractChecked(event.recordOut, event.recordIn);
        if (length == 0) {
            event.kind = Kind::point;
        } else if (length != subtractChecked(event.sourceOut, event.sourceIn)) {
            event.kind = Kind::whole;
        }
        return false;
    }

    /// A number for the text of a timecode. What is packed has a text of its own, which no other
    /// is equivalent to.
    std::uint32_t textNumber(RowTimecode timecode) const {
        constexpr std::uint32_t unusual = 0x8000'0000;
        if (timecode.isPacked()) return timecode.packed().bits();
        return unusual | texts.of(events.unusualText(timecode));
    }

  private:
    bool set(std::int64_t& time, RowTimecode timecode) const {
        if (timecode.isPacked()) {
            time = counter.count(timecode.packed());
            return true;
        }
        const auto count = counter.count(events.unusualText(timecode));
        time = count.value_or(0);
        return count.has_value();
    }

    const Events& events;
    FrameCounter counter;
    TextNumbers& texts;
};

}  // namespace

std::uint32_t TrackNumbers::of(std::string_view text) {
    if (!tracks.empty() && text == latest) return latestNumber;
    const std::uint32_t key = texts.of(text);
    if (key >= numbers.size()) numbers.resize(key + std::size_t{1}, none);
    if (numbers[key] == none) {
        numbers[key] = static_cast<std::uint32_t>(tracks.size());
        tracks.emplace_back(text);
    }
    latest = text;
    latestNumber = numbers[key];
    return latestNumber;
}

ListedEvents listEvents(const CutList& list, TextNumbers& texts, TrackNumbers& tracks) {
    ListedEvents listed;
    listed.cut.reserve(list.events.size());
    const TimeReader times(list, texts);
    for (std::size_t row = 0; row < list.events.size(); ++row) {
        const KeptEvent event = list.events.kept(row);
        listed.isFromEDL = listed.isFromEDL && event.isFromEDL;
        if (isBlack(list.events, row, event)) continue;
        CutEvent& result = listed.cut.emplace_back();
        result.row = static_cast<std::uint32_t>(row);
        result.track = tracks.of(event.track);
        result.reel = texts.of(event.reelID);
        result.name = texts.of(givenName(event.clipName, event.eventNumber));
        if (times.read(event, result)) {
            OddTimecodes& odd = listed.odd.emplace_back();
            for (std::size_t i = 0; i < odd.size(); ++i) {
                odd[i] = times.textNumber(event.timecodes[i]);
            }
        }
    }
    return listed;
}

std::string_view givenName(std::string_view clipName, std::string_view eventNumber) {
    constexpr std::string_view standIn = "Clip ";
    const bool standsIn =
        clipName.starts_with(standIn) && clipName.substr(standIn.size()) == eventNumber;
    return standsIn ? std::string_view() : clipName;
}

bool isFromEDL(const CutList& list) {
    for (std::size_t row = 0; row < list.events.size(); ++row) {
        if (!list.events.kept(row).isFromEDL) return false;
    }
    return true;
}

}  // namespace clipvane::diff
