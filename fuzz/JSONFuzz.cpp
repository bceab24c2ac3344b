// The keyed form of an event: what is read is written and read again, whole.

#include "Events.h"
#include "Target.h"
#include "base/UTF8.h"
#include "model/TimelineEventJSON.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    using namespace clipvane::fuzz;
    const auto event = decodeJSON(textOf(data, size));
    if (!event) {
        const Error& error = event.error();
        require(error.domain == "JSON" && !error.description.empty(), "a refusal has its reason");
        require(validUTF8Prefix(error.description) == error.description.size(),
                "a reason is UTF-8");
        return 0;
    }
    const std::string json = encodeJSON(*event);
    const auto again = decodeJSON(json);
    require(again && again->id == event->id && sameFields(*again, *event),
            "an event comes back whole");
    require(encodeJSON(*again) == json, "an event has one form");
    return 0;
}
