// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include <clipvane/EventList.h>

namespace clipvane::test {

/// The events of `list` as records of their own.
inline std::vector<TimelineEvent> records(const EventList& list) {
    std::vector<TimelineEvent> events;
    for (const EventView& event : list) events.push_back(event.record());
    return events;
}

/// Lets `change` work on the event at `row`.
template <class Change>
void edit(EventList& list, std::size_t row, Change change) {
    TimelineEvent event = list[row].record();
    change(event);
    list.replace(row, event);
}

}  // namespace clipvane::test
