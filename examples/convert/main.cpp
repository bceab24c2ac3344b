// Reads a timeline and writes its CSV report and its edited EDL:
//
//     convert cut.fcpxml exports
//
// leaves exports/cut.csv and exports/cut.edl, and says what it read.

#include <cstdio>
#include <filesystem>
#include <string>

#include "commands/CSVReport.h"
#include "commands/EditedEDL.h"
#include "import/TimelineParser.h"
#include "timecode/FrameRate.h"

namespace {

int fail(const clipvane::Error& error) {
    std::fprintf(stderr, "convert: %s\n", error.description.c_str());
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace clipvane;
    if (argc != 3) {
        std::fputs("usage: convert TIMELINE FOLDER\n", stderr);
        return 2;
    }
    const std::filesystem::path timeline = argv[1];
    const std::filesystem::path folder = argv[2];

    auto parsed = TimelineParser::parse(timeline);
    if (!parsed) return fail(parsed.error());

    TimelineDocument document;
    document.sourceURL = timeline;
    document.events = std::move(parsed->events);
    document.fps = parsed->fps;
    document.fpsSource = parsed->fpsSource;

    const std::filesystem::path csv = folder / timeline.stem().concat(".csv");
    const std::filesystem::path edl = folder / timeline.stem().concat(".edl");
    std::error_code notThere;
    if (std::filesystem::equivalent(edl, timeline, notThere)) {
        return fail({"convert", 1, "the folder is the timeline's own: its EDL would replace it"});
    }
    if (const auto written = writeCSV(document, csv); !written) return fail(written.error());
    if (const auto written = writeEDL(document, edl); !written) return fail(written.error());

    std::printf("%zu events at %s fps (%s)\n%s\n%s\n", document.events.size(),
                formatFPS(document.fps).c_str(), document.fpsSource.c_str(), csv.c_str(),
                edl.c_str());
    return 0;
}
