// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include <clipvane/EventList.h>
#include "base/GrowingText.h"
#include "import/XMLAttributes.h"
#include "import/XMLElement.h"
#include "import/XMLTiming.h"

namespace clipvane {

/// An event of an XML timeline, while elements write into it.
struct PendingXMLEvent {
    std::string elementName;
    std::string eventNumber;
    std::string clipName;
    std::string reelID;
    std::string track;
    XMLTime sourceIn;
    XMLTime sourceOut;
    XMLTime recordIn;
    XMLTime recordOut;
    std::string comments;
    bool highlighted = false;
};

/// Turns one XML timeline into events. An event-driven parser calls it back with each element's
/// start, with character data, and with each element's end; whatever it understood is in the list
/// that `finish` gives. Texts are UTF-8. One object serves one document.
class CommonTimelineXMLDelegate {
  public:
    /// `fps`: frames per second at which frame numbers and seconds become timecodes.
    explicit CommonTimelineXMLDelegate(double fps) : fps(fps) {}

    /// An element begins: its meaning, its name as written, and its attributes as `XMLAttributes`
    /// takes them.
    void didStartElement(XMLElement element, std::string_view name, const char* const* attributes);
    void foundCharacters(std::string_view characters);
    /// Whether anybody will ask for character data that is found now.
    bool awaitsCharacters() const { return openFields > 0; }
    void didEndElement(XMLElement element);

    /// Ends the document and gives the events, in the order in which they began.
    EventList finish();

    /// The work done so far, in bytes of text that were copied or read again after the parser had
    /// handed them over. A hostile document can make it grow with the square of its size.
    std::size_t effort = 0;

  private:
    void startAsset(const XMLAttributes& attributes);
    void startEvent(std::string_view name, const XMLAttributes& attributes);
    void startClip(std::string_view name, const XMLAttributes& attributes);
    void setRange(const XMLAttributes& attributes, XMLTime& in, XMLTime& out) const;
    void setField(XMLElement element);
    void beginEvent(std::string_view name);
    void completeEvent();
    XMLTime time(std::string_view value) const { return xmlTime(value, fps); }
    XMLTime end(const XMLTime& start, std::string_view duration) const;

    double fps;
    /// Display names by asset id. A tree, because a hostile document can choose ids that collide in
    /// a hash table.
    std::map<std::string, std::string, std::less<>> assetNames;
    GrowingText currentText;  ///< character data since the last element start, if it is awaited
    std::optional<PendingXMLEvent> event;  ///< that has begun, and has not ended
    std::size_t openFields = 0;  ///< elements of the pending event that wait for their text
    EventList events;            ///< those that have ended
};

}  // namespace clipvane
