// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/ListedEvent.h"

#include <algorithm>

#include "commands/diff/FrameCount.h"

namespace clipvane::diff {
namespace {

bool isBlack(const EventView& event) {
    if (event.format == "EDL") return event.reelID == "BL" || event.reelID == "BLK";
    return event.rawText() == "gap";
}

/// The numbers of a column in which a text is mostly that of the row above.
class LatestNumber {
  public:
    explicit LatestNumber(TextNumbers& numbers) : numbers(numbers) {}

    /// The text must outlive the next call.
    std::uint32_t of(std::string_view text) {
        if (text != latest) {
            number = numbers.of(text);
            latest = text;
        }
        return number;
    }

  private:
    TextNumbers& numbers;
    std::string_view latest;
    std::uint32_t number = 0;  // of the empty text
};

}  // namespace

ListedEvents listEvents(const CutList& list, TextNumbers& numbers) {
    ListedEvents listed;
    listed.events.reserve(list.events.size());
    const FrameCounter counter(list.counting);
    LatestNumber tracks(numbers);
    std::uint32_t row = 0;
    for (const auto& event : list.events) {
        const std::uint32_t here = row++;
        listed.isFromEDL = listed.isFromEDL && event.format == "EDL";
        if (isBlack(event)) continue;
        ListedEvent& result = listed.events.emplace_back();
        result.row = here;
        result.reel = numbers.of(event.reelID);
        result.name = numbers.of(givenName(event.clipName, event.eventNumber));
        result.track = tracks.of(event.track);
        const std::array<std::string_view, 4> texts{event.sourceIn, event.sourceOut, event.recordIn,
                                                    event.recordOut};
        std::ranges::transform(texts, result.times.begin(),
                               [&](std::string_view text) { return counter.count(text); });
        const auto& times = result.times;
        const bool isOdd = !std::ranges::all_of(times, [](const auto& t) { return t.has_value(); });
        if (isOdd || *times[3] < *times[2]) {
            std::ranges::transform(texts, result.timecodes.begin(),
                                   [&](std::string_view text) { return numbers.of(text); });
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
    for (const auto& event : list.events) {
        if (event.format != "EDL") return false;
    }
    return true;
}

}  // namespace clipvane::diff
