// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include <clipvane/DocumentCommands.h>

#include <algorithm>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <clipvane/CSVReport.h>
#include <clipvane/CopyInfo.h>
#include <clipvane/EditedEDL.h>
#include <clipvane/Fatal.h>
#include <clipvane/TimelineParser.h>
#include <clipvane/TimelineRate.h>
#include "base/Number.h"
#include "commands/LineEnds.h"
#include "commands/Messages.h"

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

/// `row`, or the last one before it, of a list of `count` rows; nothing of an empty list.
std::optional<std::size_t> rowWithin(std::size_t count, std::size_t row) {
    if (count == 0) return std::nullopt;
    return std::min(row, count - 1);
}

/// For what comes after the change: the document is whole, and a lack of memory must not say more.
template <class Action>
void ifMemoryAllows(Action action) try {
    action();
} catch (const std::bad_alloc&) {
}

}  // namespace

DocumentCommands::DocumentCommands()
    : lineEnd(LineEnd::lineFeed), noMemory(std::make_unique<NoMemoryAlerts>()) {}

DocumentCommands::~DocumentCommands() = default;

// Each command knows from the start which alert a lack of memory would end it with. Once its change
// is made, that is another one.

void DocumentCommands::tellLackOfMemory(const Alert& alert) {
    try {
        throw;
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
    ifMemoryAllows([&] { runAlert(alert); });
}

void DocumentCommands::openTimeline() {
    const Alert* alert = &noMemory->toOpen;
    try {
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
        alert = &noMemory->toShow;

        syncFPSPopup();
        showNewEvents(rowWithin(documentModel.events.size(), 0));
        setStatus(loadedStatus(documentModel, *url));
        runAlert(checkFrameRateAlert());
    } catch (...) {
        tellLackOfMemory(*alert);
    }
}

void DocumentCommands::fpsChanged() {
    const Alert* alert = &noMemory->toChange;
    try {
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
        alert = &noMemory->toShow;

        refreshTexts();
        setStatus(convertedStatus(converted, earlier, *fps));
        syncFPSPopup();
        refreshDetails();
    } catch (...) {
        tellLackOfMemory(*alert);
        ifMemoryAllows([&] { syncFPSPopup(); });
    }
}

void DocumentCommands::saveCurrentComment() {
    try {
        storeComment();
    } catch (...) {
        tellLackOfMemory(noMemory->toChange);
    }
}

void DocumentCommands::storeComment() {
    const auto row = selectedRow();
    if (!row || *row >= documentModel.events.size()) return;
    auto comments = editedComments();
    if (!comments) return;
    const LineEnd kind = lineEndFor(documentModel.events[*row]);
    documentModel.events.setComments(*row, withLineEnds(std::move(*comments), kind));
}

LineEnd DocumentCommands::lineEndFor(const EventView& event) {
    if (typedIn != event.id()) {
        typedIn = event.id();
        lineEnd = lineEndOf(event.comments);
    }
    return lineEnd;
}

void DocumentCommands::textDidChange() {
    saveCurrentComment();
}

void DocumentCommands::removeSelectedEvent() {
    const Alert* alert = &noMemory->toChange;
    try {
        storeComment();
        const auto row = selectedRow();
        if (!row) return;
        TimelineEvent event = selectedEvent(*row);
        auto& events = documentModel.events;
        auto& removed = documentModel.removedEvents;

        const auto erase = [&] {
            removed.push_back(std::move(event));
            events.erase(*row);
            alert = &noMemory->toShow;
        };
        // Room for one more, so that nothing fails while the row goes.
        if (removed.size() == removed.capacity()) removed.reserve(removed.size() * 2 + 1);
        removeRow(*row, erase, rowWithin(events.size() - 1, *row));
        setStatus(removedStatus(events.size()));
    } catch (...) {
        tellLackOfMemory(*alert);
    }
}

void DocumentCommands::copySelectedInfo() {
    const Alert* alert = &noMemory->toChange;
    try {
        storeComment();
        const auto row = selectedRow();
        if (!row) return;
        setPasteboardText(
            copyInfoText(selectedEvent(*row), documentModel.fps, documentModel.fpsSource));
        alert = &noMemory->toShow;
        setStatus(copiedStatus);
    } catch (...) {
        tellLackOfMemory(*alert);
    }
}

TimelineEvent DocumentCommands::selectedEvent(std::size_t row) const {
    if (row >= documentModel.events.size()) fatal("the selected row lies beyond the events");
    return documentModel.events[row].record();
}

void DocumentCommands::exportCSV() {
    saveFile("timeline-events.csv", writeCSV);
}

void DocumentCommands::exportEDL() {
    saveFile("edited-timeline.edl", writeEDL);
}

void DocumentCommands::saveFile(const char* defaultName, Writer writer) {
    const Alert* alert = &noMemory->toExport;
    try {
        storeComment();
        const auto url = runSavePanel(defaultName);
        if (!url) return;
        Result<void> written;
        whileBusy([&] { written = writer(documentModel, *url); });
        if (!written) {
            runAlert(exportFailedAlert(written.error()));
            return;
        }
        alert = &noMemory->toShow;
        setStatus(exportedStatus(*url));
    } catch (...) {
        tellLackOfMemory(*alert);
    }
}

}  // namespace clipvane
