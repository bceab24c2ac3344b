// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// XML's timing values are those of the description, by the C library's numbers.

#include "Rates.h"
#include "Target.h"
#include "base/UTF8.h"
#include "import/XMLTiming.h"
#include "judges/TimingJudge.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    std::string_view bytes = textOf(data, size);
    const double fps = takeRate(bytes);
    const std::string value = replaceInvalidUTF8(bytes);

    const auto time = unlessFatal([&] { return xmlTime(value, fps); });
    const auto judged = unlessFatal([&] { return test::judgedTiming(value, fps); });
    require(time.has_value() == judged.has_value() && (!time || time->text() == *judged),
            "the timing is the described one");
    const auto frames = unlessFatal([&] { return xmlFrames(value, fps); });
    require(frames == unlessFatal([&] { return test::judgedTimingFrames(value, fps); }),
            "the frames are counted as described");
    if (time) {
        const auto kept = unlessFatal([&] { return time->frames(fps); });
        const auto again = unlessFatal([&] { return xmlFrames(time->text(), fps); });
        require(kept == again, "the kept count is the one of the text");
    }

    // What was written for a number of frames is read as that number. At an impossible rate, at
    // which zero seconds are still zero frames, it cannot be written.
    if (!frames || !*frames) return 0;
    const auto written = unlessFatal([&] { return xmlFrames(XMLTime(**frames, fps).text(), fps); });
    require(!written || written == frames, "a timecode counts the frames that it was written for");
    return 0;
}
