#include "ui/DetailRows.h"

#include "timecode/Timecode.h"
#include "ui/Colours.h"

namespace clipvane {
namespace {

const TimelineEvent* eventAt(const TimelineDocument& document, std::optional<std::size_t> row) {
    return row && *row < document.events.size() ? &document.events[*row] : nullptr;
}

std::vector<DetailRow> emptyRows(const TimelineDocument& document) {
    return {{"Clip Name", "-"},  {"Reel ID", "-"},
            {"Track", "-"},      {"Source In", "-"},
            {"Source Out", "-"}, {"Source Dur", "-"},
            {"Record In", "-"},  {"Record Out", "-"},
            {"Record Dur", "-"}, {"FPS Source", document.fpsSource},
            {"Format", "-"}};
}

}  // namespace

std::vector<DetailRow> detailRows(const TimelineDocument& document,
                                  std::optional<std::size_t> row) {
    const TimelineEvent* event = eventAt(document, row);
    if (event == nullptr) return emptyRows(document);
    const auto duration = [&](const std::string& from, const std::string& to) {
        return durationDisplay(from, to, document.fps);
    };
    return {{"Clip Name", event->clipName},
            {"Reel ID", event->reelID},
            {"Track", event->track},
            {"Source In", event->sourceIn},
            {"Source Out", event->sourceOut},
            {"Source Dur", duration(event->sourceIn, event->sourceOut)},
            {"Record In", event->recordIn},
            {"Record Out", event->recordOut},
            {"Record Dur", duration(event->recordIn, event->recordOut)},
            {"FPS Source", document.fpsSource},
            {"Format", event->format}};
}

std::string detailTitle(const TimelineDocument& document, std::optional<std::size_t> row) {
    const TimelineEvent* event = eventAt(document, row);
    if (event == nullptr) return "No event selected";
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
