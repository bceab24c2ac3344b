// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "cli/ListFormat.h"

#include <vector>

#include <clipvane/CSVReport.h>
#include <clipvane/FrameRate.h>
#include "cli/Counted.h"
#include "cli/EventLines.h"
#include "cli/Shown.h"
#include "cli/TSVReport.h"
#include "cli/Table.h"

namespace clipvane::cli {
namespace {

class TableFormat : public ListFormat {
  public:
    explicit TableFormat(std::optional<std::size_t> width) : width(width) {}

    std::string timeline(const TimelineDocument& document, std::string_view file) override {
        std::string text = isFirst ? "" : "\n";
        text += shown(file == "-" ? "standard input" : file) + ": " +
                counted(document.events.size(), "event") + " at " + formatFPS(document.fps) +
                " fps (" + document.fpsSource + ")\n";
        if (!document.events.empty()) text += rows(document);
        isFirst = false;
        return text;
    }

  private:
    std::string rows(const TimelineDocument& document) const {
        constexpr std::size_t name = 4;
        constexpr std::size_t timecode = 11;
        Table table({{"Event", name},
                     {"Clip Name", name},
                     {"Reel ID", name},
                     {"Source In", timecode},
                     {"Source Out", timecode},
                     {"Record In", timecode},
                     {"Record Out", timecode},
                     {"Track", name}});
        for (const EventView& event : document.events) {
            std::vector<std::string> row;
            for (const std::string_view field :
                 {event.eventNumber, event.clipName, event.reelID, event.sourceIn, event.sourceOut,
                  event.recordIn, event.recordOut, event.track}) {
                row.emplace_back(field);
            }
            table.addRow(std::move(row));
        }
        return table.text(width);
    }

    std::optional<std::size_t> width;
    bool isFirst = true;
};

/// The window's report; for several timelines one header, and the rows of all.
class CSVFormat : public ListFormat {
  public:
    std::string timeline(const TimelineDocument& document, std::string_view /*file*/) override {
        std::string text = csvText(document);
        const std::size_t headerEnd = text.find('\n') + 1;
        // The empty line of a list without events comes only if none has any.
        if (document.events.empty()) text.resize(headerEnd);
        hasEvents = hasEvents || !document.events.empty();
        if (!isFirst) text.erase(0, headerEnd);
        isFirst = false;
        return text;
    }

    std::string end() override { return isFirst || hasEvents ? "" : "\n"; }

  private:
    bool isFirst = true;
    bool hasEvents = false;
};

class TSVFormat : public ListFormat {
  public:
    std::string timeline(const TimelineDocument& document, std::string_view file) override {
        std::string text = tsvRows(document, file);
        if (isFirst) text.insert(0, tsvHeader());
        isFirst = false;
        return text;
    }

  private:
    bool isFirst = true;
};

class JSONLinesFormat : public ListFormat {
  public:
    std::string timeline(const TimelineDocument& document, std::string_view file) override {
        return eventLines(document, file);
    }
};

}  // namespace

std::unique_ptr<ListFormat> listFormat(const std::string& name, std::optional<std::size_t> width) {
    if (name == "table") return std::make_unique<TableFormat>(width);
    if (name == "csv") return std::make_unique<CSVFormat>();
    if (name == "tsv") return std::make_unique<TSVFormat>();
    if (name == "jsonl") return std::make_unique<JSONLinesFormat>();
    return nullptr;
}

}  // namespace clipvane::cli
