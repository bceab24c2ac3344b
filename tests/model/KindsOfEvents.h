// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "model/FullEvent.h"

namespace clipvane::test {

/// `fullEvent` with a change.
inline TimelineEvent changed(const std::function<void(TimelineEvent&)>& change) {
    TimelineEvent event = fullEvent();
    change(event);
    return event;
}

inline constexpr std::size_t wide = 70'000;  // more than a row's sixteen bits can tell

/// Events that a row holds in each of its ways.
inline std::vector<TimelineEvent> allKinds() {
    using Event = TimelineEvent;
    return {
        fullEvent(),
        fullEvent(),
        changed([](Event& e) { e = {}; }),
        changed([](Event& e) { e.format = "XML"; }),
        changed([](Event& e) { e.format = ""; }),
        changed([](Event& e) { e.format = std::string(wide, 'f'); }),
        changed([](Event& e) { e.comments = ""; }),
        changed([](Event& e) { e.highlighted = false; }),
        changed([](Event& e) { e.sourceIn = ""; }),
        changed([](Event& e) { e.sourceOut = "01:00:00;12"; }),
        changed([](Event& e) { e.recordIn = "1:2:3:4"; }),
        changed([](Event& e) { e.recordOut = "\u0661\u0662:00:00:00"; }),
        changed([](Event& e) { e.sourceIn = "00:00:00:123456"; }),
        changed([](Event& e) { e.sourceIn = std::string(wide, '1'); }),
        changed([](Event& e) { e.eventNumber = std::string(65'535, '1'); }),
        changed([](Event& e) { e.clipName = std::string(wide, 'n'); }),
        changed([](Event& e) { e.reelID = std::string(wide, 'r'); }),
        changed([](Event& e) { e.track = std::string(wide, 't'); }),
        changed([](Event& e) { e.rawText = std::string(65'535, 'w'); }),
        changed([](Event& e) { e.rawText = std::string(65'536, 'w'); }),
        changed([](Event& e) { e.clipName = std::string("a\0b", 3); }),
    };
}

}  // namespace clipvane::test
