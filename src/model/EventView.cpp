// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EventView.h>

#include <clipvane/EventList.h>

namespace clipvane {

EventView::EventView(const EventList& list, std::uint32_t index) : list(list), index(index) {
    const EventRow& row = list.rows[index];
    const auto columns = list.columnsOf(index);
    format = row.isWide ? list.wideTexts.at(index).format : formatText(row.format);
    eventNumber = columns[0];
    clipName = columns[1];
    reelID = columns[2];
    track = columns[3];
    sourceIn = list.timecodeText(row.timecodes[0], timecodes[0]);
    sourceOut = list.timecodeText(row.timecodes[1], timecodes[1]);
    recordIn = list.timecodeText(row.timecodes[2], timecodes[2]);
    recordOut = list.timecodeText(row.timecodes[3], timecodes[3]);
    if (row.hasComments) comments = list.comments.at(index);
    highlighted = row.isHighlighted;
}

UUID EventView::id() const {
    return list.identifiers.of(index);
}

std::string EventView::rawText() const {
    const EventRow& row = list.rows[index];
    const std::string_view lines =
        row.isWide ? list.wideTexts.at(index).lines : std::string_view(row.lines, row.linesSize);
    return row.isJoined ? list.joinLines(lines) : std::string(lines);
}

TimelineEvent EventView::record() const {
    TimelineEvent event;
    event.id = id();
    event.eventNumber = eventNumber;
    event.clipName = clipName;
    event.reelID = reelID;
    event.sourceIn = sourceIn;
    event.sourceOut = sourceOut;
    event.recordIn = recordIn;
    event.recordOut = recordOut;
    event.format = format;
    event.track = track;
    event.comments = comments;
    event.highlighted = highlighted;
    event.rawText = rawText();
    return event;
}

}  // namespace clipvane
