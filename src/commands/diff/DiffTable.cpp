// SPDX-FileCopyrightText: 2026 The Clipvane developers
// SPDX-License-Identifier: MIT

#include "commands/diff/DiffTable.h"

#include <cstdint>
#include <utility>

#include "base/Number.h"

namespace clipvane::diff {
namespace {

enum Column { track, oldRow, newRow, change, oldRecord, newRecord, source, reel, name };

std::string rowText(std::uint32_t row) {
    std::string text;
    appendInteger(text, std::int64_t{row} + 1);
    return text;
}

std::string range(std::string_view in, std::string_view out) {
    return std::string(in) + " - " + std::string(out);
}

/// Whether nothing is to be said of an event but by how much it is shifted, or moved.
bool isOnly(const NewEvent& event, Word word) {
    return event.words == Words{word} && event.againFrames == 0 && event.elsewhereFrames == 0;
}

bool areAlike(const NewEvent& a, const NewEvent& b) {
    const auto both = [&](Word word) { return isOnly(a, word) && isOnly(b, word); };
    return a.shift == b.shift && (both(Word::shifted) || both(Word::moved));
}

bool isNotCompared(const ReportLine& line, const CutDiff& diff) {
    switch (line.kind) {
        case ReportLine::Kind::event:
            return diff.newEvents[line.event].words.has(Word::notCompared);
        case ReportLine::Kind::ofOld:
            return diff.oldEvents[line.event].words.has(Word::notCompared);
        case ReportLine::Kind::black:
            break;
    }
    return false;
}

std::vector<ReportLine> shownLines(const CutDiff& diff, Detail detail) {
    std::vector<ReportLine> lines = diff.report;
    if (detail == Detail::usual) {
        std::erase_if(lines, [&](const ReportLine& line) { return isNotCompared(line, diff); });
    }
    return lines;
}

class Rows {
  public:
    explicit Rows(const Compared& compared) : compared(compared) {}

    void addEvent(const NewEvent& event) {
        TableRow& row = add(event.track);
        row[newRow] = rowText(event.row);
        row[change] = phraseOf(event, compared);
        const auto& in = compared.newList.events[event.row];
        row[newRecord] = range(in.recordIn, in.recordOut);
        row[source] = range(in.sourceIn, in.sourceOut);
        row[reel] = in.reelID;
        row[name] = in.clipName;
        if (event.partner) setOld(row, compared.diff.oldEvents[*event.partner]);
    }

    void addAlike(const NewEvent& first, const NewEvent& last, std::size_t count) {
        const auto& oldEvents = compared.diff.oldEvents;
        const OldEvent& oldFirst = oldEvents[*first.partner];
        const OldEvent& oldLast = oldEvents[*last.partner];
        const Word word = first.words.has(Word::moved) ? Word::moved : Word::shifted;
        TableRow& row = add(first.track);
        row[oldRow] = rowText(oldFirst.row) + '-' + rowText(oldLast.row);
        row[newRow] = rowText(first.row) + '-' + rowText(last.row);
        row[change] = std::to_string(count) + " events " + shiftPhrase(word, first.shift);
        const auto& newList = compared.newList.events;
        const auto& oldList = compared.oldList.events;
        // One statement a look: an event may be no more than a view.
        const std::string newIn(newList[first.row].recordIn);
        const std::string oldIn(oldList[oldFirst.row].recordIn);
        row[newRecord] = range(newIn, newList[last.row].recordOut);
        row[oldRecord] = range(oldIn, oldList[oldLast.row].recordOut);
    }

    void addOld(const OldEvent& event) {
        TableRow& row = add(event.track);
        setOld(row, event);
        row[change] = phraseOf(event);
        const auto& in = compared.oldList.events[event.row];
        row[source] = range(in.sourceIn, in.sourceOut);
        row[reel] = in.reelID;
        row[name] = in.clipName;
    }

    void addBlack(const ReportLine& line) { add(line.track)[change] = blackPhrase(line.longer); }

    std::vector<TableRow> result() && { return std::move(rows); }

  private:
    TableRow& add(std::uint32_t of) {
        TableRow& row = rows.emplace_back();
        row[track] = compared.diff.tracks[of];
        return row;
    }

    void setOld(TableRow& row, const OldEvent& event) const {
        row[oldRow] = rowText(event.row);
        const auto& in = compared.oldList.events[event.row];
        row[oldRecord] = range(in.recordIn, in.recordOut);
    }

    const Compared& compared;
    std::vector<TableRow> rows;
};

}  // namespace

std::vector<TableRow> tableRows(const Compared& compared, Detail detail) {
    using Line = ReportLine::Kind;
    const auto report = shownLines(compared.diff, detail);
    const auto& newEvents = compared.diff.newEvents;
    Rows rows(compared);
    for (std::size_t i = 0; i < report.size();) {
        const ReportLine& line = report[i];
        std::size_t end = i + 1;
        if (line.kind == Line::black) {
            rows.addBlack(line);
        } else if (line.kind == Line::ofOld) {
            rows.addOld(compared.diff.oldEvents[line.event]);
        } else {
            const auto continues = [&] {
                return report[end].kind == Line::event && report[end].track == line.track &&
                       report[end].order == report[end - 1].order + 1 &&
                       areAlike(newEvents[line.event], newEvents[report[end].event]);
            };
            while (detail == Detail::usual && end < report.size() && continues()) ++end;
            if (end == i + 1) {
                rows.addEvent(newEvents[line.event]);
            } else {
                rows.addAlike(newEvents[line.event], newEvents[report[end - 1].event], end - i);
            }
        }
        i = end;
    }
    return std::move(rows).result();
}

}  // namespace clipvane::diff
