// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/TSVReport.h"

#include <clipvane/FrameRate.h>
#include <clipvane/Timecode.h>
#include "base/Characters.h"
#include "base/Number.h"
#include "base/UTF8.h"
#include "cli/FrameCounts.h"

namespace clipvane::cli {
namespace {

constexpr std::string_view header =
    "File\tEvent\tClip Name\tReel ID\tFPS\tFPS Source\tSource In\tSource Out\tSource Duration\t"
    "Record In\tRecord Out\tRecord Duration\tTrack\tFormat\tHighlighted\tComments\t"
    "Source In Frames\tSource Out Frames\tRecord In Frames\tRecord Out Frames\t"
    "Source Duration Frames\tRecord Duration Frames\n";

void appendField(std::string& text, std::string_view field) {
    while (!field.empty()) {
        const CodePoint next = firstCodePoint(field);
        if (next.value == U'\t' || isNewline(next.value)) {
            text += ' ';
        } else {
            text += field.substr(0, next.length);
        }
        field.remove_prefix(next.length);
    }
    text += '\t';
}

void appendCounts(std::string& text, const FrameCounts& counts) {
    for (const auto& count : {counts.sourceIn, counts.sourceOut, counts.recordIn, counts.recordOut,
                              counts.sourceDuration, counts.recordDuration}) {
        if (count) appendInteger(text, *count);
        text += '\t';
    }
}

}  // namespace

std::string tsvHeader() {
    return std::string(header);
}

std::string tsvRows(const TimelineDocument& document, std::string_view file) {
    std::string rate;
    appendField(rate, formatFPS(document.fps));
    appendField(rate, document.fpsSource);
    std::string text;
    for (const EventView& event : document.events) {
        appendField(text, file);
        appendField(text, event.eventNumber);
        appendField(text, event.clipName);
        appendField(text, event.reelID);
        text += rate;
        appendField(text, event.sourceIn);
        appendField(text, event.sourceOut);
        appendField(text, durationDisplay(event.sourceIn, event.sourceOut, document.fps));
        appendField(text, event.recordIn);
        appendField(text, event.recordOut);
        appendField(text, durationDisplay(event.recordIn, event.recordOut, document.fps));
        appendField(text, event.track);
        appendField(text, event.format);
        appendField(text, event.highlighted ? "Yes" : "No");
        appendField(text, event.comments);
        appendCounts(text, frameCounts(event, document.fps));
        text.back() = '\n';  // instead of the last tab
    }
    return text;
}

}  // namespace clipvane::cli
