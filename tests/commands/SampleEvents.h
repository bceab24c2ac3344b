// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include <clipvane/TimelineDocument.h>
#include "support/SampleEvent.h"

namespace clipvane::test {

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
