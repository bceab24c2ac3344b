// An EDL through detection, reading, both exports and back: what was written must read again as the
// same number of events, unless a name or reel breaks its line.

#include "Guarded.h"
#include "base/UTF8.h"
#include "commands/CSVReport.h"
#include "commands/EditedEDL.h"
#include "import/TimelineParser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    guarded([&] {
        const std::string text = replaceInvalidUTF8(textOf(data, size));
        TimelineDocument document;
        document.events = TimelineParser::parseEDL(text);
        document.fps = TimelineParser::detectFPS(text).value_or(document.fps);
        // A column ends at white space, so no event's own line can be broken or lost.
        if (TimelineParser::parseEDL(edlText(document)).size() != document.events.size()) {
            __builtin_trap();
        }
        csvText(document);
    });
    return 0;
}
