// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EditedEDL.h>

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "base/Number.h"
#include "commands/EventText.h"

namespace clipvane {
namespace {

// The line feed that ends the empty third line stands before the first event.
constexpr std::string_view firstLines =
    "TITLE: Clipvane Export\n"
    "FCM: NON-DROP FRAME\n";

constexpr std::string_view cut = " C        ";

std::string_view orElse(std::string_view text, std::string_view fallback) {
    return text.empty() ? fallback : text;
}

/// Appends `comment` with a blank for each line feed.
void appendOneLine(std::string& text, std::string_view comment) {
    const std::size_t start = text.size();
    text += comment;
    std::replace(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), '\n', ' ');
}

void appendEventLine(std::string& text, const auto& event, std::int64_t number) {
    appendPadded(text, number, 3);
    text += "  ";
    text += orElse(event.reelID, "AX");
    text += ' ';
    text += orElse(event.track, "V");
    text += cut;
    text += event.sourceIn;
    text += ' ';
    text += event.sourceOut;
    text += ' ';
    text += event.recordIn;
    text += ' ';
    text += event.recordOut;
    text += '\n';
}

/// The EDL as an `EventText`'s form.
class EDL {
  public:
    explicit EDL(const TimelineDocument&) {}

    std::string_view head() const { return firstLines; }

    void append(std::string& text, const auto& event) {
        text += '\n';
        appendEventLine(text, event, ++number);
        text += "* FROM CLIP NAME: ";
        text += event.clipName;
        text += '\n';
        if (event.comments.empty()) return;
        text += "* COMMENT: ";
        appendOneLine(text, event.comments);
        text += '\n';
    }

  private:
    std::int64_t number = 0;
};

}  // namespace

std::string edlText(const TimelineDocument& document) {
    return eventText<EDL>(document);
}

Result<void> writeEDL(const TimelineDocument& document, const std::filesystem::path& url) {
    return writeEventText<EDL>(document, url);
}

}  // namespace clipvane
