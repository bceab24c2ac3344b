// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include <clipvane/diff/CutList.h>
#include "commands/diff/TextNumbers.h"

namespace clipvane::diff {

/// What the comparison reads of an event. Texts are numbers (commands/diff/TextNumbers.h).
struct ListedEvent {
    std::uint32_t row = 0;
    std::uint32_t reel = 0;
    std::uint32_t name = 0;  ///< 0 where "Clip" and the event's number stand in for a name
    std::uint32_t track = 0;
    std::array<std::uint32_t, 4> timecodes{};          ///< as texts, only where one is none
    std::array<std::optional<std::int64_t>, 4> times;  ///< source in and out, record in and out
};

/// The events of a list that take part.
struct ListedEvents {
    std::vector<ListedEvent> events;
    bool isFromEDL = true;  ///< all of the list, what takes no part among it
};

/// Lists all events but black, which is reel BL or BLK in an EDL, and a gap in an XML timeline.
ListedEvents listEvents(const CutList& list, TextNumbers& numbers);

/// The event's name; empty where "Clip" and the event's number stand in for one.
std::string_view givenName(std::string_view clipName, std::string_view eventNumber);

/// Whether all events of the list come from an EDL.
bool isFromEDL(const CutList& list);

}  // namespace clipvane::diff
