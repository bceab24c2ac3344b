// A rate and a text through the arithmetic and through XML's timing values. The first eight bytes
// are the rate.

#include <cstring>

#include "Guarded.h"
#include "import/CommonTimelineXMLDelegate.h"
#include "timecode/FrameRate.h"
#include "timecode/Timecode.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    double fps = 0;
    if (size < sizeof fps) return 0;
    std::memcpy(&fps, data, sizeof fps);
    const std::string_view text = textOf(data + sizeof fps, size - sizeof fps);
    guarded([&] { formatFPS(fps); });
    guarded([&] { CommonTimelineXMLDelegate(fps).timing(text); });
    guarded([&] {
        // What converting gives is a timecode if it was given one.
        const std::string converted = convertTimecode(text, 25, fps);
        if (frames(text, 25) && !frames(converted, fps)) __builtin_trap();
    });
    guarded([&] { durationDisplay(text, "01:00:00:00", fps); });
    return 0;
}
