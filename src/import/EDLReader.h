// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>
#include <vector>

#include "base/UUID.h"
#include "import/EventLine.h"
#include "model/TimelineEvent.h"

namespace clipvane {

/// Collects the events of an EDL from its lines. Views into the text are kept until `finish`.
class EDLReader {
  public:
    explicit EDLReader(std::string_view text) : text(text) {}

    /// Takes an event line, or a comment that belongs to the event before it; skips any other.
    void readLine(std::string_view line);

    /// The events, in the order of their lines.
    std::vector<TimelineEvent> finish();

  private:
    /// The event whose comments are being read.
    struct CurrentEvent {
        EventLine columns;
        std::string_view clipName;            ///< from a clip-name comment, else empty
        std::vector<std::string_view> lines;  ///< the event line and its comments
    };

    void completeCurrentEvent();

    std::string_view text;
    std::vector<TimelineEvent> events;
    CurrentEvent current;  ///< without lines before the first event
    UUIDGenerator identifiers;
};

}  // namespace clipvane
