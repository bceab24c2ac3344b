// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include <clipvane/UUID.h>

namespace clipvane {

/// One event of a timeline: one clip line. A plain value; a copy shares nothing with its original.
///
/// Texts are UTF-8. Timecodes stay text as read or as last converted (HH:MM:SS:FF, two digits a
/// field), and event numbers too, so that leading zeros survive. What is unknown is empty.
struct TimelineEvent {
    UUID id;  ///< drawn when a reader creates the event
    std::string eventNumber;
    std::string clipName;
    std::string reelID;     ///< reel or source name
    std::string sourceIn;   ///< first frame used from the source
    std::string sourceOut;  ///< end of the source range
    std::string recordIn;   ///< start on the timeline
    std::string recordOut;  ///< end on the timeline
    std::string format;     ///< kind of file the event came from: "EDL" or "XML"
    std::string track;      ///< track designation, such as V, A or A2
    std::string comments;   ///< the user's comment
    bool highlighted = false;
    std::string rawText;  ///< the source text that the event was built from
};

/// Calls `field(name, value...)` with each of the thirteen fields of `events` in turn: records with
/// these members, whose types may differ. This is the one list of them; what compares, writes or
/// reads all fields walks it.
template <class Field, class... Events>
void forEachField(Field field, Events&... events) {
    field("id", events.id...);
    field("eventNumber", events.eventNumber...);
    field("clipName", events.clipName...);
    field("reelID", events.reelID...);
    field("sourceIn", events.sourceIn...);
    field("sourceOut", events.sourceOut...);
    field("recordIn", events.recordIn...);
    field("recordOut", events.recordOut...);
    field("format", events.format...);
    field("track", events.track...);
    field("comments", events.comments...);
    field("highlighted", events.highlighted...);
    field("rawText", events.rawText...);
}

/// All fields equal, compared in their order. Texts are equal when they are canonically equivalent:
/// "é" is the same text as "e" followed by a combining acute accent.
bool operator==(const TimelineEvent& a, const TimelineEvent& b);

}  // namespace clipvane
