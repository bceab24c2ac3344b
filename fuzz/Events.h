// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <clipvane/EventList.h>
#include <clipvane/TimelineEvent.h>
#include "support/SameFields.h"

namespace clipvane::fuzz {

using test::sameFields;

inline bool sameFields(const EventList& a, const std::vector<TimelineEvent>& b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!sameFields(a[i].record(), b[i])) return false;
    }
    return true;
}

}  // namespace clipvane::fuzz
