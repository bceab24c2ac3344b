// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "base/UUID.h"
#include "model/TimelineDocument.h"

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

/// Refills `document` with `count` sample events numbered from 001, at 25 frames per second.
inline void fillWithSamples(TimelineDocument& document, std::size_t count) {
    document.events = {};
    for (std::size_t n = 1; n <= count; ++n) {
        std::string number = std::to_string(n);
        if (number.size() < 3) number.insert(0, 3 - number.size(), '0');
        document.events.push_back(sampleEvent(number));
    }
    document.fps = 25.0;
    document.fpsSource = fpsSourceFile;
}

}  // namespace clipvane::test
