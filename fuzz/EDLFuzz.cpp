// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The EDL reader gives the events that ICU's engine finds with the event pattern, and bytes become
// the text that ICU makes of them.

#include <clipvane/TimelineParser.h>
#include "Events.h"
#include "Target.h"
#include "base/UTF8.h"
#include "judges/EDLJudge.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    static test::EDLJudge judge;
    const icu::UnicodeString judgedText = test::utf16(textOf(data, size));
    const std::string text = replaceInvalidUTF8(textOf(data, size));
    require(text == test::utf8(judgedText), "invalid bytes become U+FFFD as ICU has it");
    require(sameFields(TimelineParser::parseEDL(text), judge.read(judgedText)),
            "the events are those of the event pattern");
    return 0;
}
