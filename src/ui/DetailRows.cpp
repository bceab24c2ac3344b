// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "ui/DetailRows.h"

#include <clipvane/Timecode.h>
#include "ui/Colours.h"

namespace clipvane {
namespace {

std::optional<TimelineEvent> eventAt(const TimelineDocument& document,
                                     std::optional<std::size_t> row) {
    if (!row || *row >= document.events.size()) return std::nullopt;
    return document.events[*row].record();
}

}  // namespace

std::vector<DetailRow> detailRows(const TimelineDocument& document,
                                  std::optional<std::size_t> row) {
    using Field = std::string TimelineEvent::*;
    const auto event = eventAt(document, row);
    const auto value = [&](Field field) { return event ? (*event).*field : "-"; };
    const auto duration = [&](Field from, Field to) {
        return event ? durationDisplay((*event).*from, (*event).*to, document.fps) : "-";
    };
    return {{"Clip Name", value(&TimelineEvent::clipName)},
            {"Reel ID", value(&TimelineEvent::reelID)},
            {"Track", value(&TimelineEvent::track)},
            {"Source In", value(&TimelineEvent::sourceIn)},
            {"Source Out", value(&TimelineEvent::sourceOut)},
            {"Source Dur", duration(&TimelineEvent::sourceIn, &TimelineEvent::sourceOut)},
            {"Record In", value(&TimelineEvent::recordIn)},
            {"Record Out", value(&TimelineEvent::recordOut)},
            {"Record Dur", duration(&TimelineEvent::recordIn, &TimelineEvent::recordOut)},
            {"FPS Source", document.fpsSource},
            {"Format", value(&TimelineEvent::format)}};
}

std::string detailTitle(const TimelineDocument& document, std::optional<std::size_t> row) {
    const auto event = eventAt(document, row);
    if (!event) return "No event selected";
    return "Event " + event->eventNumber + ": " + event->clipName;
}

QColor detailColour(std::string_view key) {
    if (key == "Source In" || key == "Source Out" || key == "Source Dur") {
        return colours::sourceField;
    }
    if (key == "Record In" || key == "Record Out" || key == "Record Dur") {
        return colours::recordField;
    }
    if (key == "Reel ID") return colours::reelField;
    if (key == "FPS" || key == "FPS Source") return colours::numberField;
    return colours::white;
}

}  // namespace clipvane
