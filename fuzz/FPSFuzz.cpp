// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The frame-rate detection gives the rate that ICU's engine finds with the four patterns, whether
// or not invalid bytes were replaced before: no pattern asks for one.

#include <clipvane/TimelineParser.h>
#include "Target.h"
#include "base/UTF8.h"
#include "judges/FrameRateJudge.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    static test::FrameRateJudge judge;
    const std::string_view bytes = textOf(data, size);
    const auto expected = judge.detect(test::utf16(bytes));
    require(test::sameRate(TimelineParser::detectFPS(bytes), expected),
            "the rate is the patterns'");
    require(test::sameRate(TimelineParser::detectFPS(replaceInvalidUTF8(bytes)), expected),
            "replacing invalid bytes changes no rate");
    return 0;
}
