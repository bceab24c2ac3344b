// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/DiffReading.h"

#include <optional>
#include <string>
#include <utility>

#include <clipvane/FrameRate.h>
#include <clipvane/TimelineRate.h>
#include "base/UTF8.h"
#include "cli/DropFrame.h"
#include "cli/Impossible.h"
#include "cli/TimelineReading.h"
#include "import/XMLReader.h"

namespace clipvane::cli {
namespace {

/// Remembers where an XML document breaks off.
class EndWatcher : public XMLWatcher {
  public:
    void element(std::string_view /*name*/, bool /*hasAttributes*/, std::size_t /*line*/) override {
    }
    void brokeOff(std::size_t line, std::size_t /*column*/, std::string_view /*reason*/) override {
        lastLine = line;
    }

    std::optional<std::size_t> brokenIn() const { return lastLine; }

  private:
    std::optional<std::size_t> lastLine;
};

/// A timeline with what its file says of the counting and of its end.
struct Side {
    std::string title;
    ReadTimeline timeline;
    FrameCodeMode mode = FrameCodeMode::none;
    std::optional<std::size_t> brokenIn;  ///< line of an XML

    TimelineDocument& document() const { return *timeline.document; }
    bool dropsFrames() const { return mode == FrameCodeMode::drop; }
};

Result<Side> readSide(const Input& input, const ReadingOptions& options) {
    const auto content = readBytes(input, options);
    if (!content) return tl::unexpected(content.error());
    EndWatcher watcher;
    auto timeline = readTimeline(content->bytes, content->format, options.fps, &watcher);
    if (!timeline) return tl::unexpected(std::move(timeline.error()));
    Side side{input.title(), std::move(*timeline), FrameCodeMode::none, watcher.brokenIn()};
    if (content->format == TimelineFormat::edl) {
        side.mode = frameCodeModeOf(replaceInvalidUTF8(content->bytes.view()));
    }
    return side;
}

/// A list without events is at any rate.
void takeRateIfEmpty(Side& side, const Side& other) {
    if (!side.document().events.empty()) return;
    side.document().fps = other.document().fps;
    side.timeline.namedRate = other.timeline.namedRate;
    side.mode = other.mode;
}

std::string rateOf(const Side& side) {
    return formatFPS(side.document().fps) + " fps";
}

/// Why the two cannot be counted alike; nothing when they can.
std::optional<std::string> refusal(const Side& a, const Side& b, const ReadingOptions& options) {
    for (const Side* side : {&a, &b}) {
        if (side->mode == FrameCodeMode::mixed) {
            return side->title + " has both DROP FRAME and NON-DROP FRAME lines";
        }
        if (options.to && !options.fps && !side->timeline.namedRate) {
            return side->title +
                   " names no rate, and --to would convert from a guess: say with "
                   "--fps at which rate it was written";
        }
    }
    if (a.dropsFrames() != b.dropsFrames()) {
        const Side& drops = a.dropsFrames() ? a : b;
        return drops.title + " counts in drop-frame timecode, the other list does not";
    }
    if (a.dropsFrames() && options.to) return "drop-frame timecodes cannot be converted with --to";
    if (!options.fps) {
        const bool isNamed = a.timeline.namedRate.has_value();
        if (isNamed != b.timeline.namedRate.has_value()) {
            const Side& named = isNamed ? a : b;
            const Side& other = isNamed ? b : a;
            return named.title + " names " + rateOf(named) + ", " + other.title +
                   " names no rate: say with --fps at which rate both were written";
        }
        const std::int64_t base = frameBase(a.document().fps);
        if (!options.to && base != frameBase(b.document().fps)) {
            return a.title + " is at " + rateOf(a) + ", " + b.title + " at " + rateOf(b) +
                   ": say with --to at which rate to compare them";
        }
    }
    const std::int64_t base = frameBase(a.document().fps);
    if (a.dropsFrames() && base != 30 && base != 60) {
        return a.title + " counts in drop-frame timecode, which " + rateOf(a) +
               " has not: say --fps 29.97 or --fps 59.94";
    }
    return std::nullopt;
}

/// What makes the result surprising: what the list lacks reads as `word` in the other.
void note(const Side& side, const Side& other, const std::string& word,
          const ReadingOptions& options, Session& session) {
    noteRate(side.timeline, side.title, options, session);
    if (side.brokenIn) {
        session.note(side.title + " breaks off in line " + std::to_string(*side.brokenIn) +
                     ": what it lacks reads as " + word);
    }
    if (side.document().events.empty() && !other.document().events.empty()) {
        session.note(side.title + " has no event: all of the other list reads as " + word);
    }
}

void convert(TimelineDocument& document, double fps) {
    convertTimecodes(document.events, document.fps, fps);
    document.fps = fps;
}

}  // namespace

std::unique_ptr<DiffInputs> readForDiff(const Input& oldInput, const Input& newInput,
                                        const ReadingOptions& options, Session& session) {
    auto oldSide = readSide(oldInput, options);
    if (!oldSide) session.fail(oldInput.title(), oldSide.error());
    auto newSide = readSide(newInput, options);
    if (!newSide) session.fail(newInput.title(), newSide.error());
    if (!oldSide || !newSide) return nullptr;
    takeRateIfEmpty(*oldSide, *newSide);
    takeRateIfEmpty(*newSide, *oldSide);
    if (const auto reason = refusal(*oldSide, *newSide, options)) {
        session.fail(*reason);
        return nullptr;
    }
    note(*oldSide, *newSide, "new", options, session);
    note(*newSide, *oldSide, "gone", options, session);
    const auto converted = possibly([&]() -> Result<void> {
        if (!options.to) return {};
        convert(oldSide->document(), *options.to);
        convert(newSide->document(), *options.to);
        return {};
    });
    if (!converted) {
        session.fail(converted.error().description);
        return nullptr;
    }
    auto inputs = std::make_unique<DiffInputs>();
    inputs->counting = {newSide->document().fps, newSide->dropsFrames()};
    inputs->oldTimeline = std::move(oldSide->timeline.document);
    inputs->newTimeline = std::move(newSide->timeline.document);
    return inputs;
}

}  // namespace clipvane::cli
