// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/EventList.h>
#include <clipvane/TimelineEvent.h>
#include "import/XMLAttributes.h"
#include "import/XMLElement.h"

namespace clipvane {

/// Turns one XML timeline into events. An event-driven parser calls it back with each element's
/// start, with character data, and with each element's end, all in UTF-8; whatever it understood
/// is in the list that `finish` gives. One object serves one document.
class CommonTimelineXMLDelegate {
  public:
    /// `fps`: frames per second at which frame numbers and seconds become timecodes.
    explicit CommonTimelineXMLDelegate(double fps) : fps(fps) {}

    void didStartElement(std::string_view name, const XMLAttributes& attributes);
    void foundCharacters(std::string_view characters);
    void didEndElement(std::string_view name);

    /// There is nothing more to come: the events, in the order in which they began.
    EventList finish();

    // Timing values: frame numbers ("250"), seconds ("10s", "1001/30000s") and timecodes. They are
    // not the timecode arithmetic's: no drop-frame separator is ever written, and a timecode needs
    // a colon. A count outside 64 bits is fatal, as is a number that is not finite.

    /// A timing value as a timecode: a timecode as it stands, empty text for empty text or a
    /// negative frame number, and what cannot be understood as it stands, too.
    std::string timing(std::string_view value) const;

    /// The frames in a timing value, or nothing when it is none.
    std::optional<std::int64_t> frames(std::string_view from) const;

    /// HH:MM:SS:FF; every field of a negative count carries its own minus sign.
    std::string timecode(std::int64_t fromFrames) const;

    /// What all this has cost so far, in bytes of text handled again beyond those that the parser
    /// handed over. A hostile document can make it grow with the square of its size.
    std::size_t effort = 0;

  private:
    void startAsset(const XMLAttributes& attributes);
    void startEvent(std::string_view name, const XMLAttributes& attributes);
    void startClip(std::string_view name, const XMLAttributes& attributes);
    void setRange(const XMLAttributes& attributes, std::string& in, std::string& out) const;
    void setField(XMLElement element);
    void beginEvent(std::string_view name);
    void completeEvent();
    std::string end(std::string_view start, std::string_view duration) const;

    double fps;
    /// Display names by asset id. A tree: the ids that fall together in a hash table can be
    /// guessed.
    std::map<std::string, std::string, std::less<>> assetNames;
    std::string
        currentText;      ///< character data since the last element start, if an event is pending
    TimelineEvent event;  ///< while it is pending: what elements write into
    bool isPending = false;  ///< it has begun, and has not ended
    EventList events;        ///< those that have ended
};

}  // namespace clipvane
