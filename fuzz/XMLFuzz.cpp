// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The XML reader gives the events of a reader that goes step by step, at the rate that the document
// names.

#include <clipvane/FrameRateSource.h>
#include <clipvane/TimelineParser.h>
#include "Events.h"
#include "Target.h"
#include "base/UTF8.h"
#include "import/XMLEncoding.h"
#include "judges/XMLJudge.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    const std::string_view document = textOf(data, size);
    const double fps = TimelineParser::detectFPS(document).value_or(defaultFPS);

    const auto events = unlessFatal([&] { return TimelineParser::parseXML(document, fps); });
    const auto expected = unlessFatal([&] {
        const XMLBytes readable = readableXML(document);
        return test::judgedXML(readable.bytes.view(), readable.encoding, fps);
    });
    require(events.has_value() == expected.has_value(), "both stop, or neither");
    if (!events) return 0;
    require(sameFields(*events, *expected), "the events are those of the plain reader");
    for (const EventView& event : *events) {
        require(validUTF8Prefix(event.clipName) == event.clipName.size(), "names are UTF-8");
    }
    return 0;
}
