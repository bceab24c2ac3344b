// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <clipvane/diff/CutList.h>
#include "commands/diff/CutEvent.h"
#include "commands/diff/TextNumbers.h"

namespace clipvane::diff {

/// Gives the texts of tracks numbers from 0, in the order in which they come.
class TrackNumbers {
  public:
    /// The text must outlive the numbers.
    std::uint32_t of(std::string_view text);

    const std::vector<std::string>& all() const { return tracks; }

  private:
    std::string_view latest;  // a track is mostly that of the row above
    std::uint32_t latestNumber = 0;
    TextNumbers texts;
    std::vector<std::uint32_t> numbers;  // by the text's number; none for one that is no track yet
    std::vector<std::string> tracks;
};

/// The four timecodes of an odd event: equal numbers mean equal texts.
using OddTimecodes = std::array<std::uint32_t, 4>;

/// The events of a list that take part, row by row, without source and content.
struct ListedEvents {
    Cut cut;
    std::vector<OddTimecodes> odd;  ///< of the cut's odd events, in order
    bool isFromEDL = true;          ///< all of the list, what takes no part among it
};

/// Lists all events but black, which is reel BL or BLK in an EDL, and a gap in an XML timeline.
ListedEvents listEvents(const CutList& list, TextNumbers& texts, TrackNumbers& tracks);

/// The event's name; empty where "Clip" and the event's number stand in for one.
std::string_view givenName(std::string_view clipName, std::string_view eventNumber);

/// Whether all events of the list come from an EDL.
bool isFromEDL(const CutList& list);

}  // namespace clipvane::diff
