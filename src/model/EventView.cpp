// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/EventView.h>

#include <clipvane/EventList.h>

namespace clipvane {

EventView::EventView(const EventList& list, std::uint32_t index) : list(list), index(index) {
    const KeptEvent kept = list.keptAt(index);
    eventNumber = kept.eventNumber;
    clipName = kept.clipName;
    reelID = kept.reelID;
    sourceIn = list.timecodeText(kept.timecodes[0], timecodes[0]);
    sourceOut = list.timecodeText(kept.timecodes[1], timecodes[1]);
    recordIn = list.timecodeText(kept.timecodes[2], timecodes[2]);
    recordOut = list.timecodeText(kept.timecodes[3], timecodes[3]);
    format = kept.format;
    track = kept.track;
    comments = kept.comments;
    highlighted = kept.highlighted;
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
