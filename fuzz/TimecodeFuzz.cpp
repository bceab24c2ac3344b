// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// The timecode arithmetic is that of plain 128-bit integers and the C library, and has the
// properties of counting: what was written is read again, and a higher rate loses nothing.

#include <clipvane/Timecode.h>

#include <cstdlib>

#include <clipvane/FrameRate.h>
#include "Rates.h"
#include "Target.h"

namespace {

using namespace clipvane;
using namespace clipvane::fuzz;

void checkCount(std::int64_t count, double fps) {
    for (const bool dropFrame : {false, true}) {
        const auto text = unlessFatal([&] { return timecode(count, fps, dropFrame); });
        const char separator = dropFrame ? ';' : ':';
        require(text == unlessFatal([&] { return test::judgedTimecode(count, fps, separator); }),
                "a count is written as the C library writes it");
        if (text) require(frames(*text, fps) == count, "a written count is read again");
    }
}

void checkRoundTrip(std::int64_t count, double from, double to) {
    // Beyond these, the doubles in between have too few digits.
    constexpr std::int64_t largestCount = std::int64_t{1} << 30;
    constexpr std::int64_t largestBase = 1000;
    const auto bases = unlessFatal([&] { return std::pair(frameBase(from), frameBase(to)); });
    if (!bases || std::abs(count % largestCount) != std::abs(count)) return;
    if (bases->first > bases->second || bases->second > largestBase) return;
    const std::string text = timecode(count, from, false);
    const std::string converted = convertTimecode(text, from, to);
    require(convertTimecode(converted, to, from) == text, "a rate as high loses no frame");
}

void checkTexts(const std::string& first, const std::string& second, double from, double to) {
    const auto count = unlessFatal([&] { return frames(first, from); });
    require(count == unlessFatal([&] { return test::judgedFrames(first, from); }),
            "frames are counted as described");
    const auto converted = unlessFatal([&] { return convertTimecode(first, from, to); });
    require(converted == unlessFatal([&] { return test::judgedConversion(first, from, to); }),
            "conversion is the described one");
    const auto duration = unlessFatal([&] { return durationDisplay(first, second, from); });
    require(duration == unlessFatal([&] { return test::judgedDuration(first, second, from); }),
            "a duration is the described one");
    if (count && *count) checkRoundTrip(**count, from, to);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view bytes = textOf(data, size);
    const double from = takeRate(bytes);
    const double to = takeRate(bytes);
    require(unlessFatal([&] { return formatFPS(from); }) ==
                unlessFatal([&] { return test::judgedLabel(from); }),
            "a rate is labelled as the C library writes it");

    std::int64_t count = 0;
    std::memcpy(&count, bytes.data(), std::min(bytes.size(), sizeof count));
    checkCount(count, from);
    const std::size_t end = std::min(bytes.find('|'), bytes.size());
    checkTexts(std::string(bytes.substr(0, end)),
               std::string(bytes.substr(std::min(end + 1, bytes.size()))), from, to);
    return 0;
}
