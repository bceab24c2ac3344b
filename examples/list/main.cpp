// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

// Lists the events of a timeline, at another frame rate if one is given:
//
//     list cut.fcpxml
//     list cut.fcpxml 25

#include <charconv>
#include <cstdio>
#include <string>
#include <string_view>

#include <clipvane/FrameRate.h>
#include <clipvane/FrameRateSource.h>
#include <clipvane/TimelineParser.h>
#include <clipvane/TimelineRate.h>

namespace {

std::string shown(std::string_view field) {
    return field.empty() ? "-" : std::string(field);
}

/// The rate that `text` begins with, or 0.
double rateIn(std::string_view text) {
    double rate = 0;
    std::from_chars(text.data(), text.data() + text.size(), rate);
    return rate;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace clipvane;
    const double rate = argc == 3 ? rateIn(argv[2]) : 0;
    if (argc != 2 && !(rate > 0 && rate <= 1000)) {
        std::fputs("usage: list TIMELINE [FPS]\n", stderr);
        return 2;
    }

    auto timeline = TimelineParser::parse(argv[1]);
    if (!timeline) {
        std::fprintf(stderr, "list: %s\n", timeline.error().description.c_str());
        return 1;
    }
    if (rate > 0) {
        convertTimecodes(timeline->events, timeline->fps, rate);
        timeline->fps = rate;
        timeline->fpsSource = fpsSourceManual;
    }

    std::printf("%zu events at %s fps (%s)\n", timeline->events.size(),
                formatFPS(timeline->fps).c_str(), timeline->fpsSource.c_str());
    for (const EventView& event : timeline->events) {
        const std::string line = shown(event.eventNumber) + "  " + shown(event.reelID) + "  " +
                                 shown(event.track) + "  " + shown(event.sourceIn) + " " +
                                 shown(event.sourceOut) + "  " + shown(event.recordIn) + " " +
                                 shown(event.recordOut) + "  " + shown(event.clipName);
        std::puts(line.c_str());
    }
    return 0;
}
