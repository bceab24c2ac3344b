// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/CutList.h"

#include <algorithm>

namespace clipvane::diff {
namespace {

bool isBlack(const EventView& event) {
    if (event.format == "EDL") return event.reelID == "BL" || event.reelID == "BLK";
    return event.rawText() == "gap";
}

}  // namespace

std::vector<ListedEvent> listEvents(const CutList& list, TextNumbers& numbers) {
    std::vector<ListedEvent> listed;
    listed.reserve(list.events.size());
    std::uint32_t row = 0;
    for (const auto& event : list.events) {
        const std::uint32_t here = row++;
        if (isBlack(event)) continue;
        ListedEvent& result = listed.emplace_back();
        result.row = here;
        result.reel = numbers.of(event.reelID);
        result.name = numbers.of(givenName(event.clipName, event.eventNumber));
        result.track = numbers.of(event.track);
        const std::array<std::string_view, 4> texts{event.sourceIn, event.sourceOut, event.recordIn,
                                                    event.recordOut};
        std::ranges::transform(texts, result.times.begin(), [&](std::string_view text) {
            return countFrames(text, list.counting);
        });
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
