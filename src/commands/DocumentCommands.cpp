// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/DocumentCommands.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "base/Fatal.h"
#include "base/Number.h"
#include "commands/CSVReport.h"
#include "commands/CopyInfo.h"
#include "commands/EditedEDL.h"
#include "commands/Messages.h"
#include "commands/TimelineRate.h"
#include "import/TimelineParser.h"

namespace clipvane {
namespace {

/// The rate that a title such as "23.976 fps" names.
std::optional<double> rateInTitle(std::string title) {
    constexpr std::string_view unit = " fps";
    for (auto at = title.find(unit); at != std::string::npos; at = title.find(unit, at)) {
        title.erase(at, unit.size());
    }
    return parseNumber(title);
}

}  // namespace

template <class Command>
bool DocumentCommands::withMemory(const Alert& otherwise, Command command) {
    bool isOut = false;
    try {
        command();
    } catch (const std::bad_alloc&) {
        isOut = true;
    } catch (const std::length_error&) {
        isOut = true;
    }
    if (!isOut) return true;
    try {
        runAlert(otherwise);
    } catch (const std::bad_alloc&) {
        // Not even the alert fits. The document is whole, which matters more than to say so.
    }
    return false;
}

void DocumentCommands::openTimeline() {
    withMemory(noMemory.toOpen, [&] {
        writeLog(openClickedLine);
        const auto url = runOpenPanel();
        if (!url) return;

        Result<TimelineParseResult> parsed;
        whileBusy([&] { parsed = TimelineParser::parse(*url); });
        if (!parsed) {
            writeLog(openFailedLine(parsed.error()));
            runAlert(openFailedAlert(parsed.error()));
            return;
        }
        writeLog(parsedLine(*parsed, *url));

        auto sourceURL = url;
        documentModel.sourceURL = std::move(sourceURL);
        documentModel.events = std::move(parsed->events);
        documentModel.removedEvents.clear();
        documentModel.fps = parsed->fps;
        documentModel.fpsSource = std::move(parsed->fpsSource);

        withMemory(noMemory.toShow, [&] {
            syncFPSPopup();
            reloadTable();
            showEvents(0);
            setStatus(loadedStatus(documentModel, *url));
            runAlert(checkFrameRateAlert());
        });
    });
}

void DocumentCommands::fpsChanged() {
    const bool isDone = withMemory(noMemory.toChange, [&] {
        const auto title = selectedFPSTitle();
        if (!title) return;
        const auto fps = rateInTitle(*title);
        if (!fps) return;

        storeComment();
        double earlier = 0;
        std::size_t converted = 0;
        whileBusy([&] {
            earlier = documentModel.fps;
            converted = convertTimecodes(documentModel.events, earlier, *fps);
        });
        documentModel.fps = *fps;
        documentModel.fpsSource = fpsSourceManual;

        withMemory(noMemory.toShow, [&] {
            reloadTable();
            setStatus(convertedStatus(converted, earlier, *fps));
            syncFPSPopup();
            refreshDetails();
        });
    });
    if (!isDone) withMemory(noMemory.toShow, [&] { syncFPSPopup(); });
}

void DocumentCommands::saveCurrentComment() {
    withMemory(noMemory.toChange, [&] { storeComment(); });
}

void DocumentCommands::storeComment() {
    const auto row = selectedRow();
    if (!row || *row >= documentModel.events.size()) return;
    auto comments = editedComments();
    if (!comments) return;
    TimelineEvent& event = documentModel.events[*row];
    const LineEnd kind = lineEndFor(event);
    event.comments = withLineEnds(std::move(*comments), kind);
}

LineEnd DocumentCommands::lineEndFor(const TimelineEvent& event) {
    if (typedIn != event.id) {
        typedIn = event.id;
        lineEnd = lineEndOf(event.comments);
    }
    return lineEnd;
}

void DocumentCommands::textDidChange() {
    saveCurrentComment();
}

void DocumentCommands::removeSelectedEvent() {
    withMemory(noMemory.toChange, [&] {
        storeComment();
        const auto row = selectedRow();
        if (!row) return;
        auto& events = documentModel.events;
        documentModel.removedEvents.push_back(std::move(selectedEvent(*row)));
        events.erase(events.begin() + static_cast<std::ptrdiff_t>(*row));

        withMemory(noMemory.toShow, [&] {
            reloadTable();
            showEvents(*row);
            setStatus(removedStatus(events.size()));
        });
    });
}

/// Shows the list as it has become: `row` selected, or the last one if there is no such row, or the
/// label of the empty list. A reloaded table has dropped its selection without a word, so that the
/// details of an empty list need a refresh of their own.
void DocumentCommands::showEvents(std::size_t row) {
    const std::size_t count = documentModel.events.size();
    setEmptyLabelHidden(count > 0);
    if (count > 0) {
        selectRow(std::min(row, count - 1));
    } else {
        refreshDetails();
    }
}

void DocumentCommands::copySelectedInfo() {
    withMemory(noMemory.toChange, [&] {
        storeComment();
        const auto row = selectedRow();
        if (!row) return;
        setPasteboardText(
            copyInfoText(selectedEvent(*row), documentModel.fps, documentModel.fpsSource));
        withMemory(noMemory.toShow, [&] { setStatus(copiedStatus); });
    });
}

TimelineEvent& DocumentCommands::selectedEvent(std::size_t row) {
    if (row >= documentModel.events.size()) fatal("the selected row lies beyond the events");
    return documentModel.events[row];
}

void DocumentCommands::exportCSV() {
    withMemory(noMemory.toExport, [&] {
        storeComment();
        saveFile("timeline-events.csv",
                 [this](const auto& url) { return writeCSV(documentModel, url); });
    });
}

void DocumentCommands::exportEDL() {
    withMemory(noMemory.toExport, [&] {
        storeComment();
        saveFile("edited-timeline.edl",
                 [this](const auto& url) { return writeEDL(documentModel, url); });
    });
}

void DocumentCommands::saveFile(const std::string& defaultName, const Writer& writer) {
    const auto url = runSavePanel(defaultName);
    if (!url) return;
    Result<void> written;
    whileBusy([&] { written = writer(*url); });
    if (written) {
        withMemory(noMemory.toShow, [&] { setStatus(exportedStatus(*url)); });
    } else {
        runAlert(exportFailedAlert(written.error()));
    }
}

}  // namespace clipvane
