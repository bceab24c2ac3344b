// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EDLReader.h"

#include <utility>

#include "base/Characters.h"
#include "import/ClipNameComment.h"
#include "import/EventReservation.h"
#include "import/Lines.h"
#include "import/Scan.h"
#include "import/TimelineParser.h"

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

}  // namespace

std::vector<TimelineEvent> TimelineParser::parseEDL(std::string_view text) {
    EDLReader reader(text);
    Lines lines(text);
    while (const auto line = lines.next()) reader.readLine(*line);
    return reader.finish();
}

void EDLReader::readLine(std::string_view line) {
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

std::vector<TimelineEvent> EDLReader::finish() {
    completeCurrentEvent();
    return std::exchange(events, {});
}

void EDLReader::completeCurrentEvent() {
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

}  // namespace clipvane
