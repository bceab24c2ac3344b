// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include <clipvane/TimelineEvent.h>
#include <clipvane/UUID.h>
#include <clipvane/detail/TwoDigitFields.h>

namespace clipvane {

class EventList;

/// An event of an `EventList`, seen without a copy of its texts: the fields of a `TimelineEvent`
/// under the same names. The two that cost something are functions.
///
/// A view is good while its list lives and lies where it lay. Removing events, this one too, and
/// comments on others leave it as it is. After any conversion its timecodes are not to be read,
/// after `setComments` on its event its `comments` neither; `replace` ends it.
///
/// It cannot be copied, and is meant for the one statement or the one block that looks at it:
///
///     for (const EventView& event : list) text += event.clipName;
///     const EventView event = list[row];
struct EventView {
    EventView(const EventView&) = delete;
    EventView& operator=(const EventView&) = delete;

    std::string_view eventNumber;
    std::string_view clipName;
    std::string_view reelID;
    std::string_view sourceIn;
    std::string_view sourceOut;
    std::string_view recordIn;
    std::string_view recordOut;
    std::string_view format;
    std::string_view track;
    std::string_view comments;
    bool highlighted;

    /// The event's identifier, drawn when it is first asked for.
    UUID id() const;
    /// The source text, put together from the lines of the file.
    std::string rawText() const;
    /// The event as a record of its own.
    TimelineEvent record() const;

  private:
    friend class EventList;
    EventView(const EventList& list, std::uint32_t index);

    const EventList& list;
    std::uint32_t index;
    std::array<std::array<char, twoDigitLength>, 4> timecodes;  ///< those that the row has packed
};

}  // namespace clipvane
