// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "import/EventReservation.h"

#include <new>

#include "base/HugePages.h"

namespace clipvane {

void reserveForRest(std::vector<TimelineEvent>& events, std::size_t soFar, std::size_t total) try {
    const double expected = static_cast<double>(events.size()) * static_cast<double>(total) /
                            static_cast<double>(soFar);
    constexpr double margin = 1.5;  // the rest may be denser; what is never written costs nothing
    events.reserve(static_cast<std::size_t>(expected * margin) + 1);
    adviseHugePages(events.data(), events.capacity() * sizeof(TimelineEvent));
} catch (const std::bad_alloc&) {
}

}  // namespace clipvane
