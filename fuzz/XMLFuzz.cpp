// An XML timeline through detection, reading and both exports.

#include "Guarded.h"
#include "base/UTF8.h"
#include "commands/CSVReport.h"
#include "commands/EditedEDL.h"
#include "import/TimelineParser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace clipvane;
    guarded([&] {
        const std::string_view bytes = textOf(data, size);
        TimelineDocument document;
        document.fps = TimelineParser::detectFPS(bytes).value_or(document.fps);
        document.events = TimelineParser::parseXML(bytes, document.fps);
        // Whatever the bytes were, texts are UTF-8.
        const std::string edl = edlText(document);
        if (validUTF8Prefix(edl) != edl.size()) __builtin_trap();
        csvText(document);
    });
    return 0;
}
