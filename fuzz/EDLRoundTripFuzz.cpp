// An EDL through import and every export and back: columns end at white space and names at the
// line's end, so that every event comes back. The first byte chooses the rate.

#include "Rates.h"
#include "ReadBack.h"
#include "Target.h"
#include "base/UTF8.h"
#include "import/TimelineParser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    std::string_view bytes = textOf(data, size);
    TimelineDocument document;
    document.fps = takeRate(bytes);
    document.events = TimelineParser::parseEDL(replaceInvalidUTF8(bytes));
    for (const TimelineEvent& event : document.events) {
        require(fitsEDL(event), "an event from an EDL fits an EDL");
    }
    requireEDLReadsBack(document);
    requireCSVReadsBack(document);
    requireJSONReadsBack(document);
    return 0;
}
