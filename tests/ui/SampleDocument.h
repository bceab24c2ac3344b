// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <clipvane/TimelineDocument.h>
#include "support/SampleEvent.h"

namespace clipvane::test {

/// Event `number`, counted from 1, each with an identity and names of its own.
inline TimelineEvent numberedEvent(unsigned number) {
    const std::string text = std::to_string(number);
    TimelineEvent event =
        sampleEvent(std::string(text.size() < 3 ? 3 - text.size() : 0, '0') + text);
    event.id = {};
    for (unsigned i = 0; i < 4; ++i) {
        event.id.bytes[i] = static_cast<std::uint8_t>(number >> (8 * i));
    }
    event.clipName = "Clip " + event.eventNumber;
    event.reelID = "R" + event.eventNumber;
    event.recordIn = "02:00:00:00";
    event.recordOut = "02:00:04:00";
    return event;
}

inline std::vector<TimelineEvent> numberedEvents(unsigned count) {
    std::vector<TimelineEvent> events;
    for (unsigned number = 1; number <= count; ++number) events.push_back(numberedEvent(number));
    return events;
}

}  // namespace clipvane::test
