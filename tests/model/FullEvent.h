// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <clipvane/TimelineEvent.h>

namespace clipvane::test {

/// An event with something of its own in every field.
inline TimelineEvent fullEvent() {
    TimelineEvent event;
    event.id = *UUID::parse("01234567-89AB-CDEF-FEDC-BA9876543210");
    event.eventNumber = "007";
    event.clipName = "Café Noir";
    event.reelID = "A001_C003";
    event.sourceIn = "01:00:00:00";
    event.sourceOut = "01:00:04:00";
    event.recordIn = "02:00:00:00";
    event.recordOut = "02:00:04:00";
    event.format = "EDL";
    event.track = "V";
    event.comments = "too long";
    event.highlighted = true;
    event.rawText = "007  A001_C003 V C\n* FROM CLIP NAME: Café Noir";
    return event;
}

}  // namespace clipvane::test
