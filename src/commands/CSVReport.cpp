// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/CSVReport.h>

#include <array>
#include <cstdint>
#include <string_view>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include <clipvane/detail/TwoDigitFields.h>
#include "base/Characters.h"
#include "commands/EventText.h"

namespace clipvane {
namespace {

constexpr std::string_view header =
    "Event,Clip Name,Reel ID,FPS,FPS Source,Source In,Source Out,Source Duration,Record In,"
    "Record Out,Record Duration,Track,Format,Highlighted,Comments\n";

constexpr std::string_view next = "\",\"";  // closes a field and opens another

void putReplacing(GrowingText& text, std::string_view field) {
    for (const char c : field) {
        if (c == '"') text.put('"');
        text.put(c == '\n' ? ' ' : c);
    }
}

/// Puts what stands between a field's quotes.
void putField(GrowingText& text, std::string_view field) {
    if (holdsEither(field, '"', '\n')) {
        putReplacing(text, field);
    } else {
        text.put(field);
    }
}

/// The fields that are the same in every row, with what parts them from their neighbours.
std::string rateFields(const TimelineDocument& document) {
    GrowingText fields;
    fields.put(next);
    putField(fields, formatFPS(document.fps));
    fields.put(next);
    putField(fields, document.fpsSource);
    fields.put(next);
    return fields.take();
}

/// The report as an `EventText`'s form.
class CSV {
  public:
    explicit CSV(const TimelineDocument& document)
        : events(document.events),
          rate(events.empty() ? "" : rateFields(document)),
          fps(document.fps),
          base(events.empty() ? 1 : frameBase(fps)) {}

    void begin(GrowingText& text) const {
        text.put(header);
        if (rate.empty()) text.put('\n');
    }

    void append(GrowingText& text, const KeptEvent& event) const {
        text.put('"');
        putField(text, event.eventNumber);
        text.put(next);
        putField(text, event.clipName);
        text.put(next);
        putField(text, event.reelID);
        text.put(rate);
        putRange(text, event.timecodes[0], event.timecodes[1]);
        text.put(next);
        putRange(text, event.timecodes[2], event.timecodes[3]);
        text.put(next);
        putField(text, event.track);
        text.put(next);
        putField(text, event.format);
        text.put(event.highlighted ? "\",\"Yes\",\"" : "\",\"No\",\"");
        putField(text, event.comments);
        text.put("\"\n");
    }

  private:
    /// Puts two timecodes and the time between them.
    void putRange(GrowingText& text, RowTimecode in, RowTimecode out) const {
        if (in.isPacked() && out.isPacked() && base <= PackedTimecode::mostBase) {
            putTimecode(text, in.packed());
            text.put(next);
            putTimecode(text, out.packed());
            text.put(next);
            putDuration(text, in.packed(), out.packed(), static_cast<std::uint32_t>(base));
        } else {
            std::array<std::array<char, twoDigitLength>, 2> rooms;
            putUnusualRange(text, events.timecodeText(in, rooms[0]),
                            events.timecodeText(out, rooms[1]));
        }
    }

    void putUnusualRange(GrowingText& text, std::string_view in, std::string_view out) const {
        putField(text, in);
        text.put(next);
        putField(text, out);
        text.put(next);
        putDuration(text, in, out, fps);
    }

    const EventList& events;
    std::string rate;  ///< empty without events, which ask nothing of it
    double fps;
    std::int64_t base;
};

}  // namespace

std::string csvText(const TimelineDocument& document) {
    return eventText<CSV>(document);
}

Result<void> writeCSV(const TimelineDocument& document, const std::filesystem::path& url) {
    return writeEventText<CSV>(document, url);
}

}  // namespace clipvane
