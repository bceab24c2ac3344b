// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/TimelineReading.h"

#include <cmath>
#include <string>
#include <utility>

#include <clipvane/FrameRate.h>
#include <clipvane/FrameRateSource.h>
#include <clipvane/TimelineRate.h>
#include "base/UTF8.h"
#include "cli/EventLines.h"
#include "cli/Impossible.h"
#include "cli/Reason.h"
#include "import/EDLReader.h"
#include "import/FrameRateDetection.h"

namespace clipvane::cli {
namespace {

/// Rates so close are one, as in the window.
constexpr double sameRate = 0.0001;

void setRate(TimelineDocument& document, std::optional<double> fps, std::optional<double> named) {
    document.fps = fps.value_or(named.value_or(defaultFPS));
    document.fpsSource = fps ? fpsSourceManual : named ? fpsSourceFile : fpsSourceDefault;
}

ReadTimeline edlTimeline(std::string text, std::optional<double> fps) {
    ReadTimeline timeline{std::make_unique<TimelineDocument>(), detectFPS(text)};
    setRate(*timeline.document, fps, timeline.namedRate);
    timeline.document->events = readEDL(std::move(text));
    return timeline;
}

ReadTimeline xmlTimeline(std::string_view data, std::optional<double> fps, XMLWatcher* watcher) {
    ReadTimeline timeline{std::make_unique<TimelineDocument>(), detectFPS(data)};
    setRate(*timeline.document, fps, timeline.namedRate);
    timeline.document->events = readXML(data, timeline.document->fps, watcher);
    return timeline;
}

Result<ReadTimeline> readJSONLines(std::string_view text, std::optional<double> fps) {
    auto document = parseEventLines(text, fps);
    if (!document) return tl::unexpected(std::move(document.error()));
    ReadTimeline timeline{std::move(*document), std::nullopt};
    if (timeline.document->fpsSource != fpsSourceDefault)
        timeline.namedRate = timeline.document->fps;
    if (fps) setRate(*timeline.document, fps, std::nullopt);
    return timeline;
}

Result<ReadTimeline> read(std::string_view bytes, TimelineFormat format, std::optional<double> fps,
                          XMLWatcher* watcher) {
    switch (format) {
        case TimelineFormat::edl:
            return edlTimeline(replaceInvalidUTF8(bytes), fps);
        case TimelineFormat::xml:
            return xmlTimeline(bytes, fps, watcher);
        case TimelineFormat::jsonLines:
            break;
    }
    return readJSONLines(bytes, fps);
}

/// Whether the rate is a guess. In a stream without lines there is nothing to guess about.
bool isGuess(const TimelineDocument& document, TimelineFormat format) {
    const bool isEmptyStream = format == TimelineFormat::jsonLines && document.events.empty();
    return document.fpsSource == fpsSourceDefault && !isEmptyStream;
}

}  // namespace

Result<ReadTimeline> readTimeline(const FileBytes& bytes, TimelineFormat format,
                                  std::optional<double> fps, XMLWatcher* watcher) {
    return possibly([&]() -> Result<ReadTimeline> {
        auto timeline = read(bytes.view(), format, fps, watcher);
        // A rate on which nothing can be counted fails here, not halfway through the output.
        if (timeline) static_cast<void>(frameBase(timeline->document->fps));
        return timeline;
    });
}

Result<InputBytes> readBytes(const Input& input, const ReadingOptions& options) {
    auto bytes = input.read();
    if (!bytes) return tl::unexpected(std::move(bytes.error()));
    const auto format = formatOf(input, options);
    if (!format) {
        return tl::unexpected(
            because("is not called .edl, .txt, .xml, .fcpxml or .xmeml: say with "
                    "--from what it is"));
    }
    return InputBytes{std::move(*bytes), *format};
}

void noteRate(const ReadTimeline& timeline, const std::string& title, const ReadingOptions& options,
              Session& session) {
    const auto rate = [](double fps) { return formatFPS(fps) + " fps"; };
    if (!options.fps && !timeline.namedRate) {
        session.note(title + " names no rate: read at " + rate(timeline.document->fps) +
                     "; say --fps if it was written at another");
    } else if (options.fps && timeline.namedRate &&
               !(std::abs(*options.fps - *timeline.namedRate) <= sameRate)) {
        // The named rate may be an impossible one, since the list is not read at it.
        const auto named =
            possibly([&]() -> Result<std::string> { return rate(*timeline.namedRate); });
        session.note(title + " names " + named.value_or("another rate") + ": read at " +
                     rate(*options.fps) + ", as --fps says");
    }
}

Result<std::unique_ptr<TimelineDocument>> readAsTold(const Input& input,
                                                     const ReadingOptions& options,
                                                     Session& session) {
    const auto content = readBytes(input, options);
    if (!content) return tl::unexpected(content.error());
    auto timeline = readTimeline(content->bytes, content->format, options.fps);
    if (!timeline) return tl::unexpected(std::move(timeline.error()));
    TimelineDocument& document = *timeline->document;
    if (options.to && isGuess(document, content->format)) {
        return tl::unexpected(
            because("names no rate, and --to would convert from a guess: say with "
                    "--fps at which rate it was written"));
    }
    // Where lines of JSON come from, it has been said.
    const bool isSaid = content->format == TimelineFormat::jsonLines && !options.fps;
    if (!isSaid) noteRate(*timeline, input.title(), options, session);
    if (options.to) {
        auto converted = possibly([&]() -> Result<void> {
            convertTimecodes(document.events, document.fps, *options.to);
            document.fps = *options.to;
            document.fpsSource = fpsSourceManual;
            return {};
        });
        if (!converted) return tl::unexpected(std::move(converted.error()));
    }
    return std::move(timeline->document);
}

}  // namespace clipvane::cli
