// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// An EDL through import and every export and back: columns end at white space and names at the
// line's end, so that every event comes back.

#include <clipvane/FrameRateSource.h>
#include <clipvane/TimelineParser.h>
#include "ReadBack.h"
#include "Target.h"
#include "base/UTF8.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    const std::string text = replaceInvalidUTF8(textOf(data, size));
    TimelineDocument document;
    document.fps = TimelineParser::detectFPS(text).value_or(defaultFPS);
    document.events = TimelineParser::parseEDL(text);
    for (const EventView& event : document.events) {
        require(fitsEDL(event.record()), "an event from an EDL fits an EDL");
    }
    requireEDLReadsBack(document);
    requireCSVReadsBack(document);
    requireJSONReadsBack(document);
    return 0;
}
