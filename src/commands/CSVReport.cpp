// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/CSVReport.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include <clipvane/detail/TwoDigitFields.h>
#include "commands/EventText.h"

namespace clipvane {
namespace {

constexpr std::string_view header =
    "Event,Clip Name,Reel ID,FPS,FPS Source,Source In,Source Out,Source Duration,Record In,"
    "Record Out,Record Duration,Track,Format,Highlighted,Comments\n";

constexpr std::string_view next = "\",\"";  // closes a field and opens another

constexpr bool isReplaced(char c) {
    return c == '"' || c == '\n';
}

/// Whether any of eight characters is a quote or a line feed.
bool holdsReplaced(std::uint64_t characters) {
    constexpr std::uint64_t ones = 0x0101'0101'0101'0101;
    const std::uint64_t quotes = characters ^ ones * '"';
    const std::uint64_t lineFeeds = characters ^ ones * '\n';
    // One less than a byte that is zero has the highest bit, which the byte has not.
    return (((quotes - ones) & ~quotes) | ((lineFeeds - ones) & ~lineFeeds)) & ones << 7;
}

/// Whether nothing in the field is replaced. Looks at eight characters at a time.
bool isPlain(std::string_view field) {
    constexpr std::size_t step = 8;
    if (field.size() < step) return std::ranges::none_of(field, isReplaced);
    const std::size_t last = field.size() - step;
    for (std::size_t at = 0;; at = std::min(at + step, last)) {
        if (holdsReplaced(eightCharacters(field.data() + at))) return false;
        if (at == last) return true;
    }
}

void putReplacing(GrowingText& text, std::string_view field) {
    for (const char c : field) {
        if (c == '"') text.put('"');
        text.put(c == '\n' ? ' ' : c);
    }
}

/// Puts what stands between a field's quotes.
void putField(GrowingText& text, std::string_view field) {
    if (isPlain(field)) {
        text.put(field);
    } else {
        putReplacing(text, field);
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
