// XML's timing values are those of the description, by the C library's numbers.

#include "Rates.h"
#include "Target.h"
#include "base/UTF8.h"
#include "import/CommonTimelineXMLDelegate.h"
#include "judges/TimingJudge.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    std::string_view bytes = textOf(data, size);
    const double fps = takeRate(bytes);
    const std::string value = replaceInvalidUTF8(bytes);
    const CommonTimelineXMLDelegate reader(fps);

    const auto timing = unlessFatal([&] { return reader.timing(value); });
    require(timing == unlessFatal([&] { return test::judgedTiming(value, fps); }),
            "the timing is the described one");
    const auto frames = unlessFatal([&] { return reader.frames(value); });
    require(frames == unlessFatal([&] { return test::judgedTimingFrames(value, fps); }),
            "the frames are counted as described");

    // What was written for a number of frames is read as that number.
    if (!timing || !frames || !*frames) return 0;
    const auto again = unlessFatal([&] { return reader.frames(reader.timecode(**frames)); });
    require(again == frames, "a timecode counts the frames that it was written for");
    return 0;
}
