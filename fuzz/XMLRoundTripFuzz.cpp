// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// An XML timeline through import and every export and back. Names and columns may hold anything,
// so that the EDL is written of those events alone that one can hold.

#include <clipvane/EditedEDL.h>
#include <clipvane/FrameRateSource.h>
#include <clipvane/TimelineParser.h>
#include "ReadBack.h"
#include "Target.h"
#include "base/UTF8.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    const std::string_view bytes = textOf(data, size);
    TimelineDocument document;
    document.fps = TimelineParser::detectFPS(bytes).value_or(defaultFPS);
    auto events = unlessFatal([&] { return TimelineParser::parseXML(bytes, document.fps); });
    if (!events) return 0;
    document.events = std::move(*events);
    requireCSVReadsBack(document);
    requireJSONReadsBack(document);
    const std::string text = edlText(document);
    require(validUTF8Prefix(text) == text.size(), "an EDL is UTF-8");
    for (std::size_t row = document.events.size(); row-- > 0;) {
        if (!fitsEDL(document.events[row].record())) document.events.erase(row);
    }
    requireEDLReadsBack(document);
    return 0;
}
