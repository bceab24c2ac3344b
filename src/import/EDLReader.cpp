// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EDLReader.h"

#include <string_view>
#include <utility>

#include "base/Characters.h"
#include "import/ClipNameComment.h"
#include "import/EventLine.h"
#include "import/Lines.h"
#include "import/Scan.h"

namespace clipvane {
namespace {

bool isComment(std::string_view line) {
    takeWhile(line, [](char32_t c) { return isBlank(c); });
    return line.starts_with('*');
}

/// The source text of an event: of the lines from its own to its last comment those that belong to
/// it, with a line feed between them.
std::string joinLines(std::string_view text) {
    Lines lines(text);
    std::string joined(*lines.next());
    while (const auto line = lines.next()) {
        if (!clipNameComment(*line) && !isComment(*line)) continue;
        joined += '\n';
        joined += *line;
    }
    return joined;
}

/// Collects the events of an EDL from its lines, which lie in a text that the list keeps.
class Reader {
  public:
    explicit Reader(EventList& events) : events(events) {}

    /// Takes an event line, or a comment that belongs to the event before it; skips any other.
    void readLine(std::string_view line);

    /// There are no more lines.
    void finish();

  private:
    void takeComment(std::string_view line);

    EventList& events;

    // The event whose comments are being read.
    EventLine columns;
    std::string_view clipName;  ///< from a clip-name comment, else empty
    std::string_view lines;     ///< from its line to its last comment; empty before the first event
    bool isJoined = false;      ///< others stand between them, or they do not end with line feeds
    std::string madeName;
};

void Reader::readLine(std::string_view line) {
    if (line.empty()) return;
    if (const auto found = matchEventLine(line)) {
        finish();
        columns = *found;
        clipName = {};
        lines = line;
        isJoined = false;
        return;
    }
    if (lines.empty()) return;
    if (const auto name = clipNameComment(line)) {
        if (!name->empty()) clipName = *name;
        takeComment(line);
    } else if (isComment(line)) {
        takeComment(line);
    }
}

void Reader::takeComment(std::string_view line) {
    const char* const end = lines.data() + lines.size();
    isJoined |= *end != '\n' || line.data() != end + 1;
    lines = {lines.data(), static_cast<std::size_t>(line.data() + line.size() - lines.data())};
}

void Reader::finish() {
    if (lines.empty()) return;
    if (clipName.empty()) {
        madeName = "Clip ";
        madeName += columns.number;
        clipName = madeName;
    }
    events.append({.eventNumber = columns.number,
                   .clipName = clipName,
                   .reelID = columns.reel,
                   .sourceIn = columns.sourceIn,
                   .sourceOut = columns.sourceOut,
                   .recordIn = columns.recordIn,
                   .recordOut = columns.recordOut,
                   .format = "EDL",
                   .track = columns.track,
                   .lines = lines,
                   .isJoined = isJoined});
}

template <class Text>
EventList read(Text text) {
    EventList events(joinLines);
    Lines lines(events.keep(std::move(text)));
    Reader reader(events);
    while (const auto line = lines.next()) reader.readLine(*line);
    reader.finish();
    return events;
}

}  // namespace

EventList readEDL(FileBytes text) {
    return read(std::move(text));
}

EventList readEDL(std::string text) {
    return read(std::move(text));
}

}  // namespace clipvane
