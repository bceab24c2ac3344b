// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EDLReader.h"

#include <utility>

#include "base/Characters.h"
#include "base/UUID.h"
#include "import/ClipNameComment.h"
#include "import/EventLine.h"
#include "import/EventReservation.h"
#include "import/Lines.h"
#include "import/Scan.h"

namespace clipvane {
namespace {

/// So many events show how densely a file is written.
constexpr std::size_t sampleCount = 1024;

bool isComment(std::string_view line) {
    takeWhile(line, [](char32_t c) { return isBlank(c); });
    return line.starts_with('*');
}

std::string joinLines(const std::vector<std::string_view>& lines) {
    std::size_t size = lines.size() - 1;
    for (const std::string_view line : lines) size += line.size();
    std::string joined;
    joined.reserve(size);
    for (const std::string_view line : lines) {
        if (line.data() != lines.front().data()) joined += '\n';
        joined += line;
    }
    return joined;
}

/// Collects the events of an EDL from its lines. Views into the text are kept until `finish`.
class Reader {
  public:
    explicit Reader(std::string_view text) : text(text) {}

    /// Takes an event line, or a comment that belongs to the event before it; skips any other.
    void readLine(std::string_view line);

    /// The events, in the order of their lines.
    std::vector<TimelineEvent> finish();

  private:
    /// The event whose comments are being read.
    struct CurrentEvent {
        EventLine columns;
        std::string_view clipName;            ///< from a clip-name comment, else empty
        std::vector<std::string_view> lines;  ///< the event line and its comments
    };

    void completeCurrentEvent();

    std::string_view text;
    std::vector<TimelineEvent> events;
    CurrentEvent current;  ///< without lines before the first event
    UUIDGenerator identifiers;
};

void Reader::readLine(std::string_view line) {
    if (line.empty()) return;
    if (const auto columns = matchEventLine(line)) {
        completeCurrentEvent();
        current.columns = *columns;
        current.lines.push_back(line);
        return;
    }
    if (current.lines.empty()) return;
    if (const auto name = clipNameComment(line)) {
        if (!name->empty()) current.clipName = *name;
        current.lines.push_back(line);
    } else if (isComment(line)) {
        current.lines.push_back(line);
    }
}

std::vector<TimelineEvent> Reader::finish() {
    completeCurrentEvent();
    return std::exchange(events, {});
}

void Reader::completeCurrentEvent() {
    if (current.lines.empty()) return;
    const EventLine& columns = current.columns;
    TimelineEvent& event = events.emplace_back();
    event.id = identifiers.next();
    event.eventNumber = columns.number;
    if (current.clipName.empty()) {
        event.clipName = "Clip ";
        event.clipName += columns.number;
    } else {
        event.clipName = current.clipName;
    }
    event.reelID = columns.reel;
    event.sourceIn = columns.sourceIn;
    event.sourceOut = columns.sourceOut;
    event.recordIn = columns.recordIn;
    event.recordOut = columns.recordOut;
    event.format = "EDL";
    event.track = columns.track;
    event.rawText = joinLines(current.lines);

    if (events.size() == sampleCount) {
        const std::string_view last = current.lines.back();
        const auto soFar = static_cast<std::size_t>(last.data() + last.size() - text.data());
        reserveForRest(events, soFar, text.size());
    }
    current.clipName = {};
    current.lines.clear();
}

}  // namespace

std::vector<TimelineEvent> readEDL(std::string_view text) {
    Reader reader(text);
    Lines lines(text);
    while (const auto line = lines.next()) reader.readLine(*line);
    return reader.finish();
}

}  // namespace clipvane
