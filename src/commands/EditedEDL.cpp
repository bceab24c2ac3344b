// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EditedEDL.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "commands/EventText.h"

namespace clipvane {
namespace {

// The line feed that ends the empty third line stands before the first event.
constexpr std::string_view firstLines =
    "TITLE: Clipvane Export\n"
    "FCM: NON-DROP FRAME\n";

constexpr std::string_view cut = " C       ";  // and the blank of the first timecode

std::string_view orElse(std::string_view text, std::string_view fallback) {
    return text.empty() ? fallback : text;
}

/// Puts `comment` with a blank for each line feed.
void putOneLine(GrowingText& text, std::string_view comment) {
    text.endAt(std::ranges::replace_copy(comment, text.room(comment.size()), '\n', ' ').out);
}

/// Puts `number` in three digits or more.
void putNumber(GrowingText& text, std::uint64_t number) {
    if (number < 100) text.put(number < 10 ? "00" : "0");
    text.putNumber(number);
}

/// The EDL as an `EventText`'s form.
class EDL {
  public:
    explicit EDL(const TimelineDocument& document) : events(document.events) {}

    void begin(GrowingText& text) const { text.put(firstLines); }

    void append(GrowingText& text, const KeptEvent& event) {
        text.put('\n');
        putEventLine(text, event);
        text.put("* FROM CLIP NAME: ");
        text.put(event.clipName);
        text.put('\n');
        if (event.comments.empty()) return;
        text.put("* COMMENT: ");
        putOneLine(text, event.comments);
        text.put('\n');
    }

  private:
    void putEventLine(GrowingText& text, const KeptEvent& event) {
        putNumber(text, ++number);
        text.put("  ");
        text.put(orElse(event.reelID, "AX"));
        text.put(' ');
        text.put(orElse(event.track, "V"));
        text.put(cut);
        for (const RowTimecode timecode : event.timecodes) {
            text.put(' ');
            if (timecode.isPacked()) {
                putTimecode(text, timecode.packed());
            } else {
                text.put(events.unusualText(timecode));
            }
        }
        text.put('\n');
    }

    const EventList& events;
    std::uint64_t number = 0;
};

}  // namespace

std::string edlText(const TimelineDocument& document) {
    return eventText<EDL>(document);
}

Result<void> writeEDL(const TimelineDocument& document, const std::filesystem::path& url) {
    return writeEventText<EDL>(document, url);
}

}  // namespace clipvane
