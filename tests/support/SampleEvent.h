// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include <clipvane/TimelineEvent.h>
#include <clipvane/UUID.h>

namespace clipvane::test {

/// An event of 100 frames at 25 frames per second.
inline TimelineEvent sampleEvent(const std::string& number = "001") {
    static UUIDGenerator generator;
    TimelineEvent event;
    event.id = generator.next();
    event.eventNumber = number;
    event.clipName = "A001_C002";
    event.reelID = "A001";
    event.sourceIn = "01:00:00:00";
    event.sourceOut = "01:00:04:00";
    event.recordIn = "00:00:00:00";
    event.recordOut = "00:00:04:00";
    event.format = "EDL";
    event.track = "V";
    return event;
}

}  // namespace clipvane::test
