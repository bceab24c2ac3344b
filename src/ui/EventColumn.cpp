// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/EventColumn.h"

#include "ui/Colours.h"

namespace clipvane {

std::span<const EventColumn> eventColumns() {
    using Event = EventView;
    static const EventColumn columns[] = {
        {"eventNumber", "#", 64, &Event::eventNumber, colours::numberField},
        {"clipName", "Clip Name", 280, &Event::clipName, colours::clipNameField},
        {"reelID", "Reel ID", 140, &Event::reelID, colours::reelField},
        {"sourceIn", "Source In", 132, &Event::sourceIn, colours::sourceField},
        {"sourceOut", "Source Out", 132, &Event::sourceOut, colours::sourceField},
        {"recordIn", "Record In", 132, &Event::recordIn, colours::recordField},
        {"recordOut", "Record Out", 132, &Event::recordOut, colours::recordField},
        {"format", "Type", 78, &Event::format, colours::secondaryText},
    };
    return columns;
}

}  // namespace clipvane
