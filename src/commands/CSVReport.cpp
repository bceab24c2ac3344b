// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/CSVReport.h>

#include <algorithm>
#include <string_view>

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include "commands/EventText.h"

namespace clipvane {
namespace {

constexpr std::string_view header =
    "Event,Clip Name,Reel ID,FPS,FPS Source,Source In,Source Out,Source Duration,Record In,"
    "Record Out,Record Duration,Track,Format,Highlighted,Comments\n";

constexpr std::string_view open = "\"";
constexpr std::string_view next = "\",\"";  // closes a field and opens another
constexpr std::string_view close = "\"\n";

constexpr bool isReplaced(char c) {
    return c == '"' || c == '\n';
}

void appendReplacing(std::string& text, std::string_view field) {
    while (true) {
        const auto end = static_cast<std::size_t>(
            std::find_if(field.begin(), field.end(), isReplaced) - field.begin());
        text += field.substr(0, end);
        if (end == field.size()) return;
        text += field[end] == '"' ? "\"\"" : " ";
        field.remove_prefix(end + 1);
    }
}

/// Appends what stands between a field's quotes.
void appendField(std::string& text, std::string_view field) {
    const bool isPlain =
        field.find('"') == std::string_view::npos && field.find('\n') == std::string_view::npos;
    if (isPlain) {
        text += field;
    } else {
        appendReplacing(text, field);
    }
}

/// The fields that are the same in every row, with what parts them from their neighbours.
std::string rateFields(const TimelineDocument& document) {
    std::string fields(next);
    appendField(fields, formatFPS(document.fps));
    fields += next;
    appendField(fields, document.fpsSource);
    fields += next;
    return fields;
}

/// Appends two timecodes and the time between them.
void appendRange(std::string& text, std::string_view in, std::string_view out, double fps) {
    appendField(text, in);
    text += next;
    appendField(text, out);
    text += next;
    appendDuration(text, in, out, fps);
}

/// The report as an `EventText`'s form.
class CSV {
  public:
    explicit CSV(const TimelineDocument& document)
        : rate(document.events.empty() ? "" : rateFields(document)), fps(document.fps) {}

    std::string head() const {
        std::string text(header);
        if (rate.empty()) text += '\n';
        return text;
    }

    void append(std::string& text, const auto& event) const {
        text += open;
        appendField(text, event.eventNumber);
        text += next;
        appendField(text, event.clipName);
        text += next;
        appendField(text, event.reelID);
        text += rate;
        appendRange(text, event.sourceIn, event.sourceOut, fps);
        text += next;
        appendRange(text, event.recordIn, event.recordOut, fps);
        text += next;
        appendField(text, event.track);
        text += next;
        appendField(text, event.format);
        text += event.highlighted ? "\",\"Yes\",\"" : "\",\"No\",\"";
        appendField(text, event.comments);
        text += close;
    }

  private:
    std::string rate;  ///< empty without events, which ask nothing of it
    double fps;
};

}  // namespace

std::string csvText(const TimelineDocument& document) {
    return eventText<CSV>(document);
}

Result<void> writeCSV(const TimelineDocument& document, const std::filesystem::path& url) {
    return writeEventText<CSV>(document, url);
}

}  // namespace clipvane
