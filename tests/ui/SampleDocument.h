// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "model/TimelineDocument.h"

namespace clipvane::test {

/// Event `number`, counted from 1, each with an identity of its own.
inline TimelineEvent sampleEvent(unsigned number) {
    TimelineEvent event;
    for (unsigned i = 0; i < 4; ++i) {
        event.id.bytes[i] = static_cast<std::uint8_t>(number >> (8 * i));
    }
    const std::string text = std::to_string(number);
    event.eventNumber = std::string(text.size() < 3 ? 3 - text.size() : 0, '0') + text;
    event.clipName = "Clip " + event.eventNumber;
    event.reelID = "R" + event.eventNumber;
    event.sourceIn = "01:00:00:00";
    event.sourceOut = "01:00:04:00";
    event.recordIn = "02:00:00:00";
    event.recordOut = "02:00:04:00";
    event.format = "EDL";
    event.track = "V";
    return event;
}

inline std::vector<TimelineEvent> sampleEvents(unsigned count) {
    std::vector<TimelineEvent> events;
    for (unsigned number = 1; number <= count; ++number) events.push_back(sampleEvent(number));
    return events;
}

}  // namespace clipvane::test
