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
    FoundEvent event;  ///< whose comments are being read; without lines before the first
    std::string madeName;
};

void Reader::readLine(std::string_view line) {
    if (line.empty()) return;
    if (const auto columns = matchEventLine(line)) {
        finish();
        event = {.eventNumber = columns->number,
                 .reelID = columns->reel,
                 .track = columns->track,
                 .timecodes = columns->timecodes,
                 .format = "EDL",
                 .lines = line};
        return;
    }
    if (event.lines.empty()) return;
    if (const auto name = clipNameComment(line)) {
        if (!name->empty()) event.clipName = *name;
        takeComment(line);
    } else if (isComment(line)) {
        takeComment(line);
    }
}

/// The event's lines go to the end of this one. They must be joined when others stand between
/// them, or when they do not end with line feeds.
void Reader::takeComment(std::string_view line) {
    const char* const begin = event.lines.data();
    const char* const end = begin + event.lines.size();
    event.isJoined |= *end != '\n' || line.data() != end + 1;
    event.lines = {begin, static_cast<std::size_t>(line.data() + line.size() - begin)};
}

void Reader::finish() {
    if (event.lines.empty()) return;
    if (event.clipName.empty()) {
        madeName = "Clip ";
        madeName += event.eventNumber;
        event.clipName = madeName;
    }
    events.append(event);
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
